#include "analysis/roirows.h"

#include <QtTest>

#include <limits>

namespace {

using Run = QPair<qint64, qint64>; ///< first index, count

QVector<Run> runsOf(const RoiRows& rows)
{
    QVector<Run> runs;
    rows.forEach([&](qint64 first, qint64 count) { runs << Run(first, count); });
    return runs;
}

} // namespace

/// An image of 4 x 3 samples throughout, unless a test says otherwise.
class TestRoiRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runs_data();
    void runs();
    void pixelCount();
    void withoutSamples();
    void farCornersEndQuickly();
};

void TestRoiRows::runs_data()
{
    QTest::addColumn<QRect>("roi");
    QTest::addColumn<QVector<Run>>("expected");
    const auto corners = [](int left, int top, int right, int bottom) {
        return QRect(QPoint(left, top), QPoint(right, bottom));
    };
    QTest::newRow("inside") << corners(1, 1, 2, 2) << QVector<Run> { { 5, 2 }, { 9, 2 } };
    QTest::newRow("whole") << corners(0, 0, 3, 2) << QVector<Run> { { 0, 4 }, { 4, 4 }, { 8, 4 } };
    QTest::newRow("right = width reads into the next row")
        << corners(3, 0, 4, 1) << QVector<Run> { { 3, 2 }, { 7, 2 } };
    QTest::newRow("right = width in the last row")
        << corners(3, 2, 4, 2) << QVector<Run> { { 11, 1 } };
    QTest::newRow("bottom = height") << corners(0, 2, 1, 3) << QVector<Run> { { 8, 2 } };
    QTest::newRow("left -1") << corners(-1, 0, 0, 1) << QVector<Run> { { 0, 1 }, { 3, 2 } };
    QTest::newRow("top -1") << corners(0, -1, 1, 0) << QVector<Run> { { 0, 2 } };
    QTest::newRow("row -1 reached from the right")
        << corners(3, -1, 4, 0) << QVector<Run> { { 0, 1 }, { 3, 2 } };
    QTest::newRow("row 3 reached from the left")
        << corners(-2, 2, -1, 3) << QVector<Run> { { 6, 2 }, { 10, 2 } };
    QTest::newRow("all in front") << corners(-9, -5, -1, 0) << QVector<Run> {};
    QTest::newRow("all behind") << corners(0, 3, 3, 9) << QVector<Run> {};
    QTest::newRow("no columns") << corners(1, 0, 0, 2) << QVector<Run> {};
    QTest::newRow("no rows") << corners(0, 2, 3, 1) << QVector<Run> {};
}

void TestRoiRows::runs()
{
    QFETCH(QRect, roi);
    QFETCH(QVector<Run>, expected);
    QCOMPARE(runsOf({ roi, 4, 12 }), expected);
}

void TestRoiRows::pixelCount()
{
    QCOMPARE((RoiRows { QRect(1, 1, 2, 3), 4, 12 }).pixelCount(), qint64(6));
    QCOMPARE(
        (RoiRows { QRect(-1, -1, 6, 5), 4, 12 }).pixelCount(), qint64(30)); // with those outside
    QCOMPARE((RoiRows { QRect(0, 0, 0, 5), 4, 12 }).pixelCount(), qint64(0));
    const QRect wide(QPoint(-1073741824, -1073741824), QPoint(1073741823, 1073741823));
    QCOMPARE((RoiRows { wide, 4, 12 }).pixelCount(), qint64(4611686018427387904)); // 2^62
}

void TestRoiRows::withoutSamples()
{
    QCOMPARE(runsOf({ QRect(0, 0, 4, 3), 4, 0 }), QVector<Run> {});
    QCOMPARE(runsOf({ QRect(0, 0, 4, 3), 0, 12 }), QVector<Run> {});
    QCOMPARE(runsOf({ QRect(), 4, 12 }), QVector<Run> {});
}

void TestRoiRows::farCornersEndQuickly()
{
    const int far = std::numeric_limits<int>::max();
    const int negative = std::numeric_limits<int>::min();
    // every row's run is cut to the twelve samples; 2^32 rows would take for ever
    const RoiRows thin { QRect(QPoint(0, negative), QPoint(0, far)), 4, 12 };
    QCOMPARE(runsOf(thin), (QVector<Run> { { 0, 1 }, { 4, 1 }, { 8, 1 } }));
    const RoiRows corner { QRect(QPoint(far, negative), QPoint(far, -536870911)), 4, 12 };
    // row r reaches sample 4 r + 2^31 - 1: r = -536870911 gives 3
    QCOMPARE(runsOf(corner), (QVector<Run> { { 3, 1 } }));
}

QTEST_GUILESS_MAIN(TestRoiRows)
#include "tst_roirows.moc"
