#include "plots/rulerscale.h"

#include <QtTest>

#include <limits>

namespace {

const double notANumber = std::numeric_limits<double>::quiet_NaN();
const double infinite = std::numeric_limits<double>::infinity();

/// Steps of a ruler with one pixel per unit and a tick every unit.
RulerSteps unitSteps()
{
    return RulerSteps { 5, 80, 1, 5, 1.0, 1.0 };
}

RulerSpan span(int visibleStart, int visibleCount, double zoom = 1.0)
{
    return RulerSpan { visibleStart, visibleCount, zoom };
}

} // namespace

class TestRulerScale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void niceNumber_keepsOneLeadingDigit_data();
    void niceNumber_keepsOneLeadingDigit();
    void steps_data();
    void steps();
    void steps_withoutVisibleUnitsAreZero_data();
    void steps_withoutVisibleUnitsAreZero();
    void span_showsUnits();
    void horizontal_wholeImage();
    void horizontal_scrolled();
    void horizontal_majorExactlyOneStepInHasNoLabel();
    void horizontal_zoomAddsPixelsToUnits();
    void horizontal_zoomedStartIsTruncated();
    void horizontal_firstTickIsRoundedUpAfterTheDivision();
    void horizontal_positionsAreAddedUp();
    void horizontal_negativeStartCountsAsZero();
    void vertical_wholeImage();
    void vertical_scrolled();
    void vertical_zoomed();
    void vertical_firstMajorTickHasNoLabel();
    void vertical_belowTheImageCountsNegative();
    void nothingToDraw_data();
    void nothingToDraw();
    void tickLimit();
    void extremeNumbers_data();
    void extremeNumbers();
    void allUnitsOfAnIntVisible();
    void labels_plainUnits();
    void labels_calibrated();
    void labels_widenedBelowZeroArePlain();
    void labels_doNotOverflow();
    void origins();
    void origins_surviveAnyMeasure();
};

void TestRulerScale::niceNumber_keepsOneLeadingDigit_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("nice");
    QTest::newRow("1") << 1.0 << 1;
    QTest::newRow("9 stays") << 9.0 << 9;
    QTest::newRow("fraction of one") << 0.2 << 1;
    QTest::newRow("fraction above 9") << 9.1 << 10;
    QTest::newRow("10 stays") << 10.0 << 10;
    QTest::newRow("37") << 37.0 << 40;
    QTest::newRow("80 stays") << 80.0 << 80;
    QTest::newRow("99") << 99.0 << 100;
    QTest::newRow("up to the next hundred") << 123.0 << 200;
    QTest::newRow("1000 stays") << 1000.0 << 1000;
    QTest::newRow("1001") << 1001.0 << 2000;
    QTest::newRow("10 digits") << 1000000001.0 << 2000000000;
    QTest::newRow("beyond the bound") << 1e30 << 2000000000;
    QTest::newRow("infinite") << infinite << 2000000000;
    QTest::newRow("zero") << 0.0 << 0;
    QTest::newRow("negative") << -5.0 << 0;
    QTest::newRow("not a number") << notANumber << 0;
}

void TestRulerScale::niceNumber_keepsOneLeadingDigit()
{
    QFETCH(double, value);
    QFETCH(int, nice);
    QCOMPARE(niceNumber(value), nice);
}

void TestRulerScale::steps_data()
{
    QTest::addColumn<int>("visibleCount");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("major");
    QTest::addColumn<int>("majorCount");
    QTest::addColumn<int>("minor");
    QTest::addColumn<int>("minorPerMajor");
    QTest::newRow("400") << 400 << 400 << 80 << 5 << 20 << 4;
    QTest::newRow("1000") << 1000 << 1000 << 200 << 5 << 40 << 5;
    QTest::newRow("1000 of 2050") << 1000 << 2050 << 200 << 11 << 40 << 5;
    QTest::newRow("6") << 6 << 400 << 2 << 200 << 1 << 2;
    QTest::newRow("5: every tick major") << 5 << 400 << 1 << 400 << 1 << 1;
    // 70 / 5 = 14 -> 20; 70 / 20 = 3.5, rounded up
    QTest::newRow("350") << 350 << 350 << 70 << 5 << 20 << 4;
    // 9 / 5 = 1.8, rounded up to 2; 9 / 2 = 4.5, rounded up
    QTest::newRow("45") << 45 << 45 << 9 << 5 << 2 << 5;
    QTest::newRow("1") << 1 << 1 << 1 << 1 << 1 << 1;
    // 1280 / 5 = 256 -> 300; 300 / 5 = 60 -> 60
    QTest::newRow("1280") << 1280 << 1280 << 300 << 5 << 60 << 5;
    // 2^30 / 5 = 214748364.8 -> 300000000; / 5 = 60000000
    QTest::newRow("2^30") << 1073741824 << 1073741824 << 300000000 << 4 << 60000000 << 5;
}

void TestRulerScale::steps()
{
    QFETCH(int, visibleCount);
    QFETCH(int, count);
    const RulerSteps steps = rulerSteps(visibleCount, count, 500.0);
    QTEST(steps.major, "major");
    QTEST(steps.majorCount, "majorCount");
    QTEST(steps.minor, "minor");
    QTEST(steps.minorPerMajor, "minorPerMajor");
    QVERIFY(steps.pixelsPerUnit == 500.0 / visibleCount);
    QVERIFY(steps.pixelsPerMinor == steps.minor * (500.0 / visibleCount));
}

void TestRulerScale::steps_withoutVisibleUnitsAreZero_data()
{
    QTest::addColumn<int>("visibleCount");
    QTest::newRow("none") << 0;
    QTest::newRow("inverted") << -500;
    QTest::newRow("smallest int") << std::numeric_limits<int>::min();
}

void TestRulerScale::steps_withoutVisibleUnitsAreZero()
{
    QFETCH(int, visibleCount);
    const RulerSteps steps = rulerSteps(visibleCount, 400, 400.0);
    QCOMPARE(steps.major, 0);
    QCOMPARE(steps.majorCount, 0);
    QCOMPARE(steps.minor, 0);
    QCOMPARE(steps.minorPerMajor, 0);
    QVERIFY(steps.pixelsPerUnit == 0.0);
    QVERIFY(steps.pixelsPerMinor == 0.0);
}

void TestRulerScale::span_showsUnits()
{
    RulerSpan shown;
    shown.showUnits(100, 499);
    QCOMPARE(shown.visibleStart, 100);
    QCOMPARE(shown.visibleCount, 400);
    shown.showUnits(7, 7);
    QCOMPARE(shown.visibleCount, 1);
    shown.showUnits(7, 3);
    QCOMPARE(shown.visibleCount, -3);
}

void TestRulerScale::horizontal_wholeImage()
{
    const RulerTicks ticks = horizontalTicks(rulerSteps(400, 400, 400.0), span(0, 400), 400.0);
    QCOMPARE(ticks.all.size(), 20); // x = 0, 20 .. 380
    QCOMPARE(ticks.all.at(0), QLineF(0, 0, 0, 6));
    QCOMPARE(ticks.all.at(1), QLineF(20, 0, 20, 3));
    QCOMPARE(ticks.all.at(4), QLineF(80, 0, 80, 6));
    QCOMPARE(ticks.all.last(), QLineF(380, 0, 380, 3));
    QCOMPARE(ticks.labelledNumbers, (QVector<int> { 4, 8, 12, 16 }));
    QCOMPARE(ticks.labelled,
        (QVector<QLineF> { QLineF(80, 0, 80, 6), QLineF(160, 0, 160, 6), QLineF(240, 0, 240, 6),
            QLineF(320, 0, 320, 6) }));
}

void TestRulerScale::horizontal_scrolled()
{
    // From unit 50 on: the first tick is number 3 (unit 60), 10 pixels in.
    const RulerTicks ticks = horizontalTicks(rulerSteps(400, 1000, 400.0), span(50, 400), 400.0);
    QCOMPARE(ticks.all.size(), 20); // x = 10, 30 .. 390
    QCOMPARE(ticks.all.first(), QLineF(10, 0, 10, 3));
    QCOMPARE(ticks.labelledNumbers, (QVector<int> { 4, 8, 12, 16, 20 }));
    QCOMPARE(ticks.labelled.first(), QLineF(30, 0, 30, 6));
}

void TestRulerScale::horizontal_majorExactlyOneStepInHasNoLabel()
{
    // From unit 60 on: tick 3 at x = 0, tick 4 is major at x = 20, one minor step.
    const RulerTicks ticks = horizontalTicks(rulerSteps(400, 1000, 400.0), span(60, 400), 400.0);
    QCOMPARE(ticks.all.at(1), QLineF(20, 0, 20, 6));
    QCOMPARE(ticks.labelledNumbers, (QVector<int> { 8, 12, 16, 20 }));
}

void TestRulerScale::horizontal_zoomAddsPixelsToUnits()
{
    // Half a pixel per unit, zoom 2: start = trunc(100 + 0.5 * 200) = 200 units, offset 100 pixels.
    // Ticks every 20 units = 10 pixels: the first is number 10 at x = 0.
    const RulerTicks ticks
        = horizontalTicks(rulerSteps(400, 1000, 200.0), span(100, 400, 2.0), 200.0);
    QCOMPARE(ticks.all.size(), 20);
    QCOMPARE(ticks.all.at(2), QLineF(20, 0, 20, 6));
    QCOMPARE(ticks.labelledNumbers, (QVector<int> { 12, 16, 20, 24, 28 }));
    QCOMPARE(ticks.labelled.first(), QLineF(20, 0, 20, 6));
}

void TestRulerScale::horizontal_zoomedStartIsTruncated()
{
    // Zoom 1.5 adds a third of the width: start = trunc(100 + 66.67) = 166, offset 83 pixels. The
    // first tick is number 9, 90 - 83 = 7 pixels in.
    const RulerTicks ticks
        = horizontalTicks(rulerSteps(400, 1000, 200.0), span(100, 400, 1.5), 200.0);
    QCOMPARE(ticks.all.size(), 20); // x = 7, 17 .. 197
    QCOMPARE(ticks.all.first(), QLineF(7, 0, 7, 3));
    QCOMPARE(ticks.labelledNumbers, (QVector<int> { 12, 16, 20, 24, 28 }));
    QCOMPARE(ticks.labelled.first(), QLineF(37, 0, 37, 6));
}

void TestRulerScale::horizontal_firstTickIsRoundedUpAfterTheDivision()
{
    // 300 units on 400 pixels, ticks every 20 units = 26.67 pixels. Unit 60 is 80 pixels and the
    // third tick, but as doubles the division gives a little more than 3, so that the fourth is
    // the first, 26.67 pixels in. The 14th stands at 373.33, the next would at 400.
    const RulerTicks ticks = horizontalTicks(rulerSteps(300, 300, 400.0), span(60, 300), 400.0);
    QCOMPARE(ticks.all.size(), 14);
    QVERIFY(qAbs(ticks.all.first().x1() - 80.0 / 3.0) < 1e-9);
    QCOMPARE(ticks.labelledNumbers, (QVector<int> { 6, 9, 12, 15 }));
}

void TestRulerScale::horizontal_positionsAreAddedUp()
{
    // 84 units on 400 pixels, a tick every 4: the 21st step ends at the right edge. Added up from
    // rounded steps it stays a little before the edge and is drawn; 21 times the step would not be.
    const RulerTicks ticks = horizontalTicks(rulerSteps(84, 84, 400.0), span(0, 84), 400.0);
    QCOMPARE(ticks.all.size(), 22);
    QVERIFY(ticks.all.last().x1() < 400.0);
    QVERIFY(ticks.all.last().x1() > 400.0 - 1e-9);
}

void TestRulerScale::horizontal_negativeStartCountsAsZero()
{
    const RulerSteps steps = rulerSteps(400, 400, 400.0);
    QCOMPARE(horizontalTicks(steps, span(-30, 400), 400.0).all,
        horizontalTicks(steps, span(0, 400), 400.0).all);
}

void TestRulerScale::vertical_wholeImage()
{
    const RulerTicks ticks
        = verticalTicks(rulerSteps(400, 400, 400.0), span(0, 400), 400, QSizeF(70, 400));
    QCOMPARE(ticks.all.size(), 21); // y = 401, 381 .. 1
    QCOMPARE(ticks.all.at(0), QLineF(70, 401, 64, 401));
    QCOMPARE(ticks.all.at(1), QLineF(70, 381, 67, 381));
    QCOMPARE(ticks.all.last(), QLineF(70, 1, 64, 1));
    QCOMPARE(ticks.labelledNumbers, (QVector<int> { 4, 8, 12, 16, 20 }));
    QCOMPARE(ticks.labelled.first(), QLineF(70, 321, 64, 321));
}

void TestRulerScale::vertical_scrolled()
{
    // 1000 rows, rows 100 .. 499 shown: 500 units lie below, the first tick is number 25.
    const RulerTicks ticks
        = verticalTicks(rulerSteps(400, 1000, 400.0), span(100, 400), 1000, QSizeF(70, 400));
    QCOMPARE(ticks.all.size(), 21);
    QCOMPARE(ticks.all.first(), QLineF(70, 401, 67, 401));
    QCOMPARE(ticks.labelledNumbers, (QVector<int> { 28, 32, 36, 40, 44 }));
    QCOMPARE(ticks.labelled.first(), QLineF(70, 341, 64, 341));
}

void TestRulerScale::vertical_zoomed()
{
    // Zoom 2 adds half the height: 200 pixels, ten ticks.
    const RulerTicks ticks
        = verticalTicks(rulerSteps(400, 400, 400.0), span(0, 400, 2.0), 400, QSizeF(70, 400));
    QCOMPARE(ticks.all.size(), 21);
    QCOMPARE(ticks.labelledNumbers, (QVector<int> { 12, 16, 20, 24, 28 }));
    QCOMPARE(ticks.labelled.first(), QLineF(70, 361, 64, 361));
}

void TestRulerScale::vertical_firstMajorTickHasNoLabel()
{
    // 70 units below: the first tick is number 4, 10 pixels up at y = 391. It is major and the
    // first, so it has no label; in a horizontal ruler its nearness to the edge would decide.
    const RulerTicks ticks
        = verticalTicks(rulerSteps(400, 470, 400.0), span(0, 400), 470, QSizeF(70, 400));
    QCOMPARE(ticks.all.first(), QLineF(70, 391, 64, 391));
    QCOMPARE(ticks.labelledNumbers, (QVector<int> { 8, 12, 16, 20 }));

    // 50 units below: the first is number 3, and number 4 at y = 371 already carries a label.
    const RulerTicks shifted
        = verticalTicks(rulerSteps(400, 450, 400.0), span(0, 400), 450, QSizeF(70, 400));
    QCOMPARE(shifted.all.first(), QLineF(70, 391, 67, 391));
    QCOMPARE(shifted.labelledNumbers.first(), 4);
    QCOMPARE(shifted.labelled.first(), QLineF(70, 371, 64, 371));
}

void TestRulerScale::vertical_belowTheImageCountsNegative()
{
    // The shown rows reach 100 units beyond the image: the first tick is number -5.
    const RulerTicks ticks
        = verticalTicks(rulerSteps(400, 400, 400.0), span(100, 400), 400, QSizeF(70, 400));
    QCOMPARE(ticks.all.first(), QLineF(70, 401, 67, 401));
    QCOMPARE(ticks.labelledNumbers, (QVector<int> { -4, 0, 4, 8, 12 }));
    QCOMPARE(ticks.labelled.first(), QLineF(70, 381, 64, 381));
}

void TestRulerScale::nothingToDraw_data()
{
    QTest::addColumn<double>("pixelsPerMinor");
    QTest::addColumn<int>("minorPerMajor");
    QTest::addColumn<int>("visibleCount");
    QTest::addColumn<double>("length");
    QTest::newRow("a good ruler, to compare") << 1.0 << 5 << 400 << 400.0;
    QTest::newRow("no step") << 0.0 << 5 << 400 << 400.0;
    QTest::newRow("step back") << -1.0 << 5 << 400 << 400.0;
    QTest::newRow("step not a number") << notANumber << 5 << 400 << 400.0;
    QTest::newRow("infinite step") << infinite << 5 << 400 << 400.0;
    QTest::newRow("no minors per major") << 1.0 << 0 << 400 << 400.0;
    QTest::newRow("nothing visible") << 1.0 << 5 << 0 << 400.0;
    QTest::newRow("inverted") << 1.0 << 5 << -400 << 400.0;
    QTest::newRow("no length") << 1.0 << 5 << 400 << 0.0;
    QTest::newRow("negative length") << 1.0 << 5 << 400 << -400.0;
    QTest::newRow("length not a number") << 1.0 << 5 << 400 << notANumber;
    QTest::newRow("infinite length") << 1.0 << 5 << 400 << infinite;
}

void TestRulerScale::nothingToDraw()
{
    QFETCH(double, pixelsPerMinor);
    QFETCH(int, minorPerMajor);
    QFETCH(int, visibleCount);
    QFETCH(double, length);
    RulerSteps steps = unitSteps();
    steps.pixelsPerMinor = pixelsPerMinor;
    steps.minorPerMajor = minorPerMajor;
    const RulerTicks across = horizontalTicks(steps, span(0, visibleCount), length);
    const RulerTicks up = verticalTicks(steps, span(0, visibleCount), 400, QSizeF(70, length));
    const bool good = QByteArray(QTest::currentDataTag()).startsWith("a good ruler");
    QCOMPARE(across.all.isEmpty(), !good);
    QCOMPARE(up.all.isEmpty(), !good);
    QCOMPARE(across.labelled.isEmpty(), !good);
    QCOMPARE(up.labelledNumbers.isEmpty(), !good);
}

void TestRulerScale::tickLimit()
{
    QCOMPARE(horizontalTicks(unitSteps(), span(0, 400), 100000.0).all.size(), 100000);
    QVERIFY(horizontalTicks(unitSteps(), span(0, 400), 100001.0).all.isEmpty());
    // y from height + 1 down to 1; the image's 400 rows are all shown
    QCOMPARE(verticalTicks(unitSteps(), span(0, 400), 400, QSizeF(70, 99999)).all.size(), 100000);
    QVERIFY(verticalTicks(unitSteps(), span(0, 400), 400, QSizeF(70, 100000)).all.isEmpty());
}

void TestRulerScale::extremeNumbers_data()
{
    QTest::addColumn<int>("visibleStart");
    QTest::addColumn<int>("visibleCount");
    QTest::addColumn<int>("imageHeight");
    QTest::addColumn<double>("length");
    QTest::addColumn<double>("zoom");
    const int largest = std::numeric_limits<int>::max();
    const int smallest = std::numeric_limits<int>::min();
    QTest::newRow("start far off") << largest << 400 << 400 << 400.0 << 1.0;
    QTest::newRow("start far before") << smallest << 400 << largest << 400.0 << 1.0;
    QTest::newRow("tall image") << 0 << 1 << largest << 400.0 << 1.0;
    QTest::newRow("negative image") << largest << largest << smallest << 400.0 << 1.0;
    QTest::newRow("everything visible") << 0 << largest << largest << 400.0 << 1.0;
    QTest::newRow("longest ruler") << largest << 5 << 400 << 1073741824.0 << 1.0;
    QTest::newRow("infinite zoom") << 0 << 400 << 400 << 400.0 << infinite;
    QTest::newRow("huge zoom") << 1073741824 << 400 << 400 << 1073741824.0 << 1e300;
}

void TestRulerScale::extremeNumbers()
{
    QFETCH(int, visibleStart);
    QFETCH(int, visibleCount);
    QFETCH(int, imageHeight);
    QFETCH(double, length);
    QFETCH(double, zoom);
    const RulerSteps steps = rulerSteps(visibleCount, imageHeight, length);
    const RulerSpan shown = span(visibleStart, visibleCount, zoom);
    // about 25 ticks fill a ruler whose steps were made for its length
    QVERIFY(horizontalTicks(steps, shown, length).all.size() <= 50);
    QVERIFY(verticalTicks(steps, shown, imageHeight, QSizeF(70, length)).all.size() <= 50);
}

void TestRulerScale::allUnitsOfAnIntVisible()
{
    // (2^31 - 1) / 5 = 429496729.4 -> 500000000; / 5 = 100000000 units = 18.63 of 400 pixels
    const int largest = std::numeric_limits<int>::max();
    const RulerSteps steps = rulerSteps(largest, largest, 400.0);
    const RulerTicks across = horizontalTicks(steps, span(0, largest), 400.0);
    QCOMPARE(across.all.size(), 22); // x = 0 .. 391.2
    QCOMPARE(across.labelledNumbers, (QVector<int> { 5, 10, 15, 20 }));
    const RulerTicks up = verticalTicks(steps, span(0, largest), largest, QSizeF(70, 400));
    QCOMPARE(up.all.size(), 22); // y = 401 .. 9.8
    QCOMPARE(up.labelledNumbers, (QVector<int> { 5, 10, 15, 20 }));
}

void TestRulerScale::labels_plainUnits()
{
    QCOMPARE(tickLabels({ -4, 0, 4, 8 }, 20, ValueRange(), 400, 1),
        (QStringList { "-80", "0", "80", "160" }));
}

void TestRulerScale::labels_calibrated()
{
    const ValueRange range { 500.0, 900.0 };
    QCOMPARE(tickLabels({ 4 }, 20, range, 400, 1), QStringList { "580.0" });
    QCOMPARE(tickLabels({ 4 }, 20, range, 400, 0), QStringList { "580" });
    QCOMPARE(tickLabels({ 4, 5 }, 20, range, 800, 2), (QStringList { "540.00", "550.00" }));
}

void TestRulerScale::labels_widenedBelowZeroArePlain()
{
    QCOMPARE(tickLabels({ 4 }, 20, storedValueRange(0.0, 3.0), 400, 1), QStringList { "80" });
}

void TestRulerScale::labels_doNotOverflow()
{
    // 2^30 x 2 * 10^9
    QCOMPARE(tickLabels({ 1073741824 }, 2000000000, ValueRange(), 400, 1),
        QStringList { "2147483648000000000" });
    QCOMPARE(tickLabels({ 4 }, 20, ValueRange { 500.0, 900.0 }, 0, 1), QStringList { "inf" });
}

void TestRulerScale::origins()
{
    const QSizeF text(25.0, 15.0);
    // (80 - 12.5, 6 + 7.5 + 6)
    QCOMPARE(horizontalLabelOrigin(QPointF(80, 6), text), QPoint(67, 19));
    // (64 - 25 - 4, 321 + 7.5 - 1)
    QCOMPARE(verticalLabelOrigin(QPointF(64, 321), text), QPoint(35, 327));
    // ((400 - 25) / 2, 50 - 15)
    QCOMPARE(horizontalTitleOrigin(QSizeF(400, 50), text), QPoint(187, 35));
    // (-(400 + 25) / 2, 15 + 4)
    QCOMPARE(verticalTitleOrigin(QSizeF(70, 400), text), QPoint(-212, 19));
}

void TestRulerScale::origins_surviveAnyMeasure()
{
    const QSizeF text(1e300, notANumber);
    QCOMPARE(horizontalLabelOrigin(QPointF(80, 6), text), QPoint(-1073741824, 0));
    QCOMPARE(verticalLabelOrigin(QPointF(64, 321), text), QPoint(-1073741824, 0));
    QCOMPARE(horizontalTitleOrigin(QSizeF(400, 50), text), QPoint(-1073741824, 0));
    QCOMPARE(verticalTitleOrigin(QSizeF(70, 400), text), QPoint(-1073741824, 0));
}

QTEST_GUILESS_MAIN(TestRulerScale)
#include "tst_rulerscale.moc"
