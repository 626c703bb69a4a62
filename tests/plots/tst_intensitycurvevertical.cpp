#include "plots/intensitycurvevertical.h"
#include "support/recordingpaintdevice.h"
#include "support/sceneitems.h"

#include <QGraphicsScene>
#include <QPainter>
#include <QtTest>

#include <limits>

class TestIntensityCurveVertical : public QObject
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
    void drag_holdsThePointerOnItsColumn();
};

void TestIntensityCurveVertical::construction_placesTheAnchorInTheMiddle()
{
    IntensityCurveVertical curve(nullptr);
    QCOMPARE(curve.size, QSizeF(50.0, 400.0));
    QCOMPARE(curve.geometry(), QRectF(0.0, 0.0, 51.0, 401.0));
    QCOMPARE(curve.anchorPosition(), 200);
    QVERIFY(curve.curveLines().isEmpty());
}

void TestIntensityCurveVertical::metaObject_signatures()
{
    const QMetaObject& meta = IntensityCurveVertical::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    QCOMPARE(slot.methodSignature(), QByteArray("changedAnchorPosition(QPointF)"));
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
    QCOMPARE(slot.parameterNames(), QList<QByteArray> { "anchor" });
    IntensityCurveVertical curve(nullptr);
    void* const layoutPart = static_cast<QGraphicsLayoutItem*>(&curve);
    QVERIFY(curve.qt_metacast("QGraphicsLayoutItem") == layoutPart);
}

void TestIntensityCurveVertical::updateCurve_buildsThePolyline()
{
    IntensityCurveVertical curve(nullptr);
    curve.setSize(255.0, 4.0); // one unit per level
    uchar data[] = { 10, 20, 30, 40 };
    curve.updateCurve(data, 4);
    // one sample per unit: the second point takes sample 1, the third sample 3
    QCOMPARE(curve.curveLines(), (QVector<QLineF> { QLineF(9, 1, 19, 2), QLineF(19, 2, 39, 3) }));
    curve.setReversed(true);
    curve.updateCurve(data, 4);
    QCOMPARE(curve.curveLines(), (QVector<QLineF> { QLineF(39, 1, 29, 2), QLineF(29, 2, 9, 3) }));
}

void TestIntensityCurveVertical::sizeChange_reachesTheLayoutAndRebuilds()
{
    IntensityCurveVertical curve(nullptr);
    uchar data[] = { 10 };
    curve.updateCurve(data, 1);
    QCOMPARE(curve.curveLines().size(), 398); // points at 1 .. 399
    curve.setPos(30.0, 40.0);
    curve.setSize(50.0, 10.0);
    QCOMPARE(curve.curveLines().size(), 8);
    QCOMPARE(curve.geometry(), QRectF(0.0, 0.0, 51.0, 11.0));
    QCOMPARE(curve.pos(), QPointF(0.0, 0.0));
}

void TestIntensityCurveVertical::layoutMove_rebuilds()
{
    IntensityCurveVertical curve(nullptr);
    uchar data[] = { 10 };
    curve.updateCurve(data, 1);
    curve.borderWidth = 5; // shows at the next rebuild
    QCOMPARE(curve.curveLines().size(), 398);
    curve.setGeometry(QRectF(30.0, 40.0, 50.0, 60.0));
    QCOMPARE(curve.curveLines().size(), 390); // points at 5 .. 395
    QCOMPARE(curve.pos(), QPointF(30.0, 40.0));
}

void TestIntensityCurveVertical::withoutSamples_drawsNoCurve()
{
    IntensityCurveVertical curve(nullptr);
    uchar data[] = { 10 };
    curve.updateCurve(data, 1, 1, 0); // accepted, but there is nothing to draw
    QVERIFY(curve.curveLines().isEmpty());
}

void TestIntensityCurveVertical::oneUnitStrip_readsInsideTheProfile()
{
    IntensityCurveVertical curve(nullptr);
    uchar data[] = { 10, 20, 30 };
    curve.updateCurve(data, 3);
    curve.setSize(255.0, 1.0);
    QCOMPARE(curve.curveLines(), (QVector<QLineF> { QLineF(9, 1, 29, 2) }));
}

void TestIntensityCurveVertical::noLength_endsAfterOneSegment()
{
    IntensityCurveVertical curve(nullptr);
    uchar data[] = { 10, 20, 30 };
    curve.updateCurve(data, 3);
    curve.setSize(0.0, 0.0);
    QCOMPARE(curve.curveLines().size(), 1);
    curve.setSize(-20.0, -20.0);
    QCOMPARE(curve.curveLines().size(), 1);
    curve.setSize(1e300, 1e300);
    QVERIFY(curve.curveLines().isEmpty());
}

void TestIntensityCurveVertical::anchor_isRounded()
{
    IntensityCurveVertical curve(nullptr);
    curve.changedAnchorPosition(QPointF(30.0, 100.5));
    QCOMPARE(curve.anchorPosition(), 101);
    curve.changedAnchorPosition(QPointF(30.0, -3.4));
    QCOMPARE(curve.anchorPosition(), -3);
}

void TestIntensityCurveVertical::anchor_repaints()
{
    IntensityCurveVertical curve(nullptr);
    QVERIFY(repaints(curve, [&] { curve.changedAnchorPosition(QPointF(20.0, 30.0)); }));
}

void TestIntensityCurveVertical::anchor_survivesAnyPoint()
{
    IntensityCurveVertical curve(nullptr);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    curve.changedAnchorPosition(QPointF(nan, nan));
    QCOMPARE(curve.anchorPosition(), 0);
    curve.changedAnchorPosition(QPointF(1e300, 1e300));
    QCOMPARE(curve.anchorPosition(), 1073741824);
}

void TestIntensityCurveVertical::drawing_curveThenAnchor()
{
    IntensityCurveVertical curve(nullptr);
    curve.setSize(255.0, 4.0);
    uchar data[] = { 10, 20, 30, 40 };
    curve.updateCurve(data, 4);
    curve.changedAnchorPosition(QPointF(2.0, 3.0));
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    curve.paint(&painter, nullptr, nullptr);
    QCOMPARE(recorded.entries().size(), 4);
    QCOMPARE(recorded.entries().at(0).kind, RecordingPaintDevice::Rect);
    QCOMPARE(recorded.lines(),
        (QVector<QLineF> { QLineF(9, 1, 19, 2), QLineF(19, 2, 39, 3), QLineF(1, 3, 256, 3) }));
    QCOMPARE(recorded.entries().at(2).pen.color(), QColor(40, 128, 140));
    QCOMPARE(recorded.entries().at(3).pen.color(), QColor(Qt::white));
    QCOMPARE(recorded.entries().at(3).pen.width(), 1);
}

void TestIntensityCurveVertical::drag_holdsThePointerOnItsColumn()
{
    QGraphicsScene scene;
    IntensityCurveVertical curve(nullptr);
    scene.addItem(&curve);
    QSignalSpy spy(&curve, SIGNAL(scrollDistance(int)));
    QCursor::setPos(50, 100);
    sendMouse(scene, QEvent::GraphicsSceneMousePress, Qt::LeftButton);
    QCOMPARE(spy.count(), 0);
    QCursor::setPos(57, 90);
    sendMouse(scene, QEvent::GraphicsSceneMouseMove, Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).first().toInt(), 10);
    QCOMPARE(QCursor::pos(), QPoint(50, 90));
    QCursor::setPos(44, 125); // and the other way, counted from the step before
    sendMouse(scene, QEvent::GraphicsSceneMouseMove, Qt::LeftButton);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).first().toInt(), -35);
    QCOMPARE(QCursor::pos(), QPoint(50, 125));
    scene.removeItem(&curve);
}

QTEST_MAIN(TestIntensityCurveVertical)
#include "tst_intensitycurvevertical.moc"
