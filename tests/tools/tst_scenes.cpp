#include "scenes.h"

#include "lightfield.h"

#include <QtTest>

#include <algorithm>

namespace {

quint32 sample(const RawFrame& frame, int x, int y)
{
    return sampleAt(frame, y * frame.width + x);
}

/// Sum of a column of a grey frame.
double columnSum(const RawFrame& frame, int x)
{
    double sum = 0.0;
    for (int y = 0; y < frame.height; ++y) {
        sum += sample(frame, x, y);
    }
    return sum;
}

struct Range
{
    quint32 min;
    quint32 max;
};

Range rangeOf(const RawFrame& frame)
{
    Range range { 0xFFFFFFFFu, 0 };
    for (int i = 0; i < frame.width * frame.height * frame.channels; ++i) {
        range.min = std::min(range.min, sampleAt(frame, i));
        range.max = std::max(range.max, sampleAt(frame, i));
    }
    return range;
}

} // namespace

class TestScenes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_lamp = lampSpectrum(); }

    void shapes_data();
    void shapes();
    void names_areDistinct();
    void lamp_everyLineFallsOnTheSensor();
    void lamp_linesStandAtTheirWavelengths_data();
    void lamp_linesStandAtTheirWavelengths();
    void lamp_strongestLine();
    void lamp_linesSpanAllRows();
    void lamp_hotPixel();
    void lamp_darkOffsetWithNoise();
    void stars_useTheRangeOverADarkSky();
    void dim_keepsTo12Bits();
    void rings_need32Bits();
    void chart_channelsAreBlueGreenRed();
    void target_rowsAreNoMultipleOf4();

private:
    RawFrame m_lamp;
};

void TestScenes::shapes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("bytesPerChannel");
    QTest::newRow("lamp") << "lamp" << QSize(1024, 256) << 1 << 2;
    QTest::newRow("stars") << "stars" << QSize(2048, 2048) << 1 << 2;
    QTest::newRow("dim") << "dim" << QSize(1280, 960) << 1 << 2;
    QTest::newRow("rings") << "rings" << QSize(640, 480) << 1 << 4;
    QTest::newRow("chart") << "chart" << QSize(960, 640) << 3 << 1;
    QTest::newRow("target") << "target" << QSize(501, 377) << 1 << 1;
}

void TestScenes::shapes()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    QFETCH(int, channels);
    QFETCH(int, bytesPerChannel);
    const QVector<Scene> scenes = allScenes();
    const auto scene = std::find_if(
        scenes.begin(), scenes.end(), [&](const Scene& each) { return each.name == name; });
    QVERIFY(scene != scenes.end());
    const RawFrame frame = scene->draw();
    QCOMPARE(QSize(frame.width, frame.height), size);
    QCOMPARE(frame.channels, channels);
    QCOMPARE(frame.bytesPerChannel, bytesPerChannel);
    QCOMPARE(frame.bytes.size(), size.width() * size.height() * channels * bytesPerChannel);
    QVERIFY(frame.bytes == scene->draw().bytes); // the same frame every time
}

void TestScenes::names_areDistinct()
{
    QSet<QString> names;
    QSet<QString> files;
    for (const Scene& scene : allScenes()) {
        names << scene.name;
        files << scene.fileName;
    }
    QCOMPARE(names.size(), 6);
    QCOMPARE(files.size(), 6);
}

void TestScenes::lamp_everyLineFallsOnTheSensor()
{
    QCOMPARE(lampStartWavelength, 100);
    double previous = 0.0;
    for (const SpectralLine& line : mercuryArgonLines()) {
        QVERIFY(line.wavelength > previous);
        QVERIFY(line.wavelength - lampStartWavelength >= 0.0);
        QVERIFY(line.wavelength - lampStartWavelength <= 1023.0);
        QVERIFY(line.strength > 0.0 && line.strength <= 1000.0);
        previous = line.wavelength;
    }
}

void TestScenes::lamp_linesStandAtTheirWavelengths_data()
{
    QTest::addColumn<int>("column"); // wavelength - 100, rounded
    QTest::newRow("Hg 253.65") << 154;
    QTest::newRow("Hg 365.02") << 265;
    QTest::newRow("Hg 404.66") << 305;
    QTest::newRow("Hg 435.83") << 336;
    QTest::newRow("Hg 546.07") << 446;
    QTest::newRow("Ar 706.72") << 607;
    QTest::newRow("Ar 811.53") << 712;
    QTest::newRow("Ar 842.46") << 742;
    QTest::newRow("Ar 912.30") << 812;
    QTest::newRow("Ar 965.78") << 866;
}

void TestScenes::lamp_linesStandAtTheirWavelengths()
{
    QFETCH(int, column);
    const double here = columnSum(m_lamp, column);
    for (const int distance : { 1, 2, 3, 4 }) {
        QVERIFY(columnSum(m_lamp, column - distance) < here);
        QVERIFY(columnSum(m_lamp, column + distance) < here);
    }
}

void TestScenes::lamp_strongestLine()
{
    int strongest = 0;
    for (int x = 1; x < m_lamp.width; ++x) {
        strongest = columnSum(m_lamp, x) > columnSum(m_lamp, strongest) ? x : strongest;
    }
    QCOMPARE(strongest, 336); // Hg 435.83
}

void TestScenes::lamp_linesSpanAllRows()
{
    for (int y = 0; y < m_lamp.height; ++y) {
        QVERIFY(sample(m_lamp, 336, y) > 30000);
        QVERIFY(sample(m_lamp, 20, y) < 3000);
    }
}

void TestScenes::lamp_hotPixel()
{
    QCOMPARE(sample(m_lamp, lampHotPixelColumn, lampHotPixelRow), 65535u);
    QCOMPARE(rangeOf(m_lamp).max, 65535u);
    int full = 0;
    for (int i = 0; i < 1024 * 256; ++i) {
        full += sampleAt(m_lamp, i) == 65535u;
    }
    QCOMPARE(full, 1);
    QVERIFY(sample(m_lamp, lampHotPixelColumn - 1, lampHotPixelRow) < 4000);
    QVERIFY(sample(m_lamp, lampHotPixelColumn, lampHotPixelRow + 1) < 4000);
}

void TestScenes::lamp_darkOffsetWithNoise()
{
    QVERIFY(rangeOf(m_lamp).min > 1000);
    QSet<quint32> values;
    for (int y = 0; y < m_lamp.height; ++y) {
        values << sample(m_lamp, 20, y);
    }
    QVERIFY(values.size() > 50);
}

void TestScenes::stars_useTheRangeOverADarkSky()
{
    const RawFrame frame = starField();
    QCOMPARE(rangeOf(frame).max, 65535u);
    int bright = 0;
    int dark = 0;
    for (int i = 0; i < 2048 * 2048; ++i) {
        bright += sampleAt(frame, i) > 50000; // above the brightest gas
        dark += sampleAt(frame, i) < 5000;
    }
    QVERIFY(bright > 300 && bright < 20000);
    QVERIFY(dark > 2048 * 2048 / 2);
}

void TestScenes::dim_keepsTo12Bits()
{
    const Range range = rangeOf(dimCells());
    QVERIFY(range.min > 0);
    QVERIFY(range.max > 500 && range.max < 1100);
}

void TestScenes::rings_need32Bits()
{
    const Range range = rangeOf(ringCounts());
    QVERIFY(range.min > 65535);
    QVERIFY(range.max > 2000000 && range.max < 4000000);
}

void TestScenes::chart_channelsAreBlueGreenRed()
{
    const RawFrame frame = colourChart();
    const int redPatch = (100 * frame.width + 100) * 3; // the first patch
    QVERIFY(sampleAt(frame, redPatch + 2) > 200);
    QVERIFY(sampleAt(frame, redPatch) < 60);
    QVERIFY(sampleAt(frame, redPatch + 1) < 60);
    QCOMPARE(sampleAt(frame, 0), 40u); // the corner: (38, 38, 40)
    QCOMPARE(sampleAt(frame, 2), 38u);
}

void TestScenes::target_rowsAreNoMultipleOf4()
{
    const RawFrame frame = greyTarget();
    QVERIFY(frame.width % 4 != 0);
    QCOMPARE(sample(frame, 0, 376), 0u); // the wedge's ends
    QCOMPARE(sample(frame, 500, 376), 255u);
}

QTEST_GUILESS_MAIN(TestScenes)
#include "tst_scenes.moc"
