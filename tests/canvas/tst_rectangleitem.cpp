#include "canvas/componentitem.h"
#include "canvas/rectangleitem.h"
#include "qtcompat.h"
#include "support/recordingpaintdevice.h"
#include "support/sceneitems.h"

#include <QGraphicsSceneHoverEvent>
#include <QPainter>
#include <QtTest>

namespace {

/// An area of 400 x 300 in a scene, with one region in it.
struct Stage
{
    Stage()
    {
        scene.addItem(&area);
        area.setSize(400.0, 300.0);
        item = new RectangleItem(&area, 1);
        item->setRect(QRectF(100.0, 80.0, 60.0, 40.0));
    }

    ~Stage() { scene.removeItem(&area); }

    void hover(const QPointF& position, QEvent::Type type = QEvent::GraphicsSceneHoverMove)
    {
        QGraphicsSceneHoverEvent event(type);
        event.setPos(position);
        scene.sendEvent(item, &event);
    }

    void mouse(QEvent::Type type, const QPointF& position, Qt::MouseButtons buttons)
    {
        QGraphicsSceneMouseEvent event(type);
        event.setPos(position);
        event.setScenePos(position);
        event.setButton(Qt::LeftButton);
        event.setButtons(buttons);
        scene.sendEvent(item, &event);
    }

    /// Hovers over, presses and moves; the button stays down.
    void pull(const QPointF& from, const QPointF& to)
    {
        hover(from);
        mouse(QEvent::GraphicsSceneMousePress, from, Qt::LeftButton);
        mouse(QEvent::GraphicsSceneMouseMove, to, Qt::LeftButton);
    }

    void letGo(const QPointF& position)
    {
        mouse(QEvent::GraphicsSceneMouseRelease, position, Qt::NoButton);
    }

    QGraphicsScene scene;
    ComponentItem area { nullptr };
    RectangleItem* item;
};

RecordingPaintDevice::Entry firstOf(
    const RecordingPaintDevice& recorded, RecordingPaintDevice::Kind kind)
{
    return recorded.of(kind).first();
}

} // namespace

class TestRectangleItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void construction();
    void construction_withoutParent();
    void setRect_staysInTheParentAndKeepsTheHandles();
    void parentBounding_replacesTheParent();
    void boundingRect_hasRoomForTheHandles();
    void paint_drawsRectangleAndNumber();
    void paint_drawsHandlesWhileSelected();
    void hover_findsTheZone_data();
    void hover_findsTheZone();
    void hover_withoutHandlesKeepsTheZone();
    void hover_leave();
    void drag_movesTheRegion();
    void drag_stopsAtTheEdgeAndKeepsItsSize();
    void drag_withoutZoneOnlyMarks();
    void drag_withOtherButtonsDoesNothing();
    void drag_resizesByEachHandle_data();
    void drag_resizesByEachHandle();
    void drag_pastTheOppositeCornerHandsOver();
    void drag_isClampedToTheArea();
    void press_selects();
    void click_announcesNothing();
    void release_announcesOnce();
    void release_survivesItsOwnDeletion();
    void drag_repaintsTheParent();
};

void TestRectangleItem::metaObject()
{
    const QMetaObject& meta = RectangleItem::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods << meta.method(i).methodSignature() + '|'
                + meta.method(i).parameterNames().join(',');
    }
    QCOMPARE(methods,
        (QStringList { "changeRect(RectangleItem*,QRectF)|item,rect",
            "changedParentBoundingRect(QRectF)|bounding" }));
    Stage stage;
    QVERIFY(QtCompat::isTypeName("RectangleItem*"));
}

void TestRectangleItem::construction()
{
    ComponentItem area(nullptr); // 400 x 400
    const RectangleItem item(&area, 7);
    QCOMPARE(item.id, 7);
    QCOMPARE(item.penWidth, 1);
    QCOMPARE(item.hoverZone, 0);
    QCOMPARE(item.margin, 0);
    QCOMPARE(item.color, QColor(Qt::red));
    QCOMPARE(item.rect, QRectF(200.0, 200.0, 60.0, 60.0));
    QCOMPARE(item.handleSize, QSizeF(6.0, 6.0));
    QVERIFY(!item.modified);
    QVERIFY(item.acceptHoverEvents());
    QCOMPARE(
        int(item.flags()), int(QGraphicsItem::ItemIsSelectable | QGraphicsItem::ItemIsFocusable));
}

void TestRectangleItem::construction_withoutParent()
{
    RectangleItem item(nullptr, 1);
    QCOMPARE(item.rect, QRectF(0.0, 0.0, 60.0, 60.0));
    item.setRect(QRectF(-50.0, -60.0, 0.0, 5.0));
    QCOMPARE(item.rect, QRectF(-50.0, -60.0, 0.0, 5.0)); // nothing to stay in
}

void TestRectangleItem::setRect_staysInTheParentAndKeepsTheHandles()
{
    Stage stage;
    stage.item->margin = 1;
    stage.item->setRect(QRectF(380.0, -10.0, 60.0, 40.0));
    QCOMPARE(stage.item->rect, QRectF(339.0, 1.0, 60.0, 40.0)); // right edge on 399
    // The handles stand at the corners that were asked for.
    QCOMPARE(stage.item->handles,
        (QVector<QPointF> {
            { 380.0, -10.0 }, { 440.0, -10.0 }, { 380.0, 30.0 }, { 440.0, 30.0 } }));
}

void TestRectangleItem::parentBounding_replacesTheParent()
{
    Stage stage;
    stage.item->changedParentBoundingRect(QRectF(-1000.0, -500.0, 2000.0, 1000.0));
    QCOMPARE(stage.item->rect, QRectF(100.0, 80.0, 60.0, 40.0)); // at the next setRect()
    stage.item->setRect(QRectF(-900.0, 490.0, 60.0, 40.0));
    QCOMPARE(stage.item->rect, QRectF(-900.0, 460.0, 60.0, 40.0));
    stage.item->changedParentBoundingRect(QRectF(0.0, 0.0, 500.0, 0.0)); // empty: the parent's
    stage.item->setRect(QRectF(-900.0, 490.0, 60.0, 40.0));
    QCOMPARE(stage.item->rect, QRectF(0.0, 260.0, 60.0, 40.0));
}

void TestRectangleItem::boundingRect_hasRoomForTheHandles()
{
    Stage stage;
    QCOMPARE(stage.item->boundingRect(), QRectF(97.0, 77.0, 66.0, 46.0));
}

void TestRectangleItem::paint_drawsRectangleAndNumber()
{
    Stage stage;
    stage.item->id = 12;
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    painter.setFont(largeItalicFont());
    stage.item->paint(&painter, nullptr, nullptr);
    QCOMPARE(recorded.entries().size(), 2);
    const auto outline = recorded.entries().at(0);
    QCOMPARE(outline.kind, RecordingPaintDevice::Rect);
    QCOMPARE(outline.rect, QRectF(100.0, 80.0, 60.0, 40.0));
    QCOMPARE(outline.pen.color(), QColor(Qt::red));
    QCOMPARE(outline.pen.width(), 1);
    const auto label = recorded.entries().at(1);
    QCOMPARE(label.text, QString("12"));
    QCOMPARE(label.font.pixelSize(), 16);
    QCOMPARE(int(label.font.weight()), int(QFont::Bold));
    QVERIFY(label.font.italic()); // the painter's font otherwise
    QCOMPARE(label.pen.color(), QColor(Qt::red));
    const int y = int(QFontMetricsF(label.font).height() / 2.0 + 80.0 + 6.0);
    QCOMPARE(label.position, QPointF(104.0, y));
}

void TestRectangleItem::paint_drawsHandlesWhileSelected()
{
    Stage stage;
    stage.item->setRect(QRectF(100.7, 80.2, 60.0, 40.0));
    stage.item->setSelected(true);
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    stage.item->paint(&painter, nullptr, nullptr);
    // Outline, four handles of 6 x 6 around the corners, each truncated, and the number.
    QCOMPARE(recorded.rects().mid(1),
        (QVector<QRectF> { { 97.0, 77.0, 6.0, 6.0 }, { 157.0, 77.0, 6.0, 6.0 },
            { 97.0, 117.0, 6.0, 6.0 }, { 157.0, 117.0, 6.0, 6.0 } }));
    QCOMPARE(recorded.entries().at(1).brush.color(), QColor(Qt::red));
    QCOMPARE(recorded.entries().at(1).brush.style(), Qt::SolidPattern);
    QCOMPARE(firstOf(recorded, RecordingPaintDevice::Text).text, QString("1"));
}

void TestRectangleItem::hover_findsTheZone_data()
{
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<int>("zone");
    QTest::newRow("top left") << QPointF(101.0, 81.0) << 1;
    QTest::newRow("top left, outside the rectangle") << QPointF(97.0, 77.0) << 1;
    QTest::newRow("top right") << QPointF(159.0, 82.0) << 2;
    QTest::newRow("bottom left") << QPointF(102.9, 117.1) << 3;
    QTest::newRow("bottom right") << QPointF(163.0, 123.0) << 4;
    QTest::newRow("middle") << QPointF(130.0, 100.0) << 5;
    QTest::newRow("edge") << QPointF(130.0, 80.0) << 5;
    QTest::newRow("just beside a handle") << QPointF(103.1, 81.0) << 5;
}

void TestRectangleItem::hover_findsTheZone()
{
    QFETCH(QPointF, position);
    for (const QEvent::Type type :
        { QEvent::GraphicsSceneHoverEnter, QEvent::GraphicsSceneHoverMove }) {
        Stage stage;
        stage.hover(position, type);
        QTEST(stage.item->hoverZone, "zone");
    }
}

void TestRectangleItem::hover_withoutHandlesKeepsTheZone()
{
    Stage stage;
    stage.hover(QPointF(130.0, 100.0));
    stage.item->handles.resize(2);
    stage.hover(QPointF(101.0, 118.0)); // bottom left: there is no handle 3
    QCOMPARE(stage.item->hoverZone, 5);
    stage.hover(QPointF(101.0, 81.0));
    QCOMPARE(stage.item->hoverZone, 1);
    stage.item->handles.clear();
    stage.hover(QPointF(130.0, 100.0));
    QCOMPARE(stage.item->hoverZone, 1);
    stage.mouse(QEvent::GraphicsSceneMousePress, QPointF(101.0, 81.0), Qt::LeftButton);
    stage.mouse(QEvent::GraphicsSceneMouseMove, QPointF(50.0, 50.0), Qt::LeftButton);
    QCOMPARE(stage.item->rect, QRectF(100.0, 80.0, 60.0, 40.0)); // nothing to resize by
    QVERIFY(stage.item->modified);
}

void TestRectangleItem::hover_leave()
{
    Stage stage;
    stage.hover(QPointF(130.0, 100.0));
    stage.hover(QPointF(0.0, 0.0), QEvent::GraphicsSceneHoverLeave);
    QCOMPARE(stage.item->hoverZone, 0);
}

void TestRectangleItem::drag_movesTheRegion()
{
    Stage stage;
    stage.pull(QPointF(130.0, 100.0), QPointF(140.5, 95.25));
    QCOMPARE(stage.item->rect, QRectF(110.5, 75.25, 60.0, 40.0));
    QVERIFY(stage.item->modified);
    QCOMPARE(stage.item->pressPosition, QPointF(140.5, 95.25));
    stage.mouse(QEvent::GraphicsSceneMouseMove, QPointF(141.5, 95.25), Qt::LeftButton);
    QCOMPARE(stage.item->rect, QRectF(111.5, 75.25, 60.0, 40.0)); // from the last step on
}

void TestRectangleItem::drag_stopsAtTheEdgeAndKeepsItsSize()
{
    Stage stage;
    stage.item->margin = 1;
    stage.pull(QPointF(130.0, 100.0), QPointF(1000.0, 100.0));
    QCOMPARE(stage.item->rect, QRectF(339.0, 80.0, 60.0, 40.0));
    stage.mouse(QEvent::GraphicsSceneMouseMove, QPointF(-5000.0, -5000.0), Qt::LeftButton);
    QCOMPARE(stage.item->rect, QRectF(1.0, 1.0, 60.0, 40.0));
}

void TestRectangleItem::drag_withoutZoneOnlyMarks()
{
    Stage stage;
    stage.mouse(QEvent::GraphicsSceneMousePress, QPointF(130.0, 100.0), Qt::LeftButton);
    stage.mouse(QEvent::GraphicsSceneMouseMove, QPointF(150.0, 100.0), Qt::LeftButton);
    QCOMPARE(stage.item->rect, QRectF(100.0, 80.0, 60.0, 40.0));
    QVERIFY(stage.item->modified);
}

void TestRectangleItem::drag_withOtherButtonsDoesNothing()
{
    Stage stage;
    stage.hover(QPointF(130.0, 100.0));
    for (const Qt::MouseButtons buttons :
        { Qt::MouseButtons(Qt::RightButton), Qt::LeftButton | Qt::RightButton }) {
        stage.mouse(QEvent::GraphicsSceneMousePress, QPointF(130.0, 100.0), buttons);
        stage.mouse(QEvent::GraphicsSceneMouseMove, QPointF(150.0, 100.0), buttons);
        QCOMPARE(stage.item->rect, QRectF(100.0, 80.0, 60.0, 40.0));
        QVERIFY(!stage.item->modified);
        QCOMPARE(stage.item->pressPosition, QPointF(0.0, 0.0));
    }
}

void TestRectangleItem::drag_resizesByEachHandle_data()
{
    QTest::addColumn<QPointF>("handle");
    QTest::addColumn<QPointF>("target");
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("top left") << QPointF(100.0, 80.0) << QPointF(90.0, 70.0)
                              << QRectF(90.0, 70.0, 70.0, 50.0);
    QTest::newRow("top right") << QPointF(160.0, 80.0) << QPointF(170.0, 70.0)
                               << QRectF(100.0, 70.0, 70.0, 50.0);
    QTest::newRow("bottom left") << QPointF(100.0, 120.0) << QPointF(90.0, 130.0)
                                 << QRectF(90.0, 80.0, 70.0, 50.0);
    QTest::newRow("bottom right") << QPointF(160.0, 120.0) << QPointF(170.0, 130.0)
                                  << QRectF(100.0, 80.0, 70.0, 50.0);
}

void TestRectangleItem::drag_resizesByEachHandle()
{
    QFETCH(QPointF, handle);
    QFETCH(QPointF, target);
    Stage stage;
    stage.pull(handle, target);
    QTEST(stage.item->rect, "rect");
}

void TestRectangleItem::drag_pastTheOppositeCornerHandsOver()
{
    Stage stage;
    stage.pull(QPointF(100.0, 80.0), QPointF(200.0, 150.0));
    QCOMPARE(stage.item->rect, QRectF(160.0, 120.0, 40.0, 30.0));
    QCOMPARE(stage.item->hoverZone, 4);
    stage.mouse(QEvent::GraphicsSceneMouseMove, QPointF(220.0, 160.0), Qt::LeftButton);
    QCOMPARE(stage.item->rect, QRectF(160.0, 120.0, 60.0, 40.0));
    stage.mouse(QEvent::GraphicsSceneMouseMove, QPointF(150.0, 160.0), Qt::LeftButton);
    QCOMPARE(stage.item->rect, QRectF(150.0, 120.0, 10.0, 40.0));
    QCOMPARE(stage.item->hoverZone, 3);
}

void TestRectangleItem::drag_isClampedToTheArea()
{
    Stage stage;
    stage.item->margin = 1;
    stage.pull(QPointF(160.0, 120.0), QPointF(9000.0, 9000.0));
    QCOMPARE(stage.item->rect, QRectF(100.0, 80.0, 299.0, 219.0));
    stage.mouse(QEvent::GraphicsSceneMouseMove, QPointF(-9000.0, -9000.0), Qt::LeftButton);
    QCOMPARE(stage.item->rect, QRectF(1.0, 1.0, 99.0, 79.0));
}

void TestRectangleItem::press_selects()
{
    Stage stage;
    stage.mouse(QEvent::GraphicsSceneMousePress, QPointF(130.0, 100.0), Qt::LeftButton);
    QVERIFY(stage.item->isSelected());
}

void TestRectangleItem::click_announcesNothing()
{
    Stage stage;
    QSignalSpy spy(stage.item, SIGNAL(changeRect(RectangleItem*, QRectF)));
    stage.hover(QPointF(130.0, 100.0));
    stage.mouse(QEvent::GraphicsSceneMousePress, QPointF(130.0, 100.0), Qt::LeftButton);
    stage.letGo(QPointF(130.0, 100.0));
    QCOMPARE(spy.size(), 0);
}

void TestRectangleItem::release_announcesOnce()
{
    Stage stage;
    QSignalSpy spy(stage.item, SIGNAL(changeRect(RectangleItem*, QRectF)));
    stage.pull(QPointF(130.0, 100.0), QPointF(140.0, 100.0));
    QCOMPARE(spy.size(), 0);
    stage.letGo(QPointF(140.0, 100.0));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().at(0).value<RectangleItem*>(), stage.item);
    QCOMPARE(spy.first().at(1).toRectF(), QRectF(110.0, 80.0, 60.0, 40.0));
    QVERIFY(!stage.item->modified);
    stage.letGo(QPointF(140.0, 100.0));
    QCOMPARE(spy.size(), 1);
}

void TestRectangleItem::release_survivesItsOwnDeletion()
{
    Stage stage;
    QObject::connect(
        stage.item, &RectangleItem::changeRect, [](RectangleItem* item) { delete item; });
    stage.pull(QPointF(130.0, 100.0), QPointF(140.0, 100.0));
    stage.letGo(QPointF(140.0, 100.0));
    QVERIFY(stage.area.childItems().isEmpty());
}

void TestRectangleItem::drag_repaintsTheParent()
{
    Stage stage;
    QTest::qWait(20);
    QSignalSpy changes(&stage.scene, SIGNAL(changed(QList<QRectF>)));
    stage.pull(QPointF(130.0, 100.0), QPointF(140.0, 100.0));
    QTRY_COMPARE(changes.size(), 1);
    QRectF area;
    const auto rects = changes.first().first().value<QList<QRectF>>();
    for (const QRectF& rect : rects) {
        area |= rect;
    }
    QVERIFY(area.contains(QRectF(0.0, 0.0, 400.0, 300.0)));
}

QTEST_MAIN(TestRectangleItem)
#include "tst_rectangleitem.moc"
