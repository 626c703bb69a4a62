#include "plots/profilepolyline.h"

#include <QtTest>

#include <limits>
#include <vector>

namespace {

/// The segments that join `points` in order.
QVector<QLineF> joined(const QVector<QPointF>& points)
{
    QVector<QLineF> lines;
    for (int i = 1; i < points.size(); ++i) {
        lines.append(QLineF(points.at(i - 1), points.at(i)));
    }
    return lines;
}

QVector<QLineF> horizontalPolyline(const uchar* samples, int count, const QSizeF& size, int border)
{
    QVector<QLineF> lines;
    buildHorizontalPolyline(lines, samples, count, size, border);
    return lines;
}

QVector<QLineF> verticalPolyline(const uchar* samples, int count, const QSizeF& size, int border)
{
    QVector<QLineF> lines;
    buildVerticalPolyline(lines, samples, count, size, border);
    return lines;
}

} // namespace

class TestProfilePolyline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void horizontal_joinsOnePointPerUnit();
    void vertical_joinsOnePointPerUnit();
    void horizontal_fullScaleTouchesTheFrame();
    void vertical_levelZeroLiesLeftOfTheOrigin();
    void secondPoint_takesTheSampleOfPositionOne();
    void exactSizeScales_integralSizeBounds();
    void vertical_exactSizeScales_integralSizeBounds();
    void samplesPerUnit_areDividedFirst();
    void oneSample_isAFlatLine();
    void wideBorder_movesBothEnds();
    void shortStrips_data();
    void shortStrips();
    void stripOfOneUnit_endsOnTheLastSample();
    void negativeLength_staysOnTheFirstSample();
    void longestStrip();
    void hostileSizes_data();
    void hostileSizes();
    void linesAreReplacedInTheirMemory();
    void clampedSample_staysInside_data();
    void clampedSample_staysInside();
};

void TestProfilePolyline::horizontal_joinsOnePointPerUnit()
{
    // 255 units high: a level is one unit, y = 256 - level. 5 samples over 10 units: half a sample
    // per unit, so that x = 3 takes sample trunc(1.5) = 1, x = 4 sample 2, up to x = 9.
    const uchar samples[] = { 0, 255, 51, 102, 204 };
    const QVector<QPointF> points { { 1, 256 }, { 2, 256 }, { 3, 1 }, { 4, 205 }, { 5, 205 },
        { 6, 154 }, { 7, 154 }, { 8, 52 }, { 9, 52 } };
    QCOMPARE(horizontalPolyline(samples, 5, QSizeF(10, 255), 1), joined(points));
}

void TestProfilePolyline::vertical_joinsOnePointPerUnit()
{
    // 255 units wide: x = level - 1. 4 samples over 8 units: half a sample per unit.
    const uchar samples[] = { 0, 255, 10, 20 };
    const QVector<QPointF> points { { -1, 1 }, { -1, 2 }, { 254, 3 }, { 9, 4 }, { 9, 5 }, { 19, 6 },
        { 19, 7 } };
    QCOMPARE(verticalPolyline(samples, 4, QSizeF(255, 8), 1), joined(points));
}

void TestProfilePolyline::horizontal_fullScaleTouchesTheFrame()
{
    const uchar samples[] = { 0, 255 };
    // 51 units high: a level is 0.2 units. Two samples over two units: the second point takes
    // sample 1.
    const QVector<QLineF> lines = horizontalPolyline(samples, 2, QSizeF(2, 51), 1);
    QCOMPARE(lines, (QVector<QLineF> { QLineF(1, 52, 2, 1) }));
}

void TestProfilePolyline::vertical_levelZeroLiesLeftOfTheOrigin()
{
    const uchar samples[] = { 0, 255 };
    const QVector<QLineF> lines = verticalPolyline(samples, 2, QSizeF(51, 2), 3);
    QCOMPARE(lines, (QVector<QLineF> { QLineF(-3, 3, 48, 4) }));
}

void TestProfilePolyline::secondPoint_takesTheSampleOfPositionOne()
{
    // One sample per unit: x = 2 shows sample 1 and x = 3 shows sample 3; sample 2 is never shown.
    const uchar samples[] = { 10, 20, 30, 40, 50, 60, 70, 80, 90, 100 };
    const QVector<QLineF> across = horizontalPolyline(samples, 10, QSizeF(10, 255), 1);
    QCOMPARE(across.at(0), QLineF(1, 246, 2, 236));
    QCOMPARE(across.at(1), QLineF(2, 236, 3, 216));
    const QVector<QLineF> down = verticalPolyline(samples, 10, QSizeF(255, 10), 1);
    QCOMPARE(down.at(0), QLineF(9, 1, 19, 2));
    QCOMPARE(down.at(1), QLineF(19, 2, 39, 3));
}

void TestProfilePolyline::exactSizeScales_integralSizeBounds()
{
    // 10.6 x 102.4 counts as 11 x 102 where whole numbers are needed: the last point stands at
    // x = 10 and level 0 on y = 103, while 255 levels take the exact 102.4 units and 5 samples the
    // exact 10.6.
    const uchar samples[] = { 0, 255, 0, 0, 255 };
    const QVector<QLineF> lines = horizontalPolyline(samples, 5, QSizeF(10.6, 102.4), 1);
    QCOMPARE(lines.size(), 9);
    QVERIFY(lines.first().y1() == 103.0);
    // x = 8 takes sample trunc(8 * 5 / 10.6 = 3.77) = 3, x = 9 sample trunc(4.25) = 4
    QVERIFY(lines.at(6).p2() == QPointF(8.0, 103.0));
    QVERIFY(lines.at(7).x2() == 9.0);
    QVERIFY(qAbs(lines.at(7).y2() - 0.6) < 1e-9);
    QVERIFY(lines.last().x2() == 10.0);
}

void TestProfilePolyline::vertical_exactSizeScales_integralSizeBounds()
{
    // 102.4 x 10.6: the last point stands at y = 10, while 255 levels take the exact 102.4 units.
    const uchar samples[] = { 0, 255, 0, 0, 255 };
    const QVector<QLineF> lines = verticalPolyline(samples, 5, QSizeF(102.4, 10.6), 1);
    QCOMPARE(lines.size(), 9);
    QVERIFY(lines.first().x1() == -1.0);
    // y = 8 takes sample trunc(8 * 5 / 10.6 = 3.77) = 3, y = 9 sample trunc(4.25) = 4
    QVERIFY(lines.at(6).p2() == QPointF(-1.0, 8.0));
    QVERIFY(lines.at(7).y2() == 9.0);
    QVERIFY(qAbs(lines.at(7).x2() - 101.4) < 1e-9); // 102.4 - 1
    QVERIFY(lines.last().y2() == 10.0);
}

void TestProfilePolyline::samplesPerUnit_areDividedFirst()
{
    // Two samples over 98 units. At 49 the second would begin, but 2 / 98 is rounded down to a
    // double, so that 49 times it stays below 1.
    const uchar samples[] = { 0, 255 };
    const QVector<QLineF> across = horizontalPolyline(samples, 2, QSizeF(98, 255), 1);
    QCOMPARE(across.at(47).p2(), QPointF(49, 256));
    QCOMPARE(across.at(48).p2(), QPointF(50, 1));
    const QVector<QLineF> down = verticalPolyline(samples, 2, QSizeF(255, 98), 1);
    QCOMPARE(down.at(47).p2(), QPointF(-1, 49));
    QCOMPARE(down.at(48).p2(), QPointF(254, 50));
}

void TestProfilePolyline::oneSample_isAFlatLine()
{
    const uchar sample = 100;
    const QVector<QLineF> across = horizontalPolyline(&sample, 1, QSizeF(400, 255), 1);
    QCOMPARE(across.size(), 398); // points at x = 1 .. 399
    for (const QLineF& line : across) {
        QVERIFY(line.y1() == 156.0 && line.y2() == 156.0);
    }
    const QVector<QLineF> down = verticalPolyline(&sample, 1, QSizeF(255, 400), 1);
    QCOMPARE(down.size(), 398);
    for (const QLineF& line : down) {
        QVERIFY(line.x1() == 99.0 && line.x2() == 99.0);
    }
}

void TestProfilePolyline::wideBorder_movesBothEnds()
{
    const uchar sample = 0;
    const QVector<QPointF> points { { 3, 258 }, { 4, 258 }, { 5, 258 }, { 6, 258 }, { 7, 258 } };
    QCOMPARE(horizontalPolyline(&sample, 1, QSizeF(10, 255), 3), joined(points));
}

void TestProfilePolyline::shortStrips_data()
{
    QTest::addColumn<double>("length");
    QTest::addColumn<int>("segments");
    QTest::newRow("room for a second segment") << 4.0 << 2;
    QTest::newRow("twice the border and one") << 3.0 << 1;
    QTest::newRow("two units") << 2.0 << 1;
    QTest::newRow("one unit") << 1.0 << 1;
    QTest::newRow("no length") << 0.0 << 1;
    QTest::newRow("negative length") << -5.0 << 1;
}

void TestProfilePolyline::shortStrips()
{
    QFETCH(double, length);
    QFETCH(int, segments);
    const std::vector<uchar> samples { 10, 20, 30 }; // on the heap: an outside read is caught
    QCOMPARE(horizontalPolyline(samples.data(), 3, QSizeF(length, 255), 1).size(), segments);
    QCOMPARE(verticalPolyline(samples.data(), 3, QSizeF(255, length), 1).size(), segments);
}

void TestProfilePolyline::stripOfOneUnit_endsOnTheLastSample()
{
    const std::vector<uchar> samples { 10, 20, 30 }; // the second point would take sample 3
    QCOMPARE(horizontalPolyline(samples.data(), 3, QSizeF(1, 255), 1),
        (QVector<QLineF> { QLineF(1, 246, 2, 226) }));
    QCOMPARE(verticalPolyline(samples.data(), 3, QSizeF(255, 1), 1),
        (QVector<QLineF> { QLineF(9, 1, 29, 2) }));
}

void TestProfilePolyline::negativeLength_staysOnTheFirstSample()
{
    const std::vector<uchar> samples { 10, 20, 30 };
    QCOMPARE(horizontalPolyline(samples.data(), 3, QSizeF(-1, 255), 1),
        (QVector<QLineF> { QLineF(1, 246, 2, 246) }));
    QCOMPARE(verticalPolyline(samples.data(), 3, QSizeF(255, -1), 1),
        (QVector<QLineF> { QLineF(9, 1, 9, 2) }));
}

void TestProfilePolyline::longestStrip()
{
    const uchar sample = 0;
    QCOMPARE(horizontalPolyline(&sample, 1, QSizeF(1048576, 50), 1).size(), 1048574);
    QVERIFY(horizontalPolyline(&sample, 1, QSizeF(1048577, 50), 1).isEmpty());
    QCOMPARE(verticalPolyline(&sample, 1, QSizeF(50, 1048576), 1).size(), 1048574);
    QVERIFY(verticalPolyline(&sample, 1, QSizeF(50, 1048577), 1).isEmpty());
}

void TestProfilePolyline::hostileSizes_data()
{
    QTest::addColumn<double>("extent");
    QTest::addColumn<int>("border");
    QTest::addColumn<int>("segments");
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("infinite") << infinity << 1 << 0;
    QTest::newRow("minus infinite") << -infinity << 1 << 1;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 1 << 1;
    QTest::newRow("largest border") << 400.0 << std::numeric_limits<int>::max() << 1;
    QTest::newRow("smallest border") << 400.0 << std::numeric_limits<int>::min() << 0;
}

void TestProfilePolyline::hostileSizes()
{
    QFETCH(double, extent);
    QFETCH(int, border);
    QFETCH(int, segments);
    const std::vector<uchar> samples { 10, 20, 30 };
    const QSizeF size(extent, extent);
    QCOMPARE(horizontalPolyline(samples.data(), 3, size, border).size(), segments);
    QCOMPARE(verticalPolyline(samples.data(), 3, size, border).size(), segments);
}

void TestProfilePolyline::linesAreReplacedInTheirMemory()
{
    const uchar sample = 7;
    using Build = void (*)(QVector<QLineF>&, const uchar*, int, const QSizeF&, int);
    for (const Build build : { Build(buildHorizontalPolyline), Build(buildVerticalPolyline) }) {
        QVector<QLineF> lines;
        build(lines, &sample, 1, QSizeF(500.0, 500.0), 1);
        QCOMPARE(lines.size(), 498);
        const QLineF* const memory = lines.constData();
        const auto capacity = lines.capacity();
        build(lines, &sample, 1, QSizeF(10.0, 10.0), 1);
        QCOMPARE(lines.size(), 8);
        build(lines, &sample, 1, QSizeF(2e6, 2e6), 1); // too long
        QCOMPARE(lines.size(), 0);
        build(lines, &sample, 1, QSizeF(500.0, 500.0), 1);
        QCOMPARE(lines.size(), 498);
        QVERIFY(lines.constData() == memory);
        QCOMPARE(lines.capacity(), capacity);
    }
}

void TestProfilePolyline::clampedSample_staysInside_data()
{
    QTest::addColumn<double>("position");
    QTest::addColumn<int>("sample");
    QTest::newRow("first") << 0.0 << 10;
    QTest::newRow("truncated") << 1.99 << 20;
    QTest::newRow("last") << 2.0 << 30;
    QTest::newRow("just behind the end") << 3.0 << 30;
    QTest::newRow("far behind") << 1e300 << 30;
    QTest::newRow("toward zero") << -0.9 << 10;
    QTest::newRow("before the start") << -7.0 << 10;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 10;
}

void TestProfilePolyline::clampedSample_staysInside()
{
    QFETCH(double, position);
    QFETCH(int, sample);
    const std::vector<uchar> samples { 10, 20, 30 };
    QCOMPARE(int(clampedSample(samples.data(), 3, position)), sample);
}

QTEST_GUILESS_MAIN(TestProfilePolyline)
#include "tst_profilepolyline.moc"
