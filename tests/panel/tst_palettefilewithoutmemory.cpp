#include "panel/palettefile.h"
#include "support/memorylimit.h"
#include "support/sampleframes.h"

#include <QTemporaryDir>
#include <QtTest>

/// A palette file with a line that does not fit the memory of the process.
class TestPaletteFileWithoutMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void longLine_leavesNoPalette();
};

void TestPaletteFileWithoutMemory::longLine_leavesNoPalette()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("long.pal");
    QVERIFY(writeFile(path, "1 2 3\n"));
    QVERIFY(QFile::resize(path, 64 << 20)); // zeros and no further line end
    const QString shortPath = folder.filePath("short.pal");
    QVERIFY(writeFile(shortPath, "1 2 3\n"));
    if (!limitLargeAllocations()) {
        QTest::qSkip("memory cannot be limited here", __FILE__, __LINE__);
        return;
    }
    QVector<QColor> palette { Qt::red };
    QVERIFY(!readPaletteFile(path, palette));
    QVERIFY(palette.isEmpty());
    QVERIFY(readPaletteFile(shortPath, palette));
    QCOMPARE(palette, QVector<QColor>({ QColor(1, 2, 3) }));
}

QTEST_GUILESS_MAIN(TestPaletteFileWithoutMemory)
#include "tst_palettefilewithoutmemory.moc"
