#include "base/screenscale.h"

#include <QtTest>

class TestScaledPixels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columnWidth_data();
    void columnWidth();
    void theRatioIsNarrowedBeforeTheProduct();
    void readsThePrimaryScreen();
};

void TestScaledPixels::columnWidth_data()
{
    QTest::addColumn<double>("dotsPerInch");
    QTest::addColumn<int>("width");
    QTest::newRow("96 dpi") << 96.0 << 290;
    QTest::newRow("100 dpi") << 100.0 << 302; // 302.08
    QTest::newRow("120 dpi") << 120.0 << 362; // 362.5
    QTest::newRow("144 dpi") << 144.0 << 435;
    QTest::newRow("192 dpi") << 192.0 << 580;
}

void TestScaledPixels::columnWidth()
{
    QFETCH(double, dotsPerInch);
    QTEST(scaledPixels(290.0F, dotsPerInch), "width");
}

void TestScaledPixels::theRatioIsNarrowedBeforeTheProduct()
{
    // 100.32 / 96 = 1.045 is a little less in single precision: 200 pixels end just below 209.
    // 105.6 / 96 = 1.1 is a little more: 40 pixels reach 44, which in double they would just miss.
    QCOMPARE(scaledPixels(200.0F, 100.32), 208);
    QCOMPARE(scaledPixels(40.0F, 105.6), 44);
    QVERIFY(dpiMultiple(120.0) == 1.25F);
}

void TestScaledPixels::readsThePrimaryScreen()
{
    QVERIFY(primaryDotsPerInch() == 96.0); // set by the test environment
}

QTEST_MAIN(TestScaledPixels)
#include "tst_scaledpixels.moc"
