#include "canvas/imagelayoutitem.h"
#include "support/recordingpaintdevice.h"

#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsSceneWheelEvent>
#include <QGraphicsView>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QtTest>

#include <functional>

namespace {

QImage grayImage(int width, int height, int level = 100)
{
    QImage image(width, height, QImage::Format_RGB888);
    image.fill(QColor(level, level, level));
    return image;
}

/// Writes down the signals of an image item, in order, with their arguments.
class SignalLog
{
public:
    explicit SignalLog(ImageLayoutItem& item)
    {
        QObject::connect(&item, &ImageLayoutItem::changeDrawRect, [this](const QRectF& r) {
            lines
                << QString("rect %1,%2 %3x%4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
        });
        QObject::connect(&item, &ImageLayoutItem::changeImageSize, [this](const QSize& s) {
            lines << QString("size %1x%2").arg(s.width()).arg(s.height());
        });
        QObject::connect(&item, &ImageLayoutItem::changeItemBoundingRect,
            [this](const QRectF&) { lines << "bounding"; });
        QObject::connect(&item, &ImageLayoutItem::changeAnchorPosition,
            [this](const QPointF& p) { lines << QString("cross %1,%2").arg(p.x()).arg(p.y()); });
        QObject::connect(&item, &ImageLayoutItem::changeAnchorImagePosition,
            [this](const QPointF& p) { lines << QString("anchor %1,%2").arg(p.x()).arg(p.y()); });
    }

    QStringList lines;
};

/// Deletes an item from within one of its signals.
class Deleter : public QObject
{
    Q_OBJECT

public:
    explicit Deleter(ImageLayoutItem* doomed)
        : item(doomed)
    {
    }

    QPointer<ImageLayoutItem> item;

public Q_SLOTS:
    void run() { delete item; }
};

/// An image item in a scene, with whole-number helpers for events.
struct Stage
{
    explicit Stage(int width, int height)
        : image(grayImage(width, height))
        , item(new ImageLayoutItem(&image))
    {
        scene.addItem(item);
    }

    void press(const QPointF& position, Qt::MouseButton button = Qt::LeftButton,
        Qt::MouseButtons buttons = Qt::LeftButton)
    {
        QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMousePress);
        event.setScenePos(position);
        event.setPos(position);
        event.setButton(button);
        event.setButtons(buttons);
        scene.sendEvent(item, &event);
    }

    void wheel(int delta)
    {
        QGraphicsSceneWheelEvent event(QEvent::GraphicsSceneWheel);
        event.setDelta(delta);
        scene.sendEvent(item, &event);
    }

    QImage image;
    QGraphicsScene scene;
    ImageLayoutItem* item; // owned by the scene
};

} // namespace

class TestImageLayoutItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void metaObject_listsSignalsAndSlotsInOrder();
    void startsWithoutImage();
    void isItsOwnLayoutItem();
    void setImage_announcesInOrder();
    void setImage_computesTheScales();
    void setImage_nullIsSilent();
    void setImage_ofANullImageCountsAsNoImage();
    void setSize_adaptsTheContent();
    void setSize_ofAThinImage();
    void setSize_withoutImageOnlyMovesTheCross();
    void setSize_belowFourUnitsStopsZoomAndScroll();
    void zoomIn_isLimitedToTheLargestScale();
    void zoomIn_and_zoomOut_announceTheView();
    void zoom_ofAnImageSmallerThanTheLargestScale();
    void scroll_usesTheDirectionOnly();
    void scroll_announcesTheAnchorFirst();
    void scroll_withoutDistanceDoesNothing();
    void scroll_stopsWhenTheImageIsTakenAway();
    void scroll_stopsWhenTheSameImageObjectIsSetAgain();
    void zoomOut_isRaisedToTheFittingScale();
    void setImage_usesTheArmLengthOfTheCross();
    void setImage_receiversMayComeBack();
    void resetAnchor_withoutImageDoesNothing();
    void receiverMayDeleteTheItem_data();
    void receiverMayDeleteTheItem();
    void repaintsAfterPressViewChangeAndNewPixels();
    void withoutImage_everyViewChangeDoesNothing();
    void press_placesTheAnchor();
    void press_snapsAtScale12();
    void press_withOtherButtonsDoesNothing_data();
    void press_withOtherButtonsDoesNothing();
    void press_onTheNearFrameDoesNothing();
    void press_withoutImageSetsTheOrigin();
    void press_writesTheMapping();
    void wheel_zooms_data();
    void wheel_zooms();
    void updateImage_refreshesThePixmap();
    void paint_drawsTheVisiblePartOverTheFrame();
    void paint_withoutImageDrawsTheFrameOnly();
    void layout_hints();
    void inAView_realPressAndWheel();
    void regions_areMappedThroughTheView();
    void regions_areMappedWithALineEach();
    void regions_withoutImageAreNull();
};

void TestImageLayoutItem::init()
{
    // The two debug lines have tests of their own.
    QLoggingCategory::setFilterRules("*.debug=false");
}

void TestImageLayoutItem::metaObject_listsSignalsAndSlotsInOrder()
{
    const QMetaObject& meta = ImageLayoutItem::staticMetaObject;
    QStringList methods;
    QStringList parameters;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods << meta.method(i).methodSignature();
        parameters << meta.method(i).parameterNames().join(',');
        const bool isSignal = i - meta.methodOffset() < 5;
        QCOMPARE(meta.method(i).methodType(), isSignal ? QMetaMethod::Signal : QMetaMethod::Slot);
    }
    QCOMPARE(parameters,
        (QStringList { "rect", "size", "rect", "anchor", "anchorImage", "", "", "", "", "distance",
            "distance" }));
    QCOMPARE(methods,
        (QStringList { "changeDrawRect(QRectF)", "changeImageSize(QSize)",
            "changeItemBoundingRect(QRectF)", "changeAnchorPosition(QPointF)",
            "changeAnchorImagePosition(QPointF)", "fit()", "zoomIn()", "zoomOut()", "updateImage()",
            "scrollDistanceVertical(int)", "scrollDistanceHorizontal(int)" }));
}

void TestImageLayoutItem::startsWithoutImage()
{
    ImageLayoutItem item(nullptr);
    QCOMPARE(item.size, QSizeF(400.0, 400.0));
    QVERIFY(item.image == nullptr);
    QVERIFY(item.pixmap.isNull());
    QVERIFY(item.scale == 1.0);
    QVERIFY(item.minScale == 0.1);
    QVERIFY(item.maxScale == 2.0);
    QCOMPARE(item.drawRect, QRectF(0.0, 0.0, 0.0, 0.0));
    QCOMPARE(item.anchor, QPointF(0.0, 0.0));
    QVERIFY(item.flags() & QGraphicsItem::ItemClipsChildrenToShape);
    QCOMPARE(item.cross.parentItem(), static_cast<QGraphicsItem*>(&item));
}

void TestImageLayoutItem::isItsOwnLayoutItem()
{
    ImageLayoutItem item(nullptr);
    QGraphicsLayoutItem* const layoutPart = &item;
    QCOMPARE(layoutPart->graphicsItem(), static_cast<QGraphicsItem*>(&item));
    QVERIFY(!layoutPart->isLayout());
    QCOMPARE(
        item.qt_metacast("org.qt-project.Qt.QGraphicsLayoutItem"), static_cast<void*>(layoutPart));
}

void TestImageLayoutItem::setImage_announcesInOrder()
{
    ImageLayoutItem item(nullptr);
    SignalLog log(item);
    QImage image = grayImage(1000, 500);
    item.setImage(&image);
    // Still in a 400 x 400 content: 0.4 across, 0.8 down. Fitting moves the cross with the old
    // anchor (0, 0); the new one is (500, 499), at ceil(499 x 400 / 500) = ceil(399.2).
    QCOMPARE(log.lines,
        (QStringList { "size 1000x500", "cross 0,0", "rect 0,0 1000x500", "cross 0,0",
            "cross 200,400", "anchor 500,499" }));
    QCOMPARE(item.cross.position, QPointF(200.0, 400.0));
    QCOMPARE(item.cross.previousPosition, QPointF(0.0, 0.0));
}

void TestImageLayoutItem::setImage_computesTheScales()
{
    Stage stage(1000, 500);
    QVERIFY(stage.item->minScale == 0.4);
    QVERIFY(stage.item->maxScale == 40.0);
    QVERIFY(stage.item->scale == 0.4);
    QCOMPARE(stage.item->drawRect, QRectF(0.0, 0.0, 1000.0, 500.0));
    QCOMPARE(stage.item->pixmap.size(), QSize(1000, 500));

    QImage single = grayImage(1, 1);
    stage.item->setImage(&single);
    QCOMPARE(stage.item->anchor, QPointF(0.0, 0.0));
}

void TestImageLayoutItem::setImage_nullIsSilent()
{
    Stage stage(400, 400);
    SignalLog log(*stage.item);
    stage.item->setImage(nullptr);
    QCOMPARE(log.lines, QStringList());
    QVERIFY(stage.item->image == nullptr);
    QVERIFY(stage.item->scale == 1.0); // the view of the last image stays
    QCOMPARE(stage.item->drawRect, QRectF(0.0, 0.0, 400.0, 400.0));
}

void TestImageLayoutItem::setImage_ofANullImageCountsAsNoImage()
{
    Stage stage(400, 400);
    QImage nothing;
    stage.item->setImage(&nothing);
    SignalLog log(*stage.item);
    stage.item->zoomIn();
    stage.item->scrollDistanceHorizontal(1);
    stage.item->fit();
    QCOMPARE(log.lines, QStringList());
}

void TestImageLayoutItem::setSize_adaptsTheContent()
{
    Stage stage(1000, 500);
    QLoggingCategory::setFilterRules(QString());
    QTest::ignoreMessage(QtDebugMsg, "[changeContentsSize]con width: 400, con height: 200\n");
    SignalLog log(*stage.item);
    stage.item->setSize(400.0, 400.0);
    QCOMPARE(stage.item->size, QSizeF(400.0, 200.0));
    QCOMPARE(stage.item->pos(), QPointF(0.0, 0.0));
    QCOMPARE(stage.item->geometry(), QRectF(0.0, 0.0, 401.0, 201.0));
    // ceil(499 x 200 / 500) = ceil(199.6)
    QCOMPARE(log.lines,
        (QStringList { "size 1000x500", "cross 200,200", "rect 0,0 1000x500", "cross 200,200" }));
}

void TestImageLayoutItem::setSize_ofAThinImage()
{
    Stage stage(2000, 100); // 20 : 1 in 400 x 20: raised to 4 : 1
    stage.item->setSize(400.0, 400.0);
    QCOMPARE(stage.item->size, QSizeF(400.0, 100.0));
    QVERIFY(stage.item->minScale == 0.2); // 400 / 2000, below 100 / 100
    QCOMPARE(stage.item->boundingRect(), QRectF(0.0, 0.0, 402.0, 102.0));
}

void TestImageLayoutItem::setSize_withoutImageOnlyMovesTheCross()
{
    ImageLayoutItem item(nullptr);
    SignalLog log(item);
    item.setSize(300.0, 100.0);
    QCOMPARE(item.size, QSizeF(300.0, 100.0));
    QCOMPARE(log.lines, QStringList { "cross 0,0" });
}

void TestImageLayoutItem::setSize_belowFourUnitsStopsZoomAndScroll()
{
    Stage stage(100, 30);
    stage.item->setSize(4.0, 1.0);
    QCOMPARE(stage.item->size, QSizeF(4.0, 0.0));
    QVERIFY(stage.item->scale == 0.0);
    SignalLog log(*stage.item);
    stage.item->zoomIn();
    stage.item->zoomOut();
    stage.item->scrollDistanceHorizontal(5);
    stage.item->scrollDistanceVertical(-5);
    QCOMPARE(log.lines, QStringList());
    stage.item->fit();
    QCOMPARE(log.lines, (QStringList { "cross 2,0", "rect 0,0 100x30" }));
    stage.item->setSize(400.0, 400.0);
    QCOMPARE(stage.item->size, QSizeF(400.0, 120.0));
    QVERIFY(stage.item->scale == 4.0);
}

void TestImageLayoutItem::zoomIn_isLimitedToTheLargestScale()
{
    Stage stage(400, 400);
    stage.item->scale = 30.0;
    stage.item->zoomIn();
    QVERIFY(stage.item->scale == 40.0);
    SignalLog log(*stage.item);
    stage.item->zoomIn();
    QVERIFY(stage.item->scale == 40.0);
    QCOMPARE(log.lines, QStringList());
}

void TestImageLayoutItem::zoomIn_and_zoomOut_announceTheView()
{
    Stage stage(400, 400);
    stage.item->anchor = QPointF(200.0, 200.0);
    stage.item->fit(); // puts the cross at (200, 200)
    SignalLog log(*stage.item);
    stage.item->zoomIn();
    // Pixels 67 .. 332 over 400 units: ceil(133 x 400 / 266) = 200.
    QCOMPARE(log.lines, (QStringList { "cross 200,200", "rect 67,67 266x266" }));
    log.lines.clear();
    stage.item->zoomOut();
    // int((266 - 400) x 200 / 400) + 67 = 0
    QCOMPARE(log.lines, (QStringList { "cross 200,200", "rect 0,0 400x400" }));
    log.lines.clear();
    stage.item->zoomOut();
    QCOMPARE(log.lines, QStringList());
}

void TestImageLayoutItem::zoom_ofAnImageSmallerThanTheLargestScale()
{
    Stage stage(1, 1); // fits at 400 units a pixel, above the largest scale of 40
    SignalLog log(*stage.item);
    stage.item->zoomIn();
    stage.item->zoomOut();
    QVERIFY(stage.item->scale == 400.0);
    QCOMPARE(log.lines, QStringList());
}

void TestImageLayoutItem::scroll_usesTheDirectionOnly()
{
    Stage stage(400, 400);
    stage.item->anchor = QPointF(200.0, 200.0);
    stage.item->fit();
    stage.item->zoomIn();
    QCOMPARE(stage.item->drawRect.topLeft(), QPointF(67.0, 67.0));
    stage.item->scrollDistanceHorizontal(3);
    QCOMPARE(stage.item->drawRect, QRectF(77.0, 67.0, 266.0, 266.0));
    stage.item->scrollDistanceHorizontal(300);
    QCOMPARE(stage.item->drawRect, QRectF(87.0, 67.0, 266.0, 266.0));
    stage.item->scrollDistanceVertical(-1);
    QCOMPARE(stage.item->drawRect, QRectF(87.0, 57.0, 266.0, 266.0));

    // At 400 / 1000 = 0.4 and one step in, 0.6, the step is 40.
    Stage large(1000, 1000);
    large.item->anchor = QPointF(500.0, 500.0);
    large.item->fit();
    large.item->zoomIn();
    const qreal left = large.item->drawRect.left();
    large.item->scrollDistanceHorizontal(3);
    QVERIFY(large.item->drawRect.left() == left + 40.0);
    large.item->scrollDistanceHorizontal(-300);
    QVERIFY(large.item->drawRect.left() == left);
}

void TestImageLayoutItem::scroll_announcesTheAnchorFirst()
{
    Stage stage(400, 400);
    stage.item->anchor = QPointF(85.0, 200.0);
    stage.item->scale = 2.0;
    stage.item->drawRect = QRectF(70.0, 100.0, 200.0, 200.0);
    SignalLog log(*stage.item);
    stage.item->scrollDistanceHorizontal(1);
    // View 80 .. 279; an arm is 10 pixels, the anchor 5 behind the edge: 10 - 1 + 80.
    QCOMPARE(log.lines, (QStringList { "anchor 89,200", "cross 18,200", "rect 80,100 200x200" }));
}

void TestImageLayoutItem::scroll_withoutDistanceDoesNothing()
{
    Stage stage(400, 400);
    SignalLog log(*stage.item);
    stage.item->scrollDistanceHorizontal(0);
    stage.item->scrollDistanceVertical(0);
    QCOMPARE(log.lines, QStringList());
}

void TestImageLayoutItem::scroll_stopsWhenTheImageIsTakenAway()
{
    Stage stage(400, 400);
    SignalLog log(*stage.item);
    QObject::connect(stage.item, &ImageLayoutItem::changeAnchorImagePosition, stage.item,
        [&stage]() { stage.item->setImage(nullptr); });
    stage.item->scrollDistanceHorizontal(1);
    QCOMPARE(log.lines, QStringList { "anchor 200,399" });
}

void TestImageLayoutItem::scroll_stopsWhenTheSameImageObjectIsSetAgain()
{
    Stage stage(400, 400);
    stage.item->zoomIn();
    bool again = false;
    QObject::connect(
        stage.item, &ImageLayoutItem::changeAnchorImagePosition, stage.item, [&stage, &again]() {
            if (!again) {
                again = true;
                stage.item->setImage(nullptr);
                stage.image = grayImage(4, 2);
                stage.item->setImage(&stage.image);
            }
        });
    stage.item->scrollDistanceHorizontal(1);
    QCOMPARE(stage.item->drawRect, QRectF(0.0, 0.0, 4.0, 2.0));
}

void TestImageLayoutItem::zoomOut_isRaisedToTheFittingScale()
{
    Stage stage(400, 400);
    stage.item->scale = 1.2;
    stage.item->zoomOut(); // 0.8 would leave room around the image
    QVERIFY(stage.item->scale == 1.0);
}

void TestImageLayoutItem::setImage_usesTheArmLengthOfTheCross()
{
    Stage stage(400, 400);
    stage.item->cross.halfLength = 10;
    stage.item->setImage(&stage.image);
    QVERIFY(stage.item->maxScale == 20.0);
}

void TestImageLayoutItem::setImage_receiversMayComeBack()
{
    // Neither a repaint nor new pixels from within a signal may wait for the item's own lock.
    Stage stage(400, 400);
    int visits = 0;
    QObject::connect(stage.item, &ImageLayoutItem::changeImageSize, stage.item, [&]() {
        stage.item->updateImage();
        QImage canvas(100, 100, QImage::Format_RGB32);
        QPainter painter(&canvas);
        stage.scene.render(&painter);
        ++visits;
    });
    stage.item->setImage(&stage.image);
    QCOMPARE(visits, 1);
}

void TestImageLayoutItem::resetAnchor_withoutImageDoesNothing()
{
    ImageLayoutItem item(nullptr);
    item.anchor = QPointF(3.0, 4.0);
    SignalLog log(item);
    item.resetAnchor();
    QCOMPARE(log.lines, QStringList());
    QCOMPARE(item.anchor, QPointF(3.0, 4.0));
}

void TestImageLayoutItem::receiverMayDeleteTheItem_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QByteArray>("signal");
    const QByteArray size = SIGNAL(changeImageSize(QSize));
    const QByteArray rect = SIGNAL(changeDrawRect(QRectF));
    const QByteArray cross = SIGNAL(changeAnchorPosition(QPointF));
    const QByteArray anchor = SIGNAL(changeAnchorImagePosition(QPointF));
    const auto row = [](const char* action, const QByteArray& signal) {
        QTest::newRow(action + signal) << action << signal;
    };
    row("scroll", anchor);
    row("scroll", cross);
    row("scroll", rect);
    row("zoom", cross);
    row("zoom", rect);
    row("press", cross);
    row("press", anchor);
    row("setSize", size);
    row("setSize", cross);
    row("setSize", rect);
    row("setImage", size);
    row("setImage", cross);
    row("setImage", rect);
    row("setImage", anchor);
    row("resetAnchor", cross);
    row("resetAnchor", anchor);
    row("fit", cross);
}

void TestImageLayoutItem::receiverMayDeleteTheItem()
{
    QFETCH(QString, action);
    QFETCH(QByteArray, signal);
    QImage image = grayImage(400, 400);
    QGraphicsScene scene;
    auto* const item = new ImageLayoutItem(&image);
    scene.addItem(item);
    const QPointer<ImageLayoutItem> guard(item);
    Deleter deleter { item };
    QObject::connect(item, signal.constData(), &deleter, SLOT(run()));
    if (action == "scroll") {
        item->scrollDistanceHorizontal(1);
    } else if (action == "zoom") {
        item->zoomIn();
    } else if (action == "press") {
        QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMousePress);
        event.setPos(QPointF(30.0, 40.0));
        event.setButton(Qt::LeftButton);
        event.setButtons(Qt::LeftButton);
        scene.sendEvent(item, &event);
    } else if (action == "setSize") {
        item->setSize(300.0, 300.0);
    } else if (action == "setImage") {
        item->setImage(&image);
    } else if (action == "resetAnchor") {
        item->resetAnchor();
    } else {
        item->fit();
    }
    QVERIFY(guard.isNull());
}

void TestImageLayoutItem::repaintsAfterPressViewChangeAndNewPixels()
{
    Stage stage(200, 200);
    QSignalSpy changes(&stage.scene, SIGNAL(changed(QList<QRectF>)));
    const auto repaints = [&changes](const std::function<void()>& action) {
        QCoreApplication::processEvents();
        changes.clear();
        action();
        QCoreApplication::processEvents();
        return !changes.isEmpty();
    };
    QVERIFY(!repaints([] {}));
    QVERIFY(repaints([&] { stage.press(QPointF(50.0, 50.0)); }));
    QVERIFY(repaints([&] { stage.item->zoomIn(); }));
    QVERIFY(repaints([&] { stage.item->scrollDistanceVertical(-1); }));
    QVERIFY(repaints([&] { stage.item->fit(); }));
    QVERIFY(repaints([&] { stage.item->updateImage(); }));
    QVERIFY(repaints([&] { stage.item->resetAnchor(); })); // the cross lies outside its own bounds
}

void TestImageLayoutItem::withoutImage_everyViewChangeDoesNothing()
{
    ImageLayoutItem item(nullptr);
    SignalLog log(item);
    item.fit();
    item.zoomIn();
    item.zoomOut();
    item.scrollDistanceHorizontal(1);
    item.scrollDistanceVertical(-1);
    item.updateImage();
    QCOMPARE(log.lines, QStringList());
    QVERIFY(item.scale == 1.0);
}

void TestImageLayoutItem::press_placesTheAnchor()
{
    Stage stage(200, 200); // two units a pixel
    SignalLog log(*stage.item);
    stage.press(QPointF(101.0, 301.0));
    // int(0.5 x (101 - 1)), int(0.5 x (301 - 1))
    QCOMPARE(log.lines, (QStringList { "cross 101,301", "anchor 50,150" }));
    QCOMPARE(stage.item->anchor, QPointF(50.0, 150.0));
    QCOMPARE(stage.item->cross.position, QPointF(101.0, 301.0));
    QCOMPARE(stage.item->cross.previousPosition, QPointF(200.0, 398.0)); // of (100, 199)
}

void TestImageLayoutItem::press_snapsAtScale12()
{
    // 480 units for 40 pixels: 12 units a pixel, 40 cells.
    Stage stage(40, 40);
    stage.item->setSize(480.0, 480.0);
    QVERIFY(stage.item->scale == 12.0);
    for (const qreal inside : { 121.0, 124.5, 131.9 }) {
        stage.press(QPointF(inside, inside));
        QCOMPARE(stage.item->cross.position, QPointF(126.0, 126.0));
        QCOMPARE(stage.item->anchor, QPointF(10.0, 10.0)); // int(40 / 480 x 125)
    }
}

void TestImageLayoutItem::press_withOtherButtonsDoesNothing_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("buttons");
    QTest::newRow("right") << int(Qt::RightButton) << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton) << int(Qt::MiddleButton);
    QTest::newRow("left with right held")
        << int(Qt::LeftButton) << int(Qt::LeftButton | Qt::RightButton);
}

void TestImageLayoutItem::press_withOtherButtonsDoesNothing()
{
    QFETCH(int, button);
    QFETCH(int, buttons);
    Stage stage(200, 200);
    SignalLog log(*stage.item);
    stage.press(QPointF(100.0, 100.0), Qt::MouseButton(button), Qt::MouseButtons(buttons));
    QCOMPARE(log.lines, QStringList());
}

void TestImageLayoutItem::press_onTheNearFrameDoesNothing()
{
    Stage stage(200, 200);
    SignalLog log(*stage.item);
    stage.press(QPointF(0.5, 100.0));
    stage.press(QPointF(100.0, 0.5));
    stage.press(QPointF(400.5, 100.0));
    QCOMPARE(log.lines, QStringList());
    stage.press(QPointF(1.0, 1.0)); // edges included
    stage.press(QPointF(400.0, 400.0));
    QCOMPARE(
        log.lines, (QStringList { "cross 1,1", "anchor 0,0", "cross 400,400", "anchor 199,199" }));
}

void TestImageLayoutItem::press_withoutImageSetsTheOrigin()
{
    QGraphicsScene scene;
    auto* item = new ImageLayoutItem(nullptr);
    scene.addItem(item);
    item->anchor = QPointF(3.0, 4.0);
    SignalLog log(*item);
    QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMousePress);
    event.setPos(QPointF(30.0, 40.0));
    event.setButton(Qt::LeftButton);
    event.setButtons(Qt::LeftButton);
    scene.sendEvent(item, &event);
    QCOMPARE(log.lines, (QStringList { "cross 30,40", "anchor 0,0" }));
}

void TestImageLayoutItem::press_writesTheMapping()
{
    Stage stage(200, 200);
    QLoggingCategory::setFilterRules(QString());
    QTest::ignoreMessage(
        QtDebugMsg, "[mapToPixel]sacle: 2.00000, anchor[100.0, 300.0], pos[50, 150]\n");
    stage.press(QPointF(101.0, 301.0));
}

void TestImageLayoutItem::wheel_zooms_data()
{
    QTest::addColumn<int>("delta");
    QTest::addColumn<double>("scale");
    QTest::newRow("one notch") << 120 << 3.0;
    QTest::newRow("smallest") << 1 << 3.0;
    QTest::newRow("nothing zooms out") << 0 << 2.0 / 1.5;
    QTest::newRow("back") << -120 << 2.0 / 1.5;
}

void TestImageLayoutItem::wheel_zooms()
{
    QFETCH(int, delta);
    QFETCH(double, scale);
    Stage stage(400, 400);
    stage.item->scale = 2.0;
    stage.item->drawRect = QRectF(100.0, 100.0, 200.0, 200.0);
    stage.wheel(delta);
    QVERIFY(stage.item->scale == scale);
}

void TestImageLayoutItem::updateImage_refreshesThePixmap()
{
    Stage stage(403, 7); // rows padded to a multiple of four bytes
    QCOMPARE(stage.item->pixmap.toImage().pixelColor(402, 6), QColor(100, 100, 100));
    stage.image.fill(QColor(1, 2, 3));
    SignalLog log(*stage.item);
    stage.item->updateImage();
    QCOMPARE(stage.item->pixmap.toImage().pixelColor(0, 0), QColor(1, 2, 3));
    QCOMPARE(stage.item->pixmap.toImage().pixelColor(402, 6), QColor(1, 2, 3));
    QCOMPARE(log.lines, QStringList());
}

void TestImageLayoutItem::paint_drawsTheVisiblePartOverTheFrame()
{
    Stage stage(400, 400);
    stage.item->drawRect = QRectF(100.0, 50.0, 200.0, 200.0);
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    stage.item->paint(&painter, nullptr, nullptr);
    QCOMPARE(recorded.entries().size(), 2);
    QCOMPARE(recorded.entries().at(0).rect, QRectF(0.0, 0.0, 401.0, 401.0));
    QCOMPARE(recorded.entries().at(1).kind, RecordingPaintDevice::Pixmap);
    QCOMPARE(recorded.entries().at(1).rect, QRectF(1.0, 1.0, 400.0, 400.0));
    QCOMPARE(recorded.entries().at(1).source, QRectF(100.0, 50.0, 200.0, 200.0));
}

void TestImageLayoutItem::paint_withoutImageDrawsTheFrameOnly()
{
    Stage stage(400, 400);
    stage.item->setImage(nullptr); // the pixmap is still there
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    stage.item->paint(&painter, nullptr, nullptr);
    QCOMPARE(recorded.entries().size(), 1);
    QCOMPARE(recorded.entries().first().kind, RecordingPaintDevice::Rect);
}

void TestImageLayoutItem::layout_hints()
{
    ImageLayoutItem item(nullptr);
    const QSizeF constraint(7.0, 9.0);
    QCOMPARE(item.sizeHint(Qt::MinimumSize, constraint), QSizeF(0.0, 0.0));
    QCOMPARE(item.sizeHint(Qt::PreferredSize, constraint), QSizeF(402.0, 402.0));
    QCOMPARE(item.sizeHint(Qt::MaximumSize, constraint), QSizeF(1000.0, 1000.0));
    QCOMPARE(item.sizeHint(Qt::MinimumDescent, constraint), constraint);
    item.setGeometry(QRectF(30.0, 40.0, 50.0, 60.0));
    QCOMPARE(item.pos(), QPointF(30.0, 40.0));
    QCOMPARE(item.size, QSizeF(400.0, 400.0));
}

void TestImageLayoutItem::inAView_realPressAndWheel()
{
    Stage stage(200, 200);
    stage.item->setPos(50.0, 60.0);
    QGraphicsView view(&stage.scene);
    view.setSceneRect(0.0, 0.0, 600.0, 600.0);
    view.setFixedSize(620, 620);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    const QPoint pressed = view.mapFromScene(QPointF(50.0 + 101.0, 60.0 + 201.0));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, pressed);
    QCOMPARE(stage.item->anchor, QPointF(50.0, 100.0));

    QWheelEvent wheel(pressed, view.viewport()->mapToGlobal(pressed), QPoint(), QPoint(0, 120),
        Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view.viewport(), &wheel);
    QVERIFY(stage.item->scale == 3.0);
}

void TestImageLayoutItem::regions_areMappedThroughTheView()
{
    QImage picture(800, 400, QImage::Format_RGB888);
    ImageLayoutItem item(&picture); // 400 x 200, half a unit a pixel
    item.setSize(400.0, 400.0);
    QCOMPARE(item.size, QSizeF(400.0, 200.0));
    QCOMPARE(item.imageExtent(), QRectF(0.0, 0.0, 400.0, 200.0));
    QCOMPARE(item.mapRectFromImage(QRectF(101.0, 40.0, 51.0, 20.0)),
        QRectF(51.0, 20.0, 26.0, 11.0)); // corners ceil(50.5), ceil(75.5), 20, ceil(29.5)
    QRectF unsnapped(10.25, 10.25, 5.0, 5.0);
    item.snapRect(unsnapped);
    QCOMPARE(unsnapped, QRectF(10.25, 10.25, 5.0, 5.0));
    QCOMPARE(item.mapRectToImage(QRectF(51.0, 20.0, 26.0, 11.0)),
        QRectF(102.0, 40.0, 53.0, 23.0)); // pixels 102 to 154, 40 to 62

    item.scale = 12.0; // 33 columns and 16 rows
    QRectF snapped(10.25, 10.25, 5.0, 5.0);
    item.snapRect(snapped);
    const double column = 400.0 / 33.0;
    QCOMPARE(snapped, QRectF(column / 2.0, 6.25, column, 12.5));
    item.setImage(nullptr);
}

void TestImageLayoutItem::regions_areMappedWithALineEach()
{
    QImage picture(800, 400, QImage::Format_RGB888);
    ImageLayoutItem item(&picture);
    item.setSize(400.0, 400.0);
    QLoggingCategory::setFilterRules("*.debug=true");
    QTest::ignoreMessage(
        QtDebugMsg, "[mapToPixel]sacle: 0.50000, anchor[51.0, 20.0], pos[102, 40]\n");
    QTest::ignoreMessage(
        QtDebugMsg, "[mapToPixel]sacle: 0.50000, anchor[77.0, 31.0], pos[154, 62]\n");
    item.mapRectToImage(QRectF(51.0, 20.0, 26.0, 11.0));
    QLoggingCategory::setFilterRules("*.debug=false");
    item.setImage(nullptr);
}

void TestImageLayoutItem::regions_withoutImageAreNull()
{
    ImageLayoutItem item(nullptr);
    QVERIFY(item.imageExtent().isNull());
    QVERIFY(item.mapRectFromImage(QRectF(1.0, 2.0, 3.0, 4.0)).isNull());
    QVERIFY(item.mapRectToImage(QRectF(1.0, 2.0, 3.0, 4.0)).isNull());
    QImage picture(800, 400, QImage::Format_RGB888);
    item.setImage(&picture);
    item.setSize(0.0, 0.0);
    QVERIFY(item.mapRectToImage(QRectF(1.0, 2.0, 3.0, 4.0)).isNull());
    QRectF rect(1.0, 2.0, 3.0, 4.0);
    item.snapRect(rect);
    item.setImage(nullptr);
}

QTEST_MAIN(TestImageLayoutItem)
#include "tst_imagelayoutitem.moc"
