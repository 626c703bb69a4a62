#include "plots/intensitycurveaxisitem.h"
#include "support/memorylimit.h"

#include <QtTest>

#include <vector>

/// The chart in a process in which 256 MB cannot be had in one piece.
class TestIntensityCurveWithoutMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void detection_leavesTheOldPeaks();
};

void TestIntensityCurveWithoutMemory::initTestCase()
{
    if (!limitLargeAllocations()) {
        QTest::qSkip("memory cannot be limited here", __FILE__, __LINE__);
    }
}

void TestIntensityCurveWithoutMemory::detection_leavesTheOldPeaks()
{
    IntensityCurveAxisItem chart(nullptr);
    chart.setSize(100.0, 255.0);
    std::vector<uchar> samples(50, 10);
    samples[20] = 200;
    chart.updateCurve(samples.data(), 50);
    QCOMPARE(chart.peaks().size(), 1);
    {
        // The samples fit, but not an int for each of them.
        std::vector<uchar> many(70000000, 10);
        chart.updateCurve(many.data(), int(many.size()));
    }
    QCOMPARE(chart.peaks().size(), 1);
    QCOMPARE(chart.peaks().first().index, 20);
    QCOMPARE(chart.peakTicks().size(), 1);

    samples[30] = 201;
    chart.updateCurve(samples.data(), 50);
    QCOMPARE(chart.peaks().size(), 2); // recovers
    QCOMPARE(chart.peaks().first().index, 30);
}

QTEST_MAIN(TestIntensityCurveWithoutMemory)
#include "tst_intensitycurvewithoutmemory.moc"
