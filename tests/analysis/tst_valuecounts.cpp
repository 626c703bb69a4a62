#include "analysis/valuecounts.h"
#include "plainloops.h"
#include "support/samplepatterns.h"

#include <QtTest>

namespace {

constexpr size_t enoughSamples = 65536 * 4;

template <class Sample>
void compareWithThePlainLoop(size_t count)
{
    for (const auto& pattern : samplePatterns<Sample>(count)) {
        const Sample* samples = pattern.samples.data();
        const plain::Range range = plain::range(samples, qint64(count));
        std::vector<uint> expected(range.max - range.min + 1);
        plain::histogram(samples, qint64(count), range.min, expected.data(), uint(expected.size()));
        const ValueCounts<Sample> counts(samples, qint64(count));
        QVERIFY(counts.isComplete());
        QCOMPARE(counts.range().min, range.min);
        QCOMPARE(counts.range().max, range.max);
        const uint* first = counts.from(range.min);
        QVERIFY2(std::equal(expected.begin(), expected.end(), first), pattern.name.c_str());
    }
}

} // namespace

class TestValueCounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fewSamplesAreNotCounted();
    void countsOfBytes();
    void countsOfWords();
    void everyCountIsThatOfThePlainLoop();
};

void TestValueCounts::fewSamplesAreNotCounted()
{
    const std::vector<uchar> bytes(enoughSamples - 1, 7);
    QVERIFY(!ValueCounts<uchar>(bytes.data(), qint64(bytes.size())).isComplete());
    QVERIFY(!ValueCounts<uchar>(nullptr, 0).isComplete());
    QVERIFY(!ValueCounts<ushort>(nullptr, -1).isComplete());
}

void TestValueCounts::countsOfBytes()
{
    std::vector<uchar> bytes(enoughSamples + 1, 7);
    bytes[0] = 3;
    bytes[1000] = 250;
    bytes[1001] = 250;
    bytes.back() = 9; // without a neighbour to be paired with
    const ValueCounts<uchar> counts(bytes.data(), qint64(bytes.size()));
    QCOMPARE(counts.range().min, 3u);
    QCOMPARE(counts.range().max, 250u);
    QCOMPARE(counts.from(3)[0], 1u);
    QCOMPARE(counts.from(0)[9], 1u);
    QCOMPARE(counts.from(250)[0], 2u);
    QCOMPARE(counts.from(7)[0], uint(enoughSamples - 3));
    QCOMPARE(counts.from(8)[0], 0u);
}

void TestValueCounts::countsOfWords()
{
    std::vector<ushort> words(enoughSamples + 3, 1000);
    words[0] = 65535;
    words[5] = 65535;
    words.back() = 0;
    const ValueCounts<ushort> counts(words.data(), qint64(words.size()));
    QCOMPARE(counts.range().min, 0u);
    QCOMPARE(counts.range().max, 65535u);
    QCOMPARE(counts.from(0)[0], 1u);
    QCOMPARE(counts.from(65535)[0], 2u);
    QCOMPARE(counts.from(1000)[0], uint(enoughSamples));
}

void TestValueCounts::everyCountIsThatOfThePlainLoop()
{
    for (size_t more = 0; more <= 70; more += more < 10 ? 1 : 13) {
        compareWithThePlainLoop<uchar>(enoughSamples + more);
        compareWithThePlainLoop<ushort>(enoughSamples + more);
    }
}

QTEST_GUILESS_MAIN(TestValueCounts)
#include "tst_valuecounts.moc"
