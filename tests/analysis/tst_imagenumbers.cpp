#include "analysis/imagenumbers.h"

#include "image/imagedata.h"

#include <QTest>

#include <cmath>
#include <cstring>

namespace {

template <class Sample>
void fill(ImageData& image, int width, int height, const QVector<Sample>& samples)
{
    QVERIFY(image.allocate(width, height, int(sizeof(Sample)) * 8, 1));
    std::memcpy(image.data, samples.constData(), size_t(samples.size()) * sizeof(Sample));
}

/// All counts of the blocks in one list, and how many blocks there were.
struct Blocks
{
    QVector<uint> counts;
    int number = 0;
};

Blocks blocksOf(const ImageData& image, const QRect& rect)
{
    Blocks blocks;
    const auto range = rectRange(image, rect);
    forEachCountBlock(
        image, rect, range.value_or(SampleRange()), [&](const uint* counts, qint64 n) {
            for (qint64 i = 0; i < n; ++i) {
                blocks.counts.append(counts[i]);
            }
            ++blocks.number;
        });
    return blocks;
}

} // namespace

/// Numbers of any part of an image.
class TestImageNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void signalToNoise_isNoNumberWithoutDeviation();
    void range_isThatOfTheRectangle();
    void countBlocks_holdEveryValue();
    void countBlocks_areSeveralForAWideRange();
    void countBlocks_ofTooManyValuesAreNone();
    void levels_spanTheRange();
    void levels_ofTheFullRangeAreNone();
};

void TestImageNumbers::signalToNoise_isNoNumberWithoutDeviation()
{
    QVERIFY(signalToNoise({ { 1, 3 }, 6.0, 0.5 }) == 12.0);
    QVERIFY(std::isnan(signalToNoise({ { 3, 3 }, 3.0, 0.0 })));
}

void TestImageNumbers::range_isThatOfTheRectangle()
{
    ImageData image;
    fill<ushort>(image, 3, 2, { 9, 1, 2, 700, 3, 4 });
    const auto range = rectRange(image, QRect(1, 0, 2, 2));
    QVERIFY(range);
    QCOMPARE(range->min, 1U);
    QCOMPARE(range->max, 4U);
    QVERIFY(!rectRange(image, QRect(1, 0, 3, 2)));
}

void TestImageNumbers::countBlocks_holdEveryValue()
{
    ImageData image;
    fill<uchar>(image, 3, 2, { 5, 7, 7, 9, 5, 5 });
    QCOMPARE(blocksOf(image, QRect(0, 0, 3, 2)).counts, QVector<uint>({ 3, 0, 2, 0, 1 }));
    QCOMPARE(blocksOf(image, QRect(1, 0, 2, 1)).counts, QVector<uint>({ 2 }));
    QCOMPARE(blocksOf(image, QRect(1, 0, 3, 1)).number, 0); // outside
}

void TestImageNumbers::countBlocks_areSeveralForAWideRange()
{
    ImageData image;
    fill<uint>(image, 5, 1, { 100, 100 + 65535, 100 + 65536, 100 + 65536, 100 + 131072 });
    const Blocks blocks = blocksOf(image, QRect(0, 0, 5, 1));
    QCOMPARE(blocks.number, 3); // of 65,536 values for so few samples, and of one
    QCOMPARE(blocks.counts.size(), 131073);
    QVector<uint> expected(131073, 0);
    expected[0] = 1;
    expected[65535] = 1;
    expected[65536] = 2;
    expected[131072] = 1;
    QVERIFY(blocks.counts == expected);
}

void TestImageNumbers::countBlocks_ofTooManyValuesAreNone()
{
    ImageData image;
    fill<uint>(image, 2, 1, { 0, 1U << 26 });
    QCOMPARE(blocksOf(image, QRect(0, 0, 2, 1)).number, 0);
    fill<uint>(image, 2, 1, { 0, 4294967295U });
    QCOMPARE(blocksOf(image, QRect(0, 0, 2, 1)).number, 0);
}

void TestImageNumbers::levels_spanTheRange()
{
    const auto levels = displayLevels({ 10, 265 });
    QVERIFY(levels);
    QCOMPARE(int(levels->level(10)), 0);
    QCOMPARE(int(levels->level(11)), 1);
    QCOMPARE(int(levels->level(265)), 255);
    QCOMPARE(int(levels->level(266)), 0); // outside
}

void TestImageNumbers::levels_ofTheFullRangeAreNone()
{
    QVERIFY(!displayLevels({ 0, 4294967295U }));
    QVERIFY(!displayLevels({ 1, 0 }));
    QVERIFY(displayLevels({ 1, 4294967295U }));
}

QTEST_GUILESS_MAIN(TestImageNumbers)
#include "tst_imagenumbers.moc"
