#include "canvas/imagelayoutitem.h"

#include <QGraphicsScene>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QImage>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <limits>

namespace {

/// Tells how many slots a change of view runs.
class CountingImageItem : public ImageLayoutItem
{
public:
    CountingImageItem()
        : ImageLayoutItem(nullptr)
    {
    }

    int viewReceivers() const { return receivers(SIGNAL(changeDrawRect(QRectF))); }
};

/// An image item with an image in a scene, and everything that its regions announce, in order.
struct Stage
{
    explicit Stage(const QSize& imageSize, const QSizeF& itemSize = QSizeF(400.0, 400.0))
        : picture(imageSize, QImage::Format_RGB888)
    {
        picture.fill(Qt::gray);
        scene.addItem(image);
        image->setImage(&picture);
        image->setSize(itemSize.width(), itemSize.height());
        QObject::connect(&regions, &RectangleItems::updateItemNames, image,
            [this](const QStringList& names) { heard << "names " + names.join(','); });
        QObject::connect(&regions, &RectangleItems::updateSelectedRoi, image,
            [this](int index) { heard << QString("selected %1").arg(index); });
    }

    QStringList takeHeard()
    {
        const QStringList taken = heard;
        heard.clear();
        return taken;
    }

    void send(
        RectangleItem* item, QEvent::Type type, const QPointF& position, Qt::MouseButtons buttons)
    {
        if (type == QEvent::GraphicsSceneHoverMove) {
            QGraphicsSceneHoverEvent event(type);
            event.setPos(position);
            scene.sendEvent(item, &event);
            return;
        }
        QGraphicsSceneMouseEvent event(type);
        event.setPos(position);
        event.setButton(Qt::LeftButton);
        event.setButtons(buttons);
        scene.sendEvent(item, &event);
    }

    void drag(RectangleItem* item, const QPointF& from, const QPointF& to)
    {
        const QPointer<RectangleItem> there(item);
        send(item, QEvent::GraphicsSceneHoverMove, from, Qt::NoButton);
        send(item, QEvent::GraphicsSceneMousePress, from, Qt::LeftButton);
        send(item, QEvent::GraphicsSceneMouseMove, to, Qt::LeftButton);
        if (there) {
            send(item, QEvent::GraphicsSceneMouseRelease, to, Qt::NoButton);
        }
    }

    QImage picture;
    QGraphicsScene scene;
    CountingImageItem* image = new CountingImageItem;
    RectangleItems& regions = image->rectangles;
    QStringList heard;
};

} // namespace

class TestRectangleItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void metaObject();
    void add_centresTheFirstRegion();
    void add_atOneUnitAPixel();
    void add_shrinksTheDefaultForGood();
    void add_ofAnImpossibleDefault_data();
    void add_ofAnImpossibleDefault();
    void add_withoutImage();
    void add_preparesTheItem();
    void add_announcesInOrder();
    void add_reachesAboveSmallImages_data();
    void add_reachesAboveSmallImages();
    void add_toAnImageOfOnePixel();
    void delete_renumbersAndSelectsTheFirst();
    void delete_theLastOneSelectsNothing();
    void indicesOutsideAreIgnored();
    void select_isExclusive();
    void clear_isSilentAndKeepsTheNames();
    void drag_announcesTheImageRectangle();
    void drag_ofAnotherThanTheSelectedOne();
    void changedRoi_ignoresWhatItDoesNotKnow();
    void snapping_atScale12();
    void snapping_aboveScale12();
    void viewChange_keepsTheImageRectangles();
    void viewChange_runsOncePerAdd();
    void viewChange_noticesWhatSomebodyMoved();
    void viewChange_noticesAChangedMargin();
    void viewChange_ofNothingIsIgnored();
    void regions_outliveALargerImage();
    void regions_withoutContent();
    void itemsDestroyedByOthersAreDropped();
    void deletion_duringADrag();
    void deletion_inItsOwnSignals();
    void signals_mayComeBackIntoEverySlot();
    void names_takeThePrefix();
};

void TestRectangleItems::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
}

void TestRectangleItems::metaObject()
{
    const QMetaObject& meta = RectangleItems::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods << meta.method(i).methodSignature() + '|'
                + meta.method(i).parameterNames().join(',');
    }
    QCOMPARE(methods,
        (QStringList { "updateSelectedRoi(int,QRectF)|selected,rect",
            "updateItemNames(QStringList)|itemNames", "addItem()|", "deleteItem(int)|index",
            "selectItem(int)|index", "changedItemBoundingRect(QRectF)|rect",
            "changedRoi(RectangleItem*,QRectF)|item,rect" }));
}

void TestRectangleItems::add_centresTheFirstRegion()
{
    Stage stage(QSize(1000, 800)); // content 400 x 320, 0.4 units a pixel
    QCOMPARE(stage.image->size, QSizeF(400.0, 320.0));
    stage.regions.addItem();
    // (350, 250, 300, 300): corners 350, 649 and 250, 549 become 140, ceil(259.6) = 260, 100 and
    // ceil(219.6) = 220.
    QCOMPARE(stage.regions.items.first()->rect, QRectF(140.0, 100.0, 121.0, 121.0));
    // Back: int(2.5 x 140), int(2.5 x 261 = 652.5), int(2.5 x 100), int(2.5 x 221 = 552.5).
    QCOMPARE(stage.regions.rects.first(), QRectF(350.0, 250.0, 303.0, 303.0));
    QCOMPARE(stage.regions.names, QStringList { "ROI 1" });
}

void TestRectangleItems::add_atOneUnitAPixel()
{
    Stage stage(QSize(1000, 800), QSizeF(1000.0, 800.0));
    QVERIFY(stage.image->scale == 1.0);
    stage.regions.addItem();
    // int(1000 - 300) / 2 and int(800 - 300) / 2, in units as in pixels
    QCOMPARE(stage.regions.items.first()->rect, QRectF(350.0, 250.0, 300.0, 300.0));
    QCOMPARE(stage.regions.rects.first(), QRectF(350.0, 250.0, 301.0, 301.0)); // to 650 and 550
}

void TestRectangleItems::add_shrinksTheDefaultForGood()
{
    Stage stage(QSize(200, 100));
    stage.regions.addItem();
    QCOMPARE(stage.regions.defaultSize, QSizeF(25.0, 12.0));
    QImage larger(1000, 800, QImage::Format_RGB888);
    stage.image->setImage(&larger);
    stage.image->setSize(400.0, 400.0);
    stage.regions.addItem();
    QCOMPARE(stage.regions.defaultSize, QSizeF(25.0, 12.0));
    // int(1000 - 25) / 2 = 487, int(800 - 12) / 2 = 394: corners 487 to 511 become ceil(194.8) and
    // ceil(204.4), 394 to 405 become ceil(157.6) and ceil(162).
    QCOMPARE(stage.regions.items.last()->rect, QRectF(195.0, 158.0, 11.0, 5.0));
    stage.image->setImage(nullptr);
}

void TestRectangleItems::add_ofAnImpossibleDefault_data()
{
    QTest::addColumn<double>("extent");
    QTest::addColumn<double>("origin");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0.0;
    // Half of 2^30 on, which is moved to the last but one column of the image.
    QTest::newRow("far below zero") << -1e300 << 398.0;
}

void TestRectangleItems::add_ofAnImpossibleDefault()
{
    QFETCH(double, extent);
    QFETCH(double, origin);
    Stage stage(QSize(400, 400)); // one unit a pixel
    stage.regions.defaultSize = QSizeF(extent, extent);
    stage.regions.addItem();
    QCOMPARE(stage.regions.items.size(), 1);
    QCOMPARE(stage.regions.rects.first().topLeft(), QPointF(origin, origin));
}

void TestRectangleItems::add_withoutImage()
{
    Stage stage(QSize(100, 100));
    QImage nothing;
    for (QImage* const image : { static_cast<QImage*>(nullptr), &nothing }) {
        stage.image->setImage(image);
        stage.regions.addItem();
        QVERIFY(stage.regions.items.isEmpty());
        QVERIFY(stage.image->imageExtent().isNull());
    }
    QVERIFY(stage.heard.isEmpty());
    RectangleItems homeless(nullptr);
    homeless.addItem();
    homeless.changedItemBoundingRect(QRectF(0.0, 0.0, 5.0, 5.0));
    homeless.changedRoi(nullptr, QRectF(0.0, 0.0, 5.0, 5.0));
    QVERIFY(homeless.items.isEmpty());
}

void TestRectangleItems::add_preparesTheItem()
{
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    const RectangleItem* const item = stage.regions.items.first();
    QCOMPARE(item->margin, 1); // the frame of the image item
    QCOMPARE(item->parentBounding, QRectF(0.0, 0.0, 400.0, 320.0));
    QCOMPARE(item->parentItem(), stage.image);
    QVERIFY(item->isSelected());
}

void TestRectangleItems::add_announcesInOrder()
{
    Stage stage(QSize(1000, 800));
    QSignalSpy selected(&stage.regions, SIGNAL(updateSelectedRoi(int, QRectF)));
    stage.regions.addItem();
    stage.regions.addItem();
    QCOMPARE(stage.heard,
        (QStringList { "names ROI 1", "selected 0", "names ROI 1,ROI 2", "selected 1" }));
    QCOMPARE(selected.last().at(1).toRectF(), QRectF(350.0, 250.0, 303.0, 303.0));
}

void TestRectangleItems::add_reachesAboveSmallImages_data()
{
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QSizeF>("item");
    QTest::addColumn<double>("top");
    // One unit a pixel, and 300 rows fit: units 0 to 299, 300 of them; back to rows 0 and 300, 301
    // of them in 300: the last is 299, the first 300 - 301.
    QTest::newRow("400 x 300") << QSize(400, 300) << QSizeF(400.0, 400.0) << -1.0;
    // Content 860 x 84. Rows 0 to 299 are units 0 to ceil(299 x 84 / 301) = 84, 85 of them; back to
    // rows 0 and int(301 / 84 x 85) = 304, 305 of them in 301: the first is 301 - 305.
    QTest::newRow("3000 x 301") << QSize(3000, 301) << QSizeF(860.0, 87.0) << -4.0;
}

void TestRectangleItems::add_reachesAboveSmallImages()
{
    QFETCH(QSize, image);
    QFETCH(QSizeF, item);
    Stage stage(image, item);
    stage.regions.addItem();
    QTEST(stage.regions.rects.first().top(), "top");
    stage.regions.selectItem(0);
    stage.image->zoomIn();
    stage.image->zoomOut();
    QTEST(stage.regions.rects.first().top(), "top");
}

void TestRectangleItems::add_toAnImageOfOnePixel()
{
    Stage stage(QSize(1, 1));
    stage.regions.addItem();
    QCOMPARE(stage.regions.defaultSize, QSizeF(0.0, 0.0)); // 1 / 8
    QCOMPARE(stage.regions.items.size(), 1);
    stage.image->zoomIn();
    stage.drag(stage.regions.items.first(), QPointF(5.0, 5.0), QPointF(50.0, 50.0));
    stage.regions.deleteItem(0);
    QVERIFY(stage.regions.items.isEmpty());
}

void TestRectangleItems::delete_renumbersAndSelectsTheFirst()
{
    Stage stage(QSize(1000, 800));
    for (int i = 0; i < 3; ++i) {
        stage.regions.addItem();
        stage.regions.rects[i] = QRectF(i, i, 10.0, 10.0);
    }
    RectangleItem* const third = stage.regions.items.at(2);
    stage.takeHeard();
    QSignalSpy selected(&stage.regions, SIGNAL(updateSelectedRoi(int, QRectF)));
    stage.regions.deleteItem(1);
    QCOMPARE(stage.regions.items.size(), 2);
    QCOMPARE(stage.regions.items.at(1), third);
    QCOMPARE(third->id, 2);
    QCOMPARE(stage.regions.rects,
        (QVector<QRectF> { { 0.0, 0.0, 10.0, 10.0 }, { 2.0, 2.0, 10.0, 10.0 } }));
    QCOMPARE(stage.heard, (QStringList { "names ROI 1,ROI 2", "selected 0" }));
    QVERIFY(stage.regions.items.at(0)->isSelected());
    QVERIFY(!third->isSelected());
    QCOMPARE(selected.first().at(1).toRectF(), QRectF(0.0, 0.0, 10.0, 10.0));
}

void TestRectangleItems::delete_theLastOneSelectsNothing()
{
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    stage.takeHeard();
    stage.regions.deleteItem(0);
    QCOMPARE(stage.heard, QStringList { "names " });
    QVERIFY(stage.regions.names.isEmpty());
}

void TestRectangleItems::indicesOutsideAreIgnored()
{
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    stage.takeHeard();
    for (const int index : { -2, -1, 1, 2, INT_MAX, INT_MIN }) {
        stage.regions.selectItem(index);
        stage.regions.deleteItem(index);
    }
    QVERIFY(stage.heard.isEmpty());
    QCOMPARE(stage.regions.items.size(), 1);
    QVERIFY(stage.regions.items.first()->isSelected());
}

void TestRectangleItems::select_isExclusive()
{
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    stage.regions.addItem();
    stage.takeHeard();
    stage.regions.selectItem(0);
    QVERIFY(stage.regions.items.at(0)->isSelected());
    QVERIFY(!stage.regions.items.at(1)->isSelected());
    stage.regions.selectItem(0); // announced again
    QCOMPARE(stage.heard, (QStringList { "selected 0", "selected 0" }));
}

void TestRectangleItems::clear_isSilentAndKeepsTheNames()
{
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    stage.regions.addItem();
    stage.takeHeard();
    bool isEmptyWhileTheyGo = true;
    QObject::connect(&stage.scene, &QGraphicsScene::selectionChanged, stage.image,
        [&] { isEmptyWhileTheyGo = isEmptyWhileTheyGo && stage.regions.items.isEmpty(); });
    stage.regions.clear();
    QVERIFY(isEmptyWhileTheyGo);
    QVERIFY(stage.regions.items.isEmpty());
    QVERIFY(stage.regions.rects.isEmpty());
    QVERIFY(stage.heard.isEmpty());
    QCOMPARE(stage.regions.names, (QStringList { "ROI 1", "ROI 2" }));
    stage.image->zoomIn(); // still connected
}

void TestRectangleItems::drag_announcesTheImageRectangle()
{
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    QSignalSpy selected(&stage.regions, SIGNAL(updateSelectedRoi(int, QRectF)));
    stage.drag(stage.regions.items.first(), QPointF(200.0, 160.0), QPointF(220.0, 150.0));
    QCOMPARE(stage.regions.items.first()->rect, QRectF(160.0, 90.0, 121.0, 121.0));
    // 2.5 pixels a unit: 400, 225, int(702.5), int(527.5)
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.first().at(1).toRectF(), QRectF(400.0, 225.0, 303.0, 303.0));
    QCOMPARE(stage.regions.rects.first(), QRectF(400.0, 225.0, 303.0, 303.0));
}

void TestRectangleItems::drag_ofAnotherThanTheSelectedOne()
{
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    stage.regions.addItem();
    stage.takeHeard();
    stage.drag(stage.regions.items.at(0), QPointF(200.0, 160.0), QPointF(220.0, 150.0));
    QCOMPARE(stage.heard, QStringList { "selected 0" });
}

void TestRectangleItems::changedRoi_ignoresWhatItDoesNotKnow()
{
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    const QVector<QRectF> rects = stage.regions.rects;
    stage.takeHeard();
    RectangleItem stranger(stage.image, 1);
    stage.regions.changedRoi(&stranger, QRectF(0.0, 0.0, 50.0, 50.0));
    stage.regions.changedRoi(nullptr, QRectF(0.0, 0.0, 50.0, 50.0));
    stage.regions.changedRoi(stage.regions.items.first(), QRectF(10.0, 10.0, 0.0, 0.0));
    QVERIFY(stage.heard.isEmpty());
    QCOMPARE(stage.regions.rects, rects);
    stage.regions.changedRoi(stage.regions.items.first(), QRectF(10.0, 10.0, 0.0, 5.0));
    QCOMPARE(stage.heard, QStringList { "selected 0" });
}

void TestRectangleItems::snapping_atScale12()
{
    Stage stage(QSize(40, 40), QSizeF(480.0, 480.0)); // 40 cells of 12 units
    QVERIFY(stage.image->scale == 12.0);
    stage.regions.addItem(); // 40 / 8 pixels from int(40 - 5) / 2 on
    const RectangleItem* const item = stage.regions.items.first();
    // Corners 17 x 12 and 21 x 12, to 253 with the last unit: the middles of cells 17 and 21.
    QCOMPARE(item->rect, QRectF(210.0, 210.0, 48.0, 48.0));
    // Dragged to (172.7, 168.1) and (220.7, 216.1): cells 14 and 18.
    stage.drag(stage.regions.items.first(), item->rect.center(),
        item->rect.center() - QPointF(37.3, 41.9));
    QCOMPARE(item->rect, QRectF(174.0, 174.0, 48.0, 48.0));
}

void TestRectangleItems::snapping_aboveScale12()
{
    Stage stage(QSize(100, 100), QSizeF(400.0, 400.0)); // 4 units a pixel
    stage.image->zoomIn(); // 6
    stage.image->zoomIn(); // 9
    stage.image->zoomIn(); // 13.5
    QVERIFY(stage.image->scale >= 12.0);
    stage.regions.addItem();
    stage.drag(stage.regions.items.first(), stage.regions.items.first()->rect.center(),
        stage.regions.items.first()->rect.center() - QPointF(37.3, 41.9));
    const double cell = 400.0 / int(400.0 / stage.image->scale);
    const QRectF rect = stage.regions.items.first()->rect;
    for (const double edge : { rect.left(), rect.right(), rect.top(), rect.bottom() }) {
        const double cells = (edge - cell / 2.0) / cell;
        QVERIFY2(std::abs(cells - std::round(cells)) < 1e-9, qPrintable(QString::number(cells)));
    }
}

void TestRectangleItems::viewChange_keepsTheImageRectangles()
{
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    const QRectF onImage = stage.regions.rects.first();
    const QRectF onItem = stage.regions.items.first()->rect;
    for (int i = 0; i < 6; ++i) {
        stage.image->zoomIn();
        stage.image->scrollDistanceHorizontal(1);
        stage.image->scrollDistanceVertical(-1);
        QCOMPARE(stage.regions.rects.first(), onImage);
        QCOMPARE(stage.regions.items.first()->parentBounding, stage.image->imageExtent());
    }
    stage.image->fit();
    // (350, 250, 303, 303) at 0.4: corners 140, ceil(260.8), 100, ceil(220.8).
    QCOMPARE(onItem, QRectF(140.0, 100.0, 121.0, 121.0));
    QCOMPARE(stage.regions.items.first()->rect, QRectF(140.0, 100.0, 122.0, 122.0));
}

void TestRectangleItems::viewChange_runsOncePerAdd()
{
    Stage stage(QSize(1000, 800));
    const int before = stage.image->viewReceivers();
    stage.regions.addItem();
    stage.regions.addItem();
    stage.regions.addItem();
    QCOMPARE(stage.image->viewReceivers(), before + 3);
    stage.regions.deleteItem(0);
    stage.regions.clear();
    QCOMPARE(stage.image->viewReceivers(), before + 3); // nothing is undone
}

void TestRectangleItems::viewChange_noticesWhatSomebodyMoved()
{
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    stage.regions.addItem();
    stage.image->fit();
    RectangleItem* const item = stage.regions.items.first();
    const QRectF projected = item->rect;
    item->setRect(QRectF(10.0, 10.0, 30.0, 30.0));
    stage.image->fit(); // the same view
    QCOMPARE(item->rect, projected);
    item->parentBounding = QRectF();
    stage.image->fit();
    QCOMPARE(item->parentBounding, stage.image->imageExtent());
    item->handles.clear();
    stage.image->fit();
    QCOMPARE(item->handles.size(), 4);
    stage.regions.rects[0] = QRectF(0.0, 0.0, 500.0, 400.0);
    stage.image->fit();
    // Corners 0 and ceil(499 x 0.4) = 200, moved out of the frame.
    QCOMPARE(item->rect, QRectF(1.0, 1.0, 201.0, 161.0));
    item->rect.moveLeft(item->rect.left() + 1e-13); // too small a step for a fuzzy comparison
    stage.image->fit();
    QVERIFY(item->rect.left() == 1.0);
}

void TestRectangleItems::viewChange_noticesAChangedMargin()
{
    Stage stage(QSize(400, 400)); // one unit a pixel
    stage.regions.addItem();
    stage.regions.rects[0] = QRectF(0.0, 0.0, 100.0, 100.0);
    stage.image->fit();
    RectangleItem* const item = stage.regions.items.first();
    QCOMPARE(item->rect, QRectF(1.0, 1.0, 100.0, 100.0)); // out of the frame
    item->margin = 50;
    stage.image->fit(); // the same view
    QCOMPARE(item->rect, QRectF(50.0, 50.0, 100.0, 100.0));
}

void TestRectangleItems::viewChange_ofNothingIsIgnored()
{
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    RectangleItem* const item = stage.regions.items.first();
    item->setRect(QRectF(10.0, 10.0, 30.0, 30.0));
    stage.regions.changedItemBoundingRect(QRectF(5.0, 5.0, 0.0, 0.0));
    QCOMPARE(item->rect, QRectF(10.0, 10.0, 30.0, 30.0));
}

void TestRectangleItems::regions_outliveALargerImage()
{
    Stage stage(QSize(2000, 2000));
    stage.regions.addItem();
    stage.regions.rects[0] = QRectF(1500.0, 1500.0, 400.0, 400.0);
    QImage small(4, 2, QImage::Format_RGB888);
    stage.image->setImage(&small);
    stage.image->setSize(400.0, 400.0);
    stage.image->zoomIn();
    stage.regions.selectItem(0);
    const QPointF middle = stage.regions.items.first()->rect.center();
    stage.drag(stage.regions.items.first(), middle, middle - QPointF(10.0, 10.0));
    // A drag brings it into the image, two pixels at least.
    QVERIFY(stage.regions.rects.first().right() <= 5.0);
    stage.regions.addItem();
    stage.regions.deleteItem(0);
    stage.image->setImage(nullptr);
    stage.image->setSize(300.0, 300.0);
    stage.regions.deleteItem(0);
    QVERIFY(stage.regions.items.isEmpty());
}

void TestRectangleItems::regions_withoutContent()
{
    Stage stage(QSize(1000, 800), QSizeF(0.0, 0.0));
    QVERIFY(stage.image->size.isEmpty());
    stage.regions.addItem();
    QCOMPARE(stage.regions.items.size(), 1);
    stage.drag(stage.regions.items.first(), QPointF(0.0, 0.0), QPointF(5.0, 5.0));
    stage.image->setSize(400.0, 400.0);
    stage.image->fit();
    stage.regions.deleteItem(0);
}

void TestRectangleItems::itemsDestroyedByOthersAreDropped()
{
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    stage.regions.addItem();
    stage.regions.addItem();
    delete stage.regions.items.at(1);
    QCOMPARE(stage.regions.items.size(), 2);
    QCOMPARE(stage.regions.rects.size(), 2);
    QCOMPARE(stage.regions.items.at(1)->id, 2);
    stage.image->zoomIn();
    stage.regions.selectItem(1);
}

void TestRectangleItems::deletion_duringADrag()
{
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    RectangleItem* const item = stage.regions.items.first();
    stage.send(item, QEvent::GraphicsSceneHoverMove, QPointF(200.0, 160.0), Qt::NoButton);
    stage.send(item, QEvent::GraphicsSceneMousePress, QPointF(200.0, 160.0), Qt::LeftButton);
    stage.send(item, QEvent::GraphicsSceneMouseMove, QPointF(220.0, 160.0), Qt::LeftButton);
    stage.regions.deleteItem(0);
    QVERIFY(stage.regions.items.isEmpty());
    QVERIFY(!stage.scene.mouseGrabberItem());
}

void TestRectangleItems::deletion_inItsOwnSignals()
{
    {
        Stage stage(QSize(1000, 800));
        stage.regions.addItem();
        QObject::connect(&stage.regions, &RectangleItems::updateSelectedRoi, stage.image,
            [&] { stage.regions.clear(); });
        stage.drag(stage.regions.items.first(), QPointF(200.0, 160.0), QPointF(220.0, 150.0));
        QVERIFY(stage.regions.items.isEmpty());
    }
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    QObject::connect(stage.regions.items.first(), &RectangleItem::changeRect, stage.image,
        [&] { stage.regions.deleteItem(0); });
    stage.drag(stage.regions.items.first(), QPointF(200.0, 160.0), QPointF(220.0, 150.0));
    QVERIFY(stage.regions.items.isEmpty());
}

void TestRectangleItems::signals_mayComeBackIntoEverySlot()
{
    Stage stage(QSize(1000, 800));
    stage.regions.addItem();
    stage.regions.addItem();
    int depth = 0;
    const auto stir = [&] {
        if (depth > 2) {
            return;
        }
        ++depth;
        stage.regions.addItem();
        stage.regions.selectItem(1);
        stage.regions.deleteItem(0);
        stage.image->zoomIn();
        stage.image->fit();
        --depth;
    };
    QObject::connect(&stage.regions, &RectangleItems::updateSelectedRoi, stage.image, stir);
    QObject::connect(&stage.regions, &RectangleItems::updateItemNames, stage.image, stir);
    stage.regions.addItem();
    stage.regions.deleteItem(1);
    stage.regions.selectItem(0);
    QCOMPARE(stage.regions.items.size(), stage.regions.rects.size());

    // Even the image item may go.
    Stage other(QSize(1000, 800));
    const QPointer<ImageLayoutItem> gone(other.image);
    QObject::connect(&other.regions, &RectangleItems::updateItemNames, &other.scene,
        [&] { delete gone.data(); });
    other.regions.addItem();
    QVERIFY(gone.isNull());
}

void TestRectangleItems::names_takeThePrefix()
{
    Stage stage(QSize(1000, 800));
    stage.regions.namePrefix = "Spot";
    stage.regions.addItem();
    QCOMPARE(stage.heard.first(), QString("names Spot 1"));
}

QTEST_MAIN(TestRectangleItems)
#include "tst_rectangleitems.moc"
