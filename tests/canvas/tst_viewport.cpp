#include "canvas/viewport.h"

#include <QtTest>

#include <limits>

namespace {

/// A 400 x 400 image in a content of the same size, arms of 20 units.
ViewFrame squareFrame(const QPointF& anchor)
{
    return ViewFrame { QSizeF(400.0, 400.0), QSize(400, 400), anchor, 20.0 };
}

} // namespace

class TestViewport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contentSize_data();
    void contentSize();
    void fittingScale_isTheSmallerOne();
    void zoom_data();
    void zoom();
    void zoom_keepsAtLeastOnePixelVisible();
    void zoom_survivesHugeValues();
    void scroll_data();
    void scroll();
    void scroll_atTheLimits();
    void movedToPixel_takesTheShortestWay_data();
    void movedToPixel_takesTheShortestWay();
    void pointFromImage_roundsUp();
    void pointFromImage_withoutVisiblePart();
    void pointToImage_truncatesTheOffsetAndRoundsTheOrigin();
    void pointToImage_survivesHugeValues();
    void snapping_data();
    void snapping();
};

void TestViewport::contentSize_data()
{
    QTest::addColumn<QSizeF>("available");
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QSize>("content");
    const QSizeF square(400.0, 400.0);
    QTest::newRow("aspect 2 : 1") << square << QSize(1000, 500) << QSize(400, 200);
    QTest::newRow("aspect 1 : 2") << square << QSize(500, 1000) << QSize(200, 400);
    QTest::newRow("20 : 1 is shown 4 : 1") << square << QSize(2000, 100) << QSize(400, 100);
    QTest::newRow("1 : 20 is shown 1 : 4") << square << QSize(100, 2000) << QSize(100, 400);
    QTest::newRow("10 : 1 is not long yet") << square << QSize(1000, 100) << QSize(400, 40);
    QTest::newRow("5000 x 1") << square << QSize(5000, 1) << QSize(400, 100);
    // The content would be 2000 x 1: cut to 4/5 of its length first.
    QTest::newRow("beyond 1000 : 1")
        << QSizeF(2000.0, 2000.0) << QSize(100000, 1) << QSize(1600, 400);
    // The narrow side starts at 4, so only 5000 units make it 1 : 1250.
    QTest::newRow("1 : 500") << QSizeF(2000.0, 2000.0) << QSize(1, 100000) << QSize(500, 2000);
    QTest::newRow("beyond 1 : 1000")
        << QSizeF(5000.0, 5000.0) << QSize(1, 100000) << QSize(1000, 4000);
    QTest::newRow("down to a multiple of 4")
        << QSizeF(410.0, 410.0) << QSize(200, 200) << QSize(408, 408);
    QTest::newRow("an area of 4 x 1") << QSizeF(4.0, 1.0) << QSize(100, 30) << QSize(4, 0);
    QTest::newRow("no area") << QSizeF(0.0, 0.0) << QSize(100, 30) << QSize(4, 0);
    QTest::newRow("negative area") << QSizeF(-10.0, -10.0) << QSize(100, 30) << QSize(4, 0);
    QTest::newRow("the largest area")
        << QSizeF(1073741824.0, 1073741824.0) << QSize(1, 1) << QSize(1073741824, 1073741824);
    // 1073741824 x 4/5 needs 64 bits on the way: 858993459, then down to a multiple of 4.
    QTest::newRow("the longest area")
        << QSizeF(1073741824.0, 4.0) << QSize(1073741824, 1) << QSize(858993456, 214748364);
}

void TestViewport::contentSize()
{
    QFETCH(QSizeF, available);
    QFETCH(QSize, image);
    QFETCH(QSize, content);
    QCOMPARE(contentSizeFor(available, image), content);
}

void TestViewport::fittingScale_isTheSmallerOne()
{
    QVERIFY(fittingScale(QSizeF(400.0, 400.0), QSize(1000, 500)) == 0.4);
    QVERIFY(fittingScale(QSizeF(400.0, 200.0), QSize(100, 200)) == 1.0);
}

void TestViewport::zoom_data()
{
    QTest::addColumn<QRectF>("visible");
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("wanted");
    QTest::addColumn<QPointF>("anchor");
    QTest::addColumn<QPointF>("cross");
    QTest::addColumn<QRectF>("zoomed");
    const QRectF whole(0.0, 0.0, 400.0, 400.0);

    // int(400 / 1.5) = 266 pixels remain, of the 134 that go half on each side of the cross.
    QTest::newRow("around the centre") << whole << 1.0 << 1.5 << QPointF(200.0, 200.0)
                                       << QPointF(200.0, 200.0) << QRectF(67.0, 67.0, 266.0, 266.0);
    // int(134 x 399 / 400) = 133, the anchor at the edge: 13 more, then back to 400 - 266.
    QTest::newRow("at the bottom row")
        << whole << 1.0 << 1.5 << QPointF(200.0, 399.0) << QPointF(200.0, 399.0)
        << QRectF(67.0, 134.0, 266.0, 266.0);
    // int(34 x 392 / 400) + 100 = 133; the anchor stands 1 before the far edge at 199, an arm is
    // 20 / 6 = 3.33 pixels: int(3.83) = 3 more.
    QTest::newRow("far edge keeps an arm's length")
        << QRectF(100.0, 100.0, 100.0, 100.0) << 4.0 << 6.0 << QPointF(198.0, 198.0)
        << QPointF(392.0, 392.0) << QRectF(136.0, 136.0, 66.0, 66.0);
    // The anchor stands 1 behind the near edge, and the view stays.
    QTest::newRow("near edge is not looked at")
        << QRectF(100.0, 100.0, 100.0, 100.0) << 4.0 << 6.0 << QPointF(101.0, 101.0)
        << QPointF(4.0, 4.0) << QRectF(100.0, 100.0, 66.0, 66.0);
    // int((67 - 100) x 200 / 400) = int(-16.5) = -16.
    QTest::newRow("outward, toward zero")
        << QRectF(100.0, 100.0, 67.0, 67.0) << 6.0 << 4.0 << QPointF(133.0, 133.0)
        << QPointF(200.0, 200.0) << QRectF(84.0, 84.0, 100.0, 100.0);
    // int((66 - 100) x 390 / 400) = -33, limited to 0.
    QTest::newRow("outward, at the origin")
        << QRectF(10.0, 10.0, 66.0, 66.0) << 6.0 << 4.0 << QPointF(20.0, 20.0)
        << QPointF(390.0, 390.0) << QRectF(0.0, 0.0, 100.0, 100.0);
    // int(50 x 392 / 400) + 100 = 149; 199 - 198 = 1 is less than an arm's 2.5: int(3.0) more.
    QTest::newRow("an arm is rounded to whole pixels")
        << QRectF(100.0, 100.0, 100.0, 100.0) << 4.0 << 8.0 << QPointF(198.0, 198.0)
        << QPointF(392.0, 392.0) << QRectF(152.0, 152.0, 50.0, 50.0);
    // 300 - 290 is just an arm's length of 10.
    QTest::newRow("an arm's length is enough")
        << whole << 1.0 << 2.0 << QPointF(290.0, 290.0) << QPointF(200.0, 200.0)
        << QRectF(100.0, 100.0, 200.0, 200.0);
    // The old view is taken rounded: origin 101, size 99.
    QTest::newRow("rounds the old view")
        << QRectF(100.6, 100.6, 99.4, 99.4) << 4.0 << 8.0 << QPointF(120.0, 120.0)
        << QPointF(200.0, 200.0) << QRectF(125.0, 125.0, 50.0, 50.0);
}

void TestViewport::zoom()
{
    QFETCH(QRectF, visible);
    QFETCH(double, scale);
    QFETCH(double, wanted);
    QFETCH(QPointF, anchor);
    QFETCH(QPointF, cross);
    QFETCH(QRectF, zoomed);
    const ImageView view
        = zoomedView(ImageView { scale, visible }, wanted, squareFrame(anchor), cross);
    QVERIFY(view.scale == wanted);
    QCOMPARE(view.visible, zoomed);
}

void TestViewport::zoom_keepsAtLeastOnePixelVisible()
{
    // 20 units high at 40 units a pixel would be half a row.
    const ViewFrame thin { QSizeF(400.0, 20.0), QSize(1000, 50), QPointF(500.0, 25.0), 20.0 };
    const ImageView view = zoomedView(
        ImageView { 0.4, QRectF(0.0, 0.0, 1000.0, 50.0) }, 40.0, thin, QPointF(200.0, 10.0));
    QVERIFY(view.visible.width() == 10.0);
    QVERIFY(view.visible.height() == 1.0);
}

void TestViewport::zoom_survivesHugeValues()
{
    const double infinity = std::numeric_limits<double>::infinity();
    const ImageView view = zoomedView(ImageView { 1.0, QRectF(-1e300, 1e300, infinity, 1e300) },
        2.0, squareFrame(QPointF(-infinity, 1e300)), QPointF(infinity, -1e300));
    QVERIFY(QRectF(0.0, 0.0, 400.0, 400.0).contains(view.visible));
}

void TestViewport::scroll_data()
{
    QTest::addColumn<int>("distance");
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("anchor");
    QTest::addColumn<int>("origin");
    QTest::addColumn<double>("anchorAfter");
    // Pixels 100 .. 149 of 400 are visible; an arm is 20 units.
    QTest::newRow("a little to the right") << 3 << 2.0 << 130.0 << 110 << 130.0;
    QTest::newRow("far to the right") << 300 << 2.0 << 130.0 << 110 << 130.0;
    QTest::newRow("to the left") << -7 << 2.0 << 120.0 << 90 << 120.0;
    QTest::newRow("scale 1.0 counts as zoomed out") << 1 << 1.0 << 170.0 << 140 << 170.0;
    QTest::newRow("just above scale 1.0") << 1 << 1.25 << 130.0 << 110 << 130.0;
    // An arm is 10 pixels: 115 is 5 behind the near edge at 110; 10 - 1 + 110.
    QTest::newRow("anchor pushed by the near edge") << 1 << 2.0 << 115.0 << 110 << 119.0;
    // 135 is 5 before the far edge at 140; 140 - 10.
    QTest::newRow("anchor pushed by the far edge") << -1 << 2.0 << 135.0 << 90 << 130.0;
    // An arm is 6.67 pixels, rounded up to 7: 7 - 1 + 110.
    QTest::newRow("part of a pixel") << 1 << 3.0 << 112.0 << 110 << 116.0;
    // 140 - 7
    QTest::newRow("part of a pixel at the far edge") << -1 << 3.0 << 135.0 << 90 << 133.0;
    QTest::newRow("smallest distance")
        << std::numeric_limits<int>::min() << 2.0 << 120.0 << 90 << 120.0;
}

void TestViewport::scroll()
{
    QFETCH(int, distance);
    QFETCH(double, scale);
    QFETCH(double, anchor);
    const ScrollStep step = scrolledSpan(distance, scale, 100, 50, 400, anchor, 20.0);
    QTEST(step.origin, "origin");
    QTEST(step.anchor, "anchorAfter");
}

void TestViewport::scroll_atTheLimits()
{
    QCOMPARE(scrolledSpan(-1, 2.0, 5, 50, 400, 25.0, 20.0).origin, 0);
    QCOMPARE(scrolledSpan(1, 2.0, 345, 50, 400, 370.0, 20.0).origin, 350);
    QCOMPARE(scrolledSpan(1, 0.5, 0, 400, 400, 200.0, 20.0).origin, 0);
    // View 110 .. 119, narrower than two arms: the near edge pushes to 119, the far one back.
    QVERIFY(scrolledSpan(1, 2.0, 100, 10, 400, 105.0, 20.0).anchor == 110.0);
}

void TestViewport::movedToPixel_takesTheShortestWay_data()
{
    QTest::addColumn<QPoint>("pixel");
    QTest::addColumn<QPointF>("origin");
    QTest::newRow("first visible pixel") << QPoint(10, 20) << QPointF(10.0, 20.0);
    QTest::newRow("last visible pixel") << QPoint(14, 23) << QPointF(10.0, 20.0);
    QTest::newRow("one behind") << QPoint(15, 24) << QPointF(11.0, 21.0);
    QTest::newRow("one before") << QPoint(9, 19) << QPointF(9.0, 19.0);
    QTest::newRow("left and below") << QPoint(0, 99) << QPointF(0.0, 96.0);
}

void TestViewport::movedToPixel_takesTheShortestWay()
{
    QFETCH(QPoint, pixel);
    QFETCH(QPointF, origin);
    const QRectF moved = movedToPixel(QRectF(10.0, 20.0, 5.0, 4.0), pixel);
    QCOMPARE(moved, QRectF(origin, QSizeF(5.0, 4.0)));
}

void TestViewport::pointFromImage_roundsUp()
{
    const QSizeF content(400.0, 400.0);
    QCOMPARE(mapPointFromImage(QPointF(150.0, 399.0), QRectF(100.0, 200.0, 200.0, 200.0), content),
        QPointF(100.0, 398.0));
    // 50 x 400 / 300 = 66.67, and -50 x 400 / 300 = -66.67.
    QCOMPARE(mapPointFromImage(QPointF(150.0, 50.0), QRectF(100.0, 100.0, 300.0, 300.0), content),
        QPointF(67.0, -66.0));
}

void TestViewport::pointFromImage_withoutVisiblePart()
{
    const QSizeF content(400.0, 400.0);
    const QPointF pixel(150.0, 50.0);
    QCOMPARE(mapPointFromImage(pixel, QRectF(0.0, 0.0, 0.0, 0.0), content), QPointF(0.0, 0.0));
    QCOMPARE(mapPointFromImage(pixel, QRectF(0.0, 0.0, 0.0, 5.0), content), QPointF(0.0, 0.0));
    QCOMPARE(mapPointFromImage(pixel, QRectF(0.0, 0.0, 5.0, 0.0), content), QPointF(0.0, 0.0));
}

void TestViewport::pointToImage_truncatesTheOffsetAndRoundsTheOrigin()
{
    // int(0.5 x 101) + round(99.6) = 150, int(0.5 x 3) + round(10.4) = 11.
    QCOMPARE(mapPointToImage(
                 QPointF(101.0, 3.0), QRectF(99.6, 10.4, 200.0, 200.0), QSizeF(400.0, 400.0)),
        QPoint(150, 11));
    // int(0.5 x -1) = 0: a click on the frame reads the first pixel.
    QCOMPARE(
        mapPointToImage(QPointF(-1.0, -1.0), QRectF(0.0, 0.0, 200.0, 200.0), QSizeF(400.0, 400.0)),
        QPoint(0, 0));
}

void TestViewport::pointToImage_survivesHugeValues()
{
    const QPoint pixel = mapPointToImage(QPointF(1e300, std::numeric_limits<double>::quiet_NaN()),
        QRectF(1e300, -1e300, 1e300, 200.0), QSizeF(400.0, 400.0));
    QCOMPARE(pixel, QPoint(1073741824, -1073741824));
}

void TestViewport::snapping_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<QPointF>("snapped");
    QTest::newRow("below 10") << 9.99 << QPointF(23.0, 7.5) << QPointF(23.0, 7.5);
    QTest::newRow("at 10") << 10.0 << QPointF(23.0, 7.5) << QPointF(25.0, 5.0);
    QTest::newRow("on a cell's edge") << 10.0 << QPointF(20.0, 0.0) << QPointF(25.0, 5.0);
    QTest::newRow("at the far edge") << 10.0 << QPointF(400.0, 400.0) << QPointF(395.0, 395.0);
    QTest::newRow("outside") << 10.0 << QPointF(-50.0, 900.0) << QPointF(5.0, 395.0);
    // int(400 / 15) = 26 cells of 400 / 26 = 15.3846: the third one ends at 46.15.
    QTest::newRow("whole number of cells")
        << 15.0 << QPointF(46.0, 47.0) << QPointF(2.5 * 400.0 / 26.0, 3.5 * 400.0 / 26.0);
    QTest::newRow("cells larger than the content")
        << 500.0 << QPointF(23.0, 399.0) << QPointF(200.0, 200.0);
}

void TestViewport::snapping()
{
    QFETCH(double, scale);
    QFETCH(QPointF, point);
    QFETCH(QPointF, snapped);
    QCOMPARE(snappedToPixel(point, scale, QSizeF(400.0, 400.0)), snapped);
}

QTEST_GUILESS_MAIN(TestViewport)
#include "tst_viewport.moc"
