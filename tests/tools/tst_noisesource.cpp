#include "noisesource.h"

#include <QtTest>

#include <cmath>

class TestNoiseSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void uniform_isThePortableSequence();
    void uniform_staysBelowOne();
    void gaussian_hasMeanZeroAndDeviationOne();
    void gaussian_isBounded();
    void sameSeed_sameNumbers();
};

void TestNoiseSource::uniform_isThePortableSequence()
{
    // The language fixes the 10000th number of the engine seeded with 5489.
    NoiseSource noise(5489u);
    for (int i = 1; i < 10000; ++i) {
        noise.uniform();
    }
    QVERIFY(noise.uniform() == 4123659995.0 / 4294967296.0);
}

void TestNoiseSource::uniform_staysBelowOne()
{
    NoiseSource noise(1);
    for (int i = 0; i < 100000; ++i) {
        const double value = noise.uniform();
        QVERIFY(value >= 0.0 && value < 1.0);
    }
}

void TestNoiseSource::gaussian_hasMeanZeroAndDeviationOne()
{
    constexpr int count = 200000;
    NoiseSource noise(2);
    double sum = 0.0;
    double squares = 0.0;
    for (int i = 0; i < count; ++i) {
        const double value = noise.gaussian();
        sum += value;
        squares += value * value;
    }
    // Five standard errors: 5 / sqrt(n) and 5 / sqrt(2 n).
    QVERIFY(std::abs(sum / count) < 0.0112);
    QVERIFY(std::abs(std::sqrt(squares / count) - 1.0) < 0.0080);
}

void TestNoiseSource::gaussian_isBounded()
{
    NoiseSource noise(3);
    for (int i = 0; i < 100000; ++i) {
        QVERIFY(std::abs(noise.gaussian()) <= 3.47); // 131070 / 37837.2 = 3.464
    }
}

void TestNoiseSource::sameSeed_sameNumbers()
{
    NoiseSource first(77);
    NoiseSource second(77);
    NoiseSource other(78);
    bool differs = false;
    for (int i = 0; i < 100; ++i) {
        const double value = first.gaussian();
        QVERIFY(value == second.gaussian());
        differs = differs || value != other.gaussian();
    }
    QVERIFY(differs);
}

QTEST_GUILESS_MAIN(TestNoiseSource)
#include "tst_noisesource.moc"
