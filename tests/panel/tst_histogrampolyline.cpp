#include "panel/histogrampolyline.h"

#include <QtTest>

#include <limits>

namespace {

QVector<QLineF> polyline(const QVector<uint>& counts, const QRect& frame)
{
    QVector<QLineF> lines;
    buildHistogramPolyline(lines, counts.data(), int(counts.size()),
        countRange(counts.data(), int(counts.size())), frame);
    return lines;
}

QVector<uint> ramp(int size, uint step)
{
    QVector<uint> counts;
    for (int i = 0; i < size; ++i) {
        counts.append(uint(i) * step);
    }
    return counts;
}

/// Left 10, top 20, right 21, bottom 51: ten columns and thirty rows inside.
const QRect frame(10, 20, 12, 32);

} // namespace

class TestHistogramPolyline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void range_data();
    void range();
    void secondSampleStandsOneColumnEarly();
    void pointsLieBetweenBottomAndTop();
    void countsAreSigned();
    void sampleIsTruncated();
    void fewSamples_areRepeated();
    void lastColumnMayMissTheLastSample();
    void equalCounts_lieAtTheBottom();
    void oneSample();
    void narrowFrames_data();
    void narrowFrames();
    void frameWithoutRows();
    void hostileFrames_data();
    void hostileFrames();
    void linesAreReplacedAndKeepTheirCapacity();
    void minimumText_data();
    void minimumText();
    void maximumText_data();
    void maximumText();
    void textsThatReachTheGroupsEdge_stayCentred();
};

void TestHistogramPolyline::range_data()
{
    QTest::addColumn<QVector<uint>>("counts");
    QTest::addColumn<int>("smallest");
    QTest::addColumn<int>("largest");
    QTest::newRow("one") << QVector<uint> { 7 } << 7 << 7;
    QTest::newRow("first and last") << QVector<uint> { 1, 5, 9 } << 1 << 9;
    QTest::newRow("inside") << QVector<uint> { 5, 9, 1, 5 } << 1 << 9;
    QTest::newRow("signed") << QVector<uint> { 5, 0x80000000U, 0xFFFFFFFFU, 0x7FFFFFFFU }
                            << std::numeric_limits<int>::min() << 0x7FFFFFFF;
    QVector<uint> many(1003, 50);
    many[1000] = 3;
    many[1002] = 99;
    QTest::newRow("in the tail of a long row") << many << 3 << 99;
}

void TestHistogramPolyline::range()
{
    QFETCH(QVector<uint>, counts);
    const CountRange range = countRange(counts.data(), int(counts.size()));
    QTEST(range.smallest, "smallest");
    QTEST(range.largest, "largest");
}

void TestHistogramPolyline::secondSampleStandsOneColumnEarly()
{
    const QVector<QLineF> lines = polyline(ramp(11, 3), frame); // one sample a column
    QCOMPARE(lines.size(), 9);
    QVERIFY(lines.at(0) == QLineF(12.0, 51.0, 13.0, 48.0)); // samples 0 and 1
    QVERIFY(lines.at(1) == QLineF(13.0, 48.0, 14.0, 42.0)); // sample 3: 2 is left out
    QVERIFY(lines.at(2) == QLineF(14.0, 42.0, 15.0, 39.0));
    QVERIFY(lines.at(8) == QLineF(20.0, 24.0, 21.0, 21.0)); // sample 10 at the right edge
}

void TestHistogramPolyline::pointsLieBetweenBottomAndTop()
{
    // 85, which no column shows, lies on 51, and 104 on 21: 30 / 19 pixels a count.
    const QVector<QLineF> lines
        = polyline({ 101, 104, 85, 102, 100, 103, 104, 100, 104, 100, 102 }, frame);
    QVERIFY(lines.at(0).y1() == 51.0 - 16.0 * (30.0 / 19.0));
    QVERIFY(lines.at(0).y2() == 51.0 - 19.0 * (30.0 / 19.0));
    QVERIFY(lines.at(1).y2() == 51.0 - 17.0 * (30.0 / 19.0));
}

void TestHistogramPolyline::countsAreSigned()
{
    // -1, 0 and 2 in this order: 10 pixels a count.
    const QVector<QLineF> lines = polyline({ 0xFFFFFFFFU, 0, 2 }, QRect(0, 0, 4, 32));
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.at(0) == QLineF(2.0, 31.0, 3.0, 21.0)); // samples 0 and trunc(2 / 2)
    // The whole range of the type.
    const QVector<QLineF> whole = polyline({ 0x80000000U, 0x7FFFFFFFU }, QRect(0, 0, 3, 32));
    QVERIFY(whole.at(0).y1() == 31.0);
    QVERIFY(qAbs(whole.at(0).y2() - 1.0) < 1e-9); // one rounded product away from the top
}

void TestHistogramPolyline::sampleIsTruncated()
{
    // 18 / 10 = 1.8 samples a column; 30 / 18 pixels a count.
    const QVector<QLineF> lines = polyline(ramp(19, 1), frame);
    const double pixelsPerCount = 30.0 / 18.0;
    QVERIFY(lines.at(0).y2() == 51.0 - 1.0 * pixelsPerCount); // 1.8
    QVERIFY(lines.at(1).y2() == 51.0 - 5.0 * pixelsPerCount); // 5.4
    QVERIFY(lines.at(2).y2() == 51.0 - 7.0 * pixelsPerCount); // 7.2
    QVERIFY(lines.at(8).x2() == 21.0);
    QVERIFY(lines.at(8).y2() == 51.0 - 18.0 * pixelsPerCount); // 18.0
}

void TestHistogramPolyline::fewSamples_areRepeated()
{
    const QVector<QLineF> lines = polyline({ 0, 30 }, frame); // a tenth of a sample a column
    QCOMPARE(lines.size(), 9);
    for (int i = 0; i < 8; ++i) {
        QVERIFY(lines.at(i).y2() == 51.0);
    }
    QVERIFY(lines.at(8).y2() == 21.0); // column 10: 10 * 0.1 is exactly 1
}

void TestHistogramPolyline::lastColumnMayMissTheLastSample()
{
    // 49 * (1.0 / 49) is a little less than 1.
    const QVector<QLineF> lines = polyline({ 0, 30 }, QRect(0, 0, 51, 32));
    QCOMPARE(lines.size(), 48);
    QVERIFY(lines.last() == QLineF(49.0, 31.0, 50.0, 31.0));
}

void TestHistogramPolyline::equalCounts_lieAtTheBottom()
{
    for (const uint count : { 0U, 7U, 0xFFFFFFFFU }) {
        const QVector<QLineF> lines = polyline(QVector<uint>(11, count), frame);
        QCOMPARE(lines.size(), 9);
        for (const QLineF& line : lines) {
            QVERIFY(line.y1() == 51.0 && line.y2() == 51.0);
        }
    }
}

void TestHistogramPolyline::oneSample()
{
    const QVector<QLineF> lines = polyline({ 5 }, frame);
    QCOMPARE(lines.size(), 9);
    QVERIFY(lines.last() == QLineF(20.0, 51.0, 21.0, 51.0));
}

void TestHistogramPolyline::narrowFrames_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("segments");
    QTest::addColumn<double>("secondY"); // of the first segment; counts 0, 10, 20, 30
    QTest::newRow("three columns inside") << 5 << 2 << 41.0; // 3 / 3: sample 1
    QTest::newRow("two columns inside") << 4 << 1 << 41.0; // 3 / 2: sample 1
    QTest::newRow("one column inside") << 3 << 1 << 21.0; // 3 / 1: sample 3
    QTest::newRow("nothing inside") << 2 << 1 << 21.0; // beyond the last sample
    QTest::newRow("one column in all") << 1 << 1 << 51.0; // before the first sample
    QTest::newRow("empty") << 0 << 1 << 51.0;
    QTest::newRow("negative") << -24 << 1 << 51.0;
}

void TestHistogramPolyline::narrowFrames()
{
    QFETCH(int, width);
    QFETCH(int, segments);
    QFETCH(double, secondY);
    const QVector<QLineF> lines = polyline({ 0, 10, 20, 30 }, QRect(10, 20, width, 32));
    QCOMPARE(lines.size(), segments);
    QVERIFY(lines.first() == QLineF(12.0, 51.0, 13.0, secondY));
    // One sample in a frame without room: not a number of samples a column.
    QCOMPARE(polyline({ 5 }, QRect(10, 20, width, 32)).size(), segments);
}

void TestHistogramPolyline::frameWithoutRows()
{
    // Bottom 18, no room: -3 rows for 3 counts.
    const QVector<QLineF> lines = polyline({ 0, 3 }, QRect(10, 20, 3, -1));
    QVERIFY(lines.first() == QLineF(12.0, 18.0, 13.0, 21.0));
}

void TestHistogramPolyline::hostileFrames_data()
{
    QTest::addColumn<QRect>("hostile");
    QTest::addColumn<int>("segments");
    constexpr int largest = std::numeric_limits<int>::max();
    constexpr int far = 1 << 30;
    QTest::newRow("too wide") << QRect(0, 0, (1 << 20) + 1, 100) << 0;
    QTest::newRow("as wide as may be") << QRect(0, 0, 1 << 20, 100) << (1 << 20) - 3;
    QTest::newRow("as wide as can be") << QRect(0, 0, largest, 100) << 0;
    QTest::newRow("at the right end") << QRect(largest - 2, 0, 2, 100) << 1;
    QTest::newRow("far away") << QRect(far, far, 12, 32) << 9;
    QTest::newRow("far away, negative") << QRect(-far, -far, 12, 32) << 9;
    QTest::newRow("null") << QRect() << 1;
}

void TestHistogramPolyline::hostileFrames()
{
    QFETCH(QRect, hostile);
    QFETCH(int, segments);
    const QVector<QLineF> lines = polyline(ramp(11, 3), hostile);
    QCOMPARE(lines.size(), segments);
    for (const QLineF& line : lines) {
        QVERIFY(qIsFinite(line.x1()) && qIsFinite(line.y1()));
        QVERIFY(qIsFinite(line.x2()) && qIsFinite(line.y2()));
    }
}

void TestHistogramPolyline::linesAreReplacedAndKeepTheirCapacity()
{
    QVector<QLineF> lines(500);
    const QVector<uint> counts = ramp(11, 3);
    buildHistogramPolyline(lines, counts.data(), int(counts.size()), { 0, 30 }, frame);
    QCOMPARE(lines.size(), 9);
    QVERIFY(lines.capacity() >= 500);
}

void TestHistogramPolyline::minimumText_data()
{
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("groupLeft");
    QTest::addColumn<int>("x");
    QTest::newRow("centred") << 30 << 8 << 19; // 30 - 10.25 = 19.75
    QTest::newRow("just inside") << 30 << 19 << 19;
    QTest::newRow("raised") << 30 << 20 << 22;
    QTest::newRow("truncated toward zero") << 3 << -50 << -7; // -7.25
}

void TestHistogramPolyline::minimumText()
{
    QFETCH(int, left);
    QFETCH(int, groupLeft);
    QFETCH(int, x);
    const QRect place(left, 11, 200, 90); // bottom 100
    QCOMPARE(minimumTextPlace(place, groupLeft, 20.5, 13.75), QPoint(x, 113));
}

void TestHistogramPolyline::maximumText_data()
{
    QTest::addColumn<int>("groupRight");
    QTest::addColumn<int>("x");
    QTest::newRow("centred") << 300 << 218; // 229 - 10.25 = 218.75
    QTest::newRow("just inside") << 240 << 218; // ends at 239.25
    QTest::newRow("pulled back") << 239 << 216; // 239 - 20.5 - 2
    QTest::newRow("truncated toward zero") << 19 << -3; // -3.5
}

void TestHistogramPolyline::maximumText()
{
    QFETCH(int, groupRight);
    QFETCH(int, x);
    const QRect place(30, 11, 200, 90); // right 229, bottom 100
    QCOMPARE(maximumTextPlace(place, groupRight, 20.5, 13.75), QPoint(x, 113));
}

void TestHistogramPolyline::textsThatReachTheGroupsEdge_stayCentred()
{
    const QRect place(30, 11, 200, 90);
    QCOMPARE(minimumTextPlace(place, 20, 20.0, 13.0), QPoint(20, 113));
    QCOMPARE(maximumTextPlace(place, 239, 20.0, 13.0), QPoint(219, 113));
}

QTEST_GUILESS_MAIN(TestHistogramPolyline)
#include "tst_histogrampolyline.moc"
