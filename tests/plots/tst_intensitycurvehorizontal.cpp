#include "plots/intensitycurvehorizontal.h"
#include "support/recordingpaintdevice.h"
#include "support/sceneitems.h"

#include <QGraphicsScene>
#include <QPainter>
#include <QtTest>

#include <limits>

class TestIntensityCurveHorizontal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction_placesTheAnchorInTheMiddle();
    void metaObject_signatures();
    void updateCurve_buildsThePolyline();
    void sizeChange_reachesTheLayoutAndRebuilds();
    void layoutMove_rebuilds();
    void withoutSamples_drawsNoCurve();
    void oneUnitStrip_readsInsideTheProfile();
    void noLength_endsAfterOneSegment();
    void anchor_isRounded();
    void anchor_repaints();
    void anchor_survivesAnyPoint();
    void drawing_curveThenAnchor();
    void drag_holdsThePointerOnItsRow();
};

void TestIntensityCurveHorizontal::construction_placesTheAnchorInTheMiddle()
{
    IntensityCurveHorizontal curve(nullptr);
    QCOMPARE(curve.size, QSizeF(400.0, 50.0));
    QCOMPARE(curve.geometry(), QRectF(0.0, 0.0, 401.0, 51.0));
    QCOMPARE(curve.anchorPosition(), 200);
    QVERIFY(curve.curveLines().isEmpty());
}

void TestIntensityCurveHorizontal::metaObject_signatures()
{
    const QMetaObject& meta = IntensityCurveHorizontal::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    QCOMPARE(slot.methodSignature(), QByteArray("changedAnchorPosition(QPointF)"));
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
    QCOMPARE(slot.parameterNames(), QList<QByteArray> { "anchor" });
    IntensityCurveHorizontal curve(nullptr);
    void* const layoutPart = static_cast<QGraphicsLayoutItem*>(&curve);
    QVERIFY(curve.qt_metacast("QGraphicsLayoutItem") == layoutPart);
}

void TestIntensityCurveHorizontal::updateCurve_buildsThePolyline()
{
    IntensityCurveHorizontal curve(nullptr);
    curve.setSize(4.0, 255.0); // one unit per level
    uchar data[] = { 10, 20, 30, 40 };
    curve.updateCurve(data, 4);
    // one sample per unit: the second point takes sample 1, the third sample 3
    QCOMPARE(
        curve.curveLines(), (QVector<QLineF> { QLineF(1, 246, 2, 236), QLineF(2, 236, 3, 216) }));
    curve.setReversed(true);
    curve.updateCurve(data, 4);
    QCOMPARE(
        curve.curveLines(), (QVector<QLineF> { QLineF(1, 216, 2, 226), QLineF(2, 226, 3, 246) }));
}

void TestIntensityCurveHorizontal::sizeChange_reachesTheLayoutAndRebuilds()
{
    IntensityCurveHorizontal curve(nullptr);
    uchar data[] = { 10 };
    curve.updateCurve(data, 1);
    QCOMPARE(curve.curveLines().size(), 398); // points at 1 .. 399
    curve.setPos(30.0, 40.0);
    curve.setSize(10.0, 50.0);
    QCOMPARE(curve.curveLines().size(), 8);
    QCOMPARE(curve.geometry(), QRectF(0.0, 0.0, 11.0, 51.0));
    QCOMPARE(curve.pos(), QPointF(0.0, 0.0));
}

void TestIntensityCurveHorizontal::layoutMove_rebuilds()
{
    IntensityCurveHorizontal curve(nullptr);
    uchar data[] = { 10 };
    curve.updateCurve(data, 1);
    curve.borderWidth = 5; // shows at the next rebuild
    QCOMPARE(curve.curveLines().size(), 398);
    curve.setGeometry(QRectF(30.0, 40.0, 50.0, 60.0));
    QCOMPARE(curve.curveLines().size(), 390); // points at 5 .. 395
    QCOMPARE(curve.pos(), QPointF(30.0, 40.0));
}

void TestIntensityCurveHorizontal::withoutSamples_drawsNoCurve()
{
    IntensityCurveHorizontal curve(nullptr);
    uchar data[] = { 10 };
    curve.updateCurve(data, 1, 1, 0); // accepted, but there is nothing to draw
    QVERIFY(curve.curveLines().isEmpty());
}

void TestIntensityCurveHorizontal::oneUnitStrip_readsInsideTheProfile()
{
    IntensityCurveHorizontal curve(nullptr);
    uchar data[] = { 10, 20, 30 };
    curve.updateCurve(data, 3);
    curve.setSize(1.0, 255.0);
    QCOMPARE(curve.curveLines(), (QVector<QLineF> { QLineF(1, 246, 2, 226) }));
}

void TestIntensityCurveHorizontal::noLength_endsAfterOneSegment()
{
    IntensityCurveHorizontal curve(nullptr);
    uchar data[] = { 10, 20, 30 };
    curve.updateCurve(data, 3);
    curve.setSize(0.0, 0.0);
    QCOMPARE(curve.curveLines().size(), 1);
    curve.setSize(-20.0, -20.0);
    QCOMPARE(curve.curveLines().size(), 1);
    curve.setSize(1e300, 1e300);
    QVERIFY(curve.curveLines().isEmpty());
}

void TestIntensityCurveHorizontal::anchor_isRounded()
{
    IntensityCurveHorizontal curve(nullptr);
    curve.changedAnchorPosition(QPointF(100.5, 30.0));
    QCOMPARE(curve.anchorPosition(), 101);
    curve.changedAnchorPosition(QPointF(-3.4, 30.0));
    QCOMPARE(curve.anchorPosition(), -3);
}

void TestIntensityCurveHorizontal::anchor_repaints()
{
    IntensityCurveHorizontal curve(nullptr);
    QVERIFY(repaints(curve, [&] { curve.changedAnchorPosition(QPointF(20.0, 30.0)); }));
}

void TestIntensityCurveHorizontal::anchor_survivesAnyPoint()
{
    IntensityCurveHorizontal curve(nullptr);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    curve.changedAnchorPosition(QPointF(nan, nan));
    QCOMPARE(curve.anchorPosition(), 0);
    curve.changedAnchorPosition(QPointF(1e300, 1e300));
    QCOMPARE(curve.anchorPosition(), 1073741824);
}

void TestIntensityCurveHorizontal::drawing_curveThenAnchor()
{
    IntensityCurveHorizontal curve(nullptr);
    curve.setSize(4.0, 255.0);
    uchar data[] = { 10, 20, 30, 40 };
    curve.updateCurve(data, 4);
    curve.changedAnchorPosition(QPointF(2.0, 3.0));
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    curve.paint(&painter, nullptr, nullptr);
    QCOMPARE(recorded.entries().size(), 4);
    QCOMPARE(recorded.entries().at(0).kind, RecordingPaintDevice::Rect);
    QCOMPARE(recorded.lines(),
        (QVector<QLineF> { QLineF(1, 246, 2, 236), QLineF(2, 236, 3, 216), QLineF(2, 1, 2, 256) }));
    QCOMPARE(recorded.entries().at(2).pen.color(), QColor(40, 128, 140));
    QCOMPARE(recorded.entries().at(3).pen.color(), QColor(Qt::white));
    QCOMPARE(recorded.entries().at(3).pen.width(), 1);
}

void TestIntensityCurveHorizontal::drag_holdsThePointerOnItsRow()
{
    QGraphicsScene scene;
    IntensityCurveHorizontal curve(nullptr);
    scene.addItem(&curve);
    QSignalSpy spy(&curve, SIGNAL(scrollDistance(int)));
    QCursor::setPos(100, 50);
    sendMouse(scene, QEvent::GraphicsSceneMousePress, Qt::LeftButton);
    QCOMPARE(spy.count(), 0);
    QCursor::setPos(90, 57);
    sendMouse(scene, QEvent::GraphicsSceneMouseMove, Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).first().toInt(), 10);
    QCOMPARE(QCursor::pos(), QPoint(90, 50));
    QCursor::setPos(125, 44); // and the other way, counted from the step before
    sendMouse(scene, QEvent::GraphicsSceneMouseMove, Qt::LeftButton);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).first().toInt(), -35);
    QCOMPARE(QCursor::pos(), QPoint(125, 50));
    scene.removeItem(&curve);
}

QTEST_MAIN(TestIntensityCurveHorizontal)
#include "tst_intensitycurvehorizontal.moc"
