#include "analysis/profilenumbers.h"

#include <QTest>

/// Positions and peaks of rows and columns.
class TestProfileNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void position_withoutCalibrationIsThePixel();
    void position_growsUpwardAlongAColumn();
    void scale_followsTheAxis();
    void peaks_areRankedByHeight();
    void peaks_ofAColumnRankFromTheBottom();
    void peaks_ofNothingAreNone();
};

void TestProfileNumbers::position_withoutCalibrationIsThePixel()
{
    const ProfileScale row = profileScale(ValueRange(), 10, false);
    const ProfileScale column = profileScale(ValueRange(), 10, true);
    QVERIFY(!row.isCalibrated && !column.isCalibrated);
    QVERIFY(row.position(3) == 3.0);
    QVERIFY(column.position(3) == 3.0);
}

void TestProfileNumbers::position_growsUpwardAlongAColumn()
{
    const ProfileScale row = profileScale({ 400.0, 420.0 }, 10, false);
    const ProfileScale column = profileScale({ 400.0, 420.0 }, 10, true);
    QVERIFY(row.position(0) == 400.0);
    QVERIFY(row.position(9) == 418.0);
    QVERIFY(column.position(9) == 400.0);
    QVERIFY(column.position(0) == 418.0);
}

void TestProfileNumbers::scale_followsTheAxis()
{
    const ValueRange wanted = wavelengthRange(400.0, 1.0, 3);
    QVERIFY(wanted.start == 400.0 && wanted.end == 403.0);
    // An axis spans 5 units at least.
    const ValueRange taken = storedValueRange(wanted.start, wanted.end);
    const ProfileScale scale = profileScale(taken, 3, false);
    QVERIFY(scale.start == 398.0);
    QVERIFY(scale.step == 5.0 / 3.0);
}

void TestProfileNumbers::peaks_areRankedByHeight()
{
    // Local maxima at 1, 3 and 5, all at the smallest scale.
    const QVector<uchar> levels { 0, 10, 0, 30, 0, 20, 0 };
    QCOMPARE(rankedPeaks(levels, false, 2).mid(0, 1), QVector<int>({ 3 }));
    QCOMPARE(rankedPeaks(levels, false, 1).size(), 1);
}

void TestProfileNumbers::peaks_ofAColumnRankFromTheBottom()
{
    // A flat column: every pixel is a peak of the same rank, the first one of the axis first.
    const QVector<uchar> flat(4, 7);
    QCOMPARE(rankedPeaks(flat, false, 4), QVector<int>({ 0, 1, 2, 3 }));
    QCOMPARE(rankedPeaks(flat, true, 4), QVector<int>({ 3, 2, 1, 0 }));
}

void TestProfileNumbers::peaks_ofNothingAreNone()
{
    QCOMPARE(rankedPeaks({}, false, 4), QVector<int>());
    QCOMPARE(rankedPeaks({ 1, 2, 1 }, false, 0), QVector<int>());
    QCOMPARE(rankedPeaks({ 1, 2, 1 }, false, -1), QVector<int>());
}

QTEST_GUILESS_MAIN(TestProfileNumbers)
#include "tst_profilenumbers.moc"
