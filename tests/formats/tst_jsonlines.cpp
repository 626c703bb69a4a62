#include "formats/jsonlines.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <limits>

/// Lines as they are written, byte by byte, and as a JSON reader takes them.
class TestJsonLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void line_ofNothingNamesTheSource();
    void line_keepsTheOrderOfNames();
    void line_hasNullWhereThereIsNoNumber();
    void line_escapesText_data();
    void line_escapesText();
    void profile_withoutPeaksLacksTheName();
    void regions_haveTheirHistograms();
    void line_staysOneLine();
};

void TestJsonLines::initTestCase()
{
    QCoreApplication::setApplicationName(QStringLiteral("meter"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2"));
}

void TestJsonLines::line_ofNothingNamesTheSource()
{
    Measurement measurement;
    measurement.source = { QStringLiteral("a.raw"), 2, QSize(4, 3), 16 };
    QCOMPARE(jsonLine(measurement),
        QByteArray(R"({"file":"a.raw","page":2,"width":4,"height":3,"bits":16,"regions":[],)"
                   R"("rows":[],"columns":[],"calibration":null,"program":"meter",)"
                   R"("version":"1.2"})"));
}

void TestJsonLines::line_keepsTheOrderOfNames()
{
    Measurement measurement;
    measurement.source = { QStringLiteral("a.raw"), 0, QSize(2, 1), 8 };
    measurement.image = RegionStatistics { QRect(0, 0, 2, 1), 2, 1.5, 1, 2, 0.5, 3.0 };
    measurement.regions = { { QRect(1, 0, 1, 1), 1, 2.0, 2, 2, 0.0, 0.1 } };
    MeasuredProfile row;
    row.values = { 1, 2 };
    row.positions = { 400.0, 400.5 };
    row.peaks = QVector<MeasuredPeak> { { 1, 1, 400.5, 2 } };
    measurement.rows = { row };
    MeasuredProfile column;
    column.axis = MeasuredProfile::Axis::Column;
    column.index = 1;
    column.values = { 2 };
    column.peaks = QVector<MeasuredPeak>();
    measurement.columns = { column };
    measurement.histogram = MeasuredHistogram { 1, { 1, 1 } };
    measurement.calibration = MeasuredCalibration { 400.0, 0.5, QStringLiteral("nm") };
    QCOMPARE(jsonLine(measurement),
        QByteArray(
            R"({"file":"a.raw","page":0,"width":2,"height":1,"bits":8,)"
            R"("image":{"x":0,"y":0,"width":2,"height":1,"pixels":2,"mean":1.5,"minimum":1,)"
            R"("maximum":2,"deviation":0.5,"signal_to_noise":3},)"
            R"("regions":[{"x":1,"y":0,"width":1,"height":1,"pixels":1,"mean":2,"minimum":2,)"
            R"("maximum":2,"deviation":0,"signal_to_noise":0.1}],)"
            R"("rows":[{"index":0,"values":[1,2],)"
            R"("peaks":[{"rank":1,"pixel":1,"position":400.5,"value":2}]}],)"
            R"("columns":[{"index":1,"values":[2],"peaks":[]}],)"
            R"("histogram":{"first":1,"counts":[1,1]},)"
            R"("calibration":{"start":400,"width":0.5,"unit":"nm"},)"
            R"("program":"meter","version":"1.2"})"));
}

void TestJsonLines::line_hasNullWhereThereIsNoNumber()
{
    Measurement measurement;
    RegionStatistics flat;
    flat.mean = std::numeric_limits<double>::infinity();
    flat.signalToNoise = std::numeric_limits<double>::quiet_NaN();
    measurement.image = flat;
    const QByteArray line = jsonLine(measurement);
    QVERIFY(line.startsWith(R"({"file":null,)")); // a frame from memory
    QVERIFY(line.contains(R"("mean":null,)"));
    QVERIFY(line.contains(R"("signal_to_noise":null})"));
}

void TestJsonLines::line_escapesText_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("quote") << QStringLiteral("a\"b") << QByteArray(R"("a\"b")");
    QTest::newRow("backslash") << QStringLiteral("a\\b") << QByteArray(R"("a\\b")");
    QTest::newRow("line end") << QStringLiteral("a\nb") << QByteArray(R"("a\u000ab")");
    QTest::newRow("last control character") << QString(QChar(0x1f)) << QByteArray(R"("\u001f")");
    QTest::newRow("NUL") << QString(QChar(0)) << QByteArray(R"("\u0000")");
    QTest::newRow("other scripts")
        << QString::fromUtf8("\xe6\x98\x9f.tif") << QByteArray("\"\xe6\x98\x9f.tif\"");
}

void TestJsonLines::line_escapesText()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, text);
    Measurement measurement;
    measurement.source.file = file;
    const QByteArray line = jsonLine(measurement);
    QVERIFY2(line.startsWith("{\"file\":" + text + ","), line.constData());
    QCOMPARE(QJsonDocument::fromJson(line).object().value(QStringLiteral("file")).toString(), file);
}

void TestJsonLines::profile_withoutPeaksLacksTheName()
{
    Measurement measurement;
    measurement.rows.resize(1);
    QVERIFY(jsonLine(measurement).contains(R"("rows":[{"index":0,"values":[]}])"));
}

void TestJsonLines::regions_haveTheirHistograms()
{
    Measurement measurement;
    measurement.regions.resize(2);
    measurement.regionHistograms = { { 5, { 1 } }, { 6, { 2, 3 } } };
    const QJsonArray regions = QJsonDocument::fromJson(jsonLine(measurement))
                                   .object()
                                   .value(QStringLiteral("regions"))
                                   .toArray();
    QCOMPARE(regions.size(), 2);
    const QJsonObject histogram = regions.at(1)[QStringLiteral("histogram")].toObject();
    QCOMPARE(histogram.value(QStringLiteral("first")).toInt(), 6);
    QCOMPARE(histogram.value(QStringLiteral("counts")).toArray(), QJsonArray({ 2, 3 }));
}

void TestJsonLines::line_staysOneLine()
{
    Measurement measurement;
    measurement.source.file = QStringLiteral("a\r\nb");
    measurement.calibration = MeasuredCalibration { 0.0, 1.0, QStringLiteral("n\nm") };
    const QByteArray line = jsonLine(measurement);
    QVERIFY(!line.contains('\n'));
    QVERIFY(!line.contains('\r'));
}

QTEST_GUILESS_MAIN(TestJsonLines)
#include "tst_jsonlines.moc"
