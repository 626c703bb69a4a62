#include "image/sampledispatch.h"

#include <QtTest>

class TestSampleDispatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsOnceWithTheSamplesOfTheDepth_data();
    void runsOnceWithTheSamplesOfTheDepth();
    void otherDepthsRunNothing_data();
    void otherDepthsRunNothing();
    void constImagesGiveConstSamples();
    void mutableSamplesWriteIntoTheImage();
};

void TestSampleDispatch::runsOnceWithTheSamplesOfTheDepth_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<int>("sampleBytes");
    QTest::newRow("8") << 8 << 1;
    QTest::newRow("16") << 16 << 2;
    QTest::newRow("32") << 32 << 4;
}

void TestSampleDispatch::runsOnceWithTheSamplesOfTheDepth()
{
    QFETCH(int, bitDepth);
    QFETCH(int, sampleBytes);
    ImageData image;
    QVERIFY(image.allocate(2, 1, bitDepth, 1));
    QVector<int> widths;
    QVERIFY(forSampleWidth(image, [&](auto* samples) {
        widths << int(sizeof(*samples));
        QVERIFY(reinterpret_cast<const uchar*>(samples) == image.data);
        QVERIFY(decltype(+*samples)(-1) > 0 || sizeof(*samples) < sizeof(int)); // unsigned
    }));
    QCOMPARE(widths, QVector<int> { sampleBytes });
}

void TestSampleDispatch::otherDepthsRunNothing_data()
{
    QTest::addColumn<int>("bitDepth");
    for (const int bitDepth : { 0, 1, 7, 12, 24, 64, 2040 }) {
        QTest::addRow("%d", bitDepth) << bitDepth;
    }
}

void TestSampleDispatch::otherDepthsRunNothing()
{
    QFETCH(int, bitDepth);
    ImageData image;
    QVERIFY(image.allocate(2, 1, bitDepth, 1));
    int runs = 0;
    QVERIFY(!forSampleWidth(image, [&](auto*) { ++runs; }));
    QCOMPARE(runs, 0);
}

void TestSampleDispatch::constImagesGiveConstSamples()
{
    const ImageData image;
    bool isNull = false;
    QVERIFY(forSampleWidth(image, [&](const auto* samples) { isNull = !samples; }));
    QVERIFY(isNull);
    forSampleWidth(image, [](auto* samples) {
        static_assert(std::is_const_v<std::remove_pointer_t<decltype(samples)>>);
    });
}

void TestSampleDispatch::mutableSamplesWriteIntoTheImage()
{
    ImageData image;
    QVERIFY(image.allocate(2, 1, 16, 1));
    forSampleWidth(image, [](auto* samples) { samples[1] = 200; });
    QCOMPARE(image.pixelValue(1, 0), 200);
}

QTEST_GUILESS_MAIN(TestSampleDispatch)
#include "tst_sampledispatch.moc"
