#include "commandline.h"

#include <QtTest>

class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothing();
    void image();
    void screenshot();
    void optionsInAnyOrder();
    void dashesEndTheOptions();
    void size_data();
    void size();
    void mistakes_data();
    void mistakes();
    void help_namesEveryOption();
};

void TestCommandLine::nothing()
{
    const CommandLine line = parsedCommandLine({});
    QVERIFY(line.error.isEmpty());
    QVERIFY(line.image.isEmpty());
    QVERIFY(line.screenshot.isEmpty());
    QVERIFY(!line.size.isValid());
}

void TestCommandLine::image()
{
    const CommandLine line = parsedCommandLine({ "a lamp.raw" });
    QVERIFY(line.error.isEmpty());
    QCOMPARE(line.image, QString("a lamp.raw"));
}

void TestCommandLine::screenshot()
{
    const CommandLine line
        = parsedCommandLine({ "--screenshot", "out.png", "--size", "1280x800", "lamp.raw" });
    QVERIFY(line.error.isEmpty());
    QCOMPARE(line.image, QString("lamp.raw"));
    QCOMPARE(line.screenshot, QString("out.png"));
    QCOMPARE(line.size, QSize(1280, 800));
}

void TestCommandLine::optionsInAnyOrder()
{
    const CommandLine line
        = parsedCommandLine({ "lamp.raw", "--size", "800x600", "--screenshot", "out.png" });
    QVERIFY(line.error.isEmpty());
    QCOMPARE(line.image, QString("lamp.raw"));
    QCOMPARE(line.size, QSize(800, 600));
}

void TestCommandLine::dashesEndTheOptions()
{
    const CommandLine line = parsedCommandLine({ "--", "--size" });
    QVERIFY(line.error.isEmpty());
    QCOMPARE(line.image, QString("--size"));
}

void TestCommandLine::size_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("size");
    const QSize none;
    QTest::newRow("usual") << "800x600" << QSize(800, 600);
    QTest::newRow("smallest") << "1x1" << QSize(1, 1);
    QTest::newRow("largest") << "8192x8192" << QSize(8192, 8192);
    QTest::newRow("too wide") << "8193x10" << none;
    QTest::newRow("too high") << "10x8193" << none;
    QTest::newRow("zero") << "0x600" << none;
    QTest::newRow("negative") << "-800x600" << none;
    QTest::newRow("beyond int") << "99999999999x99999999999" << none;
    QTest::newRow("wraps to a good size") << "4294968096x600" << none;
    QTest::newRow("one number") << "800" << none;
    QTest::newRow("three numbers") << "800x600x3" << none;
    QTest::newRow("words") << "wide" << none;
    QTest::newRow("blanks") << " 800x600 " << none;
    QTest::newRow("line feed behind") << "800x600\n" << none;
    QTest::newRow("empty") << "" << none;
}

void TestCommandLine::size()
{
    QFETCH(QString, text);
    QFETCH(QSize, size);
    QCOMPARE(parsedSize(text), size);
}

void TestCommandLine::mistakes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("unknown option")
        << QStringList { "--zoom", "a.raw" } << "unknown option --zoom (see --help)";
    QTest::newRow("two images") << QStringList { "a.raw", "b.raw" }
                                << "only one image can be opened";
    QTest::newRow("empty name") << QStringList { "" } << "the name of the image is empty";
    QTest::newRow("screenshot without file")
        << QStringList { "a.raw", "--screenshot" } << "--screenshot needs a file name";
    QTest::newRow("screenshot with an empty name")
        << QStringList { "--screenshot", "", "a.raw" } << "--screenshot needs a file name";
    QTest::newRow("screenshot without image")
        << QStringList { "--screenshot", "out.png" } << "--screenshot needs an image to show";
    QTest::newRow("size alone") << QStringList { "--size", "800x600", "a.raw" }
                                << "--size goes with --screenshot";
    QTest::newRow("size without value") << QStringList { "--screenshot", "o.png", "a", "--size" }
                                        << "--size needs WIDTHxHEIGHT, each from 1 to 8192";
    QTest::newRow("absurd size") << QStringList { "--screenshot", "o.png", "--size",
        "100000x100000", "a" } << "--size needs WIDTHxHEIGHT, each from 1 to 8192";
}

void TestCommandLine::mistakes()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    QCOMPARE(parsedCommandLine(arguments).error, error);
}

void TestCommandLine::help_namesEveryOption()
{
    for (const char* option : { "--screenshot", "--size", "--help", "--version" }) {
        QVERIFY(commandLineHelp().contains(option));
    }
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
