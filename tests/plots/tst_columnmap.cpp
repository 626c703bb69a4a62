#include "plots/columnmap.h"

#include <QtTest>

#include <cmath>
#include <limits>

namespace {

Peak peakAt(int index)
{
    Peak peak;
    peak.index = index;
    return peak;
}

QVector<QLineF> chartPolyline(
    const uchar* samples, int count, const QVector<int>& map, int border, const LevelAxis& axis)
{
    QVector<QLineF> lines;
    buildChartPolyline(lines, samples, count, map, border, axis);
    return lines;
}

} // namespace

class TestColumnMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void peak_keepsItsColumn();
    void firstPeak_keepsTheColumn();
    void fewSamples_areRepeated();
    void noPeaks_leaveTheMap();
    void peaksOutside_areLeftOut();
    void noWidth_readsNothing();
    void levels_growUpward();
    void levels_stayBounded();
    void polyline_ofFourColumns();
    void polyline_ofOneColumn();
    void polyline_readsInside();
    void polyline_isReplacedInItsMemory();
};

void TestColumnMap::peak_keepsItsColumn()
{
    QVector<int> map(400, -1);
    mapColumns(map, { peakAt(503) }, 1000, 400.0);
    QCOMPARE(map.at(201), 503); // trunc(503 x 0.4)
    QCOMPARE(map.at(200), 500);
    QCOMPARE(map.at(202), 505);
    QCOMPARE(map.at(0), 0);
    QCOMPARE(map.at(399), 997); // trunc(399 x 2.5)
}

void TestColumnMap::firstPeak_keepsTheColumn()
{
    QVector<int> map(10, -1);
    mapColumns(map, { peakAt(27), peakAt(24), peakAt(99) }, 100, 10.0);
    QCOMPARE(map, (QVector<int> { 0, 10, 27, 30, 40, 50, 60, 70, 80, 99 }));
    mapColumns(map, { peakAt(24), peakAt(27) }, 100, 10.0);
    QCOMPARE(map.at(2), 24);
    QCOMPARE(map.at(9), 90); // filled anew
}

void TestColumnMap::fewSamples_areRepeated()
{
    QVector<int> map(8, -1);
    mapColumns(map, { peakAt(1) }, 4, 8.0);
    QCOMPARE(map, (QVector<int> { 0, 0, 1, 1, 2, 2, 3, 3 }));
}

void TestColumnMap::noPeaks_leaveTheMap()
{
    QVector<int> map { 5, -1, 7 };
    mapColumns(map, {}, 10, 3.0);
    QCOMPARE(map, (QVector<int> { 5, -1, 7 }));
    QVector<int> none;
    mapColumns(none, { peakAt(1) }, 10, 3.0);
    QVERIFY(none.isEmpty());
}

void TestColumnMap::peaksOutside_areLeftOut()
{
    QVector<int> map(4, -1);
    mapColumns(map, { peakAt(400), peakAt(-3) }, 4, 4.0);
    QCOMPARE(map, (QVector<int> { 0, 1, 2, 3 }));
}

void TestColumnMap::noWidth_readsNothing()
{
    QVector<int> map(2, -1);
    mapColumns(map, { peakAt(1) }, 4, 0.0); // 4 / 0 samples a column
    QCOMPARE(map.at(0), 1); // 1 x 0 columns
    mapColumns(map, { peakAt(1) }, 4, -4.0);
    QCOMPARE(map.size(), 2);
}

void TestColumnMap::levels_growUpward()
{
    const LevelAxis axis = chartLevelAxis(QSizeF(300.0, 510.0), 1, 1.0);
    QVERIFY(axis.y(0) == 511.0);
    QVERIFY(axis.y(255) == 1.0);
    const LevelAxis withHeadroom = chartLevelAxis(QSizeF(300.0, 510.0), 1, 2.0);
    QVERIFY(withHeadroom.y(255) == 256.0);
}

void TestColumnMap::levels_stayBounded()
{
    for (const double scale : { 0.0, std::numeric_limits<double>::quiet_NaN() }) {
        const LevelAxis axis = chartLevelAxis(QSizeF(300.0, 510.0), 1, scale);
        QVERIFY(std::isfinite(axis.y(0)));
        QVERIFY(std::abs(axis.y(200)) <= 1073741824.0);
    }
}

void TestColumnMap::polyline_ofFourColumns()
{
    const uchar samples[] = { 10, 20, 30, 40 };
    const LevelAxis axis { 101.0, 1.0 };
    const QVector<QLineF> lines = chartPolyline(samples, 4, { 0, 1, 2, 3 }, 1, axis);
    // The first point stands inside the frame, the second, too; the third repeats the second.
    QCOMPARE(lines,
        (QVector<QLineF> { { 1.0, 91.0, 2.0, 81.0 }, { 2.0, 81.0, 2.0, 81.0 },
            { 2.0, 81.0, 3.0, 71.0 }, { 3.0, 71.0, 4.0, 61.0 } }));
}

void TestColumnMap::polyline_ofOneColumn()
{
    const uchar samples[] = { 10, 20 };
    const QVector<QLineF> lines = chartPolyline(samples, 2, { 1 }, 1, LevelAxis { 101.0, 1.0 });
    QCOMPARE(lines, (QVector<QLineF> { { 1.0, 81.0, 2.0, 81.0 } }));
}

void TestColumnMap::polyline_readsInside()
{
    const uchar samples[] = { 10, 20 };
    const QVector<QLineF> lines
        = chartPolyline(samples, 2, { -1, 700 }, 0, LevelAxis { 100.0, 1.0 });
    QCOMPARE(lines.first(), QLineF(0.0, 90.0, 1.0, 80.0));
}

void TestColumnMap::polyline_isReplacedInItsMemory()
{
    const uchar samples[] = { 10, 20 };
    const LevelAxis axis { 100.0, 1.0 };
    QVector<QLineF> lines;
    buildChartPolyline(lines, samples, 2, QVector<int>(300, 1), 1, axis);
    const QLineF* const memory = lines.constData();
    buildChartPolyline(lines, samples, 2, { 0 }, 1, axis);
    QCOMPARE(lines.size(), 1);
    buildChartPolyline(lines, samples, 2, QVector<int>(300, 0), 1, axis);
    QCOMPARE(lines.size(), 300);
    QVERIFY(lines.constData() == memory);
}

QTEST_GUILESS_MAIN(TestColumnMap)
#include "tst_columnmap.moc"
