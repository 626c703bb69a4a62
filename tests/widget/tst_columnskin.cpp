#include "support/recordingpaintdevice.h"
#include "widget/columnskin.h"

#include <QPainter>
#include <QtTest>

namespace {

QVector<RecordingPaintDevice::Entry> painted(const QPixmap& header, const QPixmap& body,
    const QPixmap& border, int height, double dotsPerInch)
{
    RecordingPaintDevice recorded;
    QPainter painter(&recorded);
    paintColumnSkin(painter, header, body, border, height, dotsPerInch);
    return recorded.entries();
}

} // namespace

class TestColumnSkin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headerIsScaledIntoTheColumn();
    void bodyTilesOverlapTheHeaderByOneRow();
    void bodyWithoutHeaderStartsAboveTheColumn();
    void borderTilesStandAtTheRightEdgeUnscaled();
    void missingPixmapsAreSkipped();
    void nothingBelowHeightZero();
};

void TestColumnSkin::headerIsScaledIntoTheColumn()
{
    const QPixmap header(100, 41);
    const auto entries = painted(header, QPixmap(), QPixmap(), 600, 144.0);
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.first().rect, QRectF(0.0, 0.0, 435.0, 61.0)); // trunc(41 x 1.5)
    QCOMPARE(entries.first().source, QRectF(0.0, 0.0, 100.0, 41.0));
}

void TestColumnSkin::bodyTilesOverlapTheHeaderByOneRow()
{
    const auto entries = painted(QPixmap(290, 40), QPixmap(10, 100), QPixmap(), 300, 96.0);
    QCOMPARE(entries.size(), 4);
    QCOMPARE(entries.at(0).rect, QRectF(0.0, 0.0, 290.0, 40.0));
    QCOMPARE(entries.at(1).rect, QRectF(0.0, 39.0, 290.0, 100.0));
    QCOMPARE(entries.at(2).rect, QRectF(0.0, 139.0, 290.0, 100.0));
    QCOMPARE(entries.at(3).rect, QRectF(0.0, 239.0, 290.0, 100.0));
}

void TestColumnSkin::bodyWithoutHeaderStartsAboveTheColumn()
{
    const auto entries = painted(QPixmap(), QPixmap(10, 100), QPixmap(), 99, 96.0);
    QCOMPARE(entries.size(), 1); // the next tile would start at 99
    QCOMPARE(entries.first().rect, QRectF(0.0, -1.0, 290.0, 100.0));
}

void TestColumnSkin::borderTilesStandAtTheRightEdgeUnscaled()
{
    const auto entries = painted(QPixmap(), QPixmap(), QPixmap(6, 50), 101, 120.0);
    QCOMPARE(entries.size(), 3);
    QCOMPARE(entries.at(0).rect, QRectF(356.0, 0.0, 6.0, 50.0)); // 362 - 6
    QCOMPARE(entries.at(2).rect, QRectF(356.0, 100.0, 6.0, 50.0));
}

void TestColumnSkin::missingPixmapsAreSkipped()
{
    QVERIFY(painted(QPixmap(), QPixmap(), QPixmap(), 600, 96.0).isEmpty());
}

void TestColumnSkin::nothingBelowHeightZero()
{
    QVERIFY(painted(QPixmap(), QPixmap(), QPixmap(6, 50), 0, 96.0).isEmpty());
    QVERIFY(painted(QPixmap(), QPixmap(6, 50), QPixmap(), -5, 96.0).isEmpty());
}

QTEST_MAIN(TestColumnSkin)
#include "tst_columnskin.moc"
