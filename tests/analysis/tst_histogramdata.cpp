#include "analysis/histogramdata.h"
#include "plainloops.h"
#include "support/sampleimages.h"
#include "support/samplepatterns.h"

#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <limits>

namespace {

constexpr int largestInt = std::numeric_limits<int>::max();
constexpr int smallestInt = std::numeric_limits<int>::min();
constexpr uint largestBinCount = 67108864; // 2^26

template <class Sample>
std::vector<Sample> rampSamples(int count, Sample first)
{
    std::vector<Sample> samples(size_t(count), first);
    for (size_t i = 0; i < samples.size(); ++i) {
        samples[i] = Sample(first + i);
    }
    return samples;
}

QVector<int> levelsOf(const uchar* levels, int count)
{
    QVector<int> values;
    for (int i = 0; i < count; ++i) {
        values << levels[i];
    }
    return values;
}

QVector<uint> countsOf(const uint* counts, int count)
{
    QVector<uint> values;
    for (int i = 0; i < count; ++i) {
        values << counts[i];
    }
    return values;
}

/// Range, counts and levels of an image large enough for the loops that take many samples at once.
template <class Sample>
void compareWithThePlainLoops(int width, int height)
{
    for (const auto& pattern : samplePatterns<Sample>(size_t(width) * size_t(height))) {
        const auto count = qint64(pattern.samples.size());
        const plain::Range range = plain::range(pattern.samples.data(), count);
        if (range.max - range.min >= largestBinCount) {
            continue; // no bins to compare
        }
        const uint size = range.max - range.min + 1;
        std::vector<uint> counts(size);
        plain::histogram(pattern.samples.data(), count, range.min, counts.data(), size);
        std::vector<uchar> levels(size);
        plain::displayMap(range.min, range.max, levels.data(), size);

        ImageData image;
        QVERIFY(setGrayImage(image, width, height, pattern.samples));
        const HistogramData data(&image);
        QCOMPARE(data.min, range.min);
        QCOMPARE(data.max, range.max);
        QCOMPARE(data.size, size);
        QVERIFY2(std::equal(counts.begin(), counts.end(), data.histogram), pattern.name.c_str());
        QVERIFY2(std::equal(levels.begin(), levels.end(), data.displayMap), pattern.name.c_str());
    }
}

} // namespace

class TestHistogramData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void setImageData_ignoresImagesWithoutPixels();
    void setImageData_ofValues10To20();
    void setImageData_inTheConstructor();
    void setImageData_ofEachDepth();
    void setImageData_ofManySamples();
    void setImageData_uniformImage_data();
    void setImageData_uniformImage();
    void setImageData_twiceKeepsOrReplacesTheBins();
    void setImageData_linesAreZeroInTheImagesSize();
    void setImageData_takesTheFirstInterleavedValues_data();
    void setImageData_takesTheFirstInterleavedValues();
    void setImageData_otherDepthsKeepTheRange_data();
    void setImageData_otherDepthsKeepTheRange();
    void displayMap_stretchesTheRange();
    void buildDisplayMap_lowEntersThroughTheScaleOnly();
    void buildDisplayMap_turnedRoundLevelsStaySafe();
    void createHistogramBuffer_worksAlone();
    void createHistogramBuffer_withoutSamples_data();
    void createHistogramBuffer_withoutSamples();
    void fillHistogram_worksAlone();
    void fillHistogram_zeroesWhatSomebodyWrote_data();
    void fillHistogram_zeroesWhatSomebodyWrote();
    void fillHistogram_leavesOutValuesWithoutABin();
    void fullRange_hasNoBinsAndNoMap();
    void wideRange_levelsComeFromTheFormula();
    void widestRangeWithBins();
    void wideRange_roiIsCounted();
    void bins_comeBackAfterAWideRange();
    void prepareRoiHistogram_impossibleRanges_data();
    void prepareRoiHistogram_impossibleRanges();
    void prepareRoiHistogram_givesZeros();
    void calcRoiHistogram_countsTheRegion();
    void calcRoiHistogram_ofEachDepth();
    void calcRoiHistogram_emptyRowsZeroTheBins();
    void calcRoiHistogram_zeroesWhatSomebodyWrote();
    void calcRoiHistogram_zeroesBinsOfAnotherDepth();
    void calcRoiHistogram_edgesOnePixelBeyond();
    void calcRoiHistogram_rejectedBeyond_data();
    void calcRoiHistogram_rejectedBeyond();
    void calcRoiHistogram_negativeCorners();
    void calcRoiHistogram_samplesOutsideTheBins();
    void calcRoiHistogram_withoutAnImage();
    void roiBins_onlyForTheirOwnRange();
    void horizontalLine_isTheRowAsLevels();
    void verticalLine_isTheColumnAsLevels();
    void lines_outsideKeepTheOldEntries_data();
    void lines_outsideKeepTheOldEntries();
    void lines_withOffsetAndCount();
    void lines_samplesOutsideTheAllocationAreZero();
    void lines_withoutAnImage();
    void lines_afterTheImageWasReplacedByASmallerOne();
};

void TestHistogramData::startsEmpty()
{
    const HistogramData data(nullptr);
    QCOMPARE(data.size, 0u);
    QCOMPARE(data.max, 0u);
    QCOMPARE(data.min, 0u);
    QCOMPARE(data.roiSize, 0u);
    QCOMPARE(data.roiMax, 0u);
    QCOMPARE(data.roiMin, 0u);
    QVERIFY(!data.histogram && !data.roiHistogram && !data.displayMap);
    QVERIFY(!data.verticalLine && !data.horizontalLine && !data.image);
    QVERIFY(!data.hasLevels());
    QCOMPARE(data.verticalLineLength(), 0);
    QCOMPARE(data.horizontalLineLength(), 0);
}

void TestHistogramData::setImageData_ignoresImagesWithoutPixels()
{
    ImageData good;
    QVERIFY(setGrayImage<uchar>(good, 2, 1, { 10, 20 }));
    HistogramData data(&good);
    ImageData empty;
    data.setImageData(&empty);
    data.setImageData(nullptr);
    ImageData noRows;
    QVERIFY(noRows.allocate(5, 0, 8, 1));
    data.setImageData(&noRows);
    QVERIFY(data.image == &good);
    QCOMPARE(data.size, 11u);
    QCOMPARE(data.horizontalLineLength(), 2);
}

void TestHistogramData::setImageData_ofValues10To20()
{
    ImageData image;
    QVERIFY(setGrayImage(image, 11, 1, rampSamples<uchar>(11, 10)));
    HistogramData data(nullptr);
    QTest::ignoreMessage(QtDebugMsg, "[createHistogramBuffer]min: 10, max: 20, size: 11\n");
    data.setImageData(&image);
    QCOMPARE(data.min, 10u);
    QCOMPARE(data.max, 20u);
    QCOMPARE(data.size, 11u);
    QCOMPARE(countsOf(data.histogram, 11), QVector<uint>(11, 1));
    // 25.5 a bin
    QCOMPARE(levelsOf(data.displayMap, 11),
        (QVector<int> { 0, 25, 51, 76, 102, 127, 153, 178, 204, 229, 255 }));
}

void TestHistogramData::setImageData_inTheConstructor()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 2, { 4, 6, 6, 6 }));
    QTest::ignoreMessage(QtDebugMsg, "[createHistogramBuffer]min: 4, max: 6, size: 3\n");
    const HistogramData data(&image);
    QCOMPARE(countsOf(data.histogram, 3), (QVector<uint> { 1, 0, 3 }));
    QCOMPARE(levelsOf(data.displayMap, 3), (QVector<int> { 0, 127, 255 }));
}

void TestHistogramData::setImageData_ofEachDepth()
{
    ImageData image;
    QVERIFY(setGrayImage<ushort>(image, 2, 2, { 65535, 65533, 65535, 65535 }));
    HistogramData data(nullptr);
    QTest::ignoreMessage(QtDebugMsg, "[createHistogramBuffer]min: 65533, max: 65535, size: 3\n");
    data.setImageData(&image);
    QCOMPARE(countsOf(data.histogram, 3), (QVector<uint> { 1, 0, 3 }));

    QVERIFY(setGrayImage<uint>(image, 3, 1, { 4294967295u, 4294967294u, 4294967295u }));
    QTest::ignoreMessage(QtDebugMsg, "[createHistogramBuffer]min: -2, max: -1, size: 2\n");
    data.setImageData(&image);
    QCOMPARE(data.min, 4294967294u);
    QCOMPARE(data.max, 4294967295u);
    QCOMPARE(countsOf(data.histogram, 2), (QVector<uint> { 1, 2 }));
    QCOMPARE(levelsOf(data.displayMap, 2), (QVector<int> { 0, 255 }));
}

void TestHistogramData::setImageData_ofManySamples()
{
    compareWithThePlainLoops<uchar>(701, 401);
    compareWithThePlainLoops<ushort>(701, 401);
    compareWithThePlainLoops<uint>(701, 401);

    ImageData image; // again into the bins of the image before
    QVERIFY(setGrayImage(image, 640, 480, std::vector<uchar>(307200, 7)));
    HistogramData data(&image);
    const uint* bins = data.histogram;
    QTest::ignoreMessage(QtDebugMsg, "[createHistogramBuffer]min: 9, max: 9, size: 1\n");
    QVERIFY(setGrayImage(image, 640, 500, std::vector<uchar>(320000, 9)));
    data.setImageData(&image);
    QVERIFY(data.histogram == bins);
    QCOMPARE(data.histogram[0], 320000u);
    const std::vector<uchar> few { 9, 9, 9 };
    data.fillHistogram(few.data(), 3);
    QCOMPARE(data.histogram[0], 3u);
}

void TestHistogramData::setImageData_uniformImage_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::newRow("8") << 8;
    QTest::newRow("16") << 16;
    QTest::newRow("32") << 32;
}

void TestHistogramData::setImageData_uniformImage()
{
    QFETCH(int, bitDepth);
    ImageData image;
    QVERIFY(image.allocate(5, 3, bitDepth, 1));
    const HistogramData data(&image);
    QCOMPARE(data.size, 1u);
    QCOMPARE(data.histogram[0], 15u);
    QCOMPARE(int(data.displayMap[0]), 255);
}

void TestHistogramData::setImageData_twiceKeepsOrReplacesTheBins()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 1, { 10, 12, 12 }));
    HistogramData data(&image);
    const uint* bins = data.histogram;
    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 22, 20, 20, 20 }));
    data.setImageData(&image);
    QVERIFY(data.histogram == bins);
    QCOMPARE(countsOf(data.histogram, 3), (QVector<uint> { 3, 0, 1 }));

    QVERIFY(setGrayImage<uchar>(image, 4, 1, { 20, 23, 20, 20 }));
    data.setImageData(&image);
    QCOMPARE(data.size, 4u);
    QCOMPARE(countsOf(data.histogram, 4), (QVector<uint> { 3, 0, 0, 1 }));
    QCOMPARE(levelsOf(data.displayMap, 4), (QVector<int> { 0, 85, 170, 255 }));
}

void TestHistogramData::setImageData_linesAreZeroInTheImagesSize()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 2, { 1, 2, 3, 4, 5, 6 }));
    HistogramData data(&image);
    QCOMPARE(data.horizontalLineLength(), 3);
    QCOMPARE(data.verticalLineLength(), 2);
    QCOMPARE(levelsOf(data.horizontalLine, 3), (QVector<int> { 0, 0, 0 }));
    data.extractHorizontalLine(1);
    data.extractVerticalLine(2);
    QVERIFY(data.horizontalLine[2] != 0 && data.verticalLine[1] != 0);
    data.setImageData(&image);
    QCOMPARE(levelsOf(data.horizontalLine, 3), (QVector<int> { 0, 0, 0 }));
    QCOMPARE(levelsOf(data.verticalLine, 2), (QVector<int> { 0, 0 }));
}

void TestHistogramData::setImageData_takesTheFirstInterleavedValues_data()
{
    QTest::addColumn<int>("channels");
    QTest::newRow("2") << 2;
    QTest::newRow("4") << 4;
}

void TestHistogramData::setImageData_takesTheFirstInterleavedValues()
{
    QFETCH(int, channels);
    ImageData image;
    QVERIFY(image.allocate(2, 2, 8, channels));
    for (size_t i = 0; i < image.allocatedBytes(); ++i) {
        image.data[i] = uchar(10 + i);
    }
    const HistogramData data(&image);
    QCOMPARE(data.min, 10u);
    QCOMPARE(data.max, 13u);
    QCOMPARE(countsOf(data.histogram, 4), (QVector<uint> { 1, 1, 1, 1 }));
}

void TestHistogramData::setImageData_otherDepthsKeepTheRange_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::newRow("24") << 24;
    QTest::newRow("64") << 64;
}

void TestHistogramData::setImageData_otherDepthsKeepTheRange()
{
    QFETCH(int, bitDepth);
    ImageData other;
    QVERIFY(other.allocate(4, 5, bitDepth, 1));
    HistogramData fresh(&other);
    QCOMPARE(fresh.size, 0u);
    QVERIFY(!fresh.histogram && !fresh.displayMap && !fresh.hasLevels());
    QCOMPARE(fresh.verticalLineLength(), 5);
    fresh.extractHorizontalLine(1);
    fresh.extractVerticalLine(1);
    fresh.calcRoiHistogram(0, 5, QRect(0, 0, 2, 2));

    ImageData good;
    QVERIFY(setGrayImage<uchar>(good, 2, 1, { 10, 12 }));
    HistogramData data(&good);
    data.setImageData(&other);
    QVERIFY(data.image == &other);
    QCOMPARE(data.min, 10u);
    QCOMPARE(countsOf(data.histogram, 3), (QVector<uint> { 1, 0, 1 }));
    QCOMPARE(levelsOf(data.displayMap, 3), (QVector<int> { 0, 127, 255 }));
    data.extractHorizontalLine(1);
    QCOMPARE(levelsOf(data.horizontalLine, 4), (QVector<int> { 0, 0, 0, 0 }));
    data.calcRoiHistogram(10, 12, QRect(0, 0, 2, 2));
    QCOMPARE(countsOf(data.roiHistogram, 3), (QVector<uint> { 0, 0, 0 }));
}

void TestHistogramData::displayMap_stretchesTheRange()
{
    ImageData image;
    QVERIFY(setGrayImage<ushort>(image, 2, 1, { 100, 1123 }));
    const HistogramData data(&image);
    QCOMPARE(data.size, 1024u);
    QCOMPARE(int(data.displayMap[0]), 0);
    QCOMPARE(int(data.displayMap[511]), 127); // 511 x 255 / 1023 = 127.4
    QCOMPARE(int(data.displayMap[1022]), 254); // 254.8
    QCOMPARE(int(data.displayMap[1023]), 255);
}

void TestHistogramData::buildDisplayMap_lowEntersThroughTheScaleOnly()
{
    ImageData image;
    QVERIFY(setGrayImage(image, 11, 1, rampSamples<uchar>(11, 10)));
    HistogramData data(&image);
    data.buildDisplayMap(55, 255); // 20 a bin, from 0
    QCOMPARE(levelsOf(data.displayMap, 11),
        (QVector<int> { 0, 20, 40, 60, 80, 100, 120, 140, 160, 180, 200 }));
    data.buildDisplayMap(7, 7);
    QCOMPARE(levelsOf(data.displayMap, 11), QVector<int>(11, 0));
}

void TestHistogramData::buildDisplayMap_turnedRoundLevelsStaySafe()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 1, { 10, 12 }));
    HistogramData data(&image);
    data.buildDisplayMap(255, 0); // -127.5 a bin: 0, -127, -255, as bytes
    QCOMPARE(levelsOf(data.displayMap, 3), (QVector<int> { 0, 129, 1 }));
    HistogramData empty(nullptr);
    empty.buildDisplayMap(0, 255);
    QVERIFY(!empty.displayMap);
}

void TestHistogramData::createHistogramBuffer_worksAlone()
{
    HistogramData data(nullptr);
    const std::vector<ushort> samples { 300, 200, 400 };
    QTest::ignoreMessage(QtDebugMsg, "[createHistogramBuffer]min: 200, max: 400, size: 201\n");
    data.createHistogramBuffer(samples.data(), 3);
    QCOMPARE(data.min, 200u);
    QCOMPARE(data.max, 400u);
    QCOMPARE(data.size, 201u);
    QVERIFY(data.histogram);
    QVERIFY(!data.displayMap);
    QVERIFY(!data.hasLevels());

    data.createHistogramBuffer(static_cast<const uchar*>(nullptr), 3);
    QCOMPARE(data.size, 201u);
}

void TestHistogramData::createHistogramBuffer_withoutSamples_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("0") << 0;
    QTest::newRow("-1") << -1;
    QTest::newRow("smallest") << smallestInt;
}

void TestHistogramData::createHistogramBuffer_withoutSamples()
{
    QFETCH(int, count);
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 1, { 10, 12 }));
    HistogramData data(&image);
    const ushort sample = 5;
    // 0 - 65535 + 1 modulo 2^32, written as a signed number
    QTest::ignoreMessage(QtDebugMsg, "[createHistogramBuffer]min: 65535, max: 0, size: -65534\n");
    data.createHistogramBuffer(&sample, count);
    QCOMPARE(data.min, 65535u);
    QCOMPARE(data.max, 0u);
    QCOMPARE(data.size, 4294901762u);
    QVERIFY(!data.histogram && !data.displayMap && !data.hasLevels());
    data.fillHistogram(&sample, count);
    data.extractHorizontalLine(0);
    data.calcRoiHistogram(10, 12, QRect(0, 0, 2, 1));
}

void TestHistogramData::fillHistogram_worksAlone()
{
    HistogramData data(nullptr);
    const std::vector<uchar> samples { 3, 5, 5, 4 };
    data.fillHistogram(samples.data(), 4); // no bins yet
    QVERIFY(!data.histogram);
    data.createHistogramBuffer(samples.data(), 4);
    data.fillHistogram(samples.data(), 4);
    QCOMPARE(countsOf(data.histogram, 3), (QVector<uint> { 1, 1, 2 }));
    data.fillHistogram(samples.data(), 1);
    QCOMPARE(countsOf(data.histogram, 3), (QVector<uint> { 1, 0, 0 }));
    data.fillHistogram(static_cast<const uchar*>(nullptr), 4);
    QCOMPARE(countsOf(data.histogram, 3), (QVector<uint> { 1, 0, 0 }));
    data.fillHistogram(samples.data(), 0);
    QCOMPARE(countsOf(data.histogram, 3), (QVector<uint> { 0, 0, 0 }));
}

void TestHistogramData::fillHistogram_zeroesWhatSomebodyWrote_data()
{
    QTest::addColumn<uint>("largest");
    QTest::newRow("few bins") << 4u;
    QTest::newRow("many bins") << 3000000u;
}

void TestHistogramData::fillHistogram_zeroesWhatSomebodyWrote()
{
    QFETCH(uint, largest);
    const uint samples[] = { 0, largest };
    HistogramData data(nullptr);
    data.createHistogramBuffer(samples, 2);
    std::fill_n(data.histogram, data.size, 7u); // through the public field, before any count
    data.fillHistogram(samples, 2);
    QCOMPARE(data.histogram[0], 1u);
    QCOMPARE(data.histogram[largest], 1u);
    QVERIFY(std::all_of(
        data.histogram + 1, data.histogram + largest, [](uint count) { return count == 0; }));

    // Bins that were handed out and written are counted afresh by a load of the same range, too.
    ImageData image;
    QVERIFY(setGrayImage<uint>(image, 2, 1, { 0, largest + 1 }));
    data.createHistogramBuffer(reinterpret_cast<const uint*>(image.data), 2);
    std::fill_n(data.histogram, data.size, 7u);
    data.setImageData(&image);
    QCOMPARE(data.histogram[0], 1u);
    QVERIFY(std::all_of(
        data.histogram + 1, data.histogram + largest + 1, [](uint count) { return count == 0; }));
}

void TestHistogramData::fillHistogram_leavesOutValuesWithoutABin()
{
    HistogramData data(nullptr);
    const std::vector<uint> range { 1000, 1002 };
    data.createHistogramBuffer(range.data(), 2);
    const std::vector<uint> samples { 999, 1000, 1001, 1002, 1003, 0, 4294967295u };
    data.fillHistogram(samples.data(), 7);
    QCOMPARE(countsOf(data.histogram, 3), (QVector<uint> { 1, 1, 1 }));
}

void TestHistogramData::fullRange_hasNoBinsAndNoMap()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 1, { 10, 12 }));
    HistogramData data(&image);
    QVERIFY(setGrayImage<uint>(image, 2, 1, { 0, 4294967295u }));
    QTest::ignoreMessage(QtDebugMsg, "[createHistogramBuffer]min: 0, max: -1, size: 0\n");
    data.setImageData(&image);
    QCOMPARE(data.size, 0u);
    QVERIFY(!data.histogram && !data.displayMap);
    QVERIFY(!data.hasLevels());
    data.extractHorizontalLine(0);
    QCOMPARE(levelsOf(data.horizontalLine, 2), (QVector<int> { 0, 0 }));
    data.calcRoiHistogram(0, 3, QRect(0, 0, 2, 1));
    QCOMPARE(countsOf(data.roiHistogram, 4), (QVector<uint> { 0, 0, 0, 0 })); // none counted
}

void TestHistogramData::wideRange_levelsComeFromTheFormula()
{
    // A float image's bit patterns: 1.0f .. 3.5e9f is more than a billion values apart from 0.
    ImageData image;
    QVERIFY(setGrayImage<uint>(image, 4, 1, { 0, 1000000000, 2000000000, 4000000000u }));
    HistogramData data(nullptr);
    QTest::ignoreMessage(
        QtDebugMsg, "[createHistogramBuffer]min: 0, max: -294967296, size: -294967295\n");
    data.setImageData(&image);
    QCOMPARE(data.size, 4000000001u);
    QVERIFY(!data.histogram && !data.displayMap);
    QVERIFY(data.hasLevels());
    data.extractHorizontalLine(0);
    QCOMPARE(levelsOf(data.horizontalLine, 4), (QVector<int> { 0, 63, 127, 255 })); // 63.75, 127.5
    data.extractVerticalLine(2);
    QCOMPARE(int(data.verticalLine[0]), 127);
}

void TestHistogramData::widestRangeWithBins()
{
    ImageData image;
    QVERIFY(setGrayImage<uint>(image, 3, 1, { 7, 7 + largestBinCount - 1, 7 }));
    HistogramData data(&image);
    QCOMPARE(data.size, largestBinCount);
    QVERIFY(data.histogram && data.displayMap);
    QCOMPARE(data.histogram[0], 2u);
    QCOMPARE(data.histogram[largestBinCount - 1], 1u);
    QCOMPARE(int(data.displayMap[largestBinCount - 1]), 255);
    QCOMPARE(int(data.displayMap[largestBinCount / 2]), 127); // 127.500002

    QVERIFY(setGrayImage<uint>(image, 3, 1, { 7, 7 + largestBinCount, 7 }));
    data.setImageData(&image);
    QCOMPARE(data.size, largestBinCount + 1);
    QVERIFY(!data.histogram && !data.displayMap);
    QVERIFY(data.hasLevels());
    data.extractHorizontalLine(0);
    QCOMPARE(levelsOf(data.horizontalLine, 3), (QVector<int> { 0, 255, 0 }));
}

void TestHistogramData::wideRange_roiIsCounted()
{
    ImageData image;
    QVERIFY(setGrayImage<uint>(image, 4, 1, { 100, 102, 102, 4000000000u }));
    HistogramData data(&image);
    data.calcRoiHistogram(100, 102, QRect(0, 0, 3, 1));
    QCOMPARE(countsOf(data.roiHistogram, 3), (QVector<uint> { 1, 0, 2 }));
}

void TestHistogramData::bins_comeBackAfterAWideRange()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 1, { 10, 12 }));
    HistogramData data(&image);
    const uchar sample = 0;
    data.createHistogramBuffer(&sample, 0); // no range: bins and map go
    QVERIFY(!data.histogram);
    data.setImageData(&image);
    QCOMPARE(countsOf(data.histogram, 3), (QVector<uint> { 1, 0, 1 }));
    QVERIFY(data.hasLevels());
}

void TestHistogramData::prepareRoiHistogram_impossibleRanges_data()
{
    QTest::addColumn<uint>("min");
    QTest::addColumn<uint>("max");
    QTest::addColumn<uint>("roiSize");
    QTest::newRow("turned round") << 255u << 0u << 4294967042u; // 2^32 - 254
    QTest::newRow("turned round by one") << 1u << 0u << 0u;
    QTest::newRow("full range") << 0u << 4294967295u << 0u;
    QTest::newRow("one too many") << 5u << 5u + largestBinCount << largestBinCount + 1;
}

void TestHistogramData::prepareRoiHistogram_impossibleRanges()
{
    QFETCH(uint, min);
    QFETCH(uint, max);
    QFETCH(uint, roiSize);
    HistogramData data(nullptr);
    data.prepareRoiHistogram(1, 3);
    QVERIFY(data.roiHistogram);
    data.prepareRoiHistogram(min, max);
    QVERIFY(!data.roiHistogram);
    QCOMPARE(data.roiMin, min);
    QCOMPARE(data.roiMax, max);
    QCOMPARE(data.roiSize, roiSize);
    data.prepareRoiHistogram(1, 3);
    QVERIFY(data.roiHistogram);
}

void TestHistogramData::prepareRoiHistogram_givesZeros()
{
    HistogramData data(nullptr);
    data.prepareRoiHistogram(10, 14);
    QCOMPARE(data.roiSize, 5u);
    QCOMPARE(countsOf(data.roiHistogram, 5), QVector<uint>(5, 0));
    const uint* bins = data.roiHistogram;
    data.prepareRoiHistogram(20, 24); // as many bins
    QVERIFY(data.roiHistogram == bins);
    QCOMPARE(data.roiMin, 20u);
}

void TestHistogramData::calcRoiHistogram_countsTheRegion()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 4, 3, { 1, 2, 3, 4, 5, 6, 6, 8, 9, 10, 11, 12 }));
    HistogramData data(&image);
    data.calcRoiHistogram(6, 11, QRect(QPoint(1, 1), QPoint(2, 2)));
    QCOMPARE(data.roiSize, 6u);
    QCOMPARE(countsOf(data.roiHistogram, 6), (QVector<uint> { 2, 0, 0, 0, 1, 1 }));
    data.calcRoiHistogram(6, 11, QRect(QPoint(1, 1), QPoint(1, 1)));
    QCOMPARE(countsOf(data.roiHistogram, 6), (QVector<uint> { 1, 0, 0, 0, 0, 0 }));
}

void TestHistogramData::calcRoiHistogram_ofEachDepth()
{
    ImageData image;
    QVERIFY(setGrayImage<ushort>(image, 2, 2, { 1000, 1001, 1001, 1002 }));
    HistogramData data(&image);
    data.calcRoiHistogram(1000, 1002, QRect(0, 0, 2, 2));
    QCOMPARE(countsOf(data.roiHistogram, 3), (QVector<uint> { 1, 2, 1 }));
    QVERIFY(setGrayImage<uint>(image, 2, 2, { 4294967295u, 4294967295u, 4294967294u, 0 }));
    data.calcRoiHistogram(4294967294u, 4294967295u, QRect(0, 0, 2, 2));
    QCOMPARE(countsOf(data.roiHistogram, 2), (QVector<uint> { 1, 2 }));
}

void TestHistogramData::calcRoiHistogram_emptyRowsZeroTheBins()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 2, { 1, 2, 2, 3 }));
    HistogramData data(&image);
    data.calcRoiHistogram(1, 3, QRect(0, 0, 2, 2));
    QCOMPARE(countsOf(data.roiHistogram, 3), (QVector<uint> { 1, 2, 1 }));
    data.calcRoiHistogram(1, 3, QRect(QPoint(0, 1), QPoint(1, 0)));
    QCOMPARE(countsOf(data.roiHistogram, 3), (QVector<uint> { 0, 0, 0 }));
    data.calcRoiHistogram(1, 3, QRect(0, 0, 2, 2));
    data.calcRoiHistogram(1, 3, QRect(QPoint(1, 0), QPoint(0, 1))); // no columns
    QCOMPARE(countsOf(data.roiHistogram, 3), (QVector<uint> { 0, 0, 0 }));
}

void TestHistogramData::calcRoiHistogram_zeroesWhatSomebodyWrote()
{
    ImageData image;
    QVERIFY(setGrayImage<ushort>(image, 2, 2, { 10, 11, 12, 13 }));
    HistogramData data(&image);
    const QVector<uint> none(5, 0);
    // On a fresh buffer, by a region without rows: bottom = top - 1.
    data.prepareRoiHistogram(10, 14);
    std::fill_n(data.roiHistogram, 5, 9u);
    data.calcRoiHistogram(10, 14, QRect(QPoint(0, 1), QPoint(1, 0)));
    QCOMPARE(countsOf(data.roiHistogram, 5), none);
    // And by one with rows.
    data.prepareRoiHistogram(10, 15);
    std::fill_n(data.roiHistogram, 6, 9u);
    data.calcRoiHistogram(10, 15, QRect(0, 0, 2, 2));
    QCOMPARE(countsOf(data.roiHistogram, 6), (QVector<uint> { 1, 1, 1, 1, 0, 0 }));
    std::fill_n(data.roiHistogram, 6, 9u);
    data.calcRoiHistogram(10, 15, QRect(QPoint(0, 1), QPoint(1, 0)));
    QCOMPARE(countsOf(data.roiHistogram, 6), QVector<uint>(6, 0));
}

/// A depth that nothing counts gets bins all the same; what is written into them must not last.
void TestHistogramData::calcRoiHistogram_zeroesBinsOfAnotherDepth()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 1, { 10, 11 }));
    HistogramData data(&image);
    image.bitDepth = 12;
    data.calcRoiHistogram(10, 12, QRect(0, 0, 2, 1));
    QVERIFY(data.roiHistogram);
    std::fill_n(data.roiHistogram, 3, 9u);
    image.bitDepth = 8;
    data.calcRoiHistogram(10, 12, QRect(0, 0, 2, 1));
    QCOMPARE(countsOf(data.roiHistogram, 3), (QVector<uint> { 1, 1, 0 }));
}

void TestHistogramData::calcRoiHistogram_edgesOnePixelBeyond()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 2, { 1, 2, 3, 4 }));
    HistogramData data(&image);
    // columns 1 and 2 of rows 0 to 2: samples 1, 2 / 3, 4 / 5, 6, of which 4 to 6 are outside
    data.calcRoiHistogram(1, 4, QRect(QPoint(1, 0), QPoint(2, 2)));
    QCOMPARE(countsOf(data.roiHistogram, 4), (QVector<uint> { 0, 1, 1, 1 }));
}

void TestHistogramData::calcRoiHistogram_rejectedBeyond_data()
{
    QTest::addColumn<QRect>("roi");
    QTest::newRow("right") << QRect(QPoint(0, 0), QPoint(3, 1));
    QTest::newRow("bottom") << QRect(QPoint(0, 0), QPoint(1, 3));
    QTest::newRow("far") << QRect(QPoint(0, 0), QPoint(largestInt, largestInt));
}

void TestHistogramData::calcRoiHistogram_rejectedBeyond()
{
    QFETCH(QRect, roi);
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 2, { 1, 2, 3, 4 }));
    HistogramData data(&image);
    data.calcRoiHistogram(1, 4, QRect(0, 0, 2, 2));
    data.calcRoiHistogram(2, 3, roi);
    QCOMPARE(data.roiMin, 1u);
    QCOMPARE(data.roiMax, 4u);
    QCOMPARE(countsOf(data.roiHistogram, 4), (QVector<uint> { 1, 1, 1, 1 }));
}

void TestHistogramData::calcRoiHistogram_negativeCorners()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 3, { 1, 2, 3, 4, 5, 6, 7, 8, 9 }));
    HistogramData data(&image);
    // left -1: rows 0 and 1 read samples -1, 0 and 2, 3; the first is outside
    data.calcRoiHistogram(1, 9, QRect(QPoint(-1, 0), QPoint(0, 1)));
    QCOMPARE(countsOf(data.roiHistogram, 9), (QVector<uint> { 1, 0, 1, 1, 0, 0, 0, 0, 0 }));
    // top -1: rows -1 and 0, of which row -1 reaches sample 0 only with x = 3
    data.calcRoiHistogram(1, 9, QRect(QPoint(2, -1), QPoint(3, 0)));
    QCOMPARE(countsOf(data.roiHistogram, 9), (QVector<uint> { 1, 0, 1, 1, 0, 0, 0, 0, 0 }));
    data.calcRoiHistogram(1, 9, QRect(QPoint(smallestInt, smallestInt), QPoint(-20, 2)));
    QCOMPARE(countsOf(data.roiHistogram, 9), QVector<uint>(9, 0));
}

void TestHistogramData::calcRoiHistogram_samplesOutsideTheBins()
{
    ImageData image;
    QVERIFY(setGrayImage<ushort>(image, 4, 1, { 0, 100, 101, 65535 }));
    HistogramData data(&image);
    data.calcRoiHistogram(100, 101, QRect(0, 0, 4, 1));
    QCOMPARE(countsOf(data.roiHistogram, 2), (QVector<uint> { 1, 1 }));
}

void TestHistogramData::calcRoiHistogram_withoutAnImage()
{
    HistogramData data(nullptr);
    data.calcRoiHistogram(1, 4, QRect(0, 0, 1, 1));
    QVERIFY(!data.roiHistogram);
    QCOMPARE(data.roiSize, 0u);

    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 1, { 1, 2 }));
    data.setImageData(&image);
    image.release();
    data.calcRoiHistogram(1, 4, QRect(0, 0, 1, 1));
    QVERIFY(!data.roiHistogram);
}

void TestHistogramData::roiBins_onlyForTheirOwnRange()
{
    HistogramData data(nullptr);
    QVERIFY(!data.roiBins(0, 0));
    data.prepareRoiHistogram(10, 14);
    QVERIFY(data.roiBins(10, 14) == data.roiHistogram);
    QVERIFY(!data.roiBins(10, 15));
    QVERIFY(!data.roiBins(9, 14));
}

void TestHistogramData::horizontalLine_isTheRowAsLevels()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 2, { 10, 11, 12, 20, 15, 10 }));
    HistogramData data(&image);
    data.extractHorizontalLine(0);
    QCOMPARE(levelsOf(data.horizontalLine, 3), (QVector<int> { 0, 25, 51 }));
    data.extractHorizontalLine(1);
    QCOMPARE(levelsOf(data.horizontalLine, 3), (QVector<int> { 255, 127, 0 }));
}

void TestHistogramData::verticalLine_isTheColumnAsLevels()
{
    ImageData image;
    QVERIFY(setGrayImage<ushort>(image, 2, 3, { 10, 20, 11, 15, 12, 10 }));
    HistogramData data(&image);
    data.extractVerticalLine(0);
    QCOMPARE(levelsOf(data.verticalLine, 3), (QVector<int> { 0, 25, 51 }));
    data.extractVerticalLine(1);
    QCOMPARE(levelsOf(data.verticalLine, 3), (QVector<int> { 255, 127, 0 }));
}

void TestHistogramData::lines_outsideKeepTheOldEntries_data()
{
    QTest::addColumn<int>("position");
    QTest::newRow("-1") << -1;
    QTest::newRow("one behind the last") << 2;
    QTest::newRow("largest") << largestInt;
    QTest::newRow("smallest") << smallestInt;
}

void TestHistogramData::lines_outsideKeepTheOldEntries()
{
    QFETCH(int, position);
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 2, { 10, 20, 20, 10 }));
    HistogramData data(&image);
    data.extractHorizontalLine(1);
    data.extractVerticalLine(0);
    data.extractHorizontalLine(position);
    data.extractVerticalLine(position);
    QCOMPARE(levelsOf(data.horizontalLine, 2), (QVector<int> { 255, 0 }));
    QCOMPARE(levelsOf(data.verticalLine, 2), (QVector<int> { 0, 255 }));
}

void TestHistogramData::lines_withOffsetAndCount()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 3, 3, { 10, 12, 14, 16, 18, 20, 14, 12, 10 }));
    HistogramData data(&image); // 25.5 levels a grey value
    data.extractHorizontalLine(0, 1, 2);
    QCOMPARE(levelsOf(data.horizontalLine, 3), (QVector<int> { 51, 102, 0 }));
    data.extractHorizontalLine(0, 2, 100); // runs on into the next row
    QCOMPARE(levelsOf(data.horizontalLine, 3), (QVector<int> { 102, 153, 204 }));
    data.extractHorizontalLine(0, 0, 0);
    data.extractHorizontalLine(0, 0, -5);
    QCOMPARE(levelsOf(data.horizontalLine, 3), (QVector<int> { 102, 153, 204 }));
    data.extractVerticalLine(0, 1, 1);
    QCOMPARE(levelsOf(data.verticalLine, 3), (QVector<int> { 153, 0, 0 }));
}

void TestHistogramData::lines_samplesOutsideTheAllocationAreZero()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 2, { 20, 10, 10, 20 }));
    HistogramData data(&image);
    data.extractHorizontalLine(1, 1, 2);
    QCOMPARE(levelsOf(data.horizontalLine, 2), (QVector<int> { 255, 0 }));
    data.extractHorizontalLine(0, -1, 2);
    QCOMPARE(levelsOf(data.horizontalLine, 2), (QVector<int> { 0, 255 }));
    for (const int offset : { largestInt, smallestInt }) {
        data.extractHorizontalLine(1, offset, 2);
        QCOMPARE(levelsOf(data.horizontalLine, 2), (QVector<int> { 0, 0 }));
        data.extractVerticalLine(1, offset, largestInt);
        QCOMPARE(levelsOf(data.verticalLine, 2), (QVector<int> { 0, 0 }));
    }
}

void TestHistogramData::lines_withoutAnImage()
{
    HistogramData data(nullptr);
    data.extractHorizontalLine(0);
    data.extractVerticalLine(0);
    data.extractHorizontalLine(0, 0, 5);
    data.extractVerticalLine(0, 0, 5);
    QVERIFY(!data.horizontalLine && !data.verticalLine);

    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 1, { 10, 20 }));
    data.setImageData(&image);
    data.extractHorizontalLine(0);
    image.release();
    data.extractHorizontalLine(0);
    data.extractVerticalLine(0);
    QCOMPARE(levelsOf(data.horizontalLine, 2), (QVector<int> { 0, 255 }));
}

void TestHistogramData::lines_afterTheImageWasReplacedByASmallerOne()
{
    ImageData image;
    QVERIFY(setGrayImage<uchar>(image, 2, 1, { 10, 20 }));
    HistogramData data(&image);
    QVERIFY(setGrayImage<uchar>(image, 4, 3, std::vector<uchar>(12, 200))); // not announced yet
    data.extractHorizontalLine(2);
    QCOMPARE(levelsOf(data.horizontalLine, 2), (QVector<int> { 0, 0 })); // 200 is outside the map
    data.extractVerticalLine(3);
    QCOMPARE(levelsOf(data.verticalLine, 1), (QVector<int> { 0 }));
    data.calcRoiHistogram(200, 200, QRect(0, 0, 4, 3));
    QCOMPARE(data.roiHistogram[0], 12u);
}

QTEST_GUILESS_MAIN(TestHistogramData)
#include "tst_histogramdata.moc"
