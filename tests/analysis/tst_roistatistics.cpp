#include "analysis/roistatistics.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <vector>

namespace {

RoiRows wholeRow(const size_t count)
{
    return { QRect(0, 0, int(count), 1), int(count), qint64(count) };
}

} // namespace

class TestRoiStatistics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void range_ofARegion();
    void range_withoutSamplesIsTurnedRound();
    void mean_andDeviationOfTwoPixels();
    void mean_ofEachDepth();
    void mean_dividesByRowsTimesColumns();
    void mean_ofLargeSums();
    void deviation_sumsInThePixelsOrder();
    void withoutPixelsThereIsNoNumber();
};

void TestRoiStatistics::range_ofARegion()
{
    const std::vector<uchar> samples { 9, 3, 200, 1, 7, 5, 0, 255, 8 };
    const RoiRows rows { QRect(QPoint(0, 1), QPoint(1, 2)), 3, 9 }; // 1, 7 and 0, 255
    const SampleRange range = roiRange(samples.data(), rows);
    QCOMPARE(range.min, 0u);
    QCOMPARE(range.max, 255u);
    const RoiRows one { QRect(1, 1, 1, 1), 3, 9 };
    QCOMPARE(roiRange(samples.data(), one).min, 7u);
    QCOMPARE(roiRange(samples.data(), one).max, 7u);
}

void TestRoiStatistics::range_withoutSamplesIsTurnedRound()
{
    const RoiRows none { QRect(0, 0, 0, 5), 3, 9 };
    QCOMPARE(roiRange(static_cast<const uchar*>(nullptr), none).min, 255u);
    QCOMPARE(roiRange(static_cast<const ushort*>(nullptr), none).min, 65535u);
    QCOMPARE(roiRange(static_cast<const uint*>(nullptr), none).min, 4294967295u);
    QCOMPARE(roiRange(static_cast<const uint*>(nullptr), none).max, 0u);
}

void TestRoiStatistics::mean_andDeviationOfTwoPixels()
{
    const std::vector<uchar> samples { 10, 20 };
    const double mean = roiMean(samples.data(), wholeRow(2), 10);
    QVERIFY(mean == 15.0);
    QVERIFY(roiDeviation(samples.data(), wholeRow(2), mean) == 5.0);
}

void TestRoiStatistics::mean_ofEachDepth()
{
    const std::vector<ushort> shorts { 65535, 65533, 65531, 65533 };
    QVERIFY(roiMean(shorts.data(), wholeRow(4), 65531) == 65533.0);
    QVERIFY(roiDeviation(shorts.data(), wholeRow(4), 65533.0) == std::sqrt(2.0)); // (4 + 4) / 4
    const std::vector<uint> ints { 4294967295u, 4294967293u };
    QVERIFY(roiMean(ints.data(), wholeRow(2), 4294967293u) == 4294967294.0);
    QVERIFY(roiDeviation(ints.data(), wholeRow(2), 4294967294.0) == 1.0);
}

void TestRoiStatistics::mean_dividesByRowsTimesColumns()
{
    const std::vector<uchar> samples { 10, 20, 30, 40 };
    // columns 1 and 2 of rows 0 to 2 of a 2 x 2 image: 20, 30 / 40, none / none, none
    const RoiRows rows { QRect(QPoint(1, 0), QPoint(2, 2)), 2, 4 };
    // (0 + 10 + 20) / 6 + 20
    QVERIFY(roiMean(samples.data(), rows, 20) == 25.0);
    // (25 + 25 + 225) / 6
    QVERIFY(roiDeviation(samples.data(), rows, 25.0) == std::sqrt(275.0 / 6.0));
}

void TestRoiStatistics::mean_ofLargeSums()
{
    const std::vector<uint> samples(100000, 4294967295u);
    QVERIFY(roiMean(samples.data(), wholeRow(samples.size()), 0) == 4294967295.0);
}

void TestRoiStatistics::deviation_sumsInThePixelsOrder()
{
    // (2^27)^2 = 2^54, where a double's steps are 4: each 1 added after it is lost, four before it
    // are not
    const std::vector<uint> samples { 134217728u, 1, 1, 1, 1 };
    const double sum = std::ldexp(1.0, 54);
    QVERIFY(roiDeviation(samples.data(), wholeRow(5), 0.0) == std::sqrt(sum / 5.0));
    const std::vector<uint> turned { 1, 1, 1, 1, 134217728u };
    QVERIFY(roiDeviation(turned.data(), wholeRow(5), 0.0) == std::sqrt((sum + 4.0) / 5.0));
}

void TestRoiStatistics::withoutPixelsThereIsNoNumber()
{
    const RoiRows none { QRect(0, 0, 0, 5), 3, 9 };
    QVERIFY(std::isnan(roiMean(static_cast<const uchar*>(nullptr), none, 255)));
    QVERIFY(std::isnan(roiDeviation(static_cast<const uchar*>(nullptr), none, 0.0)));
}

QTEST_GUILESS_MAIN(TestRoiStatistics)
#include "tst_roistatistics.moc"
