#include "canvas/componentwithbordersitem.h"
#include "support/recordingpaintdevice.h"

#include <QGraphicsLayoutItem>
#include <QGraphicsScene>
#include <QPainter>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

/// Writes down which of its operations are called, and is a layout item as the canvas items are.
class ProbeItem : public ComponentWithBordersItem, public QGraphicsLayoutItem
{
public:
    ProbeItem()
        : ComponentWithBordersItem(nullptr)
    {
        setGraphicsItem(this);
    }
    ~ProbeItem() override { setGraphicsItem(nullptr); }

    QStringList calls;

    void setGeometry(const QRectF& rect) override { placeInLayout(*this, rect); }
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF& constraint) const override
    {
        return layoutSizeHint(which, constraint);
    }

protected:
    void sizeChanged() override
    {
        calls << QString("size %1x%2").arg(size.width()).arg(size.height());
    }
    void drawContents(QPainter* painter) override
    {
        calls << "contents";
        painter->setPen(Qt::red);
        painter->translate(5.0, 5.0);
    }
    void drawForeground(QPainter*) override { calls << "foreground"; }
    void drawBorders(QPainter* painter) override
    {
        calls << "borders";
        ComponentWithBordersItem::drawBorders(painter);
    }
};

} // namespace

class TestComponentItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAt400x400();
    void setSize_truncatesAndAnnouncesOnce();
    void setSize_keepsNegativeValues();
    void setSize_survivesAnyNumber_data();
    void setSize_survivesAnyNumber();
    void boundingRect_ofThePlainItemIsItsSize();
    void paint_runsBordersContentsForeground();
    void paint_restoresThePainter();
    void borders_frameOfABorderedItem();
    void layout_sizeHints();
    void growingItemsAreFoundByTheScene();
    void hasNoSignalsOrSlotsOfItsOwn();
    void layout_geometryMovesButDoesNotResize();
};

void TestComponentItem::startsAt400x400()
{
    ComponentItem item(nullptr);
    QCOMPARE(item.size, QSizeF(400.0, 400.0));
    ComponentWithBordersItem bordered(nullptr);
    QCOMPARE(bordered.size, QSizeF(400.0, 400.0));
    QCOMPARE(bordered.borderWidth, 1);
    QCOMPARE(bordered.borderColor, QColor(Qt::white));
}

void TestComponentItem::setSize_truncatesAndAnnouncesOnce()
{
    ProbeItem item;
    item.setSize(10.9, 20.5);
    QCOMPARE(item.size, QSizeF(10.0, 20.0));
    QCOMPARE(item.calls, QStringList { "size 10x20" });
}

void TestComponentItem::setSize_keepsNegativeValues()
{
    ProbeItem item;
    item.setSize(-3.7, -0.5);
    QVERIFY(item.size.width() == -3.0);
    QVERIFY(item.size.height() == 0.0);
}

void TestComponentItem::setSize_survivesAnyNumber_data()
{
    QTest::addColumn<double>("extent");
    QTest::addColumn<double>("stored");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0.0;
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity() << 1073741824.0;
    QTest::newRow("minus infinity") << -std::numeric_limits<double>::infinity() << -1073741824.0;
    QTest::newRow("beyond int") << 1e18 << 1073741824.0;
    QTest::newRow("beyond int, negative") << -1e18 << -1073741824.0;
}

void TestComponentItem::setSize_survivesAnyNumber()
{
    QFETCH(double, extent);
    QFETCH(double, stored);
    ProbeItem item;
    item.setSize(extent, extent);
    QVERIFY(item.size.width() == stored);
    QVERIFY(item.size.height() == stored);
}

void TestComponentItem::boundingRect_ofThePlainItemIsItsSize()
{
    ComponentItem item(nullptr);
    item.setSize(30.0, 40.0);
    QCOMPARE(item.boundingRect(), QRectF(0.0, 0.0, 30.0, 40.0));
}

void TestComponentItem::paint_runsBordersContentsForeground()
{
    ProbeItem item;
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    item.paint(&painter, nullptr, nullptr);
    QCOMPARE(item.calls, (QStringList { "borders", "contents", "foreground" }));
}

void TestComponentItem::paint_restoresThePainter()
{
    ProbeItem item;
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    painter.setPen(Qt::blue);
    item.paint(&painter, nullptr, nullptr);
    QCOMPARE(painter.pen().color(), QColor(Qt::blue));
    QVERIFY(painter.transform().isIdentity());
}

void TestComponentItem::borders_frameOfABorderedItem()
{
    ComponentWithBordersItem item(nullptr);
    item.setSize(400.0, 50.0);
    QCOMPARE(item.boundingRect(), QRectF(0.0, 0.0, 402.0, 52.0));

    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    item.paint(&painter, nullptr, nullptr);
    QCOMPARE(recorded.entries().size(), 1);
    const RecordingPaintDevice::Entry frame = recorded.entries().first();
    QCOMPARE(frame.kind, RecordingPaintDevice::Rect);
    QCOMPARE(frame.rect, QRectF(0.0, 0.0, 401.0, 51.0));
    QCOMPARE(frame.pen.color(), QColor(Qt::white));
    QCOMPARE(frame.pen.width(), 1);
    QCOMPARE(frame.brush.style(), Qt::NoBrush);
}

void TestComponentItem::layout_sizeHints()
{
    ProbeItem item;
    item.setSize(400.0, 50.0);
    const QSizeF constraint(7.0, 9.0);
    QCOMPARE(item.sizeHint(Qt::MinimumSize, constraint), QSizeF(0.0, 0.0));
    QCOMPARE(item.sizeHint(Qt::PreferredSize, constraint), QSizeF(402.0, 52.0));
    QCOMPARE(item.sizeHint(Qt::MaximumSize, constraint), QSizeF(1000.0, 1000.0));
    QCOMPARE(item.sizeHint(Qt::MinimumDescent, constraint), constraint);
}

void TestComponentItem::growingItemsAreFoundByTheScene()
{
    QGraphicsScene scene;
    auto* const item = new ProbeItem;
    item->setSize(10.0, 10.0);
    scene.addItem(item);
    QVERIFY(scene.items(QPointF(50.0, 50.0)).isEmpty()); // the scene has its index now
    item->setSize(100.0, 100.0);
    QCOMPARE(scene.items(QPointF(50.0, 50.0)), QList<QGraphicsItem*> { item });
    item->setGeometry(QRectF(300.0, 300.0, 10.0, 10.0));
    QVERIFY(scene.items(QPointF(50.0, 50.0)).isEmpty());
    QCOMPARE(scene.items(QPointF(350.0, 350.0)), QList<QGraphicsItem*> { item });
}

void TestComponentItem::hasNoSignalsOrSlotsOfItsOwn()
{
    for (const QMetaObject* const meta :
        { &ComponentItem::staticMetaObject, &ComponentWithBordersItem::staticMetaObject }) {
        QCOMPARE(meta->methodCount(), meta->methodOffset());
    }
}

void TestComponentItem::layout_geometryMovesButDoesNotResize()
{
    ProbeItem item;
    item.setSize(40.0, 50.0);
    item.setGeometry(QRectF(12.0, 34.0, 512.0, 10.0));
    QCOMPARE(item.pos(), QPointF(12.0, 34.0));
    QCOMPARE(item.geometry(), QRectF(12.0, 34.0, 512.0, 10.0));
    QCOMPARE(item.size, QSizeF(40.0, 50.0));
}

QTEST_MAIN(TestComponentItem)
#include "tst_componentitem.moc"
