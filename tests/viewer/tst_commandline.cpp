#include "commandline.h"

#include <QtTest>

using Widget = CVKIntensityWidget;

class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothing();
    void image();
    void screenshot();
    void optionsInAnyOrder();
    void dashesEndTheOptions();
    void page_countsFromOne();
    void size_data();
    void size();
    void settings_areReadIntoTheirFields();
    void settings_names_inAnyCase();
    void settings_atTheLimits();
    void numbers_data();
    void numbers();
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

void TestCommandLine::page_countsFromOne()
{
    QVERIFY(!parsedCommandLine({ "a.tif" }).page);
    const CommandLine first = parsedCommandLine({ "--page", "1", "a.tif" });
    QVERIFY2(first.error.isEmpty(), qPrintable(first.error));
    QCOMPARE(first.page, std::optional<int>(0));
    const CommandLine last
        = parsedCommandLine({ "a.tif", "--screenshot", "out.png", "--page", "99999" });
    QVERIFY2(last.error.isEmpty(), qPrintable(last.error));
    QCOMPARE(last.page, std::optional<int>(99998));
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

void TestCommandLine::settings_areReadIntoTheirFields()
{
    QVERIFY(parsedCommandLine({ "--screenshot", "o.png", "a.raw" }).settings.isEmpty());
    const CommandLine line = parsedCommandLine({ "--screenshot", "o.png", "--view", "y", "--peaks",
        "12", "--palette", "red", "--roi", "1,2,30,40", "--roi", "0,0,1,1", "--wavelength", "100,2",
        "--regions", "b.reg", "a.raw" });
    QCOMPARE(line.error, QString());
    const DisplaySettings& settings = line.settings;
    QVERIFY(settings.view && *settings.view == Widget::View::ColumnChart);
    QVERIFY(settings.peakLabels && *settings.peakLabels == (Widget::PeakLabels { true, 12 }));
    QCOMPARE(settings.palette, QString("Red"));
    QCOMPARE(settings.regions, (QVector<QRect> { QRect(1, 2, 30, 40), QRect(0, 0, 1, 1) }));
    const Widget::Calibration wanted { 100, 2, Widget::Unit::Micrometers };
    QVERIFY(settings.calibration && *settings.calibration == wanted);
    QVERIFY(!settings.chartAxis);
    QCOMPARE(line.regionFile, QString("b.reg"));
    QVERIFY(!settings.isEmpty());
}

void TestCommandLine::settings_names_inAnyCase()
{
    const CommandLine line = parsedCommandLine(
        { "--screenshot", "o.png", "--view", "Image", "--palette", "COLOR", "a.raw" });
    QCOMPARE(line.error, QString());
    QVERIFY(line.settings.view && *line.settings.view == Widget::View::Image);
    QCOMPARE(line.settings.palette, QString("Color"));
}

void TestCommandLine::settings_atTheLimits()
{
    const auto parsed = [](const QString& option, const QString& value) {
        return parsedCommandLine(
            { "--screenshot", "o.png", "--view", "x", option, value, "a.raw" });
    };
    const auto unit = [&parsed](const QString& value) {
        return parsed("--wavelength", value).settings.calibration->unit;
    };
    QCOMPARE(parsed("--peaks", "1").settings.peakLabels->count, 1);
    QCOMPARE(parsed("--peaks", "200").error, QString());
    QVERIFY(!parsed("--peaks", "0").error.isEmpty());
    QVERIFY(!parsed("--peaks", "201").error.isEmpty());
    QCOMPARE(parsed("--wavelength", "0,1").error, QString());
    QCOMPARE(parsed("--wavelength", "2000,100").error, QString());
    QCOMPARE(unit("5,1,nm"), Widget::Unit::Nanometers);
    QCOMPARE(unit("5,1,um"), Widget::Unit::Micrometers);
    for (const char* value :
        { "2001,1", "5,0", "5,101", "5", "5,1,2", "5,1,mm", "5,nm", "-1,1", "5,1.5", ",nm", "" }) {
        QVERIFY2(parsed("--wavelength", value).error.startsWith("--wavelength needs"), value);
    }
    for (const char* value : { "1,2,3", "1,2,3,4,5", "1,2,0,4", "1,2,3,0", "-1,2,3,4", "a,2,3,4",
             "1,2,3,99999999999", "" }) {
        QVERIFY2(parsed("--roi", value).error.startsWith("--roi needs"), value);
    }
}

void TestCommandLine::numbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<int>>("numbers");
    const QVector<int> none;
    QTest::newRow("usual") << "7,08" << QVector<int> { 7, 8 };
    QTest::newRow("largest") << "99999,0" << QVector<int> { 99999, 0 };
    QTest::newRow("too long") << "100000,0" << none;
    QTest::newRow("too few") << "7" << none;
    QTest::newRow("too many") << "7,8,9" << none;
    QTest::newRow("nothing between") << "7," << none;
    QTest::newRow("negative") << "7,-8" << none;
    QTest::newRow("sign") << "+7,8" << none;
    QTest::newRow("blank") << "7, 8" << none;
    QTest::newRow("line feed") << "7,8\n" << none;
    QTest::newRow("other digits") << QString::fromUtf8("7,\u0668") << none;
}

void TestCommandLine::numbers()
{
    QFETCH(QString, text);
    QTEST(parsedNumbers(text, 2), "numbers");
}

void TestCommandLine::mistakes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("unknown option")
        << QStringList { "--zoom", "a.raw" } << "unknown option --zoom (see --help)";
    QTest::newRow("two images") << QStringList { "a.raw", "b.raw" }
                                << "only one image can be opened";
    for (const char* page : { "0", "-1", "two", "1,2", "1.5", "100000", "4294967297", "", " 2" }) {
        QTest::addRow("page \"%s\"", page) << QStringList { "--page", page, "a.tif" }
                                           << "--page needs the number of a page, from 1 to 99999";
    }
    QTest::newRow("page without a number") << QStringList { "a.tif", "--page" }
                                           << "--page needs the number of a page, from 1 to 99999";
    QTest::newRow("page of nothing")
        << QStringList { "--page", "1" } << "--page needs an image to show";
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
    const QString together
        = "--view, --peaks, --palette, --roi, --regions and --wavelength go with --screenshot";
    QTest::newRow("view alone") << QStringList { "--view", "x", "a.raw" } << together;
    QTest::newRow("region file alone") << QStringList { "--regions", "a.reg", "a" } << together;
    for (const QStringList& end : { QStringList { "--regions" }, { "--regions", "" } }) {
        QTest::newRow(qPrintable(QString("region file missing, %1").arg(end.size())))
            << QStringList { "--screenshot", "o.png", "a" } + end << "--regions needs a file name";
    }
    QTest::newRow("region alone") << QStringList { "--roi", "1,1,1,1", "a.raw" } << together;
    QTest::newRow("unknown view") << QStringList { "--screenshot", "o.png", "--view", "z", "a" }
                                  << "--view needs image, x or y";
    QTest::newRow("view without a value")
        << QStringList { "--screenshot", "o.png", "a", "--view" } << "--view needs image, x or y";
    QTest::newRow("unknown palette") << QStringList { "--screenshot", "o.png", "--palette", "pink",
        "a" } << "--palette needs gray, red, green, blue or color";
    QTest::newRow("too many peaks") << QStringList { "--screenshot", "o.png", "--view", "x",
        "--peaks", "201", "a" } << "--peaks needs a number from 1 to 200";
    const QString chart = "--peaks goes with --view x or --view y";
    QTest::newRow("peaks of the image")
        << QStringList { "--screenshot", "o.png", "--view", "image", "--peaks", "5", "a" } << chart;
    QTest::newRow("peaks without a view")
        << QStringList { "--screenshot", "o.png", "--peaks", "5", "a" } << chart;
    QTest::newRow("wavelength beyond the field")
        << QStringList { "--screenshot", "o.png", "--wavelength", "2001,1", "a" }
        << "--wavelength needs START,WIDTH[,um|nm], START from 0 to 2000, WIDTH from 1 to 100";
    QTest::newRow("region without a size") << QStringList { "--screenshot", "o.png", "--roi",
        "1,1,0,5", "a" } << "--roi needs X,Y,WIDTH,HEIGHT in pixels from the top left";
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
    for (const char* option : { "--page", "--screenshot", "--size", "--view", "--peaks",
             "--palette", "--roi", "--regions", "--wavelength", "--help", "--version" }) {
        QVERIFY(commandLineHelp().contains(option));
    }
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
