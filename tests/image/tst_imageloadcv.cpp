#include "image/imagedata.h"
#include "image/imageloadcv.h"
#include "support/sampleframes.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cstring>

#if defined(Q_OS_UNIX)
#include <sys/stat.h>
#endif

class TestImageLoadCv : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void losslessFormatsKeepEverySample_data();
    void losslessFormatsKeepEverySample();
    void jpegIsBlueGreenRed();
    void floatSamplesArriveAsBitPatterns();
    void doubleSamplesLoadAsZeros();
    void loadsThinImages_data();
    void loadsThinImages();
    void refusedFilesLeaveTheRecord_data();
    void refusedFilesLeaveTheRecord();
    void truncatedFilesAreSafe_data();
    void truncatedFilesAreSafe();
    void hugeDimensionsAreRefused();
    void notARegularFile();
    void noRecord();

private:
    bool loadFile(const QString& path);
    QByteArray pixels() const;

    QTemporaryDir m_folder;
    ImageData m_image;
};

void TestImageLoadCv::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

void TestImageLoadCv::init()
{
    m_image.release();
}

bool TestImageLoadCv::loadFile(const QString& path)
{
    ImageLoadCv loader;
    loader.filePath = path;
    return loader.load(&m_image);
}

QByteArray TestImageLoadCv::pixels() const
{
    return QByteArray(reinterpret_cast<const char*>(m_image.data), int(m_image.allocatedBytes()));
}

void TestImageLoadCv::losslessFormatsKeepEverySample_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("sample");
    QTest::addColumn<int>("bitDepth");
    const auto unsigned8 = int(FrameSample::Unsigned8);
    const auto unsigned16 = int(FrameSample::Unsigned16);
    QTest::newRow("8-bit grey PNG") << "grey.png" << 1 << unsigned8 << 8;
    QTest::newRow("16-bit grey PNG") << "grey16.png" << 1 << unsigned16 << 16;
    QTest::newRow("8-bit colour PNG") << "colour.png" << 3 << unsigned8 << 8;
    QTest::newRow("16-bit colour PNG") << "colour16.png" << 3 << unsigned16 << 16;
    QTest::newRow("PNG with alpha") << "alpha.png" << 4 << unsigned8 << 8;
    QTest::newRow("8-bit BMP") << "grey.bmp" << 1 << unsigned8 << 8;
    QTest::newRow("16-bit TIFF") << "grey16.tif" << 1 << unsigned16 << 16;
    QTest::newRow("16-bit colour TIFF") << "colour16.tiff" << 3 << unsigned16 << 16;
}

void TestImageLoadCv::losslessFormatsKeepEverySample()
{
    QFETCH(QString, name);
    QFETCH(int, channels);
    QFETCH(int, sample);
    QFETCH(int, bitDepth);
    const int bytesPerChannel = bitDepth / 8;
    QByteArray samples(5 * 3 * channels * bytesPerChannel, '\0'); // 5 wide: rows are padded in BMP
    for (int i = 0; i < samples.size(); ++i) {
        samples[i] = char(i * 37 + 11);
    }
    const QString path = m_folder.filePath(name);
    QVERIFY(writeImageFile(path, 5, 3, channels, FrameSample(sample), samples));
    QVERIFY(loadFile(path));
    QCOMPARE(m_image.width, 5);
    QCOMPARE(m_image.height, 3);
    QCOMPARE(m_image.bitDepth, bitDepth);
    QCOMPARE(m_image.channels, channels);
    QCOMPARE(m_image.bytesPerLine, 5 * channels * bytesPerChannel);
    QCOMPARE(pixels(), samples);
}

void TestImageLoadCv::jpegIsBlueGreenRed()
{
    QByteArray blue;
    for (int pixel = 0; pixel < 64; ++pixel) {
        blue += QByteArray("\xff\x00\x00", 3);
    }
    const QString path = m_folder.filePath("blue.jpg");
    QVERIFY(writeImageFile(path, 8, 8, 3, FrameSample::Unsigned8, blue));
    QVERIFY(loadFile(path));
    QCOMPARE(m_image.bitDepth, 8);
    QCOMPARE(m_image.channels, 3);
    QVERIFY(m_image.data[0] > 240);
    QVERIFY(m_image.data[1] < 15);
    QVERIFY(m_image.data[2] < 15);
}

void TestImageLoadCv::floatSamplesArriveAsBitPatterns()
{
    const std::vector<float> values { 0.0f, 1.0f, -2.0f, 3.5e9f };
    const QString path = m_folder.filePath("float.tif");
    QVERIFY(writeImageFile(path, 2, 2, 1, FrameSample::Float32, bytesOf(values)));
    QVERIFY(loadFile(path));
    QCOMPARE(m_image.bitDepth, 32);
    QCOMPARE(pixels(), bytesOf(values));
    QCOMPARE(m_image.pixelValue(1, 0), 0x3f800000); // 1.0f
    QCOMPARE(m_image.pixelValue(0, 1), int(0xc0000000u)); // -2.0f
}

void TestImageLoadCv::doubleSamplesLoadAsZeros()
{
    const std::vector<double> values { 1.0, 2.0, 3.0, 4.0, 5.0, 6.0 };
    const QString path = m_folder.filePath("double.tif");
    QVERIFY(writeImageFile(path, 3, 2, 1, FrameSample::Float64, bytesOf(values)));
    QVERIFY(m_image.allocate(6, 8, 8, 1)); // 48 bytes too, and used before
    std::memset(m_image.data, 9, 48);
    QVERIFY(loadFile(path));
    QCOMPARE(m_image.width, 3);
    QCOMPARE(m_image.height, 2);
    QCOMPARE(m_image.bitDepth, 64);
    QCOMPARE(m_image.bytesPerChannel, 8);
    QVERIFY(m_image.isLoaded());
    QCOMPARE(pixels(), QByteArray(48, '\0'));
}

void TestImageLoadCv::loadsThinImages_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("one pixel") << 1 << 1;
    QTest::newRow("one column") << 1 << 100000;
    QTest::newRow("one row") << 100000 << 1;
}

void TestImageLoadCv::loadsThinImages()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QByteArray samples(width * height, '\7');
    samples[samples.size() - 1] = '\11';
    const QString path = m_folder.filePath("thin.png");
    QVERIFY(writeImageFile(path, width, height, 1, FrameSample::Unsigned8, samples));
    QVERIFY(loadFile(path));
    QCOMPARE(m_image.width, width);
    QCOMPARE(m_image.height, height);
    QCOMPARE(pixels(), samples);
}

void TestImageLoadCv::refusedFilesLeaveTheRecord_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << "empty.png" << QByteArray();
    QTest::newRow("text") << "text.png" << QByteArray("this is no image");
    QTest::newRow("signature alone") << "head.png" << QByteArray("\x89PNG\r\n\x1a\n");
    QTest::newRow("BMP header alone") << "head.bmp" << QByteArray("BM") + QByteArray(60, '\0');
    QTest::newRow("TIFF header alone") << "head.tif" << QByteArray("II*\0\xff\xff\xff\xff", 8);
    QTest::newRow("JPEG start alone") << "head.jpg" << QByteArray("\xff\xd8\xff\xe0");
}

void TestImageLoadCv::refusedFilesLeaveTheRecord()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    const QString path = m_folder.filePath(name);
    QVERIFY(writeFile(path, bytes));
    QVERIFY(m_image.allocate(3, 1, 8, 1));
    std::memcpy(m_image.data, "xyz", 3);
    const uchar* data = m_image.data;
    QVERIFY(!loadFile(path));
    QVERIFY(m_image.data == data);
    QCOMPARE(m_image.width, 3);
    QCOMPARE(pixels(), QByteArray("xyz"));
}

void TestImageLoadCv::truncatedFilesAreSafe_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("PNG") << "cut.png";
    QTest::newRow("BMP") << "cut.bmp";
    QTest::newRow("TIFF") << "cut.tif";
    QTest::newRow("JPEG") << "cut.jpg";
}

void TestImageLoadCv::truncatedFilesAreSafe()
{
    QFETCH(QString, name);
    const QString path = m_folder.filePath(name);
    QVERIFY(writeImageFile(path, 40, 30, 3, FrameSample::Unsigned8, QByteArray(3600, '\5')));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    file.close();
    for (const int part : { 1, 2, 3 }) { // some codecs show what they have, some refuse
        QVERIFY(writeFile(path, whole.left(whole.size() * part / 4)));
        m_image.release();
        if (loadFile(path)) {
            QCOMPARE(m_image.width, 40);
            QCOMPARE(m_image.height, 30);
            QCOMPARE(m_image.allocatedBytes(), size_t(3600));
        } else {
            QVERIFY(!m_image.data);
        }
    }
}

void TestImageLoadCv::hugeDimensionsAreRefused()
{
    QByteArray header("BM", 2); // a BMP of 2^24 x 2^24 pixels
    header += QByteArray(52, '\0');
    header[10] = 54;
    header[14] = 40;
    header[21] = 1; // the highest byte of the width
    header[25] = 1; // and of the height
    header[26] = 1;
    header[28] = 24;
    const QString path = m_folder.filePath("huge.bmp");
    QVERIFY(writeFile(path, header + QByteArray(100, '\1')));
    QVERIFY(!loadFile(path)); // OpenCV throws: more pixels than it allows
    QVERIFY(!m_image.data);
}

void TestImageLoadCv::notARegularFile()
{
    QVERIFY(!loadFile(m_folder.filePath("missing.png")));
    QVERIFY(!loadFile(m_folder.path()));
    QVERIFY(!loadFile(QString()));
#if defined(Q_OS_UNIX)
    const QString pipe = m_folder.filePath("pipe.png");
    QCOMPARE(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    QVERIFY(!loadFile(pipe)); // opening it would wait for a writer for ever
#endif
}

void TestImageLoadCv::noRecord()
{
    const QString path = m_folder.filePath("one.png");
    QVERIFY(writeImageFile(path, 1, 1, 1, FrameSample::Unsigned8, "a"));
    ImageLoadCv loader;
    loader.filePath = path;
    QVERIFY(!loader.load(nullptr));
}

QTEST_GUILESS_MAIN(TestImageLoadCv)
#include "tst_imageloadcv.moc"
