#include "plots/intensitycurvelayoutitem.h"
#include "support/recordingpaintdevice.h"
#include "support/sceneitems.h"

#include <QGraphicsScene>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsView>
#include <QPainter>
#include <QtTest>

#include <limits>

namespace {

/// Writes down which of its operations are called.
class ProbeCurve : public IntensityCurveLayoutItem
{
public:
    ProbeCurve()
        : IntensityCurveLayoutItem(nullptr)
    {
    }

    QStringList calls;
    QPointF pulledTo { 7.0, 8.0 }; ///< where constrainDrag() puts the pointer
    bool pulls = false;
    QPoint pointerAtDrag; ///< where the screen's pointer stood when the drag was announced

    QVector<int> stored() const
    {
        QVector<int> levels;
        for (int i = 0; i < sampleCount(); ++i) {
            levels.append(samples()[i]);
        }
        return levels;
    }
    void setLines(const QVector<QLineF>& lines) { m_curveLines = lines; }

    using IntensityCurveLayoutItem::draggedBack;
    using IntensityCurveLayoutItem::hoverEnterEvent;
    using IntensityCurveLayoutItem::hoverLeaveEvent;
    using IntensityCurveLayoutItem::resizeSamples;

protected:
    void rebuildCurve() override { calls << "rebuild"; }
    void emitDragScroll(const QPointF& current) override
    {
        calls << QString("drag to %1,%2").arg(current.x()).arg(current.y());
        pointerAtDrag = QCursor::pos();
        Q_EMIT scrollDistance(draggedBack(current).x());
    }
    void drawAnchor(QPainter* painter) override
    {
        calls << "anchor " + painter->pen().color().name();
    }
    void constrainDrag(const QPointF& pressed, QPointF& current) override
    {
        calls << QString("constrain from %1,%2").arg(pressed.x()).arg(pressed.y());
        if (pulls) {
            current = pulledTo;
        }
    }
};

/// Counts what reaches the base behaviour of the two optional operations.
class PlainCurve : public IntensityCurveLayoutItem
{
public:
    PlainCurve()
        : IntensityCurveLayoutItem(nullptr)
    {
    }
    int rebuilds = 0;
    int drags = 0;
    QPointF draggedTo;

protected:
    void rebuildCurve() override { ++rebuilds; }
    void emitDragScroll(const QPointF& current) override
    {
        ++drags;
        draggedTo = current;
    }
};

void sendHover(QGraphicsScene& scene, QGraphicsItem* item, QEvent::Type type)
{
    QGraphicsSceneHoverEvent event(type);
    scene.sendEvent(item, &event);
}

#if defined(__SANITIZE_ADDRESS__)
constexpr bool allocatorIsLimited = true;
#elif defined(__has_feature)
constexpr bool allocatorIsLimited = __has_feature(address_sanitizer);
#else
constexpr bool allocatorIsLimited = false;
#endif

// Stays untouched pages: larger than what the allocator is allowed to hand out in one piece.
constexpr int tooManySamples = 192 << 20;
uchar endlessSource[tooManySamples];

} // namespace

class TestIntensityCurveLayoutItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void metaObject_signatures();
    void metacast_findsTheLayoutPart();
    void layout_hintsAndGeometry();
    void updateCurve_copiesResizesAndRebuilds();
    void updateCurve_takesAPart();
    void updateCurve_emptyPartKeepsTheOldSamples();
    void updateCurve_rejects_data();
    void updateCurve_rejects();
    void updateCurve_rejectsWholeProfiles_data();
    void updateCurve_rejectsWholeProfiles();
    void updateCurve_repaints();
    void reversed_storesBackToFront();
    void reversed_turnsTheOldSamplesAgainForAnEmptyPart();
    void resizeSamples_onlyForANewPositiveCount();
    void outOfMemory_keepsTheOldProfile();
    void valueScale_isOnlyStored();
    void drawing_bordersCurveAnchor();
    void hover_setsTheCursorOfTheViewUnderThePointer();
    void hover_takesTheFirstSuchView();
    void hover_withoutSceneOrViewDoesNothing();
    void drag_constrainsMovesThePointerAndAnnounces();
    void drag_needsExactlyTheLeftButton();
    void drag_baseOperationsDoNothing();
    void drag_receiverMayDeleteTheItem();
    void draggedBack_saturates();
};

void TestIntensityCurveLayoutItem::startsEmpty()
{
    ProbeCurve curve;
    QCOMPARE(curve.size, QSizeF(400.0, 50.0));
    QCOMPARE(curve.borderWidth, 1);
    QCOMPARE(curve.borderColor, QColor(Qt::white));
    QVERIFY(curve.stored().isEmpty());
    QVERIFY(curve.curveLines().isEmpty());
    QVERIFY(!curve.isReversed());
    QVERIFY(curve.valueScale() == 1.0);
    QVERIFY(curve.acceptHoverEvents());
    QVERIFY(curve.flags()
        == (QGraphicsItem::ItemIsSelectable | QGraphicsItem::ItemClipsChildrenToShape));
    QVERIFY(curve.graphicsItem() == &curve);
}

void TestIntensityCurveLayoutItem::metaObject_signatures()
{
    const QMetaObject& meta = IntensityCurveLayoutItem::staticMetaObject;
    const int first = meta.methodOffset();
    QCOMPARE(meta.methodCount() - first, 3);
    QCOMPARE(meta.method(first).methodSignature(), QByteArray("scrollDistance(int)"));
    QCOMPARE(meta.method(first).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.method(first).parameterNames(), QList<QByteArray> { "distance" });
    QCOMPARE(meta.method(first + 1).methodSignature(), QByteArray("updateCurve(uchar*,int)"));
    QCOMPARE(meta.method(first + 1).methodType(), QMetaMethod::Slot);
    QCOMPARE(meta.method(first + 1).parameterNames(), (QList<QByteArray> { "data", "size" }));
    QCOMPARE(
        meta.method(first + 2).methodSignature(), QByteArray("updateCurve(uchar*,int,int,int)"));
    QCOMPARE(meta.method(first + 2).methodType(), QMetaMethod::Slot);
    QCOMPARE(meta.method(first + 2).parameterNames(),
        (QList<QByteArray> { "data", "size", "offset", "counts" }));
}

void TestIntensityCurveLayoutItem::metacast_findsTheLayoutPart()
{
    ProbeCurve curve;
    void* const layoutPart = static_cast<QGraphicsLayoutItem*>(&curve);
    void* const own = static_cast<IntensityCurveLayoutItem*>(&curve);
    QVERIFY(curve.qt_metacast("QGraphicsLayoutItem") == layoutPart);
    QVERIFY(curve.qt_metacast("org.qt-project.Qt.QGraphicsLayoutItem") == layoutPart);
    QVERIFY(curve.qt_metacast("IntensityCurveLayoutItem") == own);
    void* const base = static_cast<ComponentWithBordersItem*>(&curve);
    QVERIFY(curve.qt_metacast("ComponentWithBordersItem") == base);
    QVERIFY(curve.qt_metacast("QWidget") == nullptr);
}

void TestIntensityCurveLayoutItem::layout_hintsAndGeometry()
{
    ProbeCurve curve;
    const QSizeF constraint(7.0, 9.0);
    QCOMPARE(curve.sizeHint(Qt::MinimumSize, constraint), QSizeF(0.0, 0.0));
    QCOMPARE(curve.sizeHint(Qt::PreferredSize, constraint), QSizeF(402.0, 52.0));
    QCOMPARE(curve.sizeHint(Qt::MaximumSize, constraint), QSizeF(1000.0, 1000.0));
    QCOMPARE(curve.sizeHint(Qt::MinimumDescent, constraint), constraint);

    curve.setGeometry(QRectF(12.0, 34.0, 56.0, 78.0));
    QCOMPARE(curve.pos(), QPointF(12.0, 34.0));
    QCOMPARE(curve.geometry(), QRectF(12.0, 34.0, 56.0, 78.0));
    QCOMPARE(curve.calls, QStringList { "rebuild" });
}

void TestIntensityCurveLayoutItem::updateCurve_copiesResizesAndRebuilds()
{
    ProbeCurve curve;
    uchar data[] = { 1, 2, 3 };
    curve.updateCurve(data, 3);
    data[0] = 99;
    QCOMPARE(curve.stored(), (QVector<int> { 1, 2, 3 }));
    QCOMPARE(curve.calls, QStringList { "rebuild" });
    curve.updateCurve(data, 2);
    QCOMPARE(curve.stored(), (QVector<int> { 99, 2 }));
    QCOMPARE(curve.calls.size(), 2);
}

void TestIntensityCurveLayoutItem::updateCurve_takesAPart()
{
    ProbeCurve curve;
    uchar data[] = { 1, 2, 3, 4, 5 };
    curve.updateCurve(data, 5, 1, 3);
    QCOMPARE(curve.stored(), (QVector<int> { 2, 3, 4 }));
    curve.updateCurve(data, 5, 4, 1);
    QCOMPARE(curve.stored(), QVector<int> { 5 });
    curve.updateCurve(data, 5, 0, 5);
    QCOMPARE(curve.stored(), (QVector<int> { 1, 2, 3, 4, 5 }));
}

void TestIntensityCurveLayoutItem::updateCurve_emptyPartKeepsTheOldSamples()
{
    ProbeCurve curve;
    uchar data[] = { 1, 2, 3, 4, 5 };
    curve.updateCurve(data, 5, 5, 0); // nothing held yet
    QVERIFY(curve.stored().isEmpty());
    QCOMPARE(curve.calls, QStringList { "rebuild" });
    curve.updateCurve(data, 3);
    data[0] = 99;
    curve.updateCurve(data, 5, 5, 0);
    QCOMPARE(curve.stored(), (QVector<int> { 1, 2, 3 }));
    QCOMPARE(curve.calls.size(), 3);
}

void TestIntensityCurveLayoutItem::updateCurve_rejects_data()
{
    QTest::addColumn<bool>("hasData");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("counts");
    const int largest = std::numeric_limits<int>::max();
    const int smallest = std::numeric_limits<int>::min();
    QTest::newRow("no data") << false << 10 << 0 << 10;
    QTest::newRow("size 0") << true << 0 << 0 << 0;
    QTest::newRow("negative size") << true << -1 << 0 << 0;
    QTest::newRow("negative offset") << true << 10 << -1 << 5;
    QTest::newRow("offset behind the end") << true << 10 << 11 << 0;
    QTest::newRow("negative count") << true << 10 << 4 << -1;
    QTest::newRow("too many") << true << 10 << 4 << 7;
    QTest::newRow("sum overflows") << true << largest << largest << largest;
    QTest::newRow("count overflows") << true << 10 << 10 << largest;
    QTest::newRow("smallest size") << true << smallest << 0 << 5;
    QTest::newRow("smallest offset") << true << 10 << smallest << 5;
}

void TestIntensityCurveLayoutItem::updateCurve_rejects()
{
    QFETCH(bool, hasData);
    QFETCH(int, size);
    QFETCH(int, offset);
    QFETCH(int, counts);
    ProbeCurve curve;
    uchar data[10] = { 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 };
    curve.updateCurve(data, 2);
    curve.calls.clear();
    curve.updateCurve(hasData ? data : nullptr, size, offset, counts);
    QVERIFY(curve.calls.isEmpty());
    QCOMPARE(curve.stored(), (QVector<int> { 1, 2 }));
}

void TestIntensityCurveLayoutItem::updateCurve_rejectsWholeProfiles_data()
{
    QTest::addColumn<bool>("hasData");
    QTest::addColumn<int>("size");
    QTest::newRow("no data") << false << 10;
    QTest::newRow("size 0") << true << 0;
    QTest::newRow("negative size") << true << -1;
    QTest::newRow("smallest size") << true << std::numeric_limits<int>::min();
}

void TestIntensityCurveLayoutItem::updateCurve_rejectsWholeProfiles()
{
    QFETCH(bool, hasData);
    QFETCH(int, size);
    ProbeCurve curve;
    uchar data[10] = { 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 };
    curve.updateCurve(data, 2);
    curve.calls.clear();
    curve.updateCurve(hasData ? data : nullptr, size);
    QVERIFY(curve.calls.isEmpty());
    QCOMPARE(curve.stored(), (QVector<int> { 1, 2 }));
}

void TestIntensityCurveLayoutItem::updateCurve_repaints()
{
    ProbeCurve curve;
    uchar data[] = { 1, 2, 3 };
    QVERIFY(repaints(curve, [&] { curve.updateCurve(data, 3); }));
    QVERIFY(repaints(curve, [&] { curve.updateCurve(data, 3, 1, 2); }));
    QVERIFY(repaints(curve, [&] { curve.updateCurve(data, 3, 3, 0); })); // the old profile
    QVERIFY(!repaints(curve, [&] { curve.updateCurve(data, 3, 1, 3); })); // rejected
}

void TestIntensityCurveLayoutItem::reversed_storesBackToFront()
{
    ProbeCurve curve;
    curve.setReversed(true);
    QVERIFY(curve.isReversed());
    uchar data[] = { 1, 2, 3, 4 };
    curve.updateCurve(data, 3);
    QCOMPARE(curve.stored(), (QVector<int> { 3, 2, 1 }));
    curve.updateCurve(data, 4);
    QCOMPARE(curve.stored(), (QVector<int> { 4, 3, 2, 1 }));
    curve.updateCurve(data, 4, 1, 2);
    QCOMPARE(curve.stored(), (QVector<int> { 3, 2 }));
    QCOMPARE(int(data[0]), 1); // the caller's samples stay as they are
}

void TestIntensityCurveLayoutItem::reversed_turnsTheOldSamplesAgainForAnEmptyPart()
{
    ProbeCurve curve;
    curve.setReversed(true);
    uchar data[] = { 1, 2, 3 };
    curve.updateCurve(data, 3, 3, 0); // nothing to turn yet
    curve.updateCurve(data, 3);
    curve.updateCurve(data, 3, 3, 0);
    QCOMPARE(curve.stored(), (QVector<int> { 1, 2, 3 }));
}

void TestIntensityCurveLayoutItem::resizeSamples_onlyForANewPositiveCount()
{
    ProbeCurve curve;
    uchar data[] = { 1, 2, 3 };
    curve.updateCurve(data, 3);
    curve.resizeSamples(0);
    curve.resizeSamples(-4);
    curve.resizeSamples(3);
    QCOMPARE(curve.stored(), (QVector<int> { 1, 2, 3 }));
    curve.resizeSamples(5);
    QCOMPARE(curve.stored(), (QVector<int> { 0, 0, 0, 0, 0 }));
}

void TestIntensityCurveLayoutItem::outOfMemory_keepsTheOldProfile()
{
    if (!allocatorIsLimited || !qgetenv("ASAN_OPTIONS").contains("max_allocation_size_mb")) {
        QTest::qSkip("needs an allocator with a limit", __FILE__, __LINE__);
        return; // Clang takes the macro for this as an extension
    }
    ProbeCurve curve;
    uchar data[] = { 1, 2, 3 };
    curve.updateCurve(data, 3);
    curve.calls.clear();
    curve.updateCurve(endlessSource, tooManySamples);
    QCOMPARE(curve.stored(), (QVector<int> { 1, 2, 3 }));
    QVERIFY(curve.calls.isEmpty());
    curve.updateCurve(endlessSource, 2);
    QCOMPARE(curve.stored(), (QVector<int> { 0, 0 }));
}

void TestIntensityCurveLayoutItem::valueScale_isOnlyStored()
{
    ProbeCurve curve;
    curve.setValueScale(1.2);
    QVERIFY(curve.valueScale() == 1.2);
    curve.setValueScale(0.0);
    QVERIFY(curve.valueScale() == 0.0);
    curve.setValueScale(std::numeric_limits<double>::quiet_NaN());
    QVERIFY(qIsNaN(curve.valueScale()));
    QVERIFY(curve.calls.isEmpty());
}

void TestIntensityCurveLayoutItem::drawing_bordersCurveAnchor()
{
    ProbeCurve curve;
    const QVector<QLineF> lines { QLineF(1, 2, 3, 4), QLineF(3, 4, 5, 6) };
    curve.setLines(lines);
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    curve.paint(&painter, nullptr, nullptr);
    QCOMPARE(recorded.entries().size(), 3);
    QCOMPARE(recorded.entries().at(0).rect, QRectF(0.0, 0.0, 401.0, 51.0));
    QCOMPARE(recorded.entries().at(0).pen.color(), QColor(Qt::white));
    QCOMPARE(recorded.lines(), lines);
    QCOMPARE(recorded.entries().at(1).pen.color(), QColor(40, 128, 140, 255));
    QCOMPARE(recorded.entries().at(1).pen.width(), 1);
    QCOMPARE(curve.calls, QStringList { "anchor #28808c" }); // the curve pen is still set
}

void TestIntensityCurveLayoutItem::hover_setsTheCursorOfTheViewUnderThePointer()
{
    QGraphicsScene scene;
    ProbeCurve curve;
    scene.addItem(&curve);
    QGraphicsView away(&scene);
    QGraphicsView under(&scene);
    under.setAttribute(Qt::WA_UnderMouse);
    sendHover(scene, &curve, QEvent::GraphicsSceneHoverEnter);
    QCOMPARE(under.cursor().shape(), Qt::OpenHandCursor);
    QCOMPARE(away.cursor().shape(), Qt::ArrowCursor);
    sendHover(scene, &curve, QEvent::GraphicsSceneHoverLeave);
    QCOMPARE(under.cursor().shape(), Qt::ArrowCursor);
    scene.removeItem(&curve);
}

void TestIntensityCurveLayoutItem::hover_takesTheFirstSuchView()
{
    QGraphicsScene scene;
    ProbeCurve curve;
    scene.addItem(&curve);
    QGraphicsView away(&scene);
    QGraphicsView focused(&scene);
    QGraphicsView under(&scene);
    focused.show();
    QApplication::setActiveWindow(&focused);
    focused.setFocus();
    QVERIFY(focused.hasFocus());
    focused.setAttribute(Qt::WA_UnderMouse, false);
    under.setAttribute(Qt::WA_UnderMouse);
    sendHover(scene, &curve, QEvent::GraphicsSceneHoverEnter);
    QCOMPARE(focused.cursor().shape(), Qt::OpenHandCursor);
    QCOMPARE(under.cursor().shape(), Qt::ArrowCursor);
    scene.removeItem(&curve);
}

void TestIntensityCurveLayoutItem::hover_withoutSceneOrViewDoesNothing()
{
    QGraphicsScene scene;
    ProbeCurve curve;
    scene.addItem(&curve);
    sendHover(scene, &curve, QEvent::GraphicsSceneHoverEnter); // no view
    QGraphicsView away(&scene);
    sendHover(scene, &curve, QEvent::GraphicsSceneHoverEnter); // no view under the pointer
    QCOMPARE(away.cursor().shape(), Qt::ArrowCursor);
    scene.removeItem(&curve);
    QGraphicsSceneHoverEvent event(QEvent::GraphicsSceneHoverEnter);
    curve.hoverEnterEvent(&event); // no scene
    curve.hoverLeaveEvent(&event);
}

void TestIntensityCurveLayoutItem::drag_constrainsMovesThePointerAndAnnounces()
{
    QGraphicsScene scene;
    ProbeCurve curve;
    scene.addItem(&curve);
    QSignalSpy spy(&curve, SIGNAL(scrollDistance(int)));
    curve.pulls = true;
    curve.pulledTo = QPointF(90.4, 70.6);
    QCursor::setPos(100, 50);
    sendMouse(scene, QEvent::GraphicsSceneMousePress, Qt::LeftButton);
    QVERIFY(curve.calls.isEmpty());
    QCursor::setPos(80, 60);
    sendMouse(scene, QEvent::GraphicsSceneMouseMove, Qt::LeftButton);
    QCOMPARE(curve.calls, (QStringList { "constrain from 100,50", "drag to 90.4,70.6" }));
    QCOMPARE(QCursor::pos(), QPoint(90, 71)); // rounded
    QCOMPARE(curve.pointerAtDrag, QPoint(90, 71)); // moved before the drag is announced
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toInt(), 10);

    curve.calls.clear();
    sendMouse(scene, QEvent::GraphicsSceneMouseMove, Qt::LeftButton);
    QCOMPARE(curve.calls.first(), QString("constrain from 90.4,70.6")); // where the last one ended
    QVERIFY(curve.isSelected()); // the base handler ran as well
    scene.removeItem(&curve);
}

void TestIntensityCurveLayoutItem::drag_needsExactlyTheLeftButton()
{
    QGraphicsScene scene;
    ProbeCurve curve;
    scene.addItem(&curve);
    QCursor::setPos(100, 50);
    sendMouse(scene, QEvent::GraphicsSceneMousePress, Qt::LeftButton);
    QCursor::setPos(80, 60);
    sendMouse(scene, QEvent::GraphicsSceneMouseMove, Qt::LeftButton | Qt::RightButton);
    sendMouse(scene, QEvent::GraphicsSceneMouseMove, Qt::RightButton);
    QVERIFY(curve.calls.isEmpty());
    QCOMPARE(QCursor::pos(), QPoint(80, 60));
    // a press with two buttons does not start over: the drag still counts from (100, 50)
    sendMouse(scene, QEvent::GraphicsSceneMousePress, Qt::LeftButton | Qt::RightButton);
    sendMouse(scene, QEvent::GraphicsSceneMouseMove, Qt::LeftButton);
    QCOMPARE(curve.calls.first(), QString("constrain from 100,50"));
    scene.removeItem(&curve);
}

void TestIntensityCurveLayoutItem::drag_baseOperationsDoNothing()
{
    QGraphicsScene scene;
    PlainCurve curve;
    scene.addItem(&curve);
    QCursor::setPos(100, 50);
    sendMouse(scene, QEvent::GraphicsSceneMousePress, Qt::LeftButton);
    QCursor::setPos(80, 60);
    sendMouse(scene, QEvent::GraphicsSceneMouseMove, Qt::LeftButton);
    QCOMPARE(curve.drags, 1);
    QCOMPARE(curve.draggedTo, QPointF(80.0, 60.0)); // not held to anything
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    curve.paint(&painter, nullptr, nullptr);
    QCOMPARE(recorded.entries().size(), 1); // the frame alone
    scene.removeItem(&curve);
}

void TestIntensityCurveLayoutItem::drag_receiverMayDeleteTheItem()
{
    QGraphicsScene scene;
    auto* curve = new ProbeCurve;
    scene.addItem(curve);
    connect(curve, &IntensityCurveLayoutItem::scrollDistance, &scene, [curve] { delete curve; });
    QCursor::setPos(100, 50);
    sendMouse(scene, QEvent::GraphicsSceneMousePress, Qt::LeftButton);
    QCursor::setPos(80, 60);
    sendMouse(scene, QEvent::GraphicsSceneMouseMove, Qt::LeftButton);
    QVERIFY(scene.items().isEmpty());
}

void TestIntensityCurveLayoutItem::draggedBack_saturates()
{
    ProbeCurve curve; // the drag stands at (0, 0)
    QCOMPARE(curve.draggedBack(QPointF(-10.5, 10.6)), QPoint(10, -11));
    QCOMPARE(curve.draggedBack(QPointF(1e300, std::numeric_limits<double>::quiet_NaN())),
        QPoint(-1073741824, 0));
}

QTEST_MAIN(TestIntensityCurveLayoutItem)
#include "tst_intensitycurvelayoutitem.moc"
