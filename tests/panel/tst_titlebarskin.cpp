#include "panel/titlebarskin.h"
#include "support/recordingpaintdevice.h"

#include <QPainter>
#include <QtTest>

namespace {

QVector<QRectF> painted(
    const QPixmap& left, const QPixmap& middle, const QPixmap& right, int width, int height)
{
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    paintTitleBarSkin(painter, left, middle, right, width, height);
    QVector<QRectF> rects;
    for (const RecordingPaintDevice::Entry& entry : recorded.entries()) {
        rects.append(entry.rect);
    }
    return rects;
}

} // namespace

class TestTitleBarSkin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsKeepTheirWidthAndTheMiddleIsRepeated();
    void imagesAreDrawnWhole();
    void withoutLeftEnd_theMiddleStartsAtTheEdge();
    void withoutRightEnd_thereIsNoMiddle();
    void withoutMiddle_theEndsRemain();
    void nothingWithoutImages();
    void endsWiderThanTheBar();
};

void TestTitleBarSkin::endsKeepTheirWidthAndTheMiddleIsRepeated()
{
    const auto rects = painted(QPixmap(5, 20), QPixmap(40, 20), QPixmap(7, 20), 100, 26);
    QCOMPARE(rects.size(), 5);
    QCOMPARE(rects.at(0), QRectF(0, 0, 5, 26));
    QCOMPARE(rects.at(1), QRectF(93, 0, 7, 26));
    QCOMPARE(rects.at(2), QRectF(5, 0, 40, 26));
    QCOMPARE(rects.at(3), QRectF(45, 0, 40, 26));
    QCOMPARE(rects.at(4), QRectF(85, 0, 8, 26)); // cut at 93
}

void TestTitleBarSkin::imagesAreDrawnWhole()
{
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    paintTitleBarSkin(painter, QPixmap(5, 20), QPixmap(40, 20), QPixmap(7, 20), 50, 26);
    QCOMPARE(recorded.entries().size(), 3);
    QCOMPARE(recorded.entries().at(0).source, QRectF(0, 0, 5, 20));
    QCOMPARE(recorded.entries().at(1).source, QRectF(0, 0, 7, 20));
    QCOMPARE(recorded.entries().at(2).rect, QRectF(5, 0, 38, 26));
    QCOMPARE(recorded.entries().at(2).source, QRectF(0, 0, 40, 20));
}

void TestTitleBarSkin::withoutLeftEnd_theMiddleStartsAtTheEdge()
{
    const auto rects = painted(QPixmap(), QPixmap(40, 20), QPixmap(7, 20), 50, 26);
    QCOMPARE(rects, QVector<QRectF>({ { 43, 0, 7, 26 }, { 0, 0, 40, 26 }, { 40, 0, 3, 26 } }));
}

void TestTitleBarSkin::withoutRightEnd_thereIsNoMiddle()
{
    QCOMPARE(painted(QPixmap(5, 20), QPixmap(40, 20), QPixmap(), 100, 26),
        QVector<QRectF>({ { 0, 0, 5, 26 } }));
    QVERIFY(painted(QPixmap(), QPixmap(40, 20), QPixmap(), 100, 26).isEmpty());
}

void TestTitleBarSkin::withoutMiddle_theEndsRemain()
{
    QCOMPARE(painted(QPixmap(5, 20), QPixmap(), QPixmap(7, 20), 100, 26),
        QVector<QRectF>({ { 0, 0, 5, 26 }, { 93, 0, 7, 26 } }));
}

void TestTitleBarSkin::nothingWithoutImages()
{
    QVERIFY(painted(QPixmap(), QPixmap(), QPixmap(), 100, 26).isEmpty());
}

void TestTitleBarSkin::endsWiderThanTheBar()
{
    QCOMPARE(painted(QPixmap(5, 20), QPixmap(40, 20), QPixmap(7, 20), 6, 26),
        QVector<QRectF>({ { 0, 0, 5, 26 }, { -1, 0, 7, 26 } }));
}

QTEST_MAIN(TestTitleBarSkin)
#include "tst_titlebarskin.moc"
