#include "analysis/roistatistics.h"
#include "plainloops.h"
#include "support/samplepatterns.h"
#include "support/simdtargets.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <vector>

namespace {

RoiRows wholeRow(const size_t count)
{
    return { QRect(0, 0, int(count), 1), int(count), qint64(count) };
}

template <class Sample>
SampleRange rangeOf(const Sample* samples, const RoiRows& rows)
{
    return roiTotals(samples, rows).range;
}

template <class Sample>
double meanOf(const Sample* samples, const RoiRows& rows)
{
    return roiMean(roiTotals(samples, rows), rows);
}

/// The deviation from a mean that need not be that of the samples.
template <class Sample>
double deviationOf(const Sample* samples, const RoiRows& rows, double mean)
{
    return roiDeviation(samples, rows, rangeOf(samples, rows), mean);
}

/// Compares everything with the plain loops, for a region of whole rows; `mean` replaces the
/// samples' own one if it is a number.
template <class Sample>
QString difference(const std::vector<Sample>& samples, const RoiRows& rows,
    double mean = std::numeric_limits<double>::quiet_NaN())
{
    std::vector<Sample> inside;
    rows.forEach([&](qint64 first, qint64 count) {
        inside.insert(inside.end(), samples.begin() + first, samples.begin() + first + count);
    });
    const auto count = qint64(inside.size());
    const RoiTotals totals = roiTotals(samples.data(), rows);
    const plain::Range range = plain::range(inside.data(), count);
    if (totals.range.min != range.min || totals.range.max != range.max) {
        return "range";
    }
    const double plainMean
        = double(qint64(plain::distanceSum(inside.data(), count, range.min))) / double(count)
        + range.min;
    if (roiMean(totals, rows) != plainMean) {
        return "mean";
    }
    const double from = std::isnan(mean) ? plainMean : mean;
    const double plainDeviation
        = std::sqrt(plain::addSquares(inside.data(), count, from, 0.0) / double(count));
    const double deviation = roiDeviation(samples.data(), rows, totals.range, from);
    return deviation == plainDeviation ? QString()
                                       : QString("deviation %1, not %2")
                                             .arg(deviation, 0, 'g', 17)
                                             .arg(plainDeviation, 0, 'g', 17);
}

template <class Sample>
QString patternDifference(size_t count)
{
    for (const SamplePattern<Sample>& pattern : samplePatterns<Sample>(count)) {
        // As one row, and in rows of odd lengths that leave a margin on both sides.
        const QString row = difference(pattern.samples, wholeRow(count));
        const int width = 97;
        const RoiRows part { QRect(3, 2, 91, int(count) / width - 3), width, qint64(count) };
        const QString rows = count > 500 ? difference(pattern.samples, part) : QString();
        if (!row.isEmpty() || !rows.isEmpty()) {
            return QString::fromStdString(pattern.name) + ", row: " + row + ", rows: " + rows;
        }
    }
    return QString();
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
    void outsideTheAllocationNothingIsAdded();
    void patterns_equalThePlainLoops();
    void manySamples_equalThePlainLoops();
    void ties_equalThePlainLoop();
    void hostileRegionsEnd();
};

void TestRoiStatistics::range_ofARegion()
{
    const std::vector<uchar> samples { 9, 3, 200, 1, 7, 5, 0, 255, 8 };
    const RoiRows rows { QRect(QPoint(0, 1), QPoint(1, 2)), 3, 9 }; // 1, 7 and 0, 255
    const SampleRange range = rangeOf(samples.data(), rows);
    QCOMPARE(range.min, 0u);
    QCOMPARE(range.max, 255u);
    const RoiRows one { QRect(1, 1, 1, 1), 3, 9 };
    QCOMPARE(rangeOf(samples.data(), one).min, 7u);
    QCOMPARE(rangeOf(samples.data(), one).max, 7u);
}

void TestRoiStatistics::range_withoutSamplesIsTurnedRound()
{
    const RoiRows none { QRect(0, 0, 0, 5), 3, 9 };
    QCOMPARE(rangeOf(static_cast<const uchar*>(nullptr), none).min, 255u);
    QCOMPARE(rangeOf(static_cast<const ushort*>(nullptr), none).min, 65535u);
    QCOMPARE(rangeOf(static_cast<const uint*>(nullptr), none).min, 4294967295u);
    QCOMPARE(rangeOf(static_cast<const uint*>(nullptr), none).max, 0u);
}

void TestRoiStatistics::mean_andDeviationOfTwoPixels()
{
    const std::vector<uchar> samples { 10, 20 };
    const double mean = meanOf(samples.data(), wholeRow(2));
    QVERIFY(mean == 15.0);
    QVERIFY(deviationOf(samples.data(), wholeRow(2), mean) == 5.0);
}

void TestRoiStatistics::mean_ofEachDepth()
{
    const std::vector<ushort> shorts { 65535, 65533, 65531, 65533 };
    QVERIFY(meanOf(shorts.data(), wholeRow(4)) == 65533.0);
    QVERIFY(deviationOf(shorts.data(), wholeRow(4), 65533.0) == std::sqrt(2.0)); // (4 + 4) / 4
    const std::vector<uint> ints { 4294967295u, 4294967293u };
    QVERIFY(meanOf(ints.data(), wholeRow(2)) == 4294967294.0);
    QVERIFY(deviationOf(ints.data(), wholeRow(2), 4294967294.0) == 1.0);
}

void TestRoiStatistics::mean_dividesByRowsTimesColumns()
{
    const std::vector<uchar> samples { 10, 20, 30, 40 };
    // columns 1 and 2 of rows 0 to 2 of a 2 x 2 image: 20, 30 / 40, none / none, none
    const RoiRows rows { QRect(QPoint(1, 0), QPoint(2, 2)), 2, 4 };
    // (0 + 10 + 20) / 6 + 20
    QVERIFY(meanOf(samples.data(), rows) == 25.0);
    // (25 + 25 + 225) / 6
    QVERIFY(deviationOf(samples.data(), rows, 25.0) == std::sqrt(275.0 / 6.0));
}

void TestRoiStatistics::mean_ofLargeSums()
{
    const std::vector<uint> samples(100000, 4294967295u);
    QVERIFY(meanOf(samples.data(), wholeRow(samples.size())) == 4294967295.0);
}

void TestRoiStatistics::deviation_sumsInThePixelsOrder()
{
    // (2^27)^2 = 2^54, where a double's steps are 4: each 1 added after it is lost, four before it
    // are not
    const std::vector<uint> samples { 134217728u, 1, 1, 1, 1 };
    const double sum = std::ldexp(1.0, 54);
    QVERIFY(deviationOf(samples.data(), wholeRow(5), 0.0) == std::sqrt(sum / 5.0));
    const std::vector<uint> turned { 1, 1, 1, 1, 134217728u };
    QVERIFY(deviationOf(turned.data(), wholeRow(5), 0.0) == std::sqrt((sum + 4.0) / 5.0));
}

void TestRoiStatistics::withoutPixelsThereIsNoNumber()
{
    const RoiRows none { QRect(0, 0, 0, 5), 3, 9 };
    QVERIFY(std::isnan(meanOf(static_cast<const uchar*>(nullptr), none)));
    QVERIFY(std::isnan(deviationOf(static_cast<const uchar*>(nullptr), none, 0.0)));
}

void TestRoiStatistics::outsideTheAllocationNothingIsAdded()
{
    const std::vector<uchar> samples { 10, 20, 30, 40 };
    const RoiRows rows { QRect(0, 5, 2, 2), 2, 4 };
    const RoiTotals totals = roiTotals(samples.data(), rows);
    QCOMPARE(totals.sum, quint64(0));
    QCOMPARE(totals.range.min, 255U);
    QVERIFY(roiMean(totals, rows) == 255.0); // 0 / 4 + 255
    QVERIFY(roiDeviation(samples.data(), rows, totals.range, 255.0) == 0.0);
}

void TestRoiStatistics::patterns_equalThePlainLoops()
{
    forEachSimdTarget([](const char* target) {
        for (const size_t count :
            { 1, 31, 32, 33, 63, 64, 65, 127, 1023, 1024, 1025, 5000, 20011 }) {
            QVERIFY2(patternDifference<uchar>(count).isEmpty(),
                qPrintable(target + QString(" 8 bit: ") + patternDifference<uchar>(count)));
            QVERIFY2(patternDifference<ushort>(count).isEmpty(),
                qPrintable(target + QString(" 16 bit: ") + patternDifference<ushort>(count)));
            QVERIFY2(patternDifference<uint>(count).isEmpty(),
                qPrintable(target + QString(" 32 bit: ") + patternDifference<uint>(count)));
        }
    });
}

void TestRoiStatistics::manySamples_equalThePlainLoops()
{
    // Long enough for the sum to pass a power of two twenty times, and for the sums of a lane to
    // be taken out before they overflow.
    const size_t count = 3000001;
    std::mt19937 random(5);
    std::vector<uchar> bytes(count);
    std::vector<ushort> shorts(count);
    std::vector<uint> words(count);
    for (size_t i = 0; i < count; ++i) {
        bytes[i] = uchar(random() % 256);
        shorts[i] = ushort(i % 1000 == 7 ? 65535 : 1000 + random() % 100);
        words[i] = uint(random());
    }
    const RoiRows rows = wholeRow(count);
    QCOMPARE(difference(bytes, rows), QString());
    QCOMPARE(difference(shorts, rows), QString());
    QCOMPARE(difference(words, rows), QString());
    QCOMPARE(difference(std::vector<ushort>(count, 65535), rows), QString());
    QCOMPARE(difference(std::vector<ushort>(count, 65535), rows, 0.0), QString());
}

void TestRoiStatistics::ties_equalThePlainLoop()
{
    // Squares that lie exactly between two steps of the running sum: from 2^53 on, its steps are 2,
    // and every odd square does; from 2^60 on, 256.
    std::mt19937 random(9);
    for (const int exponent : { 26, 27, 28, 30 }) {
        for (const uint step : { 1U, 2U, 16U, 4096U }) {
            std::vector<uint> samples(20000);
            samples[0] = 1U << exponent;
            for (size_t i = 1; i < samples.size(); ++i) {
                samples[i] = uint(random() % 5) * step;
            }
            QCOMPARE(difference(samples, wholeRow(samples.size()), 0.0), QString());
            // Half steps of the mean give quarters in the squares.
            QCOMPARE(difference(samples, wholeRow(samples.size()), 0.5), QString());
            QCOMPARE(difference(samples, wholeRow(samples.size()), 1.0 / 3.0), QString());
        }
    }
}

void TestRoiStatistics::hostileRegionsEnd()
{
    const std::vector<uchar> samples { 1, 2, 3, 4, 5, 6 };
    const int bound = 1 << 30;
    const RoiRows all { QRect(QPoint(-bound, -bound), QPoint(1, 1)), 3, 6 };
    // Every row that reaches an index of 0 or more starts at or before it; rows 0 and 1 do, with
    // samples 0 and 1, and 0 to 4.
    const RoiTotals totals = roiTotals(samples.data(), all);
    QCOMPARE(totals.sampleCount, qint64(2 + 5));
    QCOMPARE(totals.sum, quint64(1 + 2 + 15));
}

QTEST_GUILESS_MAIN(TestRoiStatistics)
#include "tst_roistatistics.moc"
