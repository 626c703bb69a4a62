#include "plots/peaklabels.h"

#include <QtTest>

namespace {

Peak peakAt(int index)
{
    Peak peak;
    peak.index = index;
    return peak;
}

QLineF tick(double x, double top)
{
    return QLineF(x, top, x, top + 20.0);
}

QVector<QLineF> peakTicks(const QVector<Peak>& peaks, int shown, const uchar* samples, int count,
    double width, const LevelAxis& axis)
{
    QVector<QLineF> ticks;
    buildPeakTicks(ticks, peaks, shown, samples, count, width, axis);
    return ticks;
}

} // namespace

class TestPeakLabels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ticks_endAboveTheCurve();
    void ticks_areAsManyAsAreShown();
    void ticks_stayWithoutPeaks();
    void numbers_withoutRangeAreIndices();
    void numbers_ofARange();
    void layout_centresOverTheTick();
    void layout_stacksCloseLabels();
    void layout_takesTheLastCloseOne();
    void layout_leavesDistantLabels();
    void layout_usesTheWidthOfTheLaterLabel();
    void layout_placesAfreshAndKeepsTheLink();
    void layout_isLimitedByEveryList();
};

void TestPeakLabels::ticks_endAboveTheCurve()
{
    const uchar samples[] = { 0, 0, 0, 100 };
    const LevelAxis axis { 201.0, 0.5 };
    // x = trunc(3 x 10 / 4), the curve stands at 151, the tick ends 2 above it
    QCOMPARE(peakTicks({ peakAt(3) }, 1, samples, 4, 10.0, axis),
        (QVector<QLineF> { { 7.0, 129.0, 7.0, 149.0 } }));
}

void TestPeakLabels::ticks_areAsManyAsAreShown()
{
    const uchar samples[] = { 1, 2, 3 };
    const QVector<Peak> peaks { peakAt(0), peakAt(1), peakAt(2) };
    QCOMPARE(peakTicks(peaks, 2, samples, 3, 3.0, LevelAxis()).size(), 2);
    QCOMPARE(peakTicks(peaks, 50, samples, 3, 3.0, LevelAxis()).size(), 3);
    QVERIFY(peakTicks({}, 50, samples, 3, 3.0, LevelAxis()).isEmpty());
    // A peak of a longer profile: the last sample is read.
    QCOMPARE(
        peakTicks({ peakAt(900) }, 1, samples, 3, 3.0, LevelAxis { 10.0, 1.0 }).first().y2(), 5.0);
}

void TestPeakLabels::ticks_stayWithoutPeaks()
{
    const uchar samples[] = { 1, 2, 3 };
    const QVector<QLineF> old { tick(5.0, 6.0), tick(7.0, 8.0) };
    QVector<QLineF> ticks = old;
    buildPeakTicks(ticks, {}, 10, samples, 3, 3.0, LevelAxis());
    QCOMPARE(ticks, old);
    buildPeakTicks(ticks, { peakAt(1) }, 10, samples, 3, 3.0, LevelAxis { 30.0, 1.0 });
    QCOMPARE(ticks, (QVector<QLineF> { { 1.0, 6.0, 1.0, 26.0 } })); // 30 - 2 - 2, and 20 up
}

void TestPeakLabels::numbers_withoutRangeAreIndices()
{
    QCOMPARE(peakLabelNumbers(ValueRange(), 100, 1).text(42), QString("42"));
    QCOMPARE(peakLabelNumbers(ValueRange { 0.0, -1.0 }, 100, 1).text(42), QString("42"));
}

void TestPeakLabels::numbers_ofARange()
{
    // (900 - 500) / 400 a sample
    QCOMPARE(peakLabelNumbers(ValueRange { 500.0, 900.0 }, 400, 1).text(80), QString("580.0"));
    QCOMPARE(peakLabelNumbers(ValueRange { 0.0, 0.0 }, 400, 2).text(80), QString("0.00"));
    // The step comes first: 7 x (1 / 3) + 0
    const PeakLabelNumbers thirds = peakLabelNumbers(ValueRange { 0.0, 1.0 }, 3, 1);
    QVERIFY(thirds.step == 1.0 / 3.0);
}

void TestPeakLabels::layout_centresOverTheTick()
{
    QVector<Peak> peaks { peakAt(5) };
    layOutPeakLabels(peaks, { tick(100.0, 50.0) }, { 30.0 }, 12.0);
    QCOMPARE(peaks.first().label, QPointF(85.0, 49.0));
    QCOMPARE(peaks.first().link, -1);
}

void TestPeakLabels::layout_stacksCloseLabels()
{
    QVector<Peak> peaks { peakAt(5), peakAt(6), peakAt(7) };
    const QVector<QLineF> ticks { tick(100.0, 50.0), tick(110.0, 50.0), tick(120.0, 52.0) };
    layOutPeakLabels(peaks, ticks, { 30.0, 30.0, 30.0 }, 12.0);
    QCOMPARE(peaks.at(1).label, QPointF(95.0, 37.0)); // one line above the first
    QCOMPARE(peaks.at(1).link, 0);
    QCOMPARE(peaks.at(2).label, QPointF(105.0, 25.0)); // above the second, which is raised already
    QCOMPARE(peaks.at(2).link, 1);
}

void TestPeakLabels::layout_takesTheLastCloseOne()
{
    QVector<Peak> peaks { peakAt(5), peakAt(90), peakAt(6) };
    const QVector<QLineF> ticks { tick(100.0, 50.0), tick(500.0, 50.0), tick(101.0, 50.0) };
    layOutPeakLabels(peaks, ticks, { 30.0, 30.0, 30.0 }, 12.0);
    QCOMPARE(peaks.at(1).link, -1);
    QCOMPARE(peaks.at(2).link, 0); // the one in between is far away
    QCOMPARE(peaks.at(2).label, QPointF(86.0, 37.0));
}

void TestPeakLabels::layout_leavesDistantLabels()
{
    // Close means less than a width and 1 across, and less than a line and 1 down.
    for (const QLineF& second : { tick(131.0, 50.0), tick(100.0, 63.0), tick(69.0, 50.0) }) {
        QVector<Peak> peaks { peakAt(5), peakAt(6) };
        layOutPeakLabels(peaks, { tick(100.0, 50.0), second }, { 30.0, 30.0 }, 12.0);
        QCOMPARE(peaks.at(1).link, -1);
    }
    for (const QLineF& second : { tick(130.5, 50.0), tick(100.0, 62.5), tick(69.5, 50.0) }) {
        QVector<Peak> peaks { peakAt(5), peakAt(6) };
        layOutPeakLabels(peaks, { tick(100.0, 50.0), second }, { 30.0, 30.0 }, 12.0);
        QCOMPARE(peaks.at(1).link, 0);
    }
}

void TestPeakLabels::layout_usesTheWidthOfTheLaterLabel()
{
    QVector<Peak> peaks { peakAt(5), peakAt(6) };
    // 40 apart: not close for a label of 10, although the first one is 100 wide.
    layOutPeakLabels(peaks, { tick(100.0, 50.0), tick(140.0, 50.0) }, { 100.0, 10.0 }, 12.0);
    QCOMPARE(peaks.at(1).link, -1);
    layOutPeakLabels(peaks, { tick(100.0, 50.0), tick(140.0, 50.0) }, { 10.0, 100.0 }, 12.0);
    QCOMPARE(peaks.at(1).link, 0);
}

void TestPeakLabels::layout_placesAfreshAndKeepsTheLink()
{
    QVector<Peak> peaks { peakAt(5), peakAt(6) };
    const QVector<QLineF> ticks { tick(100.0, 50.0), tick(120.0, 50.0) };
    layOutPeakLabels(peaks, ticks, { 30.0, 30.0 }, 12.0);
    QCOMPARE(peaks.at(1).link, 0);
    layOutPeakLabels(peaks, ticks, { 5.0, 5.0 }, 12.0); // nothing is close any more
    QCOMPARE(peaks.at(1).link, 0); // until the peaks are detected anew
    QCOMPARE(peaks.at(1).label, QPointF(117.5, 49.0));
}

void TestPeakLabels::layout_isLimitedByEveryList()
{
    QVector<Peak> peaks { peakAt(5), peakAt(6) };
    layOutPeakLabels(peaks, { tick(100.0, 50.0) }, { 30.0, 30.0, 30.0 }, 12.0);
    QCOMPARE(peaks.at(0).label, QPointF(85.0, 49.0));
    QCOMPARE(peaks.at(1).label, QPointF(-1.0, -1.0));
    layOutPeakLabels(peaks, {}, { 30.0 }, 12.0);
    QVector<Peak> none;
    layOutPeakLabels(none, { tick(1.0, 1.0) }, { 30.0 }, 12.0);
    QVERIFY(none.isEmpty());
}

QTEST_GUILESS_MAIN(TestPeakLabels)
#include "tst_peaklabels.moc"
