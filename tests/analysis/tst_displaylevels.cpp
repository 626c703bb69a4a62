#include "analysis/displaylevels.h"
#include "plainloops.h"

#include <QtTest>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

class TestDisplayLevels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scale_ofARange();
    void scale_ofASingleValue();
    void level_truncatesBelow255_data();
    void level_truncatesBelow255();
    void buildDisplayLevels_writesExactlyTheBins();
    void buildDisplayLevels_everyLevelIsThatOfThePlainLoop_data();
    void buildDisplayLevels_everyLevelIsThatOfThePlainLoop();
    void buildDisplayLevels_fallingScale();
    void holdsDisplayLevels_onlyWhatWasBuilt_data();
    void holdsDisplayLevels_onlyWhatWasBuilt();
    void levels_byMapAndByFormulaAgree();
    void levels_outsideTheBinsAreZero();
};

void TestDisplayLevels::scale_ofARange()
{
    QVERIFY(displayScale(0, 255, 10, 265) == 1.0);
    QVERIFY(displayScale(0, 255, 100, 1123) == 255.0 / 1023.0);
    QVERIFY(displayScale(55, 255, 0, 100) == 2.0);
    QVERIFY(displayScale(255, 0, 0, 255) == -1.0);
    QVERIFY(displayScale(0, 255, 0, 4294967295u) == 255.0 / 4294967295.0);
    QVERIFY(displayScale(0, 255, 1, 0) == 255.0 / 4294967295.0); // the difference is unsigned
}

void TestDisplayLevels::scale_ofASingleValue()
{
    QVERIFY(std::isinf(displayScale(0, 255, 7, 7)));
    QVERIFY(std::isnan(displayScale(9, 9, 7, 7)));
}

void TestDisplayLevels::level_truncatesBelow255_data()
{
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::addColumn<uint>("bin");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("level");
    QTest::newRow("first") << 0u << 25.5 << 0;
    QTest::newRow("25.5") << 1u << 25.5 << 25;
    QTest::newRow("254.9") << 2549u << 0.1 << 254;
    QTest::newRow("255") << 10u << 25.5 << 255;
    QTest::newRow("above") << 11u << 25.5 << 255;
    QTest::newRow("0 x infinity") << 0u << infinity << 255;
    QTest::newRow("infinity") << 1u << infinity << 255;
    QTest::newRow("not a number") << 1u << std::numeric_limits<double>::quiet_NaN() << 255;
    QTest::newRow("-1 as a byte") << 1u << -1.0 << 255;
    QTest::newRow("-255 as a byte") << 255u << -1.0 << 1;
    QTest::newRow("last bin of 2^32 - 1") << 4294967294u << 255.0 / 4294967294.0 << 255;
    QTest::newRow("far below") << 4294967295u << -1e300 << 0; // bounded at -2^30
}

void TestDisplayLevels::level_truncatesBelow255()
{
    QFETCH(uint, bin);
    QFETCH(double, scale);
    QFETCH(int, level);
    QCOMPARE(int(displayLevel(bin, scale)), level);
}

void TestDisplayLevels::buildDisplayLevels_writesExactlyTheBins()
{
    std::array<uchar, 4> levels { 9, 9, 9, 9 };
    buildDisplayLevels(100.0, levels.data(), 3);
    QCOMPARE(levels, (std::array<uchar, 4> { 0, 100, 200, 9 }));
    buildDisplayLevels(100.0, levels.data(), 0);
    QCOMPARE(levels, (std::array<uchar, 4> { 0, 100, 200, 9 }));
}

void TestDisplayLevels::buildDisplayLevels_everyLevelIsThatOfThePlainLoop_data()
{
    QTest::addColumn<uint>("min");
    QTest::addColumn<uint>("max");
    const QVector<uint> sizes { 1, 2, 255, 256, 257, 4096, 4097, 5000, 65535, 65536, 1048576,
        3333333, 67108864 };
    for (const uint size : sizes) {
        QTest::addRow("%u bins", size) << 1000u << 999u + size;
    }
    QTest::newRow("up to the largest value") << 4294000000u << 4294967295u;
}

void TestDisplayLevels::buildDisplayLevels_everyLevelIsThatOfThePlainLoop()
{
    QFETCH(uint, min);
    QFETCH(uint, max);
    std::vector<uchar> expected(max - min + 1);
    plain::displayMap(min, max, expected.data(), uint(expected.size()));
    std::vector<uchar> levels(expected.size());
    buildDisplayLevels(displayScale(0, 255, min, max), levels.data(), uint(levels.size()));
    QVERIFY(levels == expected);
}

void TestDisplayLevels::buildDisplayLevels_fallingScale()
{
    std::vector<uchar> levels(5001);
    buildDisplayLevels(-0.0625, levels.data(), 5001);
    QCOMPARE(int(levels[15]), 0); // -0.94
    QCOMPARE(int(levels[16]), 255); // -1, as a byte
    QCOMPARE(int(levels[4080]), 1); // -255
    QCOMPARE(int(levels[4096]), 0); // -256
}

void TestDisplayLevels::holdsDisplayLevels_onlyWhatWasBuilt_data()
{
    QTest::addColumn<uint>("binCount");
    for (const uint binCount : { 1u, 2u, 256u, 4096u, 4097u, 70000u }) {
        QTest::addRow("%u bins", binCount) << binCount;
    }
}

void TestDisplayLevels::holdsDisplayLevels_onlyWhatWasBuilt()
{
    QFETCH(uint, binCount);
    const double scale = displayScale(0, 255, 0, binCount - 1);
    std::vector<uchar> levels(binCount);
    buildDisplayLevels(scale, levels.data(), binCount);
    QVERIFY(holdsDisplayLevels(scale, levels.data(), binCount));
    for (const uint changed : { 0u, 1u, binCount / 2, binCount - 2, binCount - 1 }) {
        if (changed < binCount) {
            ++levels[changed];
            QVERIFY(!holdsDisplayLevels(scale, levels.data(), binCount));
            --levels[changed];
        }
    }
    QVERIFY(holdsDisplayLevels(scale, levels.data(), binCount));
    QVERIFY(binCount == 1 || !holdsDisplayLevels(scale * 0.5, levels.data(), binCount));
}

void TestDisplayLevels::levels_byMapAndByFormulaAgree()
{
    const double scale = displayScale(0, 255, 1000, 1010);
    std::array<uchar, 11> map {};
    buildDisplayLevels(scale, map.data(), 11);
    const DisplayLevels byMap { 1000, 11, scale, map.data() };
    const DisplayLevels byFormula { 1000, 11, scale, nullptr };
    const std::array<int, 11> expected { 0, 25, 51, 76, 102, 127, 153, 178, 204, 229, 255 };
    for (uint bin = 0; bin < 11; ++bin) {
        QCOMPARE(int(byMap.level(1000 + bin)), expected[bin]);
        QCOMPARE(int(byFormula.level(1000 + bin)), expected[bin]);
    }
}

void TestDisplayLevels::levels_outsideTheBinsAreZero()
{
    const std::array<uchar, 2> map { 7, 255 };
    const DisplayLevels byMap { 1000, 2, 255.0, map.data() };
    const DisplayLevels byFormula { 1000, 2, 255.0, nullptr };
    for (const uint value : { 999u, 1002u, 0u, 4294967295u }) {
        QCOMPARE(int(byMap.level(value)), 0);
        QCOMPARE(int(byFormula.level(value)), 0);
    }
    const DisplayLevels none;
    QCOMPARE(int(none.level(0)), 0);
}

QTEST_GUILESS_MAIN(TestDisplayLevels)
#include "tst_displaylevels.moc"
