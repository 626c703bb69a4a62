#include "analysis/samplecounts.h"

#include <QtTest>

#include <vector>

class TestSampleCounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void range_ofEachDepth();
    void range_withoutSamplesIsTurnedRound();
    void counts_addUp();
    void counts_leaveOutValuesWithoutABin();
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

QTEST_GUILESS_MAIN(TestSampleCounts)
#include "tst_samplecounts.moc"
