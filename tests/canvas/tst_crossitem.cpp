#include "canvas/crossitem.h"
#include "support/recordingpaintdevice.h"

#include <QPainter>
#include <QtTest>

#include <limits>

class TestCrossItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWhiteAtTheOrigin();
    void boundingRect_doesNotFollowThePosition();
    void paint_drawsTwoIntegerLines();
    void paint_truncatesTowardZero();
    void paint_survivesAnyPosition();
    void hasNoSignalsOrSlotsOfItsOwn();
};

void TestCrossItem::startsWhiteAtTheOrigin()
{
    CrossItem cross(nullptr);
    QCOMPARE(cross.halfLength, 20);
    QCOMPARE(cross.penWidth, 1);
    QCOMPARE(cross.color, QColor(Qt::white));
    QCOMPARE(cross.position, QPointF(0.0, 0.0));
    QCOMPARE(cross.previousPosition, QPointF(0.0, 0.0));
}

void TestCrossItem::boundingRect_doesNotFollowThePosition()
{
    CrossItem cross(nullptr);
    cross.position = QPointF(300.0, 200.0);
    QCOMPARE(cross.boundingRect(), QRectF(0.0, 0.0, 40.0, 40.0));
}

void TestCrossItem::paint_drawsTwoIntegerLines()
{
    CrossItem cross(nullptr);
    cross.position = QPointF(100.7, 50.2);
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    cross.paint(&painter, nullptr, nullptr);
    QCOMPARE(recorded.lines(),
        (QVector<QLineF> { QLineF(80.0, 50.0, 120.0, 50.0), QLineF(100.0, 30.0, 100.0, 70.0) }));
    QCOMPARE(recorded.entries().first().pen.color(), QColor(Qt::white));
    QCOMPARE(recorded.entries().first().pen.width(), 1);
}

void TestCrossItem::paint_truncatesTowardZero()
{
    CrossItem cross(nullptr);
    cross.position = QPointF(10.5, 0.5); // left end at -9.5, upper end at -19.5
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    cross.paint(&painter, nullptr, nullptr);
    QCOMPARE(recorded.lines(),
        (QVector<QLineF> { QLineF(-9.0, 0.0, 30.0, 0.0), QLineF(10.0, -19.0, 10.0, 20.0) }));
}

void TestCrossItem::paint_survivesAnyPosition()
{
    CrossItem cross(nullptr);
    cross.position = QPointF(
        std::numeric_limits<double>::quiet_NaN(), -std::numeric_limits<double>::infinity());
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    cross.paint(&painter, nullptr, nullptr);
    QCOMPARE(recorded.lines().size(), 2);
    QCOMPARE(recorded.lines().last(), QLineF(0.0, -1073741824.0, 0.0, -1073741824.0));
}

void TestCrossItem::hasNoSignalsOrSlotsOfItsOwn()
{
    const QMetaObject& meta = CrossItem::staticMetaObject;
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

QTEST_MAIN(TestCrossItem)
#include "tst_crossitem.moc"
