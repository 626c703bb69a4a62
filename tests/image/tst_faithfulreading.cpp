#include "loadfixture.h"

#include <limits>

namespace {

TiffField oneNumber(quint16 tag, quint64 value)
{
    return { tag, tiffShort, { value } };
}

} // namespace

/// Faithful reading of the common formats.
class TestFaithfulReading : public QObject, private LoadFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { resetRecord(); }
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
};

void TestFaithfulReading::wholeNumbersAreTaken_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<int>("kind");
    const auto row = [](const char* name, const TiffImage& tiff, int bitDepth,
                         const QByteArray& expected, SampleKind kind) {
        QTest::newRow(name) << tiffOf(tiff) << bitDepth << expected << int(kind);
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
    QTEST(image.bitDepth, "bitDepth");
    QTEST(pixels(), "expected");
    QCOMPARE(image.channels, 1);
    QCOMPARE(report.channels, 1);
    QCOMPARE(int(report.sampleKind), kind);
    QCOMPARE(report.isTypeConverted, SampleKind(kind) != SampleKind::Unsigned);
    QVERIFY(!report.isAlphaDropped);
    QCOMPARE(report.pageCount, 1);
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
    QVERIFY(report.problem == LoadProblem::UnfaithfulValues);
    QVERIFY(recordIsUntouched());
}

void TestFaithfulReading::alphaIsNotLookedAt()
{
    // Red, green, blue, alpha; floating-point alpha is usually 0 to 1.
    QVERIFY(loadTiff(tiffLine<float>({ 128.0f, 256.0f, 384.0f, 0.5f }, 4, 3)));
    QCOMPARE(report.channels, 4);
    QVERIFY(report.isAlphaDropped);
    QCOMPARE(image.channels, 1); // wide colors are reduced
    // 15 x 384 + 75 x 256 + 38 x 128 = 29824; over 128 that is 233
    QCOMPARE(image.pixelValue(0, 0), 233);
}

void TestFaithfulReading::alphaIsDropped()
{
    QVERIFY(writeImageFile(path("alpha.png"), 2, 1, 4, FrameSample::Unsigned8, "abcdefgh"));
    QVERIFY(load("alpha.png"));
    QCOMPARE(image.channels, 3);
    QCOMPARE(image.bytesPerLine, 6);
    QCOMPARE(pixels(), QByteArray("abcefg"));
    QCOMPARE(report.channels, 4);
    QVERIFY(report.isAlphaDropped);
    QVERIFY(!report.isTypeConverted);
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
    TiffImage tiff = tiffLine<quint8>({ 10, 200, 90, 20 }, 2, 1);
    tiff.further << oneNumber(338, quint64(extraSample));
    QVERIFY(loadTiff(tiff));
    QCOMPARE(image.channels, 1);
    QCOMPARE(pixels(), bytesOf<quint8>({ 10, 90 }));
    QCOMPARE(report.channels, 2);
    QVERIFY(report.isAlphaDropped);
}

void TestFaithfulReading::wideColorIsReducedWithoutWrap()
{
    // The first pixel is red 512, green 0, blue 128.
    QVERIFY(loadTiff(tiffLine<float>({ 512.0f, 0.0f, 128.0f, 0.0f, 4294967040.0f, 0.0f,
                                         4294967040.0f, 4294967040.0f, 4294967040.0f },
        3, 3)));
    QCOMPARE(report.channels, 3);
    QCOMPARE(image.channels, 1);
    QCOMPARE(image.bitDepth, 32);
    // 15 x 128 / 128 + 38 x 512 / 128; 75 / 128 of 4294967040; white stays white
    QCOMPARE(pixels(), bytesOf<quint32>({ 167, 2516582250u, 4294967040u }));
}

void TestFaithfulReading::packedSamplesKeepTheirValues()
{
    TiffImage tiff;
    tiff.width = 2;
    tiff.bits = 12;
    tiff.pixels = QByteArray("\xAB\xC1\x23", 3); // 0xABC and 0x123
    QVERIFY(loadTiff(tiff));
    QCOMPARE(image.bitDepth, 16);
    QCOMPARE(image.pixelValue(0, 0), 0xABC);
    QCOMPARE(image.pixelValue(1, 0), 0x123);
}

void TestFaithfulReading::multipliedColorsAreRefused()
{
    TiffImage tiff = tiffLine<quint8>({ 100, 150, 200, 255 }, 4, 1);
    tiff.further << oneNumber(338, 2); // alpha that the colors are not multiplied with
    QVERIFY(loadTiff(tiff));
    QCOMPARE(pixels(), bytesOf<quint8>({ 200, 150, 100 }));
    resetRecord();
    tiff.pixels[3] = char(128);
    QVERIFY(!loadTiff(tiff));
    QVERIFY(report.problem == LoadProblem::UnsupportedKind);
    QVERIFY(recordIsUntouched());
    tiff.further.clear();
    tiff.further << oneNumber(338, 1);
    QVERIFY(loadTiff(tiff));
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
    QVERIFY(report.problem == LoadProblem::UnsupportedKind);
    QVERIFY(recordIsUntouched());
    QVERIFY(load("kind.tif", ReadOptions())); // as stored they load
}

void TestFaithfulReading::doublesAreRefused()
{
    for (const int channels : { 1, 3 }) {
        QVERIFY(!loadTiff(tiffLine(std::vector<double>(size_t(channels), 1.0), channels, 3)));
        QVERIFY(report.problem == LoadProblem::UnfaithfulDepth);
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
    QCOMPARE(report.page, 0);
    QCOMPARE(report.pageCount, 3);
    QVERIFY(load("pages.tif", faithful(1)));
    QCOMPARE(pixels(), bytesOf<quint16>({ 500, 600 }));
    QCOMPARE(report.page, 1);
    QVERIFY(load("pages.tif", faithful(2)));
    QCOMPARE(pixels(), bytesOf<quint32>({ 9, 8, 7 }));
    QVERIFY(report.isTypeConverted);
    resetRecord();
    ReadOptions stored;
    stored.page = 1;
    for (const ReadOptions& options : { faithful(3), faithful(-1), stored }) {
        QVERIFY(!load("pages.tif", options));
        QVERIFY(report.problem == LoadProblem::NoSuchPage);
    }
    QVERIFY(writeImageFile(path("one.png"), 1, 1, 1, FrameSample::Unsigned8, "a"));
    QVERIFY(!load("one.png", faithful(1)));
    QVERIFY(report.problem == LoadProblem::NoSuchPage);
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
    resetRecord();
    QVERIFY(!load("bad.tif", faithful(1)));
    QVERIFY(report.problem == LoadProblem::UnsupportedKind);
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
    TiffImage tiff = tiffLine<quint16>({ 1, 2 }, 1, 1);
    tiff.pixels = QByteArray("\x01\x02\x03\x04", 4); // in the order of the file
    writer.addImage(tiff);
    writer.addImage(tiffLine<quint8>({ 5 }, 1, 1));
    QVERIFY(writeFile(path("big.tif"), writer.file()));
    QVERIFY(load("big.tif"));
    QCOMPARE(pixels(), bytesOf<quint16>({ 0x0102, 0x0304 }));
    QCOMPARE(report.pageCount, 2);
    QVERIFY(load("big.tif", faithful(1)));
    QCOMPARE(pixels(), bytesOf<quint8>({ 5 }));
}

QTEST_GUILESS_MAIN(TestFaithfulReading)
#include "tst_faithfulreading.moc"
