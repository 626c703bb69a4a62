#include "plots/intensitycurveaxisitem.h"
#include "support/recordingpaintdevice.h"
#include "support/sceneitems.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPointer>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

/// A chart of 100 x 255 units: a level is a unit, and level 0 stands on 256.
struct Chart : IntensityCurveAxisItem
{
    Chart()
        : IntensityCurveAxisItem(nullptr)
    {
        setSize(100.0, 255.0);
    }

    /// Called behind the contents, with what they leave in the painter.
    void drawForeground(QPainter* painter) override { lastPen = painter->pen(); }

    QPen lastPen;

    void show(std::vector<uchar> profile) { updateCurve(profile.data(), int(profile.size())); }

    RecordingPaintDevice recorded;
    const RecordingPaintDevice& painted()
    {
        recorded.clear();
        QPainter painter(&recorded);
        painter.setFont(largeItalicFont());
        paint(&painter, nullptr, nullptr);
        return recorded;
    }
};

/// 50 samples of level 10 with peaks of the given levels.
std::vector<uchar> spikes(const std::vector<std::pair<size_t, uchar>>& peaks)
{
    std::vector<uchar> samples(50, 10);
    for (const auto& peak : peaks) {
        samples[peak.first] = peak.second;
    }
    return samples;
}

void press(IntensityCurveAxisItem& chart, const QPointF& position,
    Qt::MouseButtons buttons = Qt::LeftButton)
{
    QGraphicsScene scene;
    scene.addItem(&chart);
    const QPointer<IntensityCurveAxisItem> there(&chart);
    QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMousePress);
    event.setPos(position);
    event.setScenePos(chart.mapToScene(position));
    event.setButton(buttons & Qt::LeftButton ? Qt::LeftButton : Qt::RightButton);
    event.setButtons(buttons);
    scene.sendEvent(&chart, &event);
    if (there) {
        scene.removeItem(&chart);
    }
}

/// What a chart holds at the time of each line that a detection writes.
QVector<int> peaksAtTheDebugLines;
const IntensityCurveAxisItem* watchedChart = nullptr;

void notePeaks(QtMsgType, const QMessageLogContext&, const QString&)
{
    peaksAtTheDebugLines.append(
        watchedChart->peaks().isEmpty() ? -1 : watchedChart->peaks().first().index);
}

QPointF crossOf(const IntensityCurveAxisItem& chart)
{
    return dynamic_cast<CrossItem*>(chart.childItems().first())->position;
}

} // namespace

class TestIntensityCurveAxisItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void metaObject();
    void construction();
    void profile_isDetectedAndDrawn();
    void detection_writesItsLine();
    void detection_writesItsLineBeforeTheListChanges();
    void detection_ofTheSameSamplesAgain();
    void lists_areReplacedInTheirMemory();
    void peak_amongManySamples();
    void reversed_storesBackToFront();
    void hidden_keepsWhatItHas();
    void valueScale_lowersTheCurve();
    void shownPeaks_areLimited();
    void shownPeaks_rebuildTheTicksOnly();
    void range_isKept_data();
    void range_isKept();
    void peaks_areDrawnWhenShown();
    void labels_ofARange();
    void labels_outsideAreNotDrawn();
    void labels_onTheEdgesAreDrawn();
    void labels_closeTogetherAreStacked();
    void labels_leaveTheBorderPen();
    void labels_afterAResetOfTheCount();
    void slots_repaintTheVisibleItem();
    void pick_announcesTheSample();
    void pick_beyondTheColumns();
    void pick_beforeTheFirstRebuild();
    void pick_needsTheLeftButtonAlone();
    void pick_withoutSamplesDoesNothing();
    void pick_mayDeleteTheItem();
    void pick_ofAMapOlderThanTheSamples();
    void cross_followsThePick();
    void cross_ofALongerProfile();
    void center_picksTheMiddle();
    void reset_restoresTheDefaults();
    void drag_doesNotScroll();
    void resize_changesTheMap();
    void oneSample_andOneColumn();
    void sizesWithoutColumns();
    void hugeWidths_haveNoMap();
    void oddValueScales();
};

void TestIntensityCurveAxisItem::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
}

void TestIntensityCurveAxisItem::metaObject()
{
    const QMetaObject& meta = IntensityCurveAxisItem::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods << meta.method(i).methodSignature() + '|'
                + meta.method(i).parameterNames().join(',');
    }
    QCOMPARE(methods,
        (QStringList { "changeAnchorPosition(bool,int)|isHorizontal,position",
            "changedMaxPeaksCount(int)|count", "changedShowPeaksState(bool)|isShow",
            "changedShowValueRange(double,double)|," }));
}

void TestIntensityCurveAxisItem::construction()
{
    const IntensityCurveAxisItem chart(nullptr);
    QCOMPARE(chart.size, QSizeF(400.0, 50.0));
    QCOMPARE(chart.geometry(), QRectF(0.0, 0.0, 401.0, 51.0));
    QCOMPARE(chart.columnMap(), QVector<int>(400, -1));
    QCOMPARE(chart.anchorIndex(), 0);
    QCOMPARE(chart.shownPeaks(), 10);
    QVERIFY(chart.peaks().isEmpty());
    QVERIFY(chart.rangeStart() == -1.0);
    QVERIFY(chart.rangeEnd() == -1.0);
    QVERIFY(!chart.acceptHoverEvents());
    QCOMPARE(chart.childItems().size(), 1);
}

void TestIntensityCurveAxisItem::profile_isDetectedAndDrawn()
{
    Chart chart;
    chart.show(spikes({ { 20, 200 } }));
    QCOMPARE(chart.peaks().size(), 1);
    QCOMPARE(chart.peaks().first().index, 20);
    // Two columns a sample; the peak stands in column 40.
    QCOMPARE(chart.columnMap().at(40), 20);
    QCOMPARE(chart.curveLines().size(), 100);
    QCOMPARE(chart.curveLines().at(40).p2(), QPointF(41.0, 56.0)); // 256 - 200
    QCOMPARE(chart.curveLines().first(), QLineF(1.0, 246.0, 2.0, 246.0));
    QCOMPARE(chart.peakTicks(), (QVector<QLineF> { { 40.0, 34.0, 40.0, 54.0 } }));
}

void TestIntensityCurveAxisItem::detection_writesItsLine()
{
    QLoggingCategory::setFilterRules("*.debug=true");
    Chart chart;
    QTest::ignoreMessage(QtDebugMsg, "doAutomaticMultisaclePeakDetection:index [1, -1]");
    chart.show(spikes({ { 20, 200 } }));
    // A rebuild of the same samples says it again.
    QTest::ignoreMessage(QtDebugMsg, "doAutomaticMultisaclePeakDetection:index [1, -1]");
    chart.rebuildCurve();
    QTest::ignoreMessage(QtDebugMsg, "doAutomaticMultisaclePeakDetection:index [0, 0]");
    chart.show(std::vector<uchar>(30, 4));
    QLoggingCategory::setFilterRules("*.debug=false");
}

void TestIntensityCurveAxisItem::detection_ofTheSameSamplesAgain()
{
    Chart chart;
    chart.show(spikes({ { 20, 200 }, { 21, 100 }, { 23, 150 } }));
    const QVector<int> map = chart.columnMap();
    const auto found = chart.peaks().size();
    chart.changedShowPeaksState(true);
    chart.painted();
    QVERIFY(chart.peaks().first().label != QPointF(-1.0, -1.0));
    chart.show(spikes({ { 20, 200 }, { 21, 100 }, { 23, 150 } }));
    QCOMPARE(chart.peaks().size(), found);
    QCOMPARE(chart.columnMap(), map);
    QCOMPARE(chart.peaks().first().label, QPointF(-1.0, -1.0)); // not laid out yet
    QCOMPARE(chart.peaks().first().link, -1);
    // One sample differs.
    chart.show(spikes({ { 20, 200 }, { 21, 100 }, { 25, 150 } }));
    QCOMPARE(chart.peaks().at(1).index, 25);
    // Nothing but the length differs.
    std::vector<uchar> longer = spikes({ { 20, 200 }, { 21, 100 }, { 25, 150 } });
    longer.push_back(10);
    chart.show(longer);
    QCOMPARE(chart.columnMap().at(99), 50); // trunc(99 x 51 / 100)
}

void TestIntensityCurveAxisItem::detection_writesItsLineBeforeTheListChanges()
{
    QLoggingCategory::setFilterRules("*.debug=true");
    Chart chart;
    watchedChart = &chart;
    peaksAtTheDebugLines.clear();
    const QtMessageHandler before = qInstallMessageHandler(notePeaks);
    chart.show(spikes({ { 20, 200 } }));
    chart.show(spikes({ { 30, 200 } }));
    chart.rebuildCurve();
    qInstallMessageHandler(before);
    QLoggingCategory::setFilterRules("*.debug=false");
    QCOMPARE(peaksAtTheDebugLines, (QVector<int> { -1, 20, 30 }));
}

void TestIntensityCurveAxisItem::lists_areReplacedInTheirMemory()
{
    Chart chart;
    chart.show(std::vector<uchar>(50, 10)); // every sample a peak
    QCOMPARE(chart.peaks().size(), 50);
    const Peak* const peaks = chart.peaks().constData();
    const QLineF* const lines = chart.curveLines().constData();
    chart.show(spikes({ { 20, 200 } }));
    QCOMPARE(chart.peaks().size(), 1);
    chart.show(spikes({ { 20, 200 }, { 30, 100 } }));
    chart.show(std::vector<uchar>(50, 20));
    QCOMPARE(chart.peaks().size(), 50);
    QVERIFY(chart.peaks().constData() == peaks);
    QVERIFY(chart.curveLines().constData() == lines);
}

void TestIntensityCurveAxisItem::peak_amongManySamples()
{
    Chart chart;
    chart.setSize(400.0, 255.0);
    std::vector<uchar> samples(1000, 10);
    samples[503] = 200;
    chart.show(samples);
    // Column trunc(503 x 0.4) = 201 would show sample trunc(201 x 2.5) = 502, and the next one 505.
    QCOMPARE(chart.columnMap().at(201), 503);
    QCOMPARE(chart.curveLines().at(201).p2(), QPointF(202.0, 56.0)); // 256 - 200
    QCOMPARE(chart.curveLines().at(200).p2(), QPointF(201.0, 246.0));
    QCOMPARE(chart.curveLines().at(202).p2(), QPointF(203.0, 246.0));
}

void TestIntensityCurveAxisItem::reversed_storesBackToFront()
{
    Chart chart;
    chart.setReversed(true);
    chart.show(spikes({ { 10, 200 } }));
    QCOMPARE(chart.peaks().first().index, 39);
    chart.show(spikes({ { 10, 200 } }));
    QCOMPARE(chart.peaks().first().index, 39);
}

void TestIntensityCurveAxisItem::hidden_keepsWhatItHas()
{
    Chart chart;
    chart.show(spikes({ { 20, 200 } }));
    chart.setVisible(false);
    chart.show(spikes({ { 30, 150 } }));
    QCOMPARE(chart.peaks().first().index, 20);
    chart.changedShowPeaksState(true);
    chart.changedMaxPeaksCount(5); // rebuilds the ticks, of the old peaks on the new samples
    QCOMPARE(chart.peakTicks().first().y2(), 244.0); // sample 20 is 10 now
    chart.show({ 1, 2 });
    chart.changedMaxPeaksCount(6); // the old peak lies behind the end
    chart.painted();
    chart.setVisible(true);
    QCOMPARE(chart.peaks().first().index, 20); // until the next rebuild
    chart.rebuildCurve();
    QCOMPARE(chart.peaks().size(), 2);
}

void TestIntensityCurveAxisItem::valueScale_lowersTheCurve()
{
    Chart chart;
    chart.setValueScale(2.0);
    chart.show(spikes({ { 20, 200 } }));
    QCOMPARE(chart.curveLines().at(40).p2(), QPointF(41.0, 156.0));
    QCOMPARE(chart.peakTicks().first(), QLineF(40.0, 134.0, 40.0, 154.0));
}

void TestIntensityCurveAxisItem::shownPeaks_areLimited()
{
    Chart chart;
    const QVector<QPair<int, int>> counts { { 0, 1 }, { -5, 1 }, { 1, 1 }, { 37, 37 }, { 200, 200 },
        { 500, 200 }, { INT_MAX, 200 }, { INT_MIN, 1 } };
    for (const auto& count : counts) {
        chart.changedMaxPeaksCount(count.first);
        QCOMPARE(chart.shownPeaks(), count.second);
    }
}

void TestIntensityCurveAxisItem::shownPeaks_rebuildTheTicksOnly()
{
    Chart chart;
    std::vector<uchar> rising(100);
    for (size_t i = 0; i < rising.size(); ++i) {
        rising[i] = uchar(i);
    }
    chart.show(rising);
    // Without a maximum every sample is a peak, the largest first; ten get ticks.
    QCOMPARE(chart.peaks().size(), 100);
    QCOMPARE(chart.peaks().first().index, 99);
    QCOMPARE(chart.peakTicks().size(), 10);
    const QVector<QLineF> lines = chart.curveLines();
    chart.changedMaxPeaksCount(3);
    QCOMPARE(chart.peakTicks().size(), 3);
    chart.changedMaxPeaksCount(150);
    QCOMPARE(chart.peakTicks().size(), 100);
    QCOMPARE(chart.curveLines(), lines);
}

void TestIntensityCurveAxisItem::range_isKept_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::addColumn<double>("keptStart");
    QTest::addColumn<double>("keptEnd");
    QTest::newRow("wide") << 400.0 << 900.0 << 400.0 << 900.0;
    QTest::newRow("narrow") << 400.0 << 402.0 << 397.0 << 402.0;
    QTest::newRow("negative start") << -1.0 << 700.0 << -1.0 << -1.0;
    QTest::newRow("negative end") << 5.0 << -0.5 << -1.0 << -1.0;
    QTest::newRow("widened below zero") << 0.0 << 3.0 << -2.0 << 3.0;
}

void TestIntensityCurveAxisItem::range_isKept()
{
    QFETCH(double, start);
    QFETCH(double, end);
    QFETCH(double, keptStart);
    QFETCH(double, keptEnd);
    Chart chart;
    chart.changedShowValueRange(start, end);
    QVERIFY(chart.rangeStart() == keptStart);
    QVERIFY(chart.rangeEnd() == keptEnd);
}

void TestIntensityCurveAxisItem::peaks_areDrawnWhenShown()
{
    Chart chart;
    chart.show(spikes({ { 20, 200 } }));
    QVERIFY(chart.painted().texts().isEmpty());
    const auto without = chart.painted().lines().size();
    chart.changedShowPeaksState(true);
    const RecordingPaintDevice& shown = chart.painted();
    QCOMPARE(shown.lines().size(), without + 1);
    const auto tick = shown.of(RecordingPaintDevice::Line).last();
    QCOMPARE(tick.line, QLineF(40.0, 34.0, 40.0, 54.0));
    QCOMPARE(tick.pen.color(), QColor(40, 128, 140));
    QCOMPARE(tick.pen.width(), 1);
    const auto label = shown.of(RecordingPaintDevice::Text).first();
    QCOMPARE(label.text, QString("20"));
    QCOMPARE(label.font.pixelSize(), 9);
    QVERIFY(label.font.italic());
    QCOMPARE(label.pen.color(), QColor(40, 128, 140));
    const double width = QFontMetricsF(label.font).horizontalAdvance("20");
    QCOMPARE(label.position, QPointF(int(40.0 - width * 0.5), 33.0));
    chart.changedShowPeaksState(false);
    QVERIFY(chart.painted().texts().isEmpty());
}

void TestIntensityCurveAxisItem::labels_ofARange()
{
    Chart chart;
    chart.changedShowPeaksState(true);
    chart.show(spikes({ { 20, 200 } }));
    chart.changedShowValueRange(500.0, 600.0); // 2 a sample
    QCOMPARE(chart.painted().texts(), QStringList { "540.0" });
    chart.changedShowValueRange(0.0, 3.0); // kept as (-2, 3)
    QCOMPARE(chart.painted().texts(), QStringList { "20" });
}

void TestIntensityCurveAxisItem::labels_outsideAreNotDrawn()
{
    Chart chart;
    chart.changedShowPeaksState(true);
    // At level 255 the curve stands on 1 and the tick above the item.
    chart.show(spikes({ { 20, 255 } }));
    QVERIFY(chart.painted().texts().isEmpty());
    QCOMPARE(chart.painted().lines().last(), QLineF(40.0, -21.0, 40.0, -1.0));
    // Half a label to the left of the first column.
    chart.show(spikes({ { 1, 200 } }));
    chart.changedShowValueRange(100000.0, 200000.0);
    QVERIFY(chart.painted().texts().isEmpty());
    chart.show(spikes({ { 49 - 1, 200 } }));
    QCOMPARE(chart.painted().texts(), QStringList { "196000.0" }); // clipped by nobody
}

void TestIntensityCurveAxisItem::labels_onTheEdgesAreDrawn()
{
    QFont font = largeItalicFont();
    font.setPixelSize(9);
    const QFontMetricsF metrics(font);
    Chart chart;
    chart.changedShowPeaksState(true);
    // The tick of level v ends 22 units above 256 - v, the label's line 1 unit above that: its top
    // left corner comes into the first row of pixels, and two levels more put it above the item.
    const int level = int(233.0 - metrics.height());
    chart.show(spikes({ { 20, uchar(level) } }));
    QCOMPARE(chart.painted().texts(), QStringList { "20" });
    chart.show(spikes({ { 20, uchar(level + 2) } }));
    QVERIFY(chart.painted().texts().isEmpty());

    // One unit a sample: the label's left end comes into the first column, or two units before it.
    chart.setSize(50.0, 255.0);
    int first = 1;
    while (first < metrics.horizontalAdvance(QString::number(first)) * 0.5) {
        ++first;
    }
    QVERIFY(first >= 3);
    chart.show(spikes({ { size_t(first), 100 } }));
    QCOMPARE(chart.painted().texts(), QStringList { QString::number(first) });
    chart.show(spikes({ { size_t(first) - 2, 100 } }));
    QVERIFY(chart.painted().texts().isEmpty());
}

void TestIntensityCurveAxisItem::labels_closeTogetherAreStacked()
{
    Chart chart;
    chart.changedShowPeaksState(true);
    chart.show(spikes({ { 20, 200 }, { 22, 199 } })); // 4 units apart
    const auto labels = chart.painted().of(RecordingPaintDevice::Text);
    QCOMPARE(labels.size(), 2);
    QCOMPARE(labels.at(0).text, QString("20"));
    QCOMPARE(labels.at(1).text, QString("22"));
    const QFontMetricsF metrics(labels.at(0).font);
    const double width = metrics.horizontalAdvance("22");
    QCOMPARE(labels.at(0).position.y(), 33.0); // 256 - 200 - 22 - 1
    QCOMPARE(labels.at(1).position, // one line above the first, not over its own tick
        QPointF(int(44.0 - width * 0.5), int(33.0 - metrics.height())));
    QCOMPARE(chart.peaks().at(1).link, 0);
}

void TestIntensityCurveAxisItem::labels_leaveTheBorderPen()
{
    Chart chart;
    chart.show(spikes({ { 20, 200 } }));
    chart.painted();
    QCOMPARE(chart.lastPen.color(), QColor(40, 128, 140)); // without peaks nothing is set
    chart.changedShowPeaksState(true);
    chart.painted();
    QCOMPARE(chart.lastPen.color(), QColor(Qt::white));
    QCOMPARE(chart.lastPen.width(), 1);
}

void TestIntensityCurveAxisItem::labels_afterAResetOfTheCount()
{
    Chart chart;
    chart.changedShowPeaksState(true);
    chart.changedMaxPeaksCount(2);
    chart.show(spikes({ { 5, 100 }, { 15, 110 }, { 25, 120 }, { 35, 130 } }));
    QCOMPARE(chart.painted().texts().size(), 2);
    chart.resetPeaks(); // 10 shown, two ticks
    chart.changedShowPeaksState(true);
    QCOMPARE(chart.peakTicks().size(), 2);
    QCOMPARE(chart.painted().texts().size(), 2);
}

void TestIntensityCurveAxisItem::slots_repaintTheVisibleItem()
{
    Chart chart;
    chart.show(spikes({ { 20, 200 } }));
    QVERIFY(repaints(chart, [&] { chart.changedMaxPeaksCount(4); }));
    QVERIFY(repaints(chart, [&] { chart.changedShowPeaksState(true); }));
    QVERIFY(repaints(chart, [&] { chart.changedShowValueRange(1.0, 9.0); }));
    QVERIFY(repaints(chart, [&] { chart.centerAnchor(); }));
}

void TestIntensityCurveAxisItem::pick_announcesTheSample()
{
    for (const bool reversed : { false, true }) {
        Chart chart;
        chart.setReversed(reversed);
        chart.show(spikes({ { 20, 200 } }));
        QSignalSpy spy(&chart, SIGNAL(changeAnchorPosition(bool, int)));
        press(chart, QPointF(61.7, 99.0));
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.first(), (QVariantList { reversed, 30 })); // column 61
        QCOMPARE(chart.anchorIndex(), 30);
        QCOMPARE(crossOf(chart), QPointF(61.0, 246.0));
    }
}

void TestIntensityCurveAxisItem::pick_beyondTheColumns()
{
    Chart chart;
    chart.show(spikes({ { 20, 200 } }));
    press(chart, QPointF(100.9, 5.0));
    QCOMPARE(chart.anchorIndex(), 49); // column 99
    QCOMPARE(crossOf(chart), QPointF(99.0, 246.0));
    press(chart, QPointF(-3.0, 5.0));
    QCOMPARE(chart.anchorIndex(), 0);
    QCOMPARE(crossOf(chart), QPointF(0.0, 246.0));
}

void TestIntensityCurveAxisItem::pick_beforeTheFirstRebuild()
{
    Chart chart;
    chart.setVisible(false);
    chart.show(spikes({ { 20, 200 } }));
    QCOMPARE(chart.columnMap().first(), -1);
    chart.centerAnchor();
    QCOMPARE(chart.anchorIndex(), 25); // trunc(50 / 100 x 50)
}

void TestIntensityCurveAxisItem::pick_needsTheLeftButtonAlone()
{
    Chart chart;
    chart.show(spikes({ { 20, 200 } }));
    QSignalSpy spy(&chart, SIGNAL(changeAnchorPosition(bool, int)));
    press(chart, QPointF(60.0, 5.0), Qt::RightButton);
    press(chart, QPointF(60.0, 5.0), Qt::LeftButton | Qt::RightButton);
    QCOMPARE(spy.size(), 0);
}

void TestIntensityCurveAxisItem::pick_withoutSamplesDoesNothing()
{
    Chart chart;
    QSignalSpy spy(&chart, SIGNAL(changeAnchorPosition(bool, int)));
    press(chart, QPointF(60.0, 5.0));
    chart.centerAnchor();
    QCOMPARE(spy.size(), 0);
}

void TestIntensityCurveAxisItem::pick_mayDeleteTheItem()
{
    auto* const chart = new Chart;
    chart->show(spikes({ { 20, 200 } }));
    QObject::connect(
        chart, &IntensityCurveAxisItem::changeAnchorPosition, [chart] { delete chart; });
    const QPointer<Chart> gone(chart);
    press(*chart, QPointF(60.0, 5.0));
    QVERIFY(gone.isNull());
}

void TestIntensityCurveAxisItem::pick_ofAMapOlderThanTheSamples()
{
    Chart chart;
    chart.show(spikes({ { 20, 200 } }));
    chart.setVisible(false);
    chart.show({ 7, 8, 9 });
    QSignalSpy spy(&chart, SIGNAL(changeAnchorPosition(bool, int)));
    chart.centerAnchor();
    QCOMPARE(spy.first().at(1).toInt(), 25); // what the map says
    QCOMPARE(crossOf(chart), QPointF(50.0, 247.0)); // the last sample
}

void TestIntensityCurveAxisItem::cross_followsThePick()
{
    Chart chart;
    chart.show(spikes({ { 20, 200 } }));
    press(chart, QPointF(41.0, 5.0)); // column 41 shows sample 20
    QCOMPARE(crossOf(chart), QPointF(41.0, 56.0));
    chart.show(spikes({ { 20, 100 } }));
    // 100 / 50 x 20, not truncated to a column; the old place is kept.
    QCOMPARE(crossOf(chart), QPointF(40.0, 156.0));
    QCOMPARE(dynamic_cast<CrossItem*>(chart.childItems().first())->previousPosition,
        QPointF(41.0, 56.0));
}

void TestIntensityCurveAxisItem::cross_ofALongerProfile()
{
    Chart chart;
    chart.show(spikes({}));
    press(chart, QPointF(99.0, 5.0));
    QCOMPARE(chart.anchorIndex(), 49);
    chart.show({ 5, 6 });
    QCOMPARE(chart.anchorIndex(), 49); // remembered
    QCOMPARE(crossOf(chart), QPointF(100.0 / 2 * 49, 250.0)); // the last sample is read
}

void TestIntensityCurveAxisItem::center_picksTheMiddle()
{
    Chart chart;
    chart.show(spikes({ { 20, 200 } }));
    QSignalSpy spy(&chart, SIGNAL(changeAnchorPosition(bool, int)));
    chart.centerAnchor();
    QCOMPARE(spy.first().at(1).toInt(), 25);
    chart.setSize(1.0, 255.0); // 0.5 is no column: the first one
    chart.centerAnchor();
    QCOMPARE(spy.last().at(1).toInt(), 20); // the one column shows the peak
}

void TestIntensityCurveAxisItem::reset_restoresTheDefaults()
{
    Chart chart;
    chart.changedShowPeaksState(true);
    chart.changedMaxPeaksCount(50);
    chart.setValueScale(1.2);
    chart.show(spikes({ { 20, 200 } }));
    chart.resetPeaks();
    QCOMPARE(chart.shownPeaks(), 10);
    QVERIFY(chart.valueScale() == 1.0);
    QVERIFY(chart.painted().texts().isEmpty());
}

void TestIntensityCurveAxisItem::drag_doesNotScroll()
{
    Chart chart;
    chart.show(spikes({}));
    QSignalSpy scrolled(&chart, SIGNAL(scrollDistance(int)));
    QSignalSpy picked(&chart, SIGNAL(changeAnchorPosition(bool, int)));
    QGraphicsScene scene;
    scene.addItem(&chart);
    sendMouse(scene, QEvent::GraphicsSceneMousePress, Qt::LeftButton);
    sendMouse(scene, QEvent::GraphicsSceneMouseMove, Qt::LeftButton);
    scene.removeItem(&chart);
    QCOMPARE(scrolled.size(), 0);
    QCOMPARE(picked.size(), 1); // by the press alone
}

void TestIntensityCurveAxisItem::resize_changesTheMap()
{
    Chart chart;
    chart.show(spikes({ { 20, 200 } }));
    chart.setSize(50.0, 510.0);
    QCOMPARE(chart.columnMap().size(), 50);
    QCOMPARE(chart.columnMap().at(20), 20);
    QCOMPARE(chart.curveLines().size(), 50);
    QCOMPARE(chart.curveLines().at(20).p2(), QPointF(21.0, 511.0 - 400.0));
    QCOMPARE(chart.geometry(), QRectF(0.0, 0.0, 51.0, 511.0));
}

void TestIntensityCurveAxisItem::oneSample_andOneColumn()
{
    Chart chart;
    chart.changedShowPeaksState(true);
    chart.show({ 77 });
    QCOMPARE(chart.peaks().size(), 1);
    QCOMPARE(chart.columnMap().first(), 0);
    chart.painted();
    press(chart, QPointF(50.0, 5.0));
    chart.setSize(1.0, 255.0);
    QCOMPARE(chart.curveLines().size(), 1);
    chart.show({ 77, 5, 90 });
    chart.painted();
    press(chart, QPointF(0.0, 5.0));
}

void TestIntensityCurveAxisItem::sizesWithoutColumns()
{
    Chart chart;
    chart.changedShowPeaksState(true);
    chart.show(spikes({ { 20, 200 } }));
    const QVector<QLineF> lines = chart.curveLines();
    for (const QSizeF& size : { QSizeF(0.0, 0.0), QSizeF(-170.0, -370.0), QSizeF(0.0, 255.0) }) {
        chart.setSize(size.width(), size.height());
        QCOMPARE(chart.columnMap().size(), 100);
        QCOMPARE(chart.curveLines(), lines);
        chart.show(spikes({ { 30, 100 } }));
        QCOMPARE(chart.peaks().first().index, 30); // found all the same
        QCOMPARE(chart.peakTicks().size(), 1);
        chart.painted();
        press(chart, QPointF(0.0, 0.0));
        press(chart, QPointF(50.0, 0.0));
        chart.centerAnchor();
    }
    chart.setSize(100.0, 0.0);
    chart.painted();
}

void TestIntensityCurveAxisItem::hugeWidths_haveNoMap()
{
    Chart chart;
    chart.show(spikes({ { 20, 200 } }));
    chart.setSize(1048577.0, 255.0);
    QVERIFY(chart.columnMap().isEmpty());
    QVERIFY(chart.curveLines().isEmpty());
    chart.setSize(1e30, 255.0);
    chart.centerAnchor();
    press(chart, QPointF(5.0, 5.0));
    chart.setSize(100.0, 255.0);
    QCOMPARE(chart.curveLines().size(), 100);
}

void TestIntensityCurveAxisItem::oddValueScales()
{
    Chart chart;
    chart.changedShowPeaksState(true);
    for (const double scale : { 0.0, -1.0, std::numeric_limits<double>::quiet_NaN(),
             std::numeric_limits<double>::infinity(), 1e-300 }) {
        chart.setValueScale(scale);
        chart.show(spikes({ { 20, 200 } }));
        for (const QLineF& line : chart.curveLines()) {
            QVERIFY(std::isfinite(line.y1()) && std::isfinite(line.y2()));
        }
        press(chart, QPointF(41.0, 5.0));
        chart.painted();
    }
}

QTEST_MAIN(TestIntensityCurveAxisItem)
#include "tst_intensitycurveaxisitem.moc"
