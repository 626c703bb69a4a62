#include "analysis/samplecounts.h"
#include "plainloops.h"
#include "support/samplepatterns.h"
#include "support/simdtargets.h"

#include <QtTest>

#include <vector>

namespace {

template <class Sample>
void compareRanges(size_t count)
{
    for (const auto& pattern : samplePatterns<Sample>(count)) {
        const plain::Range expected = plain::range(pattern.samples.data(), qint64(count));
        forEachSimdTarget([&](const char* target) {
            const SampleRange range = sampleRange(pattern.samples.data(), qint64(count));
            QVERIFY2(range.min == expected.min && range.max == expected.max,
                qPrintable(QString("%1, %2 samples, %3")
                               .arg(target)
                               .arg(count)
                               .arg(pattern.name.c_str())));
        });
    }
}

template <class Sample>
void compareCounts(const std::vector<Sample>& samples, bool withoutTest)
{
    const auto count = qint64(samples.size());
    const plain::Range range = plain::range(samples.data(), count);
    if (range.max - range.min > 100000) {
        return;
    }
    std::vector<uint> expected(range.max - range.min + 1);
    plain::histogram(samples.data(), count, range.min, expected.data(), uint(expected.size()));
    std::vector<uint> bins(expected.size(), 0);
    if constexpr (sizeof(Sample) == sizeof(uint)) {
        if (withoutTest) {
            addCountsFromMin(samples.data(), count, range.min, bins.data());
            QCOMPARE(bins, expected);
            return;
        }
    }
    addSampleCounts(samples.data(), count, range.min, bins.data(), uint(bins.size()));
    QCOMPARE(bins, expected);
}

template <class Sample>
void compareCounts(size_t count)
{
    for (const auto& pattern : samplePatterns<Sample>(count)) {
        compareCounts(pattern.samples, false);
        compareCounts(pattern.samples, true);
    }
}

} // namespace

class TestSampleCounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void range_ofEachDepth();
    void range_withoutSamplesIsTurnedRound();
    void counts_addUp();
    void counts_leaveOutValuesWithoutABin();
    void counts_fromMinAddUp();
    void everyResultIsThatOfThePlainLoop();
};

void TestSampleCounts::range_ofEachDepth()
{
    const std::vector<uchar> bytes { 7, 3, 250, 8 };
    QCOMPARE(sampleRange(bytes.data(), 4).min, 3u);
    QCOMPARE(sampleRange(bytes.data(), 4).max, 250u);
    QCOMPARE(sampleRange(bytes.data(), 1).max, 7u);
    const std::vector<ushort> shorts { 700, 65535, 0 };
    QCOMPARE(sampleRange(shorts.data(), 3).min, 0u);
    QCOMPARE(sampleRange(shorts.data(), 3).max, 65535u);
    const std::vector<uint> ints { 2147483648u, 4294967295u, 2147483647u };
    QCOMPARE(sampleRange(ints.data(), 3).min, 2147483647u);
    QCOMPARE(sampleRange(ints.data(), 3).max, 4294967295u);
}

void TestSampleCounts::range_withoutSamplesIsTurnedRound()
{
    for (const qint64 count : { 0, -1 }) {
        QCOMPARE(sampleRange(static_cast<const uchar*>(nullptr), count).min, 255u);
        QCOMPARE(sampleRange(static_cast<const ushort*>(nullptr), count).min, 65535u);
        QCOMPARE(sampleRange(static_cast<const uint*>(nullptr), count).min, 4294967295u);
        QCOMPARE(sampleRange(static_cast<const uint*>(nullptr), count).max, 0u);
    }
}

void TestSampleCounts::counts_addUp()
{
    const std::vector<ushort> samples { 1000, 1002, 1002, 1000, 1000 };
    std::vector<uint> bins { 5, 6, 7 };
    addSampleCounts(samples.data(), 5, 1000, bins.data(), 3);
    QCOMPARE(bins, (std::vector<uint> { 8, 6, 9 }));
    addSampleCounts(samples.data(), 0, 1000, bins.data(), 3);
    QCOMPARE(bins, (std::vector<uint> { 8, 6, 9 }));
}

void TestSampleCounts::counts_leaveOutValuesWithoutABin()
{
    const std::vector<uchar> bytes { 0, 99, 100, 101, 255 };
    std::vector<uint> bins { 0, 0 };
    addSampleCounts(bytes.data(), 5, 100, bins.data(), 2);
    QCOMPARE(bins, (std::vector<uint> { 1, 1 }));
    const std::vector<uint> ints { 0, 99, 100, 101, 102, 4294967295u };
    addSampleCounts(ints.data(), 6, 100, bins.data(), 2);
    QCOMPARE(bins, (std::vector<uint> { 2, 2 }));
    addSampleCounts(ints.data(), 6, 100, bins.data(), 0);
    QCOMPARE(bins, (std::vector<uint> { 2, 2 }));
}

void TestSampleCounts::counts_fromMinAddUp()
{
    const std::vector<uint> samples { 4294967295u, 4294967293u, 4294967295u, 4294967294u,
        4294967295u };
    std::vector<uint> bins { 5, 6, 7 };
    addCountsFromMin(samples.data(), 5, 4294967293u, bins.data());
    QCOMPARE(bins, (std::vector<uint> { 6, 7, 10 }));
    addCountsFromMin(samples.data(), 0, 4294967293u, bins.data());
    QCOMPARE(bins, (std::vector<uint> { 6, 7, 10 }));
}

void TestSampleCounts::everyResultIsThatOfThePlainLoop()
{
    for (size_t count = 1; count <= 140; ++count) {
        compareRanges<uchar>(count);
        compareRanges<ushort>(count);
        compareRanges<uint>(count);
        compareCounts<uchar>(count);
        compareCounts<ushort>(count);
        compareCounts<uint>(count);
    }
    compareRanges<uchar>(10007);
    compareRanges<ushort>(10007);
    compareRanges<uint>(10007);
    compareCounts<uint>(10007);
}

QTEST_GUILESS_MAIN(TestSampleCounts)
#include "tst_samplecounts.moc"
