#include "image/grayconversion.h"
#include "plainloops.h"
#include "support/samplepatterns.h"
#include "support/simdtargets.h"

#include <QtTest>

#include <vector>

namespace {

template <class Sample>
void compareWithThePlainLoop(size_t pixels)
{
    for (const auto& pattern : samplePatterns<Sample>(3 * pixels)) {
        std::vector<Sample> expected = pattern.samples;
        plain::grayInPlace(expected.data(), qint64(pixels));
        forEachSimdTarget([&](const char* target) {
            std::vector<Sample> samples = pattern.samples;
            grayInPlace(samples.data(), qint64(pixels));
            QVERIFY2(samples == expected,
                qPrintable(QString("%1, %2 bytes, %3 pixels, %4")
                               .arg(target)
                               .arg(sizeof(Sample))
                               .arg(pixels)
                               .arg(pattern.name.c_str())));
        });
    }
}

} // namespace

class TestGrayConversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void weightsOfTheThreeChannels();
    void sixteenBitSamplesDoNotOverflow();
    void thirtyTwoBitProductsWrap();
    void noPixelsTouchNothing();
    void everyBitIsThatOfThePlainLoop();
};

void TestGrayConversion::weightsOfTheThreeChannels()
{
    std::vector<uchar> samples { 255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 255, 255, 1, 2, 3 };
    grayInPlace(samples.data(), 5);
    // the last pixel: (15 + 150 + 114) / 128 = 2.2
    QCOMPARE(std::vector<uchar>(samples.begin(), samples.begin() + 5),
        (std::vector<uchar> { 29, 149, 75, 255, 2 }));
    QCOMPARE(int(samples[14]), 3);
}

void TestGrayConversion::sixteenBitSamplesDoNotOverflow()
{
    std::vector<ushort> samples { 65535, 65535, 65535, 65535, 0, 0, 0, 0, 65535 };
    grayInPlace(samples.data(), 3);
    // 15 x 65535 / 128 = 7679.9, 38 x 65535 / 128 = 19455.7
    QCOMPARE(std::vector<ushort>(samples.begin(), samples.begin() + 3),
        (std::vector<ushort> { 65535, 7679, 19455 }));
}

void TestGrayConversion::thirtyTwoBitProductsWrap()
{
    // 15 x 2^31 wraps to 2^31, and that over 128 is 2^24; 75 x 2^30 wraps to 3 x 2^30, 38 x 2^30
    // to 2^31: the sum 5 x 2^30 wraps to 2^30, and that over 128 is 2^23
    std::vector<uint> samples { 2147483648u, 0, 0, 0, 1073741824u, 1073741824u };
    grayInPlace(samples.data(), 2);
    QCOMPARE(samples[0], 16777216u);
    QCOMPARE(samples[1], 8388608u);
}

void TestGrayConversion::noPixelsTouchNothing()
{
    std::vector<uchar> samples { 9, 9, 9 };
    grayInPlace(samples.data(), 0);
    grayInPlace(samples.data(), -1);
    QCOMPARE(samples, (std::vector<uchar> { 9, 9, 9 }));
    grayInPlace(static_cast<uchar*>(nullptr), 0);
}

void TestGrayConversion::everyBitIsThatOfThePlainLoop()
{
    for (size_t pixels = 0; pixels <= 70; ++pixels) {
        compareWithThePlainLoop<uchar>(pixels);
        compareWithThePlainLoop<ushort>(pixels);
        compareWithThePlainLoop<uint>(pixels);
    }
    compareWithThePlainLoop<uchar>(4099);
    compareWithThePlainLoop<ushort>(4099);
    compareWithThePlainLoop<uint>(4099);
}

QTEST_GUILESS_MAIN(TestGrayConversion)
#include "tst_grayconversion.moc"
