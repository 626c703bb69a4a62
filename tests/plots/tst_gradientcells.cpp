#include "plots/gradientcells.h"

#include <QtTest>

#include <limits>

class TestGradientCells : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void evenWidth_has32Cells();
    void leftOverUnits_makeANarrowCell();
    void narrowBar_hasEmptyCellsAndTheRest();
    void height_isTruncated();
    void integralWidthIsRounded_cellWidthIsTruncated();
    void negativeWidth_hasNoNarrowCell();
    void hostileSizes_data();
    void hostileSizes();
    void colorStep_dividesIntegers_data();
    void colorStep_dividesIntegers();
};

void TestGradientCells::evenWidth_has32Cells()
{
    const QVector<QRectF> cells = gradientCells(QSizeF(320, 10), 1);
    QCOMPARE(cells.size(), 32);
    QCOMPARE(cells.first(), QRectF(1, 1, 10, 10));
    QCOMPARE(cells.at(1), QRectF(11, 1, 10, 10));
    QCOMPARE(cells.last(), QRectF(311, 1, 10, 10));
}

void TestGradientCells::leftOverUnits_makeANarrowCell()
{
    const QVector<QRectF> cells = gradientCells(QSizeF(330, 10), 1);
    QCOMPARE(cells.size(), 33);
    QCOMPARE(cells.at(31), QRectF(311, 1, 10, 10));
    QCOMPARE(cells.last(), QRectF(321, 1, 10, 10)); // 330 mod 32 = 10 units
    QCOMPARE(gradientCells(QSizeF(321, 10), 1).last(), QRectF(321, 1, 1, 10));
}

void TestGradientCells::narrowBar_hasEmptyCellsAndTheRest()
{
    const QVector<QRectF> cells = gradientCells(QSizeF(20, 10), 1);
    QCOMPARE(cells.size(), 33);
    for (int i = 0; i < 32; ++i) {
        QCOMPARE(cells.at(i), QRectF(1, 1, 0, 10));
    }
    QCOMPARE(cells.last(), QRectF(1, 1, 20, 10));
}

void TestGradientCells::height_isTruncated()
{
    QCOMPARE(gradientCells(QSizeF(320, 10.9), 2).first(), QRectF(2, 2, 10, 10));
}

void TestGradientCells::integralWidthIsRounded_cellWidthIsTruncated()
{
    // 351.6 / 32 = 10.98 gives 10; 351.6 rounds to 352 = 11 * 32, which leaves nothing over.
    QCOMPARE(gradientCells(QSizeF(351.6, 10), 1).size(), 32);
    QVERIFY(gradientCells(QSizeF(351.6, 10), 1).first().width() == 10.0);
}

void TestGradientCells::negativeWidth_hasNoNarrowCell()
{
    const QVector<QRectF> cells = gradientCells(QSizeF(-330, 10), 1);
    QCOMPARE(cells.size(), 32);
    QVERIFY(cells.first().width() == -10.0);
    QVERIFY(cells.at(1).x() == -9.0);
}

void TestGradientCells::hostileSizes_data()
{
    QTest::addColumn<double>("extent");
    QTest::addColumn<double>("cellWidth");
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0.0;
    QTest::newRow("infinite") << infinity << 1073741824.0;
    QTest::newRow("minus infinite") << -infinity << -1073741824.0;
    QTest::newRow("zero") << 0.0 << 0.0;
}

void TestGradientCells::hostileSizes()
{
    QFETCH(double, extent);
    QFETCH(double, cellWidth);
    const QVector<QRectF> cells = gradientCells(QSizeF(extent, extent), 1);
    QCOMPARE(cells.size(), 32);
    QVERIFY(cells.first().width() == cellWidth);
}

void TestGradientCells::colorStep_dividesIntegers_data()
{
    QTest::addColumn<int>("colors");
    QTest::addColumn<int>("cells");
    QTest::addColumn<int>("step");
    QTest::newRow("32 cells") << 256 << 32 << 8;
    QTest::newRow("33 cells leave the end unshown") << 256 << 33 << 7;
    QTest::newRow("fewer colours than cells") << 31 << 32 << 0;
    QTest::newRow("as many") << 33 << 33 << 1;
    QTest::newRow("no cells") << 256 << 0 << 0;
}

void TestGradientCells::colorStep_dividesIntegers()
{
    QFETCH(int, colors);
    QFETCH(int, cells);
    QFETCH(int, step);
    QCOMPARE(colorStep(colors, cells), step);
}

QTEST_GUILESS_MAIN(TestGradientCells)
#include "tst_gradientcells.moc"
