#include "lightfield.h"

#include <QtTest>

#include <cmath>

class TestLightField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spot_isBrightestAtItsCentre();
    void spot_outsideIsCutOff_data();
    void spot_outsideIsCutOff();
    void exposed_addsTheOffsetRoundsAndLimits_data();
    void exposed_addsTheOffsetRoundsAndLimits();
    void exposed_noiseGrowsWithTheSignal();
    void samples_areLittleEndian();
};

void TestLightField::spot_isBrightestAtItsCentre()
{
    LightField light(21, 11, 5.0);
    light.addSpot(8.0, 4.0, 100.0, 2.0);
    QVERIFY(light.at(8, 4) == 105.0);
    QVERIFY(light.at(20, 10) < 5.1);
    QVERIFY(std::abs(light.at(10, 4) - (5.0 + 100.0 * 0.60653066)) < 1e-5); // exp(-1/2)
    QVERIFY(light.at(6, 4) == light.at(10, 4));
    QVERIFY(light.at(8, 2) == light.at(8, 6));
}

void TestLightField::spot_outsideIsCutOff_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("far left") << -1e6 << 5.0;
    QTest::newRow("far right") << 1e6 << 5.0;
    QTest::newRow("far above") << 5.0 << -1e6;
    QTest::newRow("far below") << 5.0 << 1e6;
    QTest::newRow("over the corner") << -1.0 << -1.0;
    QTest::newRow("over the far corner") << 10.5 << 10.5;
}

void TestLightField::spot_outsideIsCutOff()
{
    QFETCH(double, x);
    QFETCH(double, y);
    LightField light(10, 10, 1.0);
    light.addSpot(x, y, 10.0, 1.0);
    QCOMPARE(light.counts.size(), std::size_t(100));
    const bool reachesIn = std::abs(x) < 100.0 && std::abs(y) < 100.0;
    double sum = 0.0;
    for (const double counts : light.counts) {
        sum += counts;
    }
    QCOMPARE(sum > 100.0, reachesIn);
}

void TestLightField::exposed_addsTheOffsetRoundsAndLimits_data()
{
    QTest::addColumn<double>("light");
    QTest::addColumn<uint>("read");
    QTest::newRow("dark") << 0.0 << 100u;
    QTest::newRow("rounded down") << 20.4 << 120u;
    QTest::newRow("rounded up") << 20.5 << 121u;
    QTest::newRow("below zero") << -500.0 << 0u;
    QTest::newRow("saturated") << 1e12 << 4095u;
}

void TestLightField::exposed_addsTheOffsetRoundsAndLimits()
{
    QFETCH(double, light);
    QFETCH(uint, read);
    Sensor sensor;
    sensor.darkOffset = 100.0;
    sensor.fullScale = 4095;
    for (const int bytesPerChannel : { 2, 4 }) {
        sensor.bytesPerChannel = bytesPerChannel;
        const RawFrame frame = exposed(LightField(3, 2, light), sensor);
        QCOMPARE(frame.bytes.size(), 6 * bytesPerChannel);
        for (int i = 0; i < 6; ++i) {
            QCOMPARE(sampleAt(frame, i), read);
        }
    }
}

void TestLightField::exposed_noiseGrowsWithTheSignal()
{
    Sensor sensor;
    sensor.readNoise = 3.0;
    sensor.noisePerCount = 1.0;
    sensor.fullScale = 65535;
    sensor.bytesPerChannel = 2;
    const RawFrame frame = exposed(LightField(200, 200, 10000.0), sensor);
    double squares = 0.0;
    for (int i = 0; i < 40000; ++i) {
        const double distance = sampleAt(frame, i) - 10000.0;
        squares += distance * distance;
    }
    // sqrt(9 + 10000) = 100.04; its standard error is 100 / sqrt(80000) = 0.35.
    QVERIFY(std::abs(std::sqrt(squares / 40000) - 100.04) < 2.0);
}

void TestLightField::samples_areLittleEndian()
{
    RawFrame frame;
    frame.width = 2;
    frame.height = 1;
    frame.bytesPerChannel = 4;
    frame.bytes.fill('\0', 8);
    setSample(&frame, 1, 0x01020304u);
    QCOMPARE(frame.bytes, QByteArray::fromHex("0000000004030201"));
    QCOMPARE(sampleAt(frame, 1), 0x01020304u);
    frame.bytesPerChannel = 2;
    setSample(&frame, 0, 0xABCDu);
    QCOMPARE(frame.bytes.left(2), QByteArray::fromHex("CDAB"));
    frame.bytesPerChannel = 1;
    QCOMPARE(sampleAt(frame, 1), 0xABu);
    frame.bytesPerChannel = 3; // no such samples
    QCOMPARE(sampleAt(frame, 0), 0u);
}

QTEST_GUILESS_MAIN(TestLightField)
#include "tst_lightfield.moc"
