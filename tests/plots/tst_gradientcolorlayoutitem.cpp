#include "plots/gradientcolorlayoutitem.h"
#include "support/recordingpaintdevice.h"
#include "support/sceneitems.h"

#include <QPainter>
#include <QPointer>
#include <QtTest>

namespace {

/// `count` colours that differ in every entry: the index is in the red part.
QVector<QColor> reds(int count)
{
    QVector<QColor> colors;
    for (int i = 0; i < count; ++i) {
        colors.append(QColor(i, 1, 2));
    }
    return colors;
}

QVector<RecordingPaintDevice::Entry> fillsOf(GradientColorLayoutItem& bar)
{
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    bar.paint(&painter, nullptr, nullptr);
    QVector<RecordingPaintDevice::Entry> fills = recorded.of(RecordingPaintDevice::Rect);
    fills.removeFirst(); // the frame
    return fills;
}

} // namespace

class TestGradientColorLayoutItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsGreyAndWithoutCells();
    void metaObject_signatures();
    void metacast_findsTheLayoutPart();
    void layout_movesButKeepsTheCells();
    void sizeChange_buildsTheCells();
    void changedPalette_storesAndAnnounces();
    void changedPalette_announcesAnUnchangedOneAgain();
    void changedPalette_repaints();
    void changedPalette_survivesDeletionByAReceiver();
    void changedPalette_lastOfNestedCallsStays();
    void drawing_32Cells();
    void drawing_33CellsLeaveTheEndUnshown();
    void drawing_withFewerColoursThanCellsShowsTheFirst();
    void drawing_withoutCells();
    void emptyPalette_isAnnouncedAndDrawsNothing();
};

void TestGradientColorLayoutItem::startsGreyAndWithoutCells()
{
    GradientColorLayoutItem bar(nullptr);
    QVERIFY(bar.cells().isEmpty());
    QCOMPARE(bar.colors().size(), 256);
    QCOMPARE(bar.colors().at(0), QColor(0, 0, 0, 255));
    QCOMPARE(bar.colors().at(100), QColor(100, 100, 100, 255));
    QCOMPARE(bar.colors().at(255), QColor(255, 255, 255, 255));
    QCOMPARE(bar.size, QSizeF(400.0, 400.0));
    QVERIFY(bar.graphicsItem() == &bar);
}

void TestGradientColorLayoutItem::metaObject_signatures()
{
    const QMetaObject& meta = GradientColorLayoutItem::staticMetaObject;
    const int first = meta.methodOffset();
    QCOMPARE(meta.methodCount() - first, 2);
    QCOMPARE(meta.method(first).methodSignature(),
        QMetaObject::normalizedSignature("changeColors(QVector<QColor>)"));
    QCOMPARE(meta.method(first).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.method(first).parameterNames(), QList<QByteArray> { "color" });
    QCOMPARE(meta.method(first + 1).methodSignature(),
        QMetaObject::normalizedSignature("changedPalette(QVector<QColor>)"));
    QCOMPARE(meta.method(first + 1).methodType(), QMetaMethod::Slot);
    QCOMPARE(meta.method(first + 1).parameterNames(), QList<QByteArray> { "color" });
}

void TestGradientColorLayoutItem::metacast_findsTheLayoutPart()
{
    GradientColorLayoutItem bar(nullptr);
    void* const layoutPart = static_cast<QGraphicsLayoutItem*>(&bar);
    void* const own = &bar;
    QVERIFY(bar.qt_metacast("QGraphicsLayoutItem") == layoutPart);
    QVERIFY(bar.qt_metacast("org.qt-project.Qt.QGraphicsLayoutItem") == layoutPart);
    QVERIFY(bar.qt_metacast("GradientColorLayoutItem") == own);
    QVERIFY(bar.qt_metacast("QWidget") == nullptr);
}

void TestGradientColorLayoutItem::layout_movesButKeepsTheCells()
{
    GradientColorLayoutItem bar(nullptr);
    bar.setSize(320.0, 10.0);
    bar.setGeometry(QRectF(20.0, 30.0, 512.0, 10.0));
    QCOMPARE(bar.pos(), QPointF(20.0, 30.0));
    QCOMPARE(bar.geometry(), QRectF(20.0, 30.0, 512.0, 10.0));
    QCOMPARE(bar.cells().last(), QRectF(311, 1, 10, 10));
    const QSizeF constraint(7.0, 9.0);
    QCOMPARE(bar.sizeHint(Qt::MinimumSize, constraint), QSizeF(0.0, 0.0));
    QCOMPARE(bar.sizeHint(Qt::PreferredSize, constraint), QSizeF(322.0, 12.0));
    QCOMPARE(bar.sizeHint(Qt::MaximumSize, constraint), QSizeF(1000.0, 1000.0));
    QCOMPARE(bar.sizeHint(Qt::MinimumDescent, constraint), constraint);
}

void TestGradientColorLayoutItem::sizeChange_buildsTheCells()
{
    GradientColorLayoutItem bar(nullptr);
    bar.setSize(330.0, 10.0);
    QCOMPARE(bar.cells().size(), 33);
    QCOMPARE(bar.cells().last(), QRectF(321, 1, 10, 10));
    bar.setSize(320.0, 10.0);
    QCOMPARE(bar.cells().size(), 32);
    bar.setSize(1e300, -1e300); // bounded, not overflown
    QCOMPARE(bar.cells().first(), QRectF(1, 1, 33554432, -1073741824));
}

void TestGradientColorLayoutItem::changedPalette_storesAndAnnounces()
{
    GradientColorLayoutItem bar(nullptr);
    QSignalSpy spy(&bar, SIGNAL(changeColors(QVector<QColor>)));
    QVector<QColor> palette = reds(256);
    bar.changedPalette(palette);
    QCOMPARE(bar.colors(), palette);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().value<QVector<QColor>>(), palette);
    palette[0] = QColor(Qt::green); // the caller's vector is its own
    QCOMPARE(bar.colors().at(0), QColor(0, 1, 2));
}

void TestGradientColorLayoutItem::changedPalette_announcesAnUnchangedOneAgain()
{
    GradientColorLayoutItem bar(nullptr);
    QSignalSpy spy(&bar, SIGNAL(changeColors(QVector<QColor>)));
    bar.changedPalette(bar.colors());
    bar.changedPalette(bar.colors());
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).first().value<QVector<QColor>>(), bar.colors());
}

void TestGradientColorLayoutItem::changedPalette_repaints()
{
    GradientColorLayoutItem bar(nullptr);
    QVERIFY(repaints(bar, [&] { bar.changedPalette(reds(256)); }));
    QVERIFY(repaints(bar, [&] { bar.changedPalette(bar.colors()); })); // also the same one
}

void TestGradientColorLayoutItem::changedPalette_survivesDeletionByAReceiver()
{
    QPointer<GradientColorLayoutItem> bar = new GradientColorLayoutItem(nullptr);
    connect(bar, &GradientColorLayoutItem::changeColors, this, [bar] { delete bar; });
    bar->changedPalette(reds(256));
    QVERIFY(bar.isNull());
}

void TestGradientColorLayoutItem::changedPalette_lastOfNestedCallsStays()
{
    GradientColorLayoutItem bar(nullptr);
    QVector<int> announced;
    connect(&bar, &GradientColorLayoutItem::changeColors, this, [&](QVector<QColor> colors) {
        announced.append(int(colors.size()));
        if (colors.size() == 256) {
            bar.changedPalette(reds(10));
        }
    });
    bar.changedPalette(reds(256));
    QCOMPARE(announced, (QVector<int> { 256, 10 }));
    QCOMPARE(bar.colors().size(), 10);
}

void TestGradientColorLayoutItem::drawing_32Cells()
{
    GradientColorLayoutItem bar(nullptr);
    bar.setSize(320.0, 10.0);
    bar.changedPalette(reds(256));
    const QVector<RecordingPaintDevice::Entry> fills = fillsOf(bar);
    QCOMPARE(fills.size(), 32);
    QCOMPARE(fills.at(1).rect, QRectF(11, 1, 10, 10));
    QCOMPARE(fills.at(1).brush.style(), Qt::SolidPattern);
    QCOMPARE(fills.at(1).pen.style(), Qt::NoPen);
    for (int i = 0; i < 32; ++i) {
        QCOMPARE(fills.at(i).brush.color(), QColor(8 * i, 1, 2)); // 0, 8 .. 248
    }
}

void TestGradientColorLayoutItem::drawing_33CellsLeaveTheEndUnshown()
{
    GradientColorLayoutItem bar(nullptr);
    bar.setSize(330.0, 10.0);
    bar.changedPalette(reds(256));
    const QVector<RecordingPaintDevice::Entry> fills = fillsOf(bar);
    QCOMPARE(fills.size(), 33);
    for (int i = 0; i < 33; ++i) {
        QCOMPARE(fills.at(i).brush.color(), QColor(7 * i, 1, 2)); // 0, 7 .. 224
    }
    QCOMPARE(fills.last().rect, QRectF(321, 1, 10, 10));
}

void TestGradientColorLayoutItem::drawing_withFewerColoursThanCellsShowsTheFirst()
{
    GradientColorLayoutItem bar(nullptr);
    bar.setSize(320.0, 10.0);
    bar.changedPalette(QVector<QColor> { QColor(Qt::green), QColor(Qt::red) });
    const QVector<RecordingPaintDevice::Entry> fills = fillsOf(bar);
    QCOMPARE(fills.size(), 32);
    for (const RecordingPaintDevice::Entry& fill : fills) {
        QCOMPARE(fill.brush.color(), QColor(Qt::green));
    }
}

void TestGradientColorLayoutItem::drawing_withoutCells()
{
    GradientColorLayoutItem bar(nullptr);
    QVERIFY(fillsOf(bar).isEmpty());
}

void TestGradientColorLayoutItem::emptyPalette_isAnnouncedAndDrawsNothing()
{
    GradientColorLayoutItem bar(nullptr);
    bar.setSize(320.0, 10.0);
    QSignalSpy spy(&bar, SIGNAL(changeColors(QVector<QColor>)));
    bar.changedPalette(QVector<QColor>());
    QCOMPARE(spy.count(), 1);
    QVERIFY(spy.first().first().value<QVector<QColor>>().isEmpty());
    QVERIFY(bar.colors().isEmpty());
    QVERIFY(fillsOf(bar).isEmpty());
    bar.changedPalette(reds(256));
    QCOMPARE(fillsOf(bar).size(), 32);
}

QTEST_MAIN(TestGradientColorLayoutItem)
#include "tst_gradientcolorlayoutitem.moc"
