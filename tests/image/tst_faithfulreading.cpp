#include "image/imagedata.h"
#include "image/imageloadregistry.h"
#include "support/sampleframes.h"
#include "support/tiffwriter.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cstring>
#include <limits>

#if defined(Q_OS_UNIX)
#include <sys/stat.h>
#endif

Q_DECLARE_METATYPE(LoadProblem)

namespace {

ReadOptions faithful(int page = 0)
{
    ReadOptions options;
    options.reading = Reading::Faithful;
    options.page = page;
    return options;
}

template <class Sample>
TiffImage tiffLine(const std::vector<Sample>& samples, int channels, int format)
{
    TiffImage image;
    image.width = int(samples.size()) / channels;
    image.bits = int(sizeof(Sample)) * 8;
    image.samples = channels;
    image.format = format;
    image.photometric = channels >= 3 ? 2 : 1;
    image.pixels = bytesOf(samples);
    return image;
}

TiffField oneNumber(quint16 tag, quint64 value)
{
    return { tag, tiffShort, { value } };
}

} // namespace

/// Faithful reading through the registry, and the reasons of refusals in both readings.
class TestFaithfulReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void wholeNumbersAreTaken_data();
    void wholeNumbersAreTaken();
    void otherNumbersAreRefused_data();
    void otherNumbersAreRefused();
    void alphaIsNotLookedAt();
    void alphaIsDropped();
    void grayWithAlpha_data();
    void grayWithAlpha();
    void wideColorIsReducedWithoutWrap();
    void packedSamplesKeepTheirValues();
    void multipliedColorsAreRefused();
    void kindsShownAsOtherPicturesAreRefused_data();
    void kindsShownAsOtherPicturesAreRefused();
    void doublesAreRefused();
    void pagesAreChosen();
    void pageBehindABadOneIsNotMistaken();
    void bigTiff();
    void rawFiles_data();
    void rawFiles();
    void rawAlphaIsDropped();
    void rawWideColorIsReduced();
    void rawCutShortHasZeros();
    void rawHugeAndCutShortIsRefused();
    void asStoredReportsTheFile();
    void problems_data();
    void problems();
    void pipesAreNotOpened();
    void pixelLimit_data();
    void pixelLimit();
    void damagedFilesLeaveTheRecord_data();
    void damagedFilesLeaveTheRecord();
    void suffixMayDifferFromTheContent();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    bool load(const QString& name, const ReadOptions& options = faithful());
    bool loadTiff(const TiffImage& image);
    QByteArray pixels() const;
    bool recordIsUntouched() const;

    QTemporaryDir m_folder;
    ImageLoadRegistry m_loaders;
    ImageData m_image;
    ReadReport m_report;
};

void TestFaithfulReading::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

/// A record that a refusal must leave as it is.
void TestFaithfulReading::init()
{
    QVERIFY(m_image.allocate(3, 1, 8, 1));
    std::memcpy(m_image.data, "xyz", 3);
}

bool TestFaithfulReading::load(const QString& name, const ReadOptions& options)
{
    m_report = ReadReport();
    m_report.problem = LoadProblem::BadFrame; // must be overwritten
    const bool loaded = m_loaders.load(path(name), &m_image, options, &m_report);
    return loaded && m_report.problem == LoadProblem::None;
}

bool TestFaithfulReading::loadTiff(const TiffImage& image)
{
    return writeFile(path("image.tif"), tiffOf(image)) && load("image.tif");
}

QByteArray TestFaithfulReading::pixels() const
{
    return QByteArray(reinterpret_cast<const char*>(m_image.data), m_image.dataSize);
}

bool TestFaithfulReading::recordIsUntouched() const
{
    return m_image.width == 3 && m_image.height == 1 && m_image.bitDepth == 8
        && pixels() == QByteArray("xyz");
}

void TestFaithfulReading::wholeNumbersAreTaken_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<int>("kind");
    const auto row = [](const char* name, const TiffImage& image, int bitDepth,
                         const QByteArray& expected, SampleKind kind) {
        QTest::newRow(name) << tiffOf(image) << bitDepth << expected << int(kind);
    };
    row("unsigned 8", tiffLine<quint8>({ 0, 1, 255 }, 1, 1), 8, bytesOf<quint8>({ 0, 1, 255 }),
        SampleKind::Unsigned);
    row("unsigned 16", tiffLine<quint16>({ 0, 1, 65535 }, 1, 1), 16,
        bytesOf<quint16>({ 0, 1, 65535 }), SampleKind::Unsigned);
    row("signed 8", tiffLine<qint8>({ 0, 1, 127 }, 1, 2), 8, bytesOf<quint8>({ 0, 1, 127 }),
        SampleKind::Signed);
    row("signed 16", tiffLine<qint16>({ 0, 1, 32767 }, 1, 2), 16, bytesOf<quint16>({ 0, 1, 32767 }),
        SampleKind::Signed);
    row("signed 32", tiffLine<qint32>({ 0, 1, 2147483647 }, 1, 2), 32,
        bytesOf<quint32>({ 0, 1, 2147483647 }), SampleKind::Signed);
    row("floating", tiffLine<float>({ 0.0f, -0.0f, 3.0f, 16777216.0f, 4294967040.0f }, 1, 3), 32,
        bytesOf<quint32>({ 0, 0, 3, 16777216, 4294967040u }), SampleKind::Floating);
}

void TestFaithfulReading::wholeNumbersAreTaken()
{
    QFETCH(QByteArray, file);
    QFETCH(int, kind);
    QVERIFY(writeFile(path("whole.tif"), file));
    QVERIFY(load("whole.tif"));
    QTEST(m_image.bitDepth, "bitDepth");
    QTEST(pixels(), "expected");
    QCOMPARE(m_image.channels, 1);
    QCOMPARE(m_report.channels, 1);
    QCOMPARE(int(m_report.sampleKind), kind);
    QCOMPARE(m_report.isTypeConverted, SampleKind(kind) != SampleKind::Unsigned);
    QVERIFY(!m_report.isAlphaDropped);
    QCOMPARE(m_report.pageCount, 1);
}

void TestFaithfulReading::otherNumbersAreRefused_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("signed 8") << tiffOf(tiffLine<qint8>({ 0, -1 }, 1, 2));
    QTest::newRow("signed 16") << tiffOf(tiffLine<qint16>({ 5, -32768 }, 1, 2));
    QTest::newRow("signed 16, color") << tiffOf(tiffLine<qint16>({ 1, 2, 3, 4, 5, -1 }, 3, 2));
    QTest::newRow("signed 32") << tiffOf(tiffLine<qint32>({ -1, 5 }, 1, 2));
    for (const float value : { -1.0f, 0.5f, 4294967296.0f, 8388607.5f,
             std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
             -std::numeric_limits<float>::infinity(), std::numeric_limits<float>::denorm_min() }) {
        QTest::newRow(qPrintable(QString("floating %1").arg(double(value))))
            << tiffOf(tiffLine<float>({ 1.0f, value }, 1, 3));
    }
}

void TestFaithfulReading::otherNumbersAreRefused()
{
    QFETCH(QByteArray, file);
    QVERIFY(writeFile(path("other.tif"), file));
    QVERIFY(!load("other.tif"));
    QVERIFY(m_report.problem == LoadProblem::UnfaithfulValues);
    QVERIFY(recordIsUntouched());
}

void TestFaithfulReading::alphaIsNotLookedAt()
{
    // Red, green, blue, alpha; floating-point alpha is usually 0 to 1.
    QVERIFY(loadTiff(tiffLine<float>({ 128.0f, 256.0f, 384.0f, 0.5f }, 4, 3)));
    QCOMPARE(m_report.channels, 4);
    QVERIFY(m_report.isAlphaDropped);
    QCOMPARE(m_image.channels, 1); // wide colors are reduced
    // 15 x 384 + 75 x 256 + 38 x 128 = 29824; over 128 that is 233
    QCOMPARE(m_image.pixelValue(0, 0), 233);
}

void TestFaithfulReading::alphaIsDropped()
{
    QVERIFY(writeImageFile(path("alpha.png"), 2, 1, 4, FrameSample::Unsigned8, "abcdefgh"));
    QVERIFY(load("alpha.png"));
    QCOMPARE(m_image.channels, 3);
    QCOMPARE(m_image.bytesPerLine, 6);
    QCOMPARE(pixels(), QByteArray("abcefg"));
    QCOMPARE(m_report.channels, 4);
    QVERIFY(m_report.isAlphaDropped);
    QVERIFY(!m_report.isTypeConverted);
    const auto deep = bytesOf<quint16>({ 1000, 2000, 3000, 4000 });
    QVERIFY(writeImageFile(path("deep.png"), 1, 1, 4, FrameSample::Unsigned16, deep));
    QVERIFY(load("deep.png"));
    QCOMPARE(pixels(), bytesOf<quint16>({ 1000, 2000, 3000 }));
}

void TestFaithfulReading::grayWithAlpha_data()
{
    QTest::addColumn<int>("extraSample");
    QTest::newRow("unknown") << 0;
    QTest::newRow("associated") << 1;
    QTest::newRow("unassociated") << 2;
}

void TestFaithfulReading::grayWithAlpha()
{
    QFETCH(int, extraSample);
    TiffImage image = tiffLine<quint8>({ 10, 200, 90, 20 }, 2, 1);
    image.further << oneNumber(338, quint64(extraSample));
    QVERIFY(loadTiff(image));
    QCOMPARE(m_image.channels, 1);
    QCOMPARE(pixels(), bytesOf<quint8>({ 10, 90 }));
    QCOMPARE(m_report.channels, 2);
    QVERIFY(m_report.isAlphaDropped);
}

void TestFaithfulReading::wideColorIsReducedWithoutWrap()
{
    // The first pixel is red 512, green 0, blue 128.
    QVERIFY(loadTiff(tiffLine<float>({ 512.0f, 0.0f, 128.0f, 0.0f, 4294967040.0f, 0.0f,
                                         4294967040.0f, 4294967040.0f, 4294967040.0f },
        3, 3)));
    QCOMPARE(m_report.channels, 3);
    QCOMPARE(m_image.channels, 1);
    QCOMPARE(m_image.bitDepth, 32);
    // 15 x 128 / 128 + 38 x 512 / 128; 75 / 128 of 4294967040; white stays white
    QCOMPARE(pixels(), bytesOf<quint32>({ 167, 2516582250u, 4294967040u }));
}

void TestFaithfulReading::packedSamplesKeepTheirValues()
{
    TiffImage image;
    image.width = 2;
    image.bits = 12;
    image.pixels = QByteArray("\xAB\xC1\x23", 3); // 0xABC and 0x123
    QVERIFY(loadTiff(image));
    QCOMPARE(m_image.bitDepth, 16);
    QCOMPARE(m_image.pixelValue(0, 0), 0xABC);
    QCOMPARE(m_image.pixelValue(1, 0), 0x123);
}

void TestFaithfulReading::multipliedColorsAreRefused()
{
    TiffImage image = tiffLine<quint8>({ 100, 150, 200, 255 }, 4, 1);
    image.further << oneNumber(338, 2); // alpha that the colors are not multiplied with
    QVERIFY(loadTiff(image));
    QCOMPARE(pixels(), bytesOf<quint8>({ 200, 150, 100 }));
    init();
    image.pixels[3] = char(128);
    QVERIFY(!loadTiff(image));
    QVERIFY(m_report.problem == LoadProblem::UnsupportedKind);
    QVERIFY(recordIsUntouched());
    image.further.clear();
    image.further << oneNumber(338, 1);
    QVERIFY(loadTiff(image));
    QCOMPARE(pixels(), bytesOf<quint8>({ 200, 150, 100 }));
}

void TestFaithfulReading::kindsShownAsOtherPicturesAreRefused_data()
{
    QTest::addColumn<QByteArray>("file");
    const TiffImage color = tiffLine<quint16>({ 1, 2, 3, 4, 5, 6 }, 3, 1);
    TiffImage planes = color;
    planes.further << oneNumber(284, 2);
    TiffImage negative = tiffLine<quint16>({ 1, 2 }, 1, 1);
    negative.photometric = 0;
    TiffImage compressed = tiffLine<quint8>({ 1, 2 }, 1, 1);
    compressed.further << oneNumber(259, 60000);
    QTest::newRow("gray with alpha, cut to 8 bits")
        << tiffOf(tiffLine<quint16>({ 1000, 2000 }, 2, 1));
    QTest::newRow("planes taken for pixels") << tiffOf(planes);
    QTest::newRow("white taken for black") << tiffOf(negative);
    QTest::newRow("zeros for what cannot be unpacked") << tiffOf(compressed);
}

void TestFaithfulReading::kindsShownAsOtherPicturesAreRefused()
{
    QFETCH(QByteArray, file);
    QVERIFY(writeFile(path("kind.tif"), file));
    QVERIFY(!load("kind.tif"));
    QVERIFY(m_report.problem == LoadProblem::UnsupportedKind);
    QVERIFY(recordIsUntouched());
    QVERIFY(load("kind.tif", ReadOptions())); // as stored they load
}

void TestFaithfulReading::doublesAreRefused()
{
    for (const int channels : { 1, 3 }) {
        QVERIFY(!loadTiff(tiffLine(std::vector<double>(size_t(channels), 1.0), channels, 3)));
        QVERIFY(m_report.problem == LoadProblem::UnfaithfulDepth);
        QVERIFY(recordIsUntouched());
    }
}

void TestFaithfulReading::pagesAreChosen()
{
    TiffWriter writer;
    writer.addImage(tiffLine<quint8>({ 7 }, 1, 1));
    writer.addImage(tiffLine<quint16>({ 500, 600 }, 1, 1));
    writer.addImage(tiffLine<float>({ 9.0f, 8.0f, 7.0f }, 1, 3));
    QVERIFY(writeFile(path("pages.tif"), writer.file()));
    QVERIFY(load("pages.tif"));
    QCOMPARE(pixels(), bytesOf<quint8>({ 7 }));
    QCOMPARE(m_report.page, 0);
    QCOMPARE(m_report.pageCount, 3);
    QVERIFY(load("pages.tif", faithful(1)));
    QCOMPARE(pixels(), bytesOf<quint16>({ 500, 600 }));
    QCOMPARE(m_report.page, 1);
    QVERIFY(load("pages.tif", faithful(2)));
    QCOMPARE(pixels(), bytesOf<quint32>({ 9, 8, 7 }));
    QVERIFY(m_report.isTypeConverted);
    init();
    ReadOptions stored;
    stored.page = 1;
    for (const ReadOptions& options : { faithful(3), faithful(-1), stored }) {
        QVERIFY(!load("pages.tif", options));
        QVERIFY(m_report.problem == LoadProblem::NoSuchPage);
    }
    QVERIFY(writeImageFile(path("one.png"), 1, 1, 1, FrameSample::Unsigned8, "a"));
    QVERIFY(!load("one.png", faithful(1)));
    QVERIFY(m_report.problem == LoadProblem::NoSuchPage);
    QVERIFY(recordIsUntouched());
}

void TestFaithfulReading::pageBehindABadOneIsNotMistaken()
{
    TiffWriter writer;
    TiffImage six = tiffLine<quint8>({ 1, 2, 3, 4 }, 1, 1);
    six.bits = 6;
    writer.addImage(tiffLine<quint8>({ 7 }, 1, 1));
    writer.addImage(six);
    writer.addImage(tiffLine<quint8>({ 9 }, 1, 1));
    QVERIFY(writeFile(path("bad.tif"), writer.file()));
    QVERIFY(load("bad.tif"));
    QCOMPARE(pixels(), bytesOf<quint8>({ 7 }));
    init();
    QVERIFY(!load("bad.tif", faithful(1)));
    QVERIFY(m_report.problem == LoadProblem::UnsupportedKind);
    QVERIFY(recordIsUntouched());
    if (load("bad.tif", faithful(2))) { // some versions cannot step over the page between
        QCOMPARE(pixels(), bytesOf<quint8>({ 9 }));
    } else {
        QVERIFY(recordIsUntouched());
    }
}

void TestFaithfulReading::bigTiff()
{
    TiffWriter writer(true, true);
    TiffImage image = tiffLine<quint16>({ 1, 2 }, 1, 1);
    image.pixels = QByteArray("\x01\x02\x03\x04", 4); // in the order of the file
    writer.addImage(image);
    writer.addImage(tiffLine<quint8>({ 5 }, 1, 1));
    QVERIFY(writeFile(path("big.tif"), writer.file()));
    QVERIFY(load("big.tif"));
    QCOMPARE(pixels(), bytesOf<quint16>({ 0x0102, 0x0304 }));
    QCOMPARE(m_report.pageCount, 2);
    QVERIFY(load("big.tif", faithful(1)));
    QCOMPARE(pixels(), bytesOf<quint8>({ 5 }));
}

void TestFaithfulReading::rawFiles_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("bytesPerChannel");
    QTest::addColumn<LoadProblem>("problem");
    QTest::newRow("gray 8") << 3 << 2 << 1 << 1 << LoadProblem::None;
    QTest::newRow("gray 16") << 3 << 2 << 1 << 2 << LoadProblem::None;
    QTest::newRow("gray 32") << 3 << 2 << 1 << 4 << LoadProblem::None;
    QTest::newRow("color 16") << 3 << 2 << 3 << 2 << LoadProblem::None;
    QTest::newRow("no width") << 0 << 2 << 1 << 1 << LoadProblem::NoPixels;
    QTest::newRow("no height") << 3 << 0 << 1 << 1 << LoadProblem::NoPixels;
    QTest::newRow("no channels") << 3 << 2 << 0 << 1 << LoadProblem::NoPixels;
    QTest::newRow("no bytes") << 3 << 2 << 1 << 0 << LoadProblem::NoPixels;
    QTest::newRow("24 bits") << 3 << 2 << 1 << 3 << LoadProblem::UnfaithfulDepth;
    QTest::newRow("64 bits") << 3 << 2 << 1 << 8 << LoadProblem::UnfaithfulDepth;
    QTest::newRow("five channels") << 3 << 2 << 5 << 1 << LoadProblem::UnfaithfulChannels;
    QTest::newRow("255 channels") << 3 << 2 << 255 << 2 << LoadProblem::UnfaithfulChannels;
}

void TestFaithfulReading::rawFiles()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, channels);
    QFETCH(int, bytesPerChannel);
    QFETCH(LoadProblem, problem);
    QByteArray bytes(width * height * channels * bytesPerChannel, '\0');
    for (int i = 0; i < int(bytes.size()); ++i) {
        bytes[i] = char(i * 37 + 11);
    }
    const RawFrame frame = rawFrame(width, height, channels, bytesPerChannel, bytes);
    QVERIFY(writeRawFile(path("frame.raw"), frame));
    const bool isGood = problem == LoadProblem::None;
    QCOMPARE(load("frame.raw"), isGood);
    QVERIFY(m_report.problem == problem);
    if (isGood) {
        QCOMPARE(pixels(), bytes);
        QCOMPARE(m_image.channels, channels);
        QCOMPARE(m_report.channels, channels);
    } else {
        QVERIFY(recordIsUntouched());
        QVERIFY(load("frame.raw", ReadOptions())); // as stored it loads
    }
}

void TestFaithfulReading::rawAlphaIsDropped()
{
    QVERIFY(writeRawFile(path("two.raw"), rawFrame(2, 2, 2, 1, "aAbBcCdD")));
    QVERIFY(load("two.raw"));
    QCOMPARE(m_image.channels, 1);
    QCOMPARE(pixels(), QByteArray("abcd"));
    QCOMPARE(m_report.channels, 2);
    QVERIFY(m_report.isAlphaDropped);
    const QByteArray deep = bytesOf<quint16>({ 1, 2, 3, 99, 4, 5, 6, 99 });
    QVERIFY(writeRawFile(path("four.raw"), rawFrame(1, 2, 4, 2, deep)));
    QVERIFY(load("four.raw"));
    QCOMPARE(m_image.channels, 3);
    QCOMPARE(pixels(), bytesOf<quint16>({ 1, 2, 3, 4, 5, 6 }));
    QCOMPARE(m_report.channels, 4);
}

void TestFaithfulReading::rawWideColorIsReduced()
{
    const QByteArray white = bytesOf<quint32>({ 4294967295u, 4294967295u, 4294967295u });
    QVERIFY(writeRawFile(path("white.raw"), rawFrame(1, 1, 3, 4, white)));
    QVERIFY(load("white.raw"));
    QCOMPARE(m_image.channels, 1);
    QCOMPARE(m_report.channels, 3);
    QCOMPARE(pixels(), bytesOf<quint32>({ 4294967295u })); // 128 / 128 of it
}

void TestFaithfulReading::rawCutShortHasZeros()
{
    RawFrame frame = rawFrame(2, 2, 1, 1, "abc");
    frame.dataSize = 4;
    QVERIFY(writeRawFile(path("short.raw"), frame));
    QVERIFY(load("short.raw"));
    QCOMPARE(pixels(), QByteArray("abc\0", 4));
    frame = rawFrame(2, 2, 2, 1, "aAb");
    frame.dataSize = 8;
    QVERIFY(writeRawFile(path("short.raw"), frame));
    QVERIFY(load("short.raw"));
    QCOMPARE(pixels(), QByteArray("ab\0\0", 4));
}

void TestFaithfulReading::rawHugeAndCutShortIsRefused()
{
    RawFrame frame = rawFrame(16384, 16385, 1, 1, "abc"); // one row above 256 MiB
    frame.dataSize = 16384u * 16385u;
    QVERIFY(writeRawFile(path("huge.raw"), frame));
    QVERIFY(!load("huge.raw"));
    QVERIFY(m_report.problem == LoadProblem::NotReadable);
    QVERIFY(recordIsUntouched());
    frame.height = 16384; // exactly 256 MiB
    QVERIFY(writeRawFile(path("huge.raw"), frame));
    QVERIFY(load("huge.raw"));
    m_image.release();
}

void TestFaithfulReading::asStoredReportsTheFile()
{
    TiffWriter writer;
    writer.addImage(tiffLine<float>({ 1.5f, -2.0f }, 1, 3));
    writer.addImage(tiffLine<quint8>({ 1 }, 1, 1));
    QVERIFY(writeFile(path("stored.tif"), writer.file()));
    QVERIFY(load("stored.tif", ReadOptions()));
    QCOMPARE(pixels(), bytesOf<float>({ 1.5f, -2.0f }));
    QVERIFY(m_report.sampleKind == SampleKind::Floating);
    QCOMPARE(m_report.channels, 1);
    QCOMPARE(m_report.pageCount, 2);
    QVERIFY(!m_report.isTypeConverted);
    QVERIFY(writeImageFile(path("alpha.png"), 1, 1, 4, FrameSample::Unsigned8, "abcd"));
    QVERIFY(load("alpha.png", ReadOptions()));
    QCOMPARE(m_image.channels, 4);
    QCOMPARE(m_report.channels, 4);
    QCOMPARE(m_report.pageCount, 1);
    QVERIFY(!m_report.isAlphaDropped);
    QVERIFY(writeRawFile(path("stored.raw"), rawFrame(1, 1, 7, 1, "abcdefg")));
    QVERIFY(load("stored.raw", ReadOptions()));
    QCOMPARE(m_report.channels, 7);
}

void TestFaithfulReading::problems_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<LoadProblem>("problem");
    TiffImage six = tiffLine<quint8>({ 1, 2, 3, 4 }, 1, 1);
    six.bits = 6;
    const QByteArray cutTiff = tiffOf(tiffLine<quint16>({ 1, 2, 3, 4 }, 1, 1)).chopped(3);
    QByteArray hugeBitmap = "BM" + QByteArray(152, '\0'); // 2^24 x 2^24 pixels
    hugeBitmap[10] = 54;
    hugeBitmap[14] = 40;
    hugeBitmap[21] = 1;
    hugeBitmap[25] = 1;
    hugeBitmap[26] = 1;
    hugeBitmap[28] = 24;
    const auto row
        = [](const char* title, const char* name, const QByteArray& bytes, LoadProblem problem) {
              QTest::newRow(title) << QString(name) << bytes << problem;
          };
    row("unknown suffix", "a.gif", "GIF89a", LoadProblem::UnknownSuffix);
    row("no suffix", "raw", "VORLAK", LoadProblem::UnknownSuffix);
    row("empty", "a.png", "", LoadProblem::NotReadable);
    row("text", "a.jpg", "hello", LoadProblem::NotReadable);
    row("no signature", "a.raw", "hello", LoadProblem::NotReadable);
    row("six bits", "six.tif", tiffOf(six), LoadProblem::UnsupportedKind);
    row("unsigned 32 bits", "b.tif", tiffOf(tiffLine<quint32>({ 1 }, 1, 1)),
        LoadProblem::UnsupportedKind);
    row("cut TIFF", "c.tif", cutTiff, LoadProblem::NotReadable);
    row("too large a bitmap", "d.bmp", hugeBitmap, LoadProblem::TooLarge);
    row("too large a raw file", "e.raw", rawHeaderBytesOf(rawFrame(65535, 65535, 255, 255, "")),
        LoadProblem::TooLarge);
}

/// Of a load as stored.
void TestFaithfulReading::problems()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(LoadProblem, problem);
    QVERIFY(writeFile(path(name), bytes));
    QVERIFY(!load(name, ReadOptions()));
    QCOMPARE(int(m_report.problem), int(problem));
    QVERIFY(recordIsUntouched());
    QVERIFY(!m_loaders.load(path(name), &m_image));
    QVERIFY(!load("gone.png", ReadOptions()));
    QVERIFY(m_report.problem == LoadProblem::Missing);
    QDir(m_folder.path()).mkpath("folder.png");
    QVERIFY(!load("folder.png", ReadOptions()));
    QVERIFY(m_report.problem == LoadProblem::NotAFile);
}

void TestFaithfulReading::pipesAreNotOpened()
{
#if defined(Q_OS_UNIX)
    for (const char* name : { "pipe.png", "pipe.tif", "pipe.raw" }) {
        QCOMPARE(mkfifo(path(name).toLocal8Bit().constData(), 0600), 0);
        QVERIFY(!load(name)); // opening it would wait for a writer for ever
        QVERIFY(m_report.problem == LoadProblem::NotAFile);
    }
#else
    QTest::qSkip("only Unix has pipes with a file name", __FILE__, __LINE__);
#endif
}

void TestFaithfulReading::pixelLimit_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : { "limit.png", "limit.bmp", "limit.jpg", "limit.tif", "limit.raw" }) {
        QTest::newRow(name) << QString(name);
    }
}

void TestFaithfulReading::pixelLimit()
{
    QFETCH(QString, name);
    const QByteArray samples(7 * 5, 'a');
    if (name.endsWith(".raw")) {
        QVERIFY(writeRawFile(path(name), rawFrame(7, 5, 1, 1, samples)));
    } else {
        QVERIFY(writeImageFile(path(name), 7, 5, 1, FrameSample::Unsigned8, samples));
    }
    for (const Reading reading : { Reading::AsStored, Reading::Faithful }) {
        init();
        ReadOptions options;
        options.reading = reading;
        options.pixelLimit = 34;
        QVERIFY(!load(name, options));
        QVERIFY(m_report.problem == LoadProblem::OverPixelLimit);
        QVERIFY(recordIsUntouched());
        for (const qint64 limit : { 35, 0, -1 }) {
            options.pixelLimit = limit;
            QVERIFY(load(name, options));
            QCOMPARE(m_image.pixelCount, 35);
        }
    }
}

void TestFaithfulReading::damagedFilesLeaveTheRecord_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray samples(40 * 30 * 3, '\0');
    for (int i = 0; i < int(samples.size()); ++i) {
        samples[i] = char(i * i);
    }
    const auto written = [&](const char* name) {
        QFile file(path(name));
        return writeImageFile(path(name), 40, 30, 3, FrameSample::Unsigned8, samples)
                && file.open(QIODevice::ReadOnly)
            ? file.readAll()
            : QByteArray();
    };
    const QByteArray jpeg = written("whole.jpg");
    for (const int length : { 3, 20, 90, 150 }) {
        QTest::newRow(qPrintable(QString("JPEG, %1 bytes").arg(length))) << jpeg.left(length);
    }
    for (const char* name : { "whole.png", "whole.bmp", "whole.tif" }) {
        const QByteArray whole = written(name);
        for (const int part : { 0, 1, 2, 3 }) {
            QTest::newRow(qPrintable(QString("%1, %2 quarters").arg(name).arg(part)))
                << whole.left(whole.size() * part / 4 + 10);
        }
    }
}

void TestFaithfulReading::damagedFilesLeaveTheRecord()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!bytes.isEmpty());
    for (const char* suffix : { "jpg", "jpeg", "tif", "tiff", "bmp", "png", "raw" }) {
        const QString name = QString("cut.") + suffix;
        QVERIFY(writeFile(path(name), bytes));
        QVERIFY2(!load(name), suffix);
        QCOMPARE(int(m_report.problem), int(LoadProblem::NotReadable));
        QVERIFY(recordIsUntouched());
    }
}

void TestFaithfulReading::suffixMayDifferFromTheContent()
{
    QVERIFY(writeImageFile(path("real.jpg"), 8, 8, 1, FrameSample::Unsigned8, QByteArray(64, 'x')));
    QVERIFY(QFile::rename(path("real.jpg"), path("named.png")));
    for (const ReadOptions& options : { ReadOptions(), faithful() }) {
        QVERIFY(load("named.png", options));
        QCOMPARE(m_image.width, 8);
    }
}

QTEST_GUILESS_MAIN(TestFaithfulReading)
#include "tst_faithfulreading.moc"
