#include "image/imagedata.h"

#include <QtTest>

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>

static_assert(!std::is_copy_constructible_v<ImageData> && !std::is_copy_assignable_v<ImageData>);
static_assert(std::has_virtual_destructor_v<ImageData>);

namespace {

constexpr int largestInt = std::numeric_limits<int>::max();
constexpr int smallestInt = std::numeric_limits<int>::min();

template <class Sample>
void setSamples(ImageData& image, const std::vector<Sample>& samples)
{
    QVERIFY(image.allocatedBytes() == samples.size() * sizeof(Sample));
    std::memcpy(image.data, samples.data(), samples.size() * sizeof(Sample));
}

/// The fields in the order of their declaration.
QVector<int> fieldsOf(const ImageData& image)
{
    return { image.width, image.height, image.bitDepth, image.pixelCount, image.dataSize,
        image.channels, image.bytesPerLine, image.bytesPerChannel };
}

} // namespace

class TestImageData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void allocate_describesAndZeroesThePixels();
    void allocate_zeroesAReusedBlock();
    void allocate_refusedChangesNothing_data();
    void allocate_refusedChangesNothing();
    void allocate_acceptsTheLargestSizes();
    void allocate_withoutWidthOrHeight_data();
    void allocate_withoutWidthOrHeight();
    void allocate_keepsAnyDepth_data();
    void allocate_keepsAnyDepth();
    void allocateForFill_zeroesBehindTheFill();
    void release_keepsFormatAndForgetsSizes();
    void release_thenAllocateIsZeroAgain();
    void pixelValue_ofEachDepth();
    void pixelValue_countsThroughTheRows();
    void pixelValue_outsideIsZero_data();
    void pixelValue_outsideIsZero();
    void pixelValue_ofOtherImagesIsZero();
    void convertToGray_changesFieldsAndPixels();
    void convertToGray_ofEachDepth();
    void convertToGray_leavesTheTail();
    void convertToGray_ofOtherDepthsChangesFieldsOnly_data();
    void convertToGray_ofOtherDepthsChangesFieldsOnly();
    void convertToGray_needsThreeChannels_data();
    void convertToGray_needsThreeChannels();
    void convertToGray_survivesWrappedLines();
};

void TestImageData::startsEmpty()
{
    ImageData image;
    QCOMPARE(fieldsOf(image), (QVector<int> { 0, 0, 8, 0, 0, 1, 0, 1 }));
    QVERIFY(!image.data);
    QVERIFY(!image.isLoaded());
    QCOMPARE(image.allocatedBytes(), size_t(0));
    image.release();
    image.convertToGray();
    QCOMPARE(image.pixelValue(0, 0), 0);
}

void TestImageData::allocate_describesAndZeroesThePixels()
{
    ImageData image;
    QVERIFY(image.allocate(2, 2, 16, 1));
    QCOMPARE(fieldsOf(image), (QVector<int> { 2, 2, 16, 4, 8, 1, 4, 2 }));
    QCOMPARE(image.allocatedBytes(), size_t(8));
    QVERIFY(image.isLoaded());
    QVERIFY(std::all_of(image.data, image.data + 8, [](uchar byte) { return byte == 0; }));
}

void TestImageData::allocate_zeroesAReusedBlock()
{
    ImageData image;
    QVERIFY(image.allocate(4, 2, 8, 1));
    std::memset(image.data, 9, 8);
    QVERIFY(image.allocate(2, 2, 16, 1)); // 8 bytes again
    QVERIFY(std::all_of(image.data, image.data + 8, [](uchar byte) { return byte == 0; }));
}

void TestImageData::allocate_refusedChangesNothing_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<int>("channels");
    QTest::newRow("negative width") << -1 << 2 << 8 << 1;
    QTest::newRow("negative height") << 2 << -1 << 8 << 1;
    QTest::newRow("negative depth") << 2 << 2 << -8 << 1;
    QTest::newRow("negative channels") << 2 << 2 << 8 << -1;
    QTest::newRow("negative width, no height") << -1 << 0 << 8 << 1;
    QTest::newRow("pixel count 65536 x 32768") << 65536 << 32768 << 8 << 1;
    QTest::newRow("pixel count without bytes") << 65536 << 32768 << 7 << 1;
    QTest::newRow("pixel count beyond 32 bits") << 65536 << 65536 << 8 << 1;
    QTest::newRow("line length") << 65535 << 1 << 2040 << 255;
    QTest::newRow("line length before the channels") << largestInt << 1 << 16 << 0;
    QTest::newRow("data size 32768 x 32768 x 2") << 32768 << 32768 << 16 << 1;
    QTest::newRow("all at their largest") << largestInt << largestInt << largestInt << largestInt;
    QTest::newRow("all at their smallest")
        << smallestInt << smallestInt << smallestInt << smallestInt;
}

void TestImageData::allocate_refusedChangesNothing()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, bitDepth);
    QFETCH(int, channels);
    ImageData image;
    QVERIFY(image.allocate(3, 2, 8, 1));
    setSamples<uchar>(image, { 1, 2, 3, 4, 5, 6 });
    const uchar* data = image.data;
    const QVector<int> fields = fieldsOf(image);

    QVERIFY(!image.allocate(width, height, bitDepth, channels));
    QVERIFY(!image.allocateForFill(width, height, bitDepth, channels, 0));
    QVERIFY(image.data == data);
    QCOMPARE(fieldsOf(image), fields);
    QCOMPARE(image.allocatedBytes(), size_t(6));
    QCOMPARE(image.pixelValue(2, 1), 6);
}

void TestImageData::allocate_acceptsTheLargestSizes()
{
    ImageData image;
    QVERIFY(image.allocate(65535, 32767, 7, 1)); // 2,147,385,345 pixels of no bytes
    QCOMPARE(fieldsOf(image), (QVector<int> { 65535, 32767, 7, 2147385345, 0, 1, 0, 0 }));
    QVERIFY(!image.isLoaded());
    QVERIFY(image.data);
}

void TestImageData::allocate_withoutWidthOrHeight_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("bytesPerChannel");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("bytesPerLine");
    QTest::newRow("no width") << 0 << 5 << 2 << 1 << 0;
    QTest::newRow("no height") << 5 << 0 << 2 << 3 << 30;
    QTest::newRow("neither") << 0 << 0 << 1 << 1 << 0;
    // 65535 x 255 x 255 = 4,261,413,375, and less 2^32 that is -33,553,921
    QTest::newRow("line length beyond an int") << 65535 << 0 << 255 << 255 << -33553921;
}

void TestImageData::allocate_withoutWidthOrHeight()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, bytesPerChannel);
    QFETCH(int, channels);
    QFETCH(int, bytesPerLine);
    ImageData image;
    QVERIFY(image.allocate(width, height, bytesPerChannel * 8, channels));
    QCOMPARE(fieldsOf(image),
        (QVector<int> {
            width, height, bytesPerChannel * 8, 0, 0, channels, bytesPerLine, bytesPerChannel }));
    QVERIFY(image.data);
    QVERIFY(!image.isLoaded());
    QCOMPARE(image.allocatedBytes(), size_t(0));
    QCOMPARE(image.pixelValue(0, 0), 0);
}

void TestImageData::allocate_keepsAnyDepth_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<int>("bytesPerChannel");
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("7") << 7 << 0;
    QTest::newRow("12") << 12 << 1;
    QTest::newRow("24") << 24 << 3;
    QTest::newRow("64") << 64 << 8;
}

void TestImageData::allocate_keepsAnyDepth()
{
    QFETCH(int, bitDepth);
    QFETCH(int, bytesPerChannel);
    ImageData image;
    QVERIFY(image.allocate(3, 2, bitDepth, 1));
    QCOMPARE(image.bitDepth, bitDepth);
    QCOMPARE(image.bytesPerChannel, bytesPerChannel);
    QCOMPARE(image.dataSize, 6 * bytesPerChannel);
    QCOMPARE(image.isLoaded(), bytesPerChannel > 0);
}

void TestImageData::allocateForFill_zeroesBehindTheFill()
{
    ImageData image;
    QVERIFY(image.allocate(8, 1, 8, 1));
    std::memset(image.data, 9, 8);
    QVERIFY(image.allocateForFill(8, 1, 8, 1, 3));
    QVERIFY(std::all_of(image.data + 3, image.data + 8, [](uchar byte) { return byte == 0; }));
    QVERIFY(image.allocateForFill(4, 4, 8, 1, 100)); // more than there is
    QCOMPARE(image.allocatedBytes(), size_t(16));
}

void TestImageData::release_keepsFormatAndForgetsSizes()
{
    ImageData image;
    QVERIFY(image.allocate(3, 2, 16, 3));
    image.release();
    QVERIFY(!image.data);
    QVERIFY(!image.isLoaded());
    QCOMPARE(image.allocatedBytes(), size_t(0));
    QCOMPARE(fieldsOf(image), (QVector<int> { 0, 0, 16, 0, 0, 3, 18, 2 }));
}

void TestImageData::release_thenAllocateIsZeroAgain()
{
    ImageData image;
    QVERIFY(image.allocate(4, 2, 8, 1));
    std::memset(image.data, 9, 8);
    image.release();
    QVERIFY(image.allocate(4, 2, 8, 1));
    QVERIFY(std::all_of(image.data, image.data + 8, [](uchar byte) { return byte == 0; }));
}

void TestImageData::pixelValue_ofEachDepth()
{
    ImageData image;
    QVERIFY(image.allocate(2, 1, 8, 1));
    setSamples<uchar>(image, { 1, 255 });
    QCOMPARE(image.pixelValue(1, 0), 255);
    QVERIFY(image.allocate(2, 1, 16, 1));
    setSamples<ushort>(image, { 1, 65535 });
    QCOMPARE(image.pixelValue(1, 0), 65535);
    QVERIFY(image.allocate(2, 1, 32, 1));
    setSamples<uint>(image, { 2147483647u, 4294967295u });
    QCOMPARE(image.pixelValue(0, 0), 2147483647);
    QCOMPARE(image.pixelValue(1, 0), -1);
}

void TestImageData::pixelValue_countsThroughTheRows()
{
    ImageData image;
    QVERIFY(image.allocate(3, 2, 8, 1));
    setSamples<uchar>(image, { 10, 11, 12, 20, 21, 22 });
    QCOMPARE(image.pixelValue(1, 1), 21);
    QCOMPARE(image.pixelValue(3, 0), 20); // x = width: the next row's first pixel
    QCOMPARE(image.pixelValue(-1, 1), 12); // the first row's last pixel
}

void TestImageData::pixelValue_outsideIsZero_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::newRow("before the first") << -1 << 0;
    QTest::newRow("behind the last") << 3 << 1;
    QTest::newRow("row = height") << 0 << 2;
    QTest::newRow("column = width, row = height") << 3 << 2;
    QTest::newRow("far right") << largestInt << 0;
    QTest::newRow("far left") << smallestInt << 0;
    QTest::newRow("far down") << 0 << largestInt;
    QTest::newRow("far up") << 0 << smallestInt;
    QTest::newRow("far corner") << largestInt << largestInt;
}

void TestImageData::pixelValue_outsideIsZero()
{
    QFETCH(int, x);
    QFETCH(int, y);
    for (const int bitDepth : { 8, 16, 32 }) {
        ImageData image;
        QVERIFY(image.allocate(3, 2, bitDepth, 1));
        std::memset(image.data, 9, image.allocatedBytes());
        QCOMPARE(image.pixelValue(x, y), 0);
    }
}

void TestImageData::pixelValue_ofOtherImagesIsZero()
{
    ImageData image;
    QVERIFY(image.allocate(2, 2, 8, 3));
    std::memset(image.data, 9, image.allocatedBytes());
    QCOMPARE(image.pixelValue(0, 0), 0);
    QVERIFY(image.allocate(2, 2, 64, 1));
    std::memset(image.data, 9, image.allocatedBytes());
    QCOMPARE(image.pixelValue(0, 0), 0);
    QVERIFY(image.allocate(2, 2, 24, 1));
    std::memset(image.data, 9, image.allocatedBytes());
    QCOMPARE(image.pixelValue(0, 0), 0);
}

void TestImageData::convertToGray_changesFieldsAndPixels()
{
    ImageData image;
    QVERIFY(image.allocate(2, 2, 8, 3));
    setSamples<uchar>(image, { 255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 255, 255 });
    image.convertToGray();
    QCOMPARE(fieldsOf(image), (QVector<int> { 2, 2, 8, 4, 4, 1, 2, 1 }));
    QCOMPARE(image.allocatedBytes(), size_t(12));
    // 15 x 255 / 128 = 29.8, 75 x 255 / 128 = 149.4, 38 x 255 / 128 = 75.7
    QCOMPARE(image.pixelValue(0, 0), 29);
    QCOMPARE(image.pixelValue(1, 0), 149);
    QCOMPARE(image.pixelValue(0, 1), 75);
    QCOMPARE(image.pixelValue(1, 1), 255);
}

void TestImageData::convertToGray_ofEachDepth()
{
    ImageData image;
    QVERIFY(image.allocate(2, 1, 16, 3));
    setSamples<ushort>(image, { 65535, 65535, 65535, 128, 256, 384 });
    image.convertToGray();
    QCOMPARE(image.pixelValue(0, 0), 65535);
    QCOMPARE(image.pixelValue(1, 0), 15 + 150 + 114);
    QCOMPARE(image.bytesPerLine, 4);
    QCOMPARE(image.dataSize, 4);

    QVERIFY(image.allocate(2, 1, 32, 3));
    setSamples<uint>(image, { 128, 256, 384, 4294967295u, 4294967295u, 4294967295u });
    image.convertToGray();
    QCOMPARE(image.pixelValue(0, 0), 15 + 150 + 114);
    // 128 x (2^32 - 1) wraps to 2^32 - 128, and that over 128 is 2^25 - 1
    QCOMPARE(image.pixelValue(1, 0), 33554431);
}

void TestImageData::convertToGray_leavesTheTail()
{
    ImageData image;
    QVERIFY(image.allocate(1, 2, 8, 3));
    setSamples<uchar>(image, { 128, 0, 0, 0, 128, 5 });
    image.convertToGray(); // 15 and (75 x 128 + 38 x 5) / 128 = 76.5
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(image.data), 6),
        QByteArray("\x0f\x4c\x00\x00\x80\x05", 6));
    QCOMPARE(image.pixelValue(0, 4), 128); // inside the allocation still
    QCOMPARE(image.pixelValue(0, 6), 0);
}

void TestImageData::convertToGray_ofOtherDepthsChangesFieldsOnly_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::newRow("24") << 24;
    QTest::newRow("64") << 64;
}

void TestImageData::convertToGray_ofOtherDepthsChangesFieldsOnly()
{
    QFETCH(int, bitDepth);
    const int bytes = bitDepth / 8;
    ImageData image;
    QVERIFY(image.allocate(2, 3, bitDepth, 3));
    std::memset(image.data, 9, image.allocatedBytes());
    image.convertToGray();
    QCOMPARE(fieldsOf(image), (QVector<int> { 2, 3, bitDepth, 6, 6 * bytes, 1, 2 * bytes, bytes }));
    QVERIFY(std::all_of(
        image.data, image.data + image.allocatedBytes(), [](uchar byte) { return byte == 9; }));
}

void TestImageData::convertToGray_needsThreeChannels_data()
{
    QTest::addColumn<int>("channels");
    for (const int channels : { 0, 1, 2, 4, 255 }) {
        QTest::addRow("%d", channels) << channels;
    }
}

void TestImageData::convertToGray_needsThreeChannels()
{
    QFETCH(int, channels);
    ImageData image;
    QVERIFY(image.allocate(2, 2, 8, channels));
    std::memset(image.data, 9, image.allocatedBytes());
    const QVector<int> fields = fieldsOf(image);
    image.convertToGray();
    QCOMPARE(fieldsOf(image), fields);
    QVERIFY(std::all_of(
        image.data, image.data + image.allocatedBytes(), [](uchar byte) { return byte == 9; }));
}

void TestImageData::convertToGray_survivesWrappedLines()
{
    ImageData image;
    QVERIFY(image.allocate(largestInt, 0, 2040, 3));
    image.convertToGray();
    QCOMPARE(image.channels, 1);
    QCOMPARE(image.dataSize, 0);
    QVERIFY(image.allocate(0, 7, 8, 3));
    image.convertToGray();
    QCOMPARE(fieldsOf(image), (QVector<int> { 0, 7, 8, 0, 0, 1, 0, 1 }));
}

QTEST_GUILESS_MAIN(TestImageData)
#include "tst_imagedata.moc"
