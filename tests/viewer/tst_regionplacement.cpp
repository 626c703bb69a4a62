#include "regionplacement.h"

#include <QtTest>

class TestRegionPlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unit_data();
    void unit();
    void corners_followEachAxis();
    void across_isTheOppositeCorner();
};

void TestRegionPlacement::unit_data()
{
    QTest::addColumn<int>("pixel");
    QTest::addColumn<int>("pixelCount");
    QTest::addColumn<int>("contentLength");
    QTest::addColumn<int>("unit");
    QTest::newRow("one to one") << 10 << 100 << 100 << 10;
    QTest::newRow("the first pixel, under the margin") << 0 << 100 << 100 << 1;
    QTest::newRow("the last pixel") << 99 << 100 << 100 << 99;
    QTest::newRow("twice as large") << 10 << 100 << 200 << 21; // shown from 20 to 22
    QTest::newRow("twice as large, the first") << 0 << 100 << 200 << 1;
    QTest::newRow("a fifth larger, the lower unit is the pixel before") << 1 << 100 << 120 << 2;
    QTest::newRow("ten times as large, the middle") << 3 << 20 << 200 << 35;
    QTest::newRow("half as large, an exact one") << 20 << 200 << 100 << 10;
    QTest::newRow("half as large, the nearer of two neighbours") << 21 << 200 << 100 << 11;
    QTest::newRow("half as large, the last") << 199 << 200 << 100 << 99;
    QTest::newRow("no room at all") << 5 << 200 << 1 << 1;
}

void TestRegionPlacement::unit()
{
    QFETCH(int, pixel);
    QFETCH(int, pixelCount);
    QFETCH(int, contentLength);
    QTEST(unitOfPixel(pixel, pixelCount, contentLength), "unit");
}

void TestRegionPlacement::corners_followEachAxis()
{
    const RegionCorners corners
        = regionCorners(QRect(10, 20, 30, 40), QSize(100, 200), QSize(200, 200));
    QCOMPARE(corners.topLeft, QPoint(21, 20));
    QCOMPARE(corners.bottomRight, QPoint(79, 59)); // pixels 39 and 59
}

void TestRegionPlacement::across_isTheOppositeCorner()
{
    const QRectF region(10.0, 20.0, 30.0, 40.0);
    QCOMPARE(cornerAcross(region, QPoint(10, 20)), QPoint(40, 60));
    QCOMPARE(cornerAcross(region, QPoint(40, 60)), QPoint(10, 20));
    QCOMPARE(cornerAcross(region, QPoint(10, 60)), QPoint(40, 20));
    QCOMPARE(cornerAcross(region, QPoint(41, 19)), QPoint(10, 60));
}

QTEST_GUILESS_MAIN(TestRegionPlacement)
#include "tst_regionplacement.moc"
