#include "analysis/displayconversion.h"
#include "plainloops.h"
#include "support/samplepatterns.h"
#include "support/simdtargets.h"

#include <QtTest>

#include <limits>

namespace {

constexpr size_t enoughForTables = 65536 * 4;

/// 256 colours that differ in every byte.
LevelColors mixedColors()
{
    LevelColors colors;
    for (size_t i = 0; i < colors.size(); ++i) {
        colors[i] = { uchar(i * 7 + 1), uchar(i * 11 + 2), uchar(i * 13 + 3) };
    }
    return colors;
}

/// The colours of `levels`, three bytes each.
std::vector<uchar> coloursOf(const std::vector<int>& levels)
{
    std::vector<uchar> bytes;
    for (const int level : levels) {
        const PaletteEntry color = mixedColors()[size_t(level)];
        bytes.insert(bytes.end(), { color.red, color.green, color.blue });
    }
    return bytes;
}

/// Into a buffer of exactly three bytes a sample, so that the sanitizer sees one byte too many.
template <class Sample>
std::vector<uchar> converted(const std::vector<Sample>& samples, const DisplayLevels& levels)
{
    std::vector<uchar> rgb(3 * samples.size());
    convertToRgb(samples.data(), qint64(samples.size()), levels, mixedColors(), rgb.data());
    return rgb;
}

/// One colour at a time, by a map or, where the range is too wide for one, by the level formula.
template <class Sample>
std::vector<uchar> expectedColors(const std::vector<Sample>& samples, const DisplayLevels& levels)
{
    const LevelColors colors = mixedColors();
    std::vector<uchar> rgb(3 * samples.size());
    if (!levels.map) {
        for (size_t i = 0; i < samples.size(); ++i) {
            const PaletteEntry color = colors[levels.level(samples[i])];
            rgb[3 * i] = color.red;
            rgb[3 * i + 1] = color.green;
            rgb[3 * i + 2] = color.blue;
        }
        return rgb;
    }
    std::array<uchar, 256> identity;
    std::array<plain::Color, 256> palette;
    for (size_t i = 0; i < 256; ++i) {
        identity[i] = uchar(i);
        palette[i] = { colors[i].red, colors[i].green, colors[i].blue };
    }
    plain::convertToRgb(samples.data(), qint64(samples.size()), levels.min, levels.map,
        identity.data(), palette.data(), rgb.data());
    return rgb;
}

template <class Sample>
void compareWithThePlainLoop(size_t count)
{
    for (const auto& pattern : samplePatterns<Sample>(count)) {
        const plain::Range range = plain::range(pattern.samples.data(), qint64(count));
        const quint64 bins = quint64(range.max) - range.min + 1;
        DisplayLevels levels { range.min, uint(std::min<quint64>(bins, 0xffffffffu)),
            displayScale(0, 255, range.min, range.max), nullptr };
        std::vector<uchar> map;
        if (bins <= 65536) {
            map.resize(bins);
            plain::displayMap(range.min, range.max, map.data(), uint(bins));
            levels.map = map.data();
        }
        const std::vector<uchar> expected = expectedColors(pattern.samples, levels);
        forEachSimdTarget([&](const char* target) {
            QVERIFY2(converted(pattern.samples, levels) == expected,
                qPrintable(QString("%1, %2 bytes, %3 samples, %4")
                               .arg(target)
                               .arg(sizeof(Sample))
                               .arg(count)
                               .arg(pattern.name.c_str())));
        });
    }
}

} // namespace

class TestDisplayConversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coloursFollowLevels();
    void noSamplesTouchNothing();
    void valuesOutsideTheBinsHaveLevelZero();
    void wideRangesUseTheFormula_data();
    void wideRangesUseTheFormula();
    void everyBinOfTheFormula();
    void unusualScales_data();
    void unusualScales();
    void changedMapsAreFollowed_data();
    void changedMapsAreFollowed();
    void everyByteIsThatOfThePlainLoop();
    void everyByteIsThatOfThePlainLoop_withTables();
};

void TestDisplayConversion::coloursFollowLevels()
{
    // 25.5 levels a value
    const std::vector<int> levels { 0, 25, 51, 255, 127 };
    const DisplayLevels bytes { 10, 11, 25.5, nullptr };
    QCOMPARE(converted(std::vector<uchar> { 10, 11, 12, 20, 15 }, bytes), coloursOf(levels));
    const DisplayLevels words { 60000, 11, 25.5, nullptr };
    QCOMPARE(converted(std::vector<ushort> { 60000, 60001, 60002, 60010, 60005 }, words),
        coloursOf(levels));
    const DisplayLevels wide { 4294967285u, 11, 25.5, nullptr };
    const std::vector<uint> samples { 4294967285u, 4294967286u, 4294967287u, 4294967295u,
        4294967290u };
    QCOMPARE(converted(samples, wide), coloursOf(levels));
}

void TestDisplayConversion::noSamplesTouchNothing()
{
    const DisplayLevels levels { 10, 11, 25.5, nullptr };
    convertToRgb(static_cast<const uchar*>(nullptr), 0, levels, mixedColors(), nullptr);
    convertToRgb(static_cast<const ushort*>(nullptr), 0, levels, mixedColors(), nullptr);
    convertToRgb(static_cast<const uint*>(nullptr), 0, levels, mixedColors(), nullptr);
}

void TestDisplayConversion::valuesOutsideTheBinsHaveLevelZero()
{
    const std::vector<uchar> map { 200, 201 };
    const DisplayLevels levels { 100, 2, 1.0, map.data() };
    QCOMPARE(converted(std::vector<uchar> { 99, 100, 101, 102, 255 }, levels),
        coloursOf({ 0, 200, 201, 0, 0 }));
    QCOMPARE(converted(std::vector<ushort> { 99, 100, 101, 102, 65535 }, levels),
        coloursOf({ 0, 200, 201, 0, 0 }));
    QCOMPARE(converted(std::vector<uint> { 99, 100, 101, 102, 4294967295u }, levels),
        coloursOf({ 0, 200, 201, 0, 0 }));

    // the same in the midst of many others, for the loops that take many at a time
    std::vector<ushort> words(enoughForTables, 101);
    words[1000] = 102;
    const std::vector<uchar> rgb = converted(words, levels);
    QVERIFY(std::equal(rgb.begin() + 2997, rgb.begin() + 3006, coloursOf({ 201, 0, 201 }).begin()));
}

void TestDisplayConversion::wideRangesUseTheFormula_data()
{
    QTest::addColumn<uint>("max");
    QTest::newRow("2^26 + 1 bins") << 67108864u;
    QTest::newRow("2^31 bins") << 2147483647u;
    QTest::newRow("2^31 + 1 bins") << 2147483648u;
    QTest::newRow("2^32 - 1 bins") << 4294967294u;
}

void TestDisplayConversion::wideRangesUseTheFormula()
{
    QFETCH(uint, max);
    const DisplayLevels levels { 0, max + 1, displayScale(0, 255, 0, max), nullptr };
    std::vector<uint> samples { 0, 1, max / 2, max / 2 + 1, max - 1, max };
    samples.resize(5000, max); // full vectors, too
    samples[4000] = max / 2;
    std::vector<int> expected { 0, 0, 127, 127, 254, 255 }; // max / 2 x 255 / max = 127.5 at most
    expected.resize(5000, 255);
    expected[4000] = 127;
    forEachSimdTarget([&](const char* target) {
        QVERIFY2(converted(samples, levels) == coloursOf(expected), target);
    });
}

void TestDisplayConversion::everyBinOfTheFormula()
{
    const uint max = 100000;
    const DisplayLevels levels { 3000000000u, max + 1, displayScale(0, 255, 0, max), nullptr };
    std::vector<uchar> map(max + 1);
    plain::displayMap(0, max, map.data(), max + 1);
    std::vector<uint> samples(max + 1);
    std::vector<int> expected(max + 1);
    for (uint bin = 0; bin <= max; ++bin) {
        samples[bin] = 3000000000u + bin;
        expected[bin] = map[bin];
    }
    const std::vector<uchar> colors = coloursOf(expected);
    forEachSimdTarget(
        [&](const char* target) { QVERIFY2(converted(samples, levels) == colors, target); });
}

void TestDisplayConversion::unusualScales_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QVector<int>>("expected");
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("falling") << -1.0 << QVector<int> { 0, 255, 254, 1 };
    QTest::newRow("infinite") << infinity << QVector<int> { 255, 255, 255, 255 };
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN()
                                  << QVector<int> { 255, 255, 255, 255 };
    QTest::newRow("none") << 0.0 << QVector<int> { 0, 0, 0, 0 };
    QTest::newRow("steep") << 1e300 << QVector<int> { 0, 255, 255, 255 };
    QTest::newRow("steeply falling") << -1e300 << QVector<int> { 0, 0, 0, 0 };
}

void TestDisplayConversion::unusualScales()
{
    QFETCH(double, scale);
    QFETCH(QVector<int>, expected);
    const DisplayLevels levels { 1000, 256, scale, nullptr };
    std::vector<uint> samples;
    std::vector<int> wanted;
    for (int repeat = 0; repeat < 20; ++repeat) {
        samples.insert(samples.end(), { 1000, 1001, 1002, 1255 });
        wanted.insert(wanted.end(), expected.begin(), expected.end());
    }
    forEachSimdTarget([&](const char* target) {
        QVERIFY2(converted(samples, levels) == coloursOf(wanted), target);
    });
}

void TestDisplayConversion::changedMapsAreFollowed_data()
{
    QTest::addColumn<uint>("binCount");
    QTest::addColumn<int>("sampleCount");
    QTest::newRow("few bins") << 100u << 5000;
    QTest::newRow("many bins") << 10000u << 5000;
    QTest::newRow("far more bins than samples") << 1000000u << 100;
}

void TestDisplayConversion::changedMapsAreFollowed()
{
    QFETCH(uint, binCount);
    QFETCH(int, sampleCount);
    const double scale = displayScale(0, 255, 0, binCount - 1);
    std::vector<uchar> map(binCount);
    plain::displayMap(0, binCount - 1, map.data(), binCount);
    const DisplayLevels levels { 0, binCount, scale, map.data() };
    for (const uint changed : { 0u, binCount / 3, binCount / 2, binCount - 1 }) {
        const uchar before = map[changed];
        map[changed] = uchar(before + 100);
        std::vector<int> expected(size_t(sampleCount), map[changed]);
        expected.front() = map[binCount - 1];
        std::vector<uint> samples(size_t(sampleCount), changed);
        samples.front() = binCount - 1;
        QCOMPARE(converted(samples, levels), coloursOf(expected));
        map[changed] = before;
    }
}

void TestDisplayConversion::everyByteIsThatOfThePlainLoop()
{
    for (size_t count = 1; count <= 70; ++count) {
        compareWithThePlainLoop<uchar>(count);
        compareWithThePlainLoop<ushort>(count);
        compareWithThePlainLoop<uint>(count);
    }
    for (const size_t count : { 4095, 4096, 4097, 4104, 4105, 12345 }) { // around a chunk
        compareWithThePlainLoop<uint>(count);
    }
}

void TestDisplayConversion::everyByteIsThatOfThePlainLoop_withTables()
{
    for (const size_t more : { 0, 1, 7, 8, 9 }) {
        compareWithThePlainLoop<uchar>(enoughForTables + more);
        compareWithThePlainLoop<ushort>(enoughForTables + more);
        compareWithThePlainLoop<uint>(enoughForTables + more);
    }
}

QTEST_GUILESS_MAIN(TestDisplayConversion)
#include "tst_displayconversion.moc"
