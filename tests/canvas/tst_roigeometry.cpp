#include "canvas/roigeometry.h"

#include <QtTest>

#include <cmath>
#include <limits>

namespace {

const QSizeF content(400.0, 200.0);
const QRectF wholeImage(0.0, 0.0, 800.0, 400.0);
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

bool isExactly(const QRectF& rect, double x, double y, double width, double height)
{
    return rect.x() == x && rect.y() == y && rect.width() == width && rect.height() == height;
}

} // namespace

/// Mapping, snapping, constraining and resizing of regions of interest.
class TestRoiGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void extent_ofAZoomedView();
    void extent_withoutAView();
    void toItem_roundsCornersUp();
    void toItem_ofAZoomedView();
    void toItem_ofARegionWithoutWidth();
    void toItem_staysBounded();
    void fromPixels_data();
    void fromPixels();
    void middles_belowTheSnappingScale();
    void middles_atScale12();
    void middles_atLeastOneCell();
    void middles_pushBackAtTheFarEdges();
    void middles_withoutContent();
    void inside_data();
    void inside();
    void handles_areTheCorners();
    void nearestCorner_splitsAtTheMiddle();
    void cornerUnderPointer_handsOver();
    void resized_data();
    void resized();
    void resized_withTwoHandles();
};

void TestRoiGeometry::extent_ofAZoomedView()
{
    // 8 units a pixel: 50 columns and 25 rows are visible, from (10, 5) on.
    const QRectF extent
        = imageExtentInItem(QRectF(10.0, 5.0, 50.0, 25.0), QSize(800, 400), content);
    QVERIFY(isExactly(extent, -80.0, -40.0, 6400.0, 3200.0));
    QVERIFY(
        isExactly(imageExtentInItem(wholeImage, QSize(800, 400), content), 0.0, 0.0, 400.0, 200.0));
    // 400 / 3 units a pixel: -int(133.33), int(800 x 133.33) = 106666
    QVERIFY(isExactly(imageExtentInItem(QRectF(1.0, 0.0, 3.0, 2.0), QSize(800, 400), content),
        -133.0, 0.0, 106666.0, 40000.0));
}

void TestRoiGeometry::extent_withoutAView()
{
    for (const QRectF& visible :
        { QRectF(), QRectF(0.0, 0.0, 0.0, 5.0), QRectF(0.0, 0.0, 5.0, 0.0) }) {
        QVERIFY(imageExtentInItem(visible, QSize(800, 400), content).isNull());
        QVERIFY(roiToItem(QRectF(1.0, 2.0, 3.0, 4.0), visible, content).isNull());
    }
}

void TestRoiGeometry::toItem_roundsCornersUp()
{
    // Half a unit a pixel: corners 101 and 101 + 51 - 1 = 151 become ceil(50.5) and ceil(75.5).
    const QRectF rect = roiToItem(QRectF(101.0, 40.0, 51.0, 20.0), wholeImage, content);
    QVERIFY(isExactly(rect, 51.0, 20.0, 76.0 - 51.0 + 1.0, 30.0 - 20.0 + 1.0));
}

void TestRoiGeometry::toItem_ofAZoomedView()
{
    // 8 units a pixel from (10, 5): (12 - 10) x 8 = 16 to (14 - 10) x 8 = 32.
    const QRectF rect
        = roiToItem(QRectF(12.0, 3.0, 3.0, 4.0), QRectF(10.0, 5.0, 50.0, 25.0), content);
    QVERIFY(isExactly(rect, 16.0, -16.0, 17.0, 25.0));
}

void TestRoiGeometry::toItem_ofARegionWithoutWidth()
{
    // A region of no width ends a pixel before it begins.
    const QRectF rect = roiToItem(QRectF(100.0, 40.0, 0.0, 20.0), wholeImage, content);
    QVERIFY(isExactly(rect, 50.0, 20.0, 1.0, 11.0)); // ceil(49.5) = 50
}

void TestRoiGeometry::toItem_staysBounded()
{
    const double bound = 1073741824.0;
    const QRectF far(-1e18, -1e18, 2e18, 2e18);
    QVERIFY(isExactly(
        roiToItem(far, wholeImage, content), -bound, -bound, 2.0 * bound + 1.0, 2.0 * bound + 1.0));
    const QRectF odd(notANumber, infinite, notANumber, -infinite);
    const QRectF mapped = roiToItem(odd, wholeImage, content);
    QVERIFY(std::isfinite(mapped.x()) && std::isfinite(mapped.width()));
    QVERIFY(std::isfinite(mapped.y()) && std::isfinite(mapped.height()));
}

void TestRoiGeometry::fromPixels_data()
{
    QTest::addColumn<QPoint>("topLeft");
    QTest::addColumn<QPoint>("bottomRight");
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("inside") << QPoint(10, 20) << QPoint(30, 50) << QSize(800, 400)
                            << QRectF(10.0, 20.0, 21.0, 31.0);
    // The corner behind the last pixel. Columns: last = 799, 800 of them. Rows: nothing limits 400;
    // 401 of them in 400: last = 399, first = 400 - 401.
    QTest::newRow("the whole image")
        << QPoint(0, 0) << QPoint(800, 400) << QSize(800, 400) << QRectF(0.0, -1.0, 800.0, 401.0);
    // Columns 798 and 799. Rows 398 to 600, 203 of them: last = 399, first = 400 - 203.
    QTest::newRow("beyond the far corner") << QPoint(900, 500) << QPoint(950, 600)
                                           << QSize(800, 400) << QRectF(798.0, 197.0, 2.0, 203.0);
    // first 5, last 5: one pixel, but the last one is put at 6; it stays there since 5 + 1 <= 800
    QTest::newRow("one pixel") << QPoint(5, 5) << QPoint(5, 5) << QSize(800, 400)
                               << QRectF(5.0, 5.0, 2.0, 2.0);
    // last below first: length 1
    QTest::newRow("turned round") << QPoint(50, 60) << QPoint(40, 30) << QSize(800, 400)
                                  << QRectF(50.0, 60.0, 2.0, 2.0);
    // last becomes 1 and is as far as it gets
    QTest::newRow("left of the image") << QPoint(-10, -20) << QPoint(-5, -8) << QSize(800, 400)
                                       << QRectF(-10.0, -20.0, 12.0, 22.0);
    // A high image: the lower edge comes no further than row 99, the width less one.
    QTest::newRow("limited by the width")
        << QPoint(10, 50) << QPoint(60, 700) << QSize(100, 800) << QRectF(10.0, 50.0, 51.0, 50.0);
    // A wide one: row 399 is beyond the last row 99. Length 350 > 100: last = 100 + 50 = 150; then
    // 50 + 350 > 100: last = 99, first = 100 - 350.
    QTest::newRow("not limited by the height")
        << QPoint(10, 50) << QPoint(60, 399) << QSize(800, 100)
        << QRectF(10.0, -250.0, 51.0, 350.0);
    // One pixel: first = -1, last = max(min(0, 0), 1) = 1, length 3; 3 > 1: last = 1 - 1 = 0;
    // -1 + 3 > 1: last = 0, first = 1 - 3.
    QTest::newRow("an image of one pixel")
        << QPoint(0, 0) << QPoint(0, 0) << QSize(1, 1) << QRectF(-2.0, -2.0, 3.0, 3.0);
}

void TestRoiGeometry::fromPixels()
{
    QFETCH(QPoint, topLeft);
    QFETCH(QPoint, bottomRight);
    QFETCH(QSize, image);
    QTEST(roiFromPixels(topLeft, bottomRight, image), "rect");
}

void TestRoiGeometry::middles_belowTheSnappingScale()
{
    const QRectF rect(1.25, 2.5, 3.75, 4.0);
    QVERIFY(isExactly(roiOnPixelMiddles(rect, 9.99, content, QRectF(0.0, 0.0, 400.0, 200.0)), 1.25,
        2.5, 3.75, 4.0));
    QVERIFY(
        isExactly(roiOnPixelMiddles(rect, notANumber, content, QRectF()), 1.25, 2.5, 3.75, 4.0));
}

void TestRoiGeometry::middles_atScale12()
{
    // 400 / 12 is 33 columns of 400 / 33 units, 200 / 12 is 16 rows of 12.5.
    const double column = 400.0 / 33.0;
    const QRectF snapped = roiOnPixelMiddles(
        QRectF(30.0, 30.0, 100.0, 50.0), 12.0, content, QRectF(0.0, 0.0, 400.0, 200.0));
    // 30 lies in column 2 and row 2, 130 in column 10, 80 in row 6.
    const double left = 2 * column + column / 2.0;
    const double right = 10 * column + column / 2.0;
    QVERIFY(isExactly(snapped, left, 31.25, right - left, 81.25 - 31.25));
}

void TestRoiGeometry::middles_atLeastOneCell()
{
    const QRectF snapped = roiOnPixelMiddles(
        QRectF(25.0, 25.0, 2.0, 2.0), 10.0, QSizeF(400.0, 200.0), QRectF(0.0, 0.0, 400.0, 200.0));
    QVERIFY(isExactly(snapped, 25.0, 25.0, 10.0, 10.0)); // cells of 10 x 10
}

void TestRoiGeometry::middles_pushBackAtTheFarEdges()
{
    const QSizeF area(400.0, 250.0); // scale 24: 16 columns of 25, 10 rows of 25
    const QRectF extent(0.0, 0.0, 400.0, 250.0);
    // Right: trunc(420 / 25) x 25 + 12.5 = 412.5, limit 387.5: 25 back. Bottom likewise.
    const QRectF snapped = roiOnPixelMiddles(QRectF(300.0, 200.0, 120.0, 70.0), 24.0, area, extent);
    QVERIFY(isExactly(snapped, 312.5 - 25.0, 212.5 - 25.0, 100.0, 50.0));

    const QRectF uneven = roiOnPixelMiddles(
        QRectF(20.0, 72.0, 40.0, 20.0), 10.0, QSizeF(19.0, 100.0), QRectF(0.0, 0.0, 400.0, 100.0));
    // One column of 19 units, rows of 10: the lower limit is 100 - 9.5 = 90.5. Bottom 95 goes up
    // by 4.5, and top 75 with it.
    QVERIFY(isExactly(uneven, 19.0 + 9.5, 70.5, 38.0, 20.0));
}

void TestRoiGeometry::middles_withoutContent()
{
    const QRectF snapped = roiOnPixelMiddles(
        QRectF(1.0, 1.0, 5.0, 5.0), 12.0, QSizeF(0.0, 0.0), QRectF(0.0, 0.0, 0.0, 0.0));
    QVERIFY(std::isfinite(snapped.x()) && std::isfinite(snapped.height()));
}

void TestRoiGeometry::inside_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRectF>("inside");
    QTest::newRow("inside already")
        << QRectF(20.0, 30.0, 40.0, 50.0) << QRectF(20.0, 30.0, 40.0, 50.0);
    QTest::newRow("left and above")
        << QRectF(-20.0, -30.0, 40.0, 50.0) << QRectF(1.0, 1.0, 40.0, 50.0);
    QTest::newRow("right and below")
        << QRectF(80.0, 90.0, 40.0, 50.0) << QRectF(59.0, 49.0, 40.0, 50.0);
    QTest::newRow("too large") << QRectF(10.0, 10.0, 400.0, 500.0) << QRectF(1.0, 1.0, 98.0, 98.0);
    QTest::newRow("nothing") << QRectF(10.0, 10.0, 0.0, -5.0) << QRectF(10.0, 10.0, 1.0, 1.0);
}

void TestRoiGeometry::inside()
{
    QFETCH(QRectF, rect);
    QTEST(roiInside(QRectF(1.0, 1.0, 98.0, 98.0), rect), "inside");
    // An area turned inside out, as a large margin makes it: still one unit large.
    const QRectF least = roiInside(QRectF(5.0, 5.0, -10.0, -10.0), rect);
    QVERIFY(least.width() == 1.0 && least.height() == 1.0);
}

void TestRoiGeometry::handles_areTheCorners()
{
    QCOMPARE(roiHandles(QRectF(1.0, 2.0, 10.0, 20.0)),
        (QVector<QPointF> { { 1.0, 2.0 }, { 11.0, 2.0 }, { 1.0, 22.0 }, { 11.0, 22.0 } }));
}

void TestRoiGeometry::nearestCorner_splitsAtTheMiddle()
{
    const QRectF rect(10.0, 10.0, 20.0, 20.0); // middle (20, 20)
    QCOMPARE(nearestCorner(rect, QPointF(19.0, 19.0)), TopLeftZone);
    QCOMPARE(nearestCorner(rect, QPointF(20.0, 19.0)), TopRightZone); // the middle is right
    QCOMPARE(nearestCorner(rect, QPointF(19.0, 20.0)), BottomLeftZone); // and below
    QCOMPARE(nearestCorner(rect, QPointF(20.0, 20.0)), BottomRightZone);
}

void TestRoiGeometry::cornerUnderPointer_handsOver()
{
    const QPointF bottomRight(100.0, 80.0);
    QCOMPARE(cornerUnderPointer(bottomRight, QPointF(20.0, 30.0)), TopLeftZone);
    QCOMPARE(cornerUnderPointer(bottomRight, QPointF(100.0, 30.0)), TopRightZone);
    QCOMPARE(cornerUnderPointer(bottomRight, QPointF(20.0, 80.0)), BottomLeftZone);
    QCOMPARE(cornerUnderPointer(bottomRight, QPointF(100.0, 80.0)), BottomRightZone);
}

void TestRoiGeometry::resized_data()
{
    QTest::addColumn<int>("corner");
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<QRectF>("rect");
    // Of the rectangle from (10, 20) to (110, 80).
    QTest::newRow("top left") << 1 << QPointF(5.5, 30.9) << QRectF(5.0, 30.0, 104.0, 49.0);
    QTest::newRow("top right") << 2 << QPointF(150.0, 30.0) << QRectF(10.0, 30.0, 140.0, 50.0);
    QTest::newRow("bottom left") << 3 << QPointF(50.0, 100.0) << QRectF(50.0, 20.0, 60.0, 80.0);
    QTest::newRow("bottom right") << 4 << QPointF(60.0, 40.0) << QRectF(10.0, 20.0, 50.0, 20.0);
    QTest::newRow("top left past the other corner")
        << 1 << QPointF(150.0, 100.0) << QRectF(110.0, 80.0, 40.0, 20.0);
    QTest::newRow("bottom left past the top right")
        << 3 << QPointF(150.0, 10.0) << QRectF(110.0, 10.0, 40.0, 10.0);
    QTest::newRow("onto the other corner")
        << 4 << QPointF(10.0, 20.0) << QRectF(10.0, 20.0, 0.0, 0.0);
}

void TestRoiGeometry::resized()
{
    QFETCH(int, corner);
    QFETCH(QPointF, position);
    const QVector<QPointF> handles = roiHandles(QRectF(10.0, 20.0, 100.0, 60.0));
    QTEST(roiResized(handles, RoiZone(corner), position), "rect");
}

void TestRoiGeometry::resized_withTwoHandles()
{
    const QVector<QPointF> handles { { 10.0, 20.0 }, { 110.0, 80.0 } };
    QCOMPARE(roiResized(handles, TopLeftZone, QPointF(30.0, 40.0)), QRectF(30.0, 40.0, 80.0, 40.0));
    // Handles 3 and 4 do not exist: nothing moves but what the rule names.
    QCOMPARE(
        roiResized(handles, BottomRightZone, QPointF(0.0, 0.0)), QRectF(10.0, 20.0, 100.0, 60.0));
}

QTEST_GUILESS_MAIN(TestRoiGeometry)
#include "tst_roigeometry.moc"
