#include "formats/csvtables.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLocale>
#include <QTest>

#include <clocale>
#include <limits>

/// Each table as it stands in the file, byte by byte.
class TestCsvTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void preamble_tellsWhatIsKnown();
    void preamble_leavesOutWhatIsNotKnown();
    void preamble_keepsEachKeyOnOneLine();
    void regions_areNumberedFromOne();
    void regions_nameWhatIsNoNumber();
    void histogram_listsEveryValue();
    void histogram_reachesTheLargestValue();
    void histogram_ofManyCountsIsQuick();
    void profile_hasPixelPositionAndValue();
    void profile_withoutPositionsCountsPixels();
    void profile_namesTheUnit();
    void peaks_areListedByRank();
    void field_isQuotedWhereNeeded_data();
    void field_isQuotedWhereNeeded();
    void tabbed_separatesCells();
    void tabbed_takesQuotesOff_data();
    void tabbed_takesQuotesOff();
    void numbers_haveAPointInEveryLocale();
};

void TestCsvTables::initTestCase()
{
    QCoreApplication::setApplicationName(QStringLiteral("meter"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2"));
}

void TestCsvTables::preamble_tellsWhatIsKnown()
{
    const MeasurementSource source { QStringLiteral("lamp.tif"), 3, QSize(640, 480), 16 };
    const MeasuredCalibration calibration { 400.5, 0.25, QStringLiteral("nm") };
    QCOMPARE(csvPreamble(source, calibration, QRect(1, 2, 30, 40)),
        QByteArray("# program: meter\n"
                   "# version: 1.2\n"
                   "# file: lamp.tif\n"
                   "# page: 3\n"
                   "# size: width=640 height=480\n"
                   "# bits: 16\n"
                   "# calibration: start=400.5 width=0.25 unit=nm\n"
                   "# region: x=1 y=2 width=30 height=40\n"));
}

void TestCsvTables::preamble_leavesOutWhatIsNotKnown()
{
    QCOMPARE(csvPreamble(MeasurementSource(), std::nullopt),
        QByteArray("# program: meter\n# version: 1.2\n"));
}

void TestCsvTables::preamble_keepsEachKeyOnOneLine()
{
    MeasurementSource source;
    source.file = QString::fromUtf8("a\nb\r\xe2\x80\xa8\xc3\xa4.raw");
    QVERIFY(csvPreamble(source, std::nullopt).contains("# file: a b  \xc3\xa4.raw\n# page: 0\n"));
}

void TestCsvTables::regions_areNumberedFromOne()
{
    const RegionStatistics first { QRect(0, 1, 2, 3), 6, 10.5, 9, 12, 0.5, 21.0 };
    const RegionStatistics second { QRect(7, 8, 1, 1), 1, 4294967295.0, 4294967295u, 4294967295u,
        0.125, 0.1 };
    QCOMPARE(csvRegions({ first, second }),
        QByteArray("region,x,y,width,height,pixels,mean,minimum,maximum,deviation,signal_to_noise\n"
                   "1,0,1,2,3,6,10.5,9,12,0.5,21\n"
                   "2,7,8,1,1,1,4294967295,4294967295,4294967295,0.125,0.1\n"));
}

void TestCsvTables::regions_nameWhatIsNoNumber()
{
    RegionStatistics flat { QRect(0, 0, 1, 1), 1, 5.0, 5, 5, 0.0, 0.0 };
    flat.signalToNoise = std::numeric_limits<double>::quiet_NaN();
    QCOMPARE(csvStatistics(flat), QByteArray("0,0,1,1,1,5,5,5,0,nan"));
}

void TestCsvTables::histogram_listsEveryValue()
{
    QCOMPARE(csvHistogram({ 9, { 3, 0, 1 } }), QByteArray("value,count\n9,3\n10,0\n11,1\n"));
    QCOMPARE(csvHistogram(MeasuredHistogram()), QByteArray("value,count\n"));
}

void TestCsvTables::histogram_reachesTheLargestValue()
{
    QCOMPARE(csvHistogram({ 4294967294u, { 1, 2 } }),
        QByteArray("value,count\n4294967294,1\n4294967295,2\n"));
}

void TestCsvTables::histogram_ofManyCountsIsQuick()
{
    QElapsedTimer timer;
    timer.start();
    const QByteArray table = csvHistogram({ 0, QVector<quint32>(1 << 22, 7) });
    QVERIFY(table.endsWith("\n4194303,7\n"));
    QVERIFY(timer.elapsed() < 10000); // an append that copies all before it takes hours
}

void TestCsvTables::profile_hasPixelPositionAndValue()
{
    MeasuredProfile profile;
    profile.values = { 7, 8 };
    profile.positions = { 400.0, 400.1 };
    QCOMPARE(
        csvProfile(profile, QString()), QByteArray("pixel,position,value\n0,400,7\n1,400.1,8\n"));
}

void TestCsvTables::profile_withoutPositionsCountsPixels()
{
    MeasuredProfile profile;
    profile.values = { 7, 8 };
    profile.positions = { 0.5 };
    QCOMPARE(csvProfile(profile, QString()), QByteArray("pixel,position,value\n0,0.5,7\n1,1,8\n"));
}

void TestCsvTables::profile_namesTheUnit()
{
    QCOMPARE(csvProfile(MeasuredProfile(), QStringLiteral("nm")),
        QByteArray("pixel,position [nm],value\n"));
    QCOMPARE(csvProfile(MeasuredProfile(), QStringLiteral("a,b")),
        QByteArray("pixel,\"position [a,b]\",value\n"));
}

void TestCsvTables::peaks_areListedByRank()
{
    QCOMPARE(csvPeaks({ { 1, 20, 410.5, 200 }, { 2, 3, 400.25, 90 } }, QStringLiteral("um")),
        QByteArray("rank,pixel,position [um],value\n1,20,410.5,200\n2,3,400.25,90\n"));
}

void TestCsvTables::field_isQuotedWhereNeeded_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("field");
    QTest::newRow("plain") << QStringLiteral("a b.raw") << QByteArray("a b.raw");
    QTest::newRow("comma") << QStringLiteral("a,b") << QByteArray("\"a,b\"");
    QTest::newRow("quote") << QStringLiteral("a\"b") << QByteArray("\"a\"\"b\"");
    QTest::newRow("line end") << QStringLiteral("a\nb") << QByteArray("\"a\nb\"");
    QTest::newRow("carriage return") << QStringLiteral("a\rb") << QByteArray("\"a\rb\"");
    QTest::newRow("like a comment") << QStringLiteral("#1.raw") << QByteArray("\"#1.raw\"");
    QTest::newRow("empty") << QString() << QByteArray();
}

void TestCsvTables::field_isQuotedWhereNeeded()
{
    QFETCH(QString, text);
    QTEST(csvField(text), "field");
}

void TestCsvTables::tabbed_separatesCells()
{
    QCOMPARE(tabbed("a,b\n1,2\n"), QStringLiteral("a\tb\n1\t2\n"));
    QCOMPARE(tabbed(""), QString());
}

void TestCsvTables::tabbed_takesQuotesOff_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("cell");
    QTest::newRow("comma") << QByteArray("\"a,b\"") << QStringLiteral("a,b");
    QTest::newRow("tab keeps quotes") << QByteArray("\"a\tb\"") << QStringLiteral("\"a\tb\"");
    QTest::newRow("line end keeps quotes") << QByteArray("\"a\nb\"") << QStringLiteral("\"a\nb\"");
    QTest::newRow("quote") << QByteArray("\"a\"\"b\"") << QStringLiteral("\"a\"\"b\"");
    QTest::newRow("nothing but a quote") << QByteArray("\"\"\"\"") << QStringLiteral("\"\"\"\"");
    QTest::newRow("empty in quotes") << QByteArray("\"\"") << QString();
    QTest::newRow("other scripts") << QByteArray("\xc2\xb5m") << QString::fromUtf8("\xc2\xb5m");
}

void TestCsvTables::tabbed_takesQuotesOff()
{
    QFETCH(QByteArray, field);
    QFETCH(QString, cell);
    QCOMPARE(tabbed(field + ",1\n"), cell + QStringLiteral("\t1\n"));
}

void TestCsvTables::numbers_haveAPointInEveryLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    std::setlocale(LC_ALL, "de_DE.UTF-8"); // has an effect where this locale is installed
    const QByteArray fields = csvStatistics({ QRect(0, 0, 1, 1), 1, 1234.5, 0, 0, 0.0, 0.0 });
    std::setlocale(LC_ALL, "C.UTF-8");
    QLocale::setDefault(before);
    QCOMPARE(fields, QByteArray("0,0,1,1,1,1234.5,0,0,0,0"));
}

QTEST_GUILESS_MAIN(TestCsvTables)
#include "tst_csvtables.moc"
