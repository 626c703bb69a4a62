#include "base/valuerange.h"

#include <QtTest>

#include <limits>

class TestValueRange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsUncalibrated();
    void stored_data();
    void stored();
    void notANumber_isUncalibrated();
    void valueAt_interpolatesFromTheStart();
    void valueAt_survivesACountOfZero();
    void wholeValue_truncatesAndSaturates_data();
    void wholeValue_truncatesAndSaturates();
};

void TestValueRange::startsUncalibrated()
{
    const ValueRange range;
    QVERIFY(range.start == -1.0 && range.end == -1.0);
    QVERIFY(!range.isCalibrated());
}

void TestValueRange::stored_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::addColumn<double>("storedStart");
    QTest::addColumn<double>("storedEnd");
    QTest::addColumn<bool>("calibrated");
    QTest::newRow("wide enough") << 500.0 << 900.0 << 500.0 << 900.0 << true;
    QTest::newRow("exactly 5") << 10.0 << 15.0 << 10.0 << 15.0 << true;
    QTest::newRow("short") << 600.0 << 602.0 << 597.0 << 602.0 << true;
    QTest::newRow("turned round") << 900.0 << 500.0 << 495.0 << 500.0 << true;
    QTest::newRow("from zero") << 0.0 << 255.0 << 0.0 << 255.0 << true;
    QTest::newRow("widened below zero") << 0.0 << 3.0 << -2.0 << 3.0 << false;
    QTest::newRow("negative start") << -1.0 << 700.0 << -1.0 << -1.0 << false;
    QTest::newRow("negative end") << 3.0 << -0.5 << -1.0 << -1.0 << false;
    QTest::newRow("32-bit samples") << 0.0 << 4294967295.0 << 0.0 << 4294967295.0 << true;
}

void TestValueRange::stored()
{
    QFETCH(double, start);
    QFETCH(double, end);
    QFETCH(double, storedStart);
    QFETCH(double, storedEnd);
    QFETCH(bool, calibrated);
    const ValueRange range = storedValueRange(start, end);
    QVERIFY(range.start == storedStart);
    QVERIFY(range.end == storedEnd);
    QCOMPARE(range.isCalibrated(), calibrated);
}

void TestValueRange::notANumber_isUncalibrated()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(!storedValueRange(nan, 900.0).isCalibrated());
    QVERIFY(!storedValueRange(500.0, nan).isCalibrated());
}

void TestValueRange::valueAt_interpolatesFromTheStart()
{
    const ValueRange range { 500.0, 900.0 };
    QVERIFY(range.valueAt(0.0, 400) == 500.0);
    QVERIFY(range.valueAt(80.0, 400) == 580.0);
    QVERIFY(range.valueAt(400.0, 400) == 900.0);
    QVERIFY(range.valueAt(-80.0, 400) == 420.0);
}

void TestValueRange::valueAt_survivesACountOfZero()
{
    const ValueRange range { 500.0, 900.0 };
    QVERIFY(qIsInf(range.valueAt(80.0, 0)));
    QVERIFY(qIsNaN(range.valueAt(0.0, 0)));
}

void TestValueRange::wholeValue_truncatesAndSaturates_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("whole");
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("truncated") << 700.9 << 700;
    QTest::newRow("toward zero") << -2.9 << -2;
    QTest::newRow("beyond 2^30") << 2000000000.0 << 2000000000;
    QTest::newRow("far below zero") << -2000000000.0 << -2000000000;
    QTest::newRow("largest int") << 2147483647.9 << 2147483647;
    QTest::newRow("32-bit samples") << 4294967295.0 << 2147483647;
    QTest::newRow("infinite") << infinity << 2147483647;
    QTest::newRow("minus infinite") << -infinity << std::numeric_limits<int>::min();
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
}

void TestValueRange::wholeValue_truncatesAndSaturates()
{
    QFETCH(double, value);
    QFETCH(int, whole);
    QCOMPARE(wholeValue(value), whole);
}

QTEST_GUILESS_MAIN(TestValueRange)
#include "tst_valuerange.moc"
