#include "analysis/imageintensityanalysis.h"
#include "image/imagedata.h"
#include "panel/cvkdatahistogram.h"
#include "plots/columnmap.h"
#include "analysis/peakdetection.h"
#include "plots/peaklabels.h"
#include "plots/rulerbarhorizontal.h"
#include "plots/rulerbarvertical.h"
#include "plots/rulerscale.h"
#include "base/valuerange.h"
#include "widget/readout.h"

#include <QLabel>
#include <QtTest>

#include <algorithm>
#include <vector>

/// The examples of docs/formulas.md, in its order and with its numbers.
class TestFormulaExamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void colourToGray();
    void readout();
    void rangeAndHistogram();
    void displayLevels();
    void flatImageIsWhite();
    void regionStatistics();
    void regionAsThePanelShowsIt();
    void flatRegionKeepsSignalToNoise();
    void wavelengths();
    void shortWavelengthSpanIsWidened();
    void rulerLabels();
    void grayScaleLabels();
    void chartValueLabels();
    void chartValueLabelsWithPeaks();
    void peaksAtTheFirstScale();
    void peaksOfPlateaus();
    void risingProfileListsEverySample();
    void peakLabels();

private:
    void fill(int width, int height, const std::vector<ushort>& samples);

    ImageData m_image;
};

namespace {

QVector<int> indices(const DetectedPeaks& detected)
{
    QVector<int> list;
    for (const Peak& peak : detected.peaks) {
        list.append(peak.index);
    }
    return list;
}

DetectedPeaks detected(const std::vector<uchar>& levels)
{
    return detectPeaks(levels.data(), int(levels.size()));
}

/// The value axis of a chart 240 high, with values from 1000 to 5000.
void showChartRange(RulerBarVertical& axis)
{
    axis.setLabelPrecision(0);
    axis.setSize(90.0, 240.0);
    axis.changedShowValueRange(1000.0, 5000.0);
    axis.setGeometry(QRectF(0.0, 0.0, 90.0, 240.0));
}

QString shownText(const QWidget& panel, const QString& name)
{
    return panel.findChild<QLabel*>(name)->text();
}

} // namespace

void TestFormulaExamples::fill(int width, int height, const std::vector<ushort>& samples)
{
    QVERIFY(m_image.allocate(width, height, 16, 1));
    std::copy(samples.begin(), samples.end(), reinterpret_cast<ushort*>(m_image.data));
}

void TestFormulaExamples::init()
{
    fill(4, 3, { 10, 20, 30, 20, 20, 50, 20, 10, 10, 10, 10, 10 });
}

void TestFormulaExamples::colourToGray()
{
    ImageData colour;
    QVERIFY(colour.allocate(1, 1, 8, 3));
    colour.data[0] = 10; // blue
    colour.data[1] = 20; // green
    colour.data[2] = 30; // red
    colour.convertToGray();
    QCOMPARE(colour.pixelValue(0, 0), 21); // 2790 / 128 = 21.8
}

void TestFormulaExamples::readout()
{
    const ReadoutPixel pixel = imageViewPixel(1, 1, m_image.height);
    QCOMPARE(readoutText(pixel, m_image, ReadoutAxis(), ReadoutAxis()),
        QStringLiteral("X:1  Y:1\nData:50"));
    const ReadoutPixel corner = imageViewPixel(0, 0, m_image.height);
    QCOMPARE(readoutText(corner, m_image, ReadoutAxis(), ReadoutAxis()),
        QStringLiteral("X:0  Y:2\nData:10"));
}

void TestFormulaExamples::rangeAndHistogram()
{
    const ImageIntensityAnalysis engine(&m_image);
    QCOMPARE(engine.histogram.min, 10U);
    QCOMPARE(engine.histogram.max, 50U);
    QCOMPARE(engine.histogram.size, 41U);
    std::vector<uint> expected(41, 0);
    expected[0] = 6; // value 10
    expected[10] = 4;
    expected[20] = 1;
    expected[40] = 1;
    QVERIFY(std::equal(expected.begin(), expected.end(), engine.histogram.histogram));
}

void TestFormulaExamples::displayLevels()
{
    const ImageIntensityAnalysis engine(&m_image);
    const DisplayLevels levels = engine.histogram.levels();
    QCOMPARE(int(levels.level(10)), 0);
    QCOMPARE(int(levels.level(20)), 63);
    QCOMPARE(int(levels.level(30)), 127);
    QCOMPARE(int(levels.level(50)), 255);
    QCOMPARE(engine.displayImage->pixel(1, 0), qRgb(63, 63, 63));
}

void TestFormulaExamples::flatImageIsWhite()
{
    fill(4, 1, { 7, 7, 7, 7 });
    const ImageIntensityAnalysis engine(&m_image);
    QCOMPARE(int(engine.histogram.levels().level(7)), 255);
    QCOMPARE(engine.displayImage->pixel(2, 0), qRgb(255, 255, 255));
}

void TestFormulaExamples::regionStatistics()
{
    ImageIntensityAnalysis engine(&m_image);
    engine.changedIntensityRoi(0, QRectF(0.0, 0.0, 2.0, 2.0));
    QCOMPARE(engine.roiInfo.min, 10U);
    QCOMPARE(engine.roiInfo.max, 50U);
    QVERIFY(engine.roiInfo.mean == 25.0);
    QVERIFY(engine.roiInfo.standardDeviation == 15.0);
    QVERIFY(engine.roiInfo.signalToNoise == 25.0 / 15.0);
}

void TestFormulaExamples::regionAsThePanelShowsIt()
{
    ImageIntensityAnalysis engine(&m_image);
    CVKDataHistogram panel(nullptr);
    panel.updateItemNames({ QStringLiteral("ROI 1") });
    engine.changedIntensityRoi(0, QRectF(0.0, 0.0, 2.0, 2.0));
    panel.updateRoiIntensityInfo(0, engine.roiInfo);
    QCOMPARE(shownText(panel, "labelValueX"), QStringLiteral("0 to 1"));
    QCOMPARE(shownText(panel, "labelValueY"), QStringLiteral("1 to 2"));
    QCOMPARE(shownText(panel, "labelValueCounts"), QStringLiteral("4"));
    QCOMPARE(shownText(panel, "labelValueMean"), QStringLiteral("25.00"));
    QCOMPARE(shownText(panel, "labelValueMin"), QStringLiteral("10"));
    QCOMPARE(shownText(panel, "labelValueMax"), QStringLiteral("50"));
    QCOMPARE(shownText(panel, "labelValueStandard"), QStringLiteral("15.000"));
    QCOMPARE(shownText(panel, "labelValueNoise"), QStringLiteral("1.66667"));
}

void TestFormulaExamples::flatRegionKeepsSignalToNoise()
{
    ImageIntensityAnalysis engine(&m_image);
    engine.changedIntensityRoi(0, QRectF(0.0, 0.0, 2.0, 2.0));
    engine.changedIntensityRoi(1, QRectF(0.0, 2.0, 2.0, 1.0));
    QVERIFY(engine.roiInfo.mean == 10.0);
    QVERIFY(engine.roiInfo.standardDeviation == 0.0);
    QVERIFY(engine.roiInfo.signalToNoise == 25.0 / 15.0);
}

void TestFormulaExamples::wavelengths()
{
    const ValueRange range = storedValueRange(400.0, 400.0 + 640 * 2);
    QVERIFY(range.start == 400.0);
    QVERIFY(range.valueAt(0.0, 640) == 400.0);
    QVERIFY(range.valueAt(100.0, 640) == 600.0);
}

void TestFormulaExamples::shortWavelengthSpanIsWidened()
{
    const ValueRange range = storedValueRange(100.0, 100.0 + 4 * 1);
    QVERIFY(range.valueAt(0.0, 4) == 99.0);
    QVERIFY(range.valueAt(2.0, 4) == 101.5);
    QVERIFY(range.valueAt(4.0, 4) == 104.0);
}

void TestFormulaExamples::rulerLabels()
{
    const RulerSteps steps = rulerSteps(640, 640, 640.0);
    QCOMPARE(steps.major, 200);
    QCOMPARE(steps.minor, 40);
    RulerSpan whole;
    whole.showUnits(0, 639);
    const RulerTicks ticks = horizontalTicks(steps, whole, 640.0);
    QCOMPARE(ticks.all.size(), 16); // 0, 40 .. 600
    QCOMPARE(tickLabels(ticks.labelledNumbers, steps.minor, ValueRange(), 640, 1),
        QStringList({ "200", "400", "600" }));
    const ValueRange wavelengths = storedValueRange(400.0, 1680.0);
    QCOMPARE(tickLabels(ticks.labelledNumbers, steps.minor, wavelengths, 640, 1),
        QStringList({ "800.0", "1200.0", "1600.0" }));
}

void TestFormulaExamples::grayScaleLabels()
{
    RulerBarHorizontal ruler(QStringLiteral("Gray"), nullptr);
    ruler.setLabelPrecision(0);
    ruler.setSize(500.0, 50.0);
    ruler.changedShowValueRange(1000.0, 5000.0);
    ruler.setGeometry(QRectF(0.0, 0.0, 500.0, 50.0));
    QCOMPARE(ruler.labels(), QStringList({ "1800", "2600", "3400", "4200" }));
}

void TestFormulaExamples::chartValueLabels()
{
    RulerBarVertical axis(QStringLiteral("Gray"), nullptr);
    showChartRange(axis);
    QCOMPARE(axis.labels(), QStringList({ "1800", "2600", "3400", "4200", "5000" }));
}

void TestFormulaExamples::chartValueLabelsWithPeaks()
{
    RulerBarVertical axis(QStringLiteral("Gray"), nullptr);
    showChartRange(axis);
    axis.setZoom(1.2);
    QCOMPARE(axis.labels(), QStringList({ "2600", "3400", "4200", "5000" }));
    // Ticks stand one unit lower, inside the frame.
    QCOMPARE(axis.labelledTicks().first().y1(), 184.0 + 1.0);
    QCOMPARE(axis.labelledTicks().last().y1(), 40.0 + 1.0);
    const LevelAxis curve = chartLevelAxis(QSizeF(300.0, 240.0), 1, 1.2);
    QCOMPARE(curve.y(255), 40.0 + 1.0);
    QCOMPARE(curve.baseline - 0.28 * 255 * curve.unitsPerLevel, 184.0 + 1.0);
}

void TestFormulaExamples::peaksAtTheFirstScale()
{
    const DetectedPeaks peaks = detected({ 0, 3, 1, 5, 0, 2, 0 });
    QCOMPARE(peaks.scale, 1);
    QCOMPARE(peaks.rowSum, -3);
    QCOMPARE(indices(peaks), QVector<int>({ 3, 1, 5 }));
}

void TestFormulaExamples::peaksOfPlateaus()
{
    const DetectedPeaks peaks = detected({ 0, 5, 5, 0, 0, 5, 5, 0, 0, 5, 5, 0 });
    QCOMPARE(peaks.scale, 2);
    QCOMPARE(peaks.rowSum, -4);
    QCOMPARE(indices(peaks), QVector<int>({ 2, 5, 6, 9 }));
}

void TestFormulaExamples::risingProfileListsEverySample()
{
    const DetectedPeaks peaks = detected({ 1, 2, 3, 4 });
    QCOMPARE(peaks.scale, 0);
    QCOMPARE(indices(peaks), QVector<int>({ 3, 2, 1, 0 }));
}

void TestFormulaExamples::peakLabels()
{
    QCOMPARE(peakLabelNumbers(ValueRange(), 640, 1).text(100), QStringLiteral("100"));
    const ValueRange wavelengths = storedValueRange(400.0, 1680.0);
    QCOMPARE(peakLabelNumbers(wavelengths, 640, 1).text(100), QStringLiteral("600.0"));
}

QTEST_MAIN(TestFormulaExamples)
#include "tst_formulaexamples.moc"
