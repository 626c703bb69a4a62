#include "panel/palettefile.h"

#include "support/sampleframes.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

class TestPaletteFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void path_joinsDirectoryAndName_data();
    void path_joinsDirectoryAndName();
    void line_data();
    void line();
    void outOfRangeFields_giveAnInvalidColor_data();
    void outOfRangeFields_giveAnInvalidColor();
    void oneColorForEachLine();
    void moreThan256Lines_areKept();
    void emptyLines_areBlack();
    void windowsLineEnds();
    void emptyFile_clearsThePalette();
    void secondFile_replacesTheFirst();
    void missingFile_leavesThePalette();
    void folder_leavesThePalette();
    void pipe_leavesThePalette();
    void noText_isReadAsZeros();
    void stopsAfterAMillionLines();
    void stopsInsideAnEndlessLine();

private:
    QVector<QColor> read(const QByteArray& contents);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestPaletteFile::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QVector<QColor> TestPaletteFile::read(const QByteArray& contents)
{
    const QString path = m_folder->filePath("colors.pal");
    QVector<QColor> palette;
    if (!writeFile(path, contents) || !readPaletteFile(path, palette)) {
        QTest::qFail("the file was not read", __FILE__, __LINE__);
    }
    return palette;
}

void TestPaletteFile::path_joinsDirectoryAndName_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    QTest::newRow("slashes") << "/opt/app"
                             << "/pal/red.pal"
                             << "/opt/app/pal/red.pal";
    QTest::newRow("backslashes") << "/opt/app"
                                 << "\\pal\\blue.pal"
                                 << "/opt/app/pal/blue.pal";
    QTest::newRow("drive") << "C:/app"
                           << "\\pal\\color.pal"
                           << "C:/app/pal/color.pal";
    QTest::newRow("directory with a backslash in its name") << "/opt/a\\b"
                                                            << "\\pal\\blue.pal"
                                                            << "/opt/a\\b/pal/blue.pal";
}

void TestPaletteFile::path_joinsDirectoryAndName()
{
    QFETCH(QString, directory);
    QFETCH(QString, name);
    QTEST(paletteFilePath(directory, name), "path");
}

void TestPaletteFile::line_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QColor>("color");
    QTest::newRow("three fields") << QByteArray("10 20 30\n") << QColor(10, 20, 30);
    QTest::newRow("no line end") << QByteArray("10 20 30") << QColor(10, 20, 30);
    QTest::newRow("two spaces") << QByteArray("10  20 30\n") << QColor(10, 0, 20);
    QTest::newRow("leading space") << QByteArray(" 10 20 30\n") << QColor(0, 10, 20);
    QTest::newRow("extra fields") << QByteArray("1 2 3 4 5\n") << QColor(1, 2, 3);
    QTest::newRow("two fields") << QByteArray("10 20\n") << QColor(10, 20, 0);
    QTest::newRow("trailing space") << QByteArray("10 \n") << QColor(10, 0, 0);
    QTest::newRow("one field") << QByteArray("10\n") << QColor(10, 0, 0);
    QTest::newRow("no fields") << QByteArray("\n") << QColor(0, 0, 0);
    QTest::newRow("words") << QByteArray("red 20 0x1e\n") << QColor(0, 20, 0);
    QTest::newRow("fraction") << QByteArray("1.5 20 30\n") << QColor(0, 20, 30);
    QTest::newRow("too large for an int") << QByteArray("99999999999 20 30\n") << QColor(0, 20, 30);
    QTest::newRow("other separators") << QByteArray("10,20,30\n") << QColor(0, 0, 0);
    QTest::newRow("text mode drops a carriage return")
        << QByteArray("1\r0 20 30\n") << QColor(10, 20, 30);
    QTest::newRow("limits") << QByteArray("255 0 255\n") << QColor(255, 0, 255);
}

void TestPaletteFile::line()
{
    QFETCH(QByteArray, contents);
    QFETCH(QColor, color);
    const QVector<QColor> palette = read(contents);
    QCOMPARE(palette.size(), 1);
    QCOMPARE(palette.first(), color);
    QCOMPARE(palette.first().alpha(), 255);
}

void TestPaletteFile::outOfRangeFields_giveAnInvalidColor_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("above") << QByteArray("10 256 30\n");
    QTest::newRow("below") << QByteArray("10 20 -1\n");
    QTest::newRow("far above") << QByteArray("2147483647 0 0\n");
}

void TestPaletteFile::outOfRangeFields_giveAnInvalidColor()
{
    QFETCH(QByteArray, contents);
    QTest::ignoreMessage(QtWarningMsg, "QColor::setRgb: RGB parameters out of range");
    const QVector<QColor> palette = read(contents);
    QCOMPARE(palette.size(), 1);
    QVERIFY(!palette.first().isValid());
}

void TestPaletteFile::oneColorForEachLine()
{
    QCOMPARE(read("1 2 3\n4 5 6\n7 8 9\n"),
        QVector<QColor>({ QColor(1, 2, 3), QColor(4, 5, 6), QColor(7, 8, 9) }));
}

void TestPaletteFile::moreThan256Lines_areKept()
{
    QByteArray contents;
    for (int i = 0; i < 300; ++i) {
        contents += QByteArray::number(i % 256) + " 0 0\n";
    }
    const QVector<QColor> palette = read(contents);
    QCOMPARE(palette.size(), 300);
    QCOMPARE(palette.at(255), QColor(255, 0, 0));
    QCOMPARE(palette.last(), QColor(43, 0, 0));
}

void TestPaletteFile::emptyLines_areBlack()
{
    QCOMPARE(read("1 2 3\n\n4 5 6\n"),
        QVector<QColor>({ QColor(1, 2, 3), QColor(0, 0, 0), QColor(4, 5, 6) }));
}

void TestPaletteFile::windowsLineEnds()
{
    QCOMPARE(read("1 2 3\r\n4 5 6\r\n"), QVector<QColor>({ QColor(1, 2, 3), QColor(4, 5, 6) }));
}

void TestPaletteFile::emptyFile_clearsThePalette()
{
    const QString path = m_folder->filePath("empty.pal");
    QVERIFY(writeFile(path, QByteArray()));
    QVector<QColor> palette { Qt::red };
    QVERIFY(readPaletteFile(path, palette));
    QVERIFY(palette.isEmpty());
    QVERIFY(palette.capacity() >= 1);
}

void TestPaletteFile::secondFile_replacesTheFirst()
{
    const QString path = m_folder->filePath("one.pal");
    QVERIFY(writeFile(path, "4 5 6\n"));
    QVector<QColor> palette { Qt::red, Qt::green };
    const QVector<QColor> copy = palette;
    QVERIFY(readPaletteFile(path, palette));
    QCOMPARE(palette, QVector<QColor>({ QColor(4, 5, 6) }));
    QCOMPARE(copy.size(), 2);
}

void TestPaletteFile::missingFile_leavesThePalette()
{
    QVector<QColor> palette { Qt::red };
    QVERIFY(!readPaletteFile(m_folder->filePath("missing.pal"), palette));
    QVERIFY(!readPaletteFile(QString(), palette));
    QCOMPARE(palette, QVector<QColor>({ QColor(Qt::red) }));
}

void TestPaletteFile::folder_leavesThePalette()
{
    QVector<QColor> palette { Qt::red };
    QVERIFY(!readPaletteFile(m_folder->path(), palette));
    QCOMPARE(palette.size(), 1);
}

void TestPaletteFile::pipe_leavesThePalette()
{
#ifdef Q_OS_UNIX
    const QString pipe = m_folder->filePath("pipe.pal");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVector<QColor> palette { Qt::red };
    QVERIFY(!readPaletteFile(pipe, palette)); // and does not wait for a writer
    QCOMPARE(palette.size(), 1);
#else
    QTest::qSkip("needs a named pipe", __FILE__, __LINE__);
#endif
}

void TestPaletteFile::noText_isReadAsZeros()
{
    QByteArray contents;
    for (int i = 0; i < 4096; ++i) {
        contents += char(i * 37 % 256);
    }
    contents.replace('\r', 'x');
    // The byte after which a line begins comes 16 times, once in each run of 256.
    const QVector<QColor> palette = read(contents);
    QCOMPARE(palette.size(), 17);
    QCOMPARE(palette.first(), QColor(0, 0, 0));
    QCOMPARE(read(QByteArray(1000, '\0')), QVector<QColor>({ QColor(0, 0, 0) }));
}

void TestPaletteFile::stopsAfterAMillionLines()
{
    QCOMPARE(read(QByteArray("7\n").repeated(1000001)).size(), 1000000);
}

void TestPaletteFile::stopsInsideAnEndlessLine()
{
    const QVector<QColor> palette
        = read("7 8 9\n" + QByteArray((64 << 20) + 10, ' ') + "\n1 2 3\n");
    QCOMPARE(palette, QVector<QColor>({ QColor(7, 8, 9), QColor(0, 0, 0) }));
}

QTEST_GUILESS_MAIN(TestPaletteFile)
#include "tst_palettefile.moc"
