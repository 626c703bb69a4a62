#include "image/imageheader.h"
#include "image/tiffheader.h"
#include "support/tiffwriter.h"

#include <QBuffer>
#include <QtEndian>
#include <QtTest>

#include <limits>

namespace {

ImageHeader headerOf(QByteArray bytes, int page = 0)
{
    QBuffer file(&bytes);
    return file.open(QIODevice::ReadOnly) ? readImageHeader(&file, page) : ImageHeader();
}

template <class Number>
QByteArray bigEndian(Number value)
{
    QByteArray bytes(int(sizeof value), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

template <class Number>
QByteArray littleEndian(Number value)
{
    QByteArray bytes(int(sizeof value), '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray png(quint32 width, quint32 height, int depth, int colorType)
{
    return QByteArray("\x89PNG\r\n\x1A\n", 8) + bigEndian(quint32(13)) + "IHDR" + bigEndian(width)
        + bigEndian(height) + char(depth) + char(colorType) + QByteArray(3, '\0');
}

QByteArray bitmap(qint32 width, qint32 height, int bits, quint32 compression = 0)
{
    return "BM" + QByteArray(12, '\0') + littleEndian(quint32(40)) + littleEndian(width)
        + littleEndian(height) + littleEndian(quint16(1)) + littleEndian(quint16(bits))
        + littleEndian(compression) + QByteArray(20, '\0');
}

QByteArray bitmapOfOs2(quint16 width, quint16 height, int bits)
{
    return "BM" + QByteArray(12, '\0') + littleEndian(quint32(12)) + littleEndian(width)
        + littleEndian(height) + littleEndian(quint16(1)) + littleEndian(quint16(bits));
}

QByteArray jpegSegment(int marker, const QByteArray& content)
{
    return QByteArray("\xFF", 1) + char(marker) + bigEndian(quint16(content.size() + 2)) + content;
}

/// A JPEG file up to its frame: 300 x 200 pixels.
QByteArray jpeg(int marker, int precision = 8, int channels = 3)
{
    return QByteArray("\xFF\xD8", 2) + jpegSegment(0xE0, QByteArray(14, 'x'))
        + QByteArray("\xFF\xFF\xFF", 3) // fill bytes
        + jpegSegment(0xC4, QByteArray("\xFF\xC0", 2)) // a table is no frame, whatever is in it
        + jpegSegment(marker,
            char(precision) + bigEndian(quint16(200)) + bigEndian(quint16(300)) + char(channels)
                + QByteArray(9, '\0'));
}

TiffImage tiffImage(int bits, int samples = 1, int format = 1, int photometric = 1)
{
    TiffImage image;
    image.width = 4;
    image.height = 3;
    image.bits = bits;
    image.samples = samples;
    image.format = format;
    image.photometric = photometric;
    image.pixels = QByteArray(4 * 3 * samples * ((bits + 7) / 8), '\1');
    return image;
}

} // namespace

class TestImageHeader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizes_data();
    void sizes();
    void cutAnywhereIsNotSound_data();
    void cutAnywhereIsNotSound();
    void notSound_data();
    void notSound();
    void unsupportedKinds_data();
    void unsupportedKinds();
    void tiff_inEveryOrder_data();
    void tiff_inEveryOrder();
    void tiff_pages();
    void tiff_pagesThatComeBackEnd();
    void tiff_mostPages();
    void tiff_fieldTwiceTheLargerCounts();
    void tiff_pixelsBeyondTheEnd();
    void tiff_misreadKinds_data();
    void tiff_misreadKinds();
    void tiff_hostileDirectories_data();
    void tiff_hostileDirectories();
    void jpeg_endlessSegmentsEnd();
    void jpeg_endMarker_data();
    void jpeg_endMarker();
};

void TestImageHeader::sizes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<qint64>("width");
    QTest::addColumn<qint64>("height");
    QTest::addColumn<int>("bits");
    QTest::addColumn<int>("channels");
    const auto row = [](const char* name, const QByteArray& bytes, qint64 width, qint64 height,
                         int bits, int channels) {
        QTest::newRow(name) << bytes << width << height << bits << channels;
    };
    row("gray PNG of 16 bits", png(70000, 3, 16, 0), 70000, 3, 16, 1);
    row("color PNG", png(5, 6, 8, 2), 5, 6, 8, 3);
    row("PNG with a palette", png(5, 6, 4, 3), 5, 6, 4, 1);
    row("gray PNG with alpha", png(5, 6, 8, 4), 5, 6, 8, 2);
    row("color PNG with alpha", png(5, 6, 8, 6), 5, 6, 8, 4);
    row("largest PNG", png(2147483647, 2147483647, 8, 0), 2147483647, 2147483647, 8, 1);
    row("bitmap", bitmap(7, 9, 24), 7, 9, 8, 3);
    row("bitmap from top to bottom", bitmap(7, -9, 8), 7, 9, 8, 1);
    row("bitmap of the largest height", bitmap(7, std::numeric_limits<qint32>::min(), 8), 7,
        2147483648, 8, 1);
    row("bitmap with alpha", bitmap(7, 9, 32, 3), 7, 9, 8, 4);
    row("bitmap of OS/2", bitmapOfOs2(65535, 9, 24), 65535, 9, 8, 3);
    row("baseline JPEG", jpeg(0xC0), 300, 200, 8, 3);
    row("progressive JPEG, gray", jpeg(0xC2, 8, 1), 300, 200, 8, 1);
    row("TIFF", tiffOf(tiffImage(16)), 4, 3, 16, 1);
}

void TestImageHeader::sizes()
{
    QFETCH(QByteArray, bytes);
    const ImageHeader header = headerOf(bytes);
    QVERIFY(header.isSound);
    QVERIFY(!header.isUnsupportedKind);
    QTEST(header.width, "width");
    QTEST(header.height, "height");
    QTEST(header.bitsPerSample, "bits");
    QTEST(header.channels, "channels");
    QCOMPARE(header.pageCount, 1);
}

void TestImageHeader::cutAnywhereIsNotSound_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("PNG") << png(5, 6, 8, 2);
    QTest::newRow("bitmap") << bitmap(7, 9, 24).left(34);
    QTest::newRow("bitmap of OS/2") << bitmapOfOs2(7, 9, 24);
    QTest::newRow("JPEG") << jpeg(0xC0).chopped(9);
    QTest::newRow("TIFF") << tiffOf(tiffImage(16, 3));
    QTest::newRow("BigTIFF") << tiffOf(tiffImage(16, 5), false, true);
}

void TestImageHeader::cutAnywhereIsNotSound()
{
    QFETCH(QByteArray, bytes);
    const bool isPng = bytes.startsWith("\x89PNG"); // its last bytes are not looked at
    QVERIFY(headerOf(bytes).isSound);
    for (int length = 0; length < int(bytes.size()) - (isPng ? 4 : 0); ++length) {
        QVERIFY2(!headerOf(bytes.left(length)).isSound, qPrintable(QString::number(length)));
    }
}

void TestImageHeader::notSound_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("this is no image, but it is long enough to be one");
    QTest::newRow("PNG without width") << png(0, 6, 8, 2);
    QTest::newRow("PNG beyond the format") << png(0x80000000u, 6, 8, 2);
    QTest::newRow("PNG of 3 bits") << png(5, 6, 3, 0);
    QTest::newRow("PNG of an unknown color type") << png(5, 6, 8, 5);
    QTest::newRow("bitmap without height") << bitmap(7, 0, 24);
    QTest::newRow("bitmap of negative width") << bitmap(-7, 9, 24);
    QTest::newRow("JPEG that ends") << QByteArray("\xFF\xD8\xFF\xD9", 4);
    QTest::newRow("JPEG with pixels and no frame") << QByteArray("\xFF\xD8\xFF\xDA\0\x08", 6);
    QTest::newRow("JPEG with a segment shorter than its length")
        << QByteArray("\xFF\xD8\xFF\xE0\0\1", 6) + jpeg(0xC0).mid(2);
    QTest::newRow("JPEG with bytes between segments")
        << QByteArray("\xFF\xD8\0", 3) + jpeg(0xC0).mid(2);
    QTest::newRow("JPEG without end of fill bytes")
        << QByteArray("\xFF\xD8", 2) + QByteArray(100000, '\xFF');
    QTest::newRow("TIFF of the other number") << QByteArray("II\x2C\0\x08\0\0\0", 8);
    QTest::newRow("TIFF number in the other order") << QByteArray("II\0\x2A\x08\0\0\0", 8);
}

void TestImageHeader::notSound()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!headerOf(bytes).isSound);
}

void TestImageHeader::unsupportedKinds_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("JPEG of 12 bits") << jpeg(0xC1, 12);
    QTest::newRow("lossless JPEG") << jpeg(0xC3);
    QTest::newRow("arithmetic JPEG") << jpeg(0xC9);
    QTest::newRow("JPEG-LS") << jpeg(0xF7);
    QTest::newRow("bitmap of 2 bits") << bitmap(7, 9, 2);
    QTest::newRow("bitmap of 64 bits") << bitmap(7, 9, 64);
    QTest::newRow("bitmap around a JPEG") << bitmap(7, 9, 24, 4);
    QTest::newRow("bitmap around a PNG") << bitmap(7, 9, 24, 5);
    QTest::newRow("TIFF of 6 bits") << tiffOf(tiffImage(6));
    QTest::newRow("TIFF of 24 bits") << tiffOf(tiffImage(24));
    QTest::newRow("TIFF of unsigned 32 bits") << tiffOf(tiffImage(32));
    QTest::newRow("TIFF of five channels") << tiffOf(tiffImage(8, 5));
    QTest::newRow("TIFF of complex numbers") << tiffOf(tiffImage(32, 1, 6));
    TiffImage compressed = tiffImage(16);
    compressed.further << TiffField { 259, tiffShort, { 34712 } };
    QTest::newRow("TIFF with JPEG 2000 inside") << tiffOf(compressed);
}

void TestImageHeader::unsupportedKinds()
{
    QFETCH(QByteArray, bytes);
    const ImageHeader header = headerOf(bytes);
    QVERIFY(header.isSound);
    QVERIFY(header.isUnsupportedKind);
}

void TestImageHeader::tiff_inEveryOrder_data()
{
    QTest::addColumn<bool>("isBigEndian");
    QTest::addColumn<bool>("isBig");
    QTest::newRow("TIFF, little-endian") << false << false;
    QTest::newRow("TIFF, big-endian") << true << false;
    QTest::newRow("BigTIFF, little-endian") << false << true;
    QTest::newRow("BigTIFF, big-endian") << true << true;
}

void TestImageHeader::tiff_inEveryOrder()
{
    QFETCH(bool, isBigEndian);
    QFETCH(bool, isBig);
    TiffImage image = tiffImage(16, 3, 2, 2); // three numbers of bits: they stand elsewhere
    image.width = 70000;
    image.further << TiffField { 257, isBig ? tiffLong8 : tiffShort, { 513 } };
    const ImageHeader header = headerOf(tiffOf(image, isBigEndian, isBig));
    QVERIFY(header.isSound);
    QCOMPARE(header.width, qint64(70000));
    QCOMPARE(header.height, qint64(513));
    QCOMPARE(header.bitsPerSample, 16);
    QCOMPARE(header.channels, 3);
    QVERIFY(header.sampleKind == SampleKind::Signed);
}

void TestImageHeader::tiff_pages()
{
    for (const bool isBig : { false, true }) {
        TiffWriter writer(false, isBig);
        for (const int width : { 10, 20, 30 }) {
            TiffImage page = tiffImage(8);
            page.width = width;
            writer.addImage(page);
        }
        for (const int page : { 0, 1, 2 }) {
            const ImageHeader header = headerOf(writer.file(), page);
            QVERIFY(header.isSound);
            QCOMPARE(header.width, qint64(10 * (page + 1)));
            QCOMPARE(header.pageCount, 3);
        }
        for (const int page : { -1, 3, 2147483647 }) {
            const ImageHeader header = headerOf(writer.file(), page);
            QVERIFY(!header.isSound);
            QCOMPARE(header.pageCount, 3);
        }
    }
}

void TestImageHeader::tiff_pagesThatComeBackEnd()
{
    TiffWriter writer;
    writer.addImage(tiffImage(8));
    const auto second = writer.file().size();
    writer.addImage(tiffImage(8));
    writer.addImage(tiffImage(8));
    writer.link(second); // the third page's next is the second
    QCOMPARE(headerOf(writer.file()).pageCount, 3);
    QVERIFY(headerOf(writer.file(), 2).isSound);
    QVERIFY(!headerOf(writer.file(), 3).isSound);
    TiffWriter itself;
    itself.addImage(tiffImage(8));
    itself.link(8);
    QCOMPARE(headerOf(itself.file()).pageCount, 1);
}

void TestImageHeader::tiff_mostPages()
{
    // Directories of no entries, six bytes each.
    QByteArray bytes("II\x2A\0\x08\0\0\0", 8);
    for (quint32 page = 0; page < 70000; ++page) {
        bytes += QByteArray(2, '\0') + littleEndian(quint32(8 + 6 * (page + 1)));
    }
    QBuffer file(&bytes);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(tiffPageCount(&file), 65535);
}

void TestImageHeader::tiff_fieldTwiceTheLargerCounts()
{
    TiffWriter writer;
    writer.addDirectory({ { 256, tiffShort, { 4 } }, { 256, tiffLong, { 400000 } },
        { 256, tiffShort, { 3 } }, { 257, tiffShort, { 5 } } });
    QCOMPARE(headerOf(writer.file()).width, qint64(400000));
}

void TestImageHeader::tiff_pixelsBeyondTheEnd()
{
    const QByteArray whole = tiffOf(tiffImage(8)); // twelve pixels at the end
    QVERIFY(!headerOf(whole).isCutShort);
    QVERIFY(headerOf(whole.chopped(1)).isCutShort);
    TiffImage strips = tiffImage(8);
    strips.further << TiffField { 273, tiffLong, { 8, 20, 4294967290u } }
                   << TiffField { 279, tiffLong, { 4, 4, 4 } };
    QVERIFY(headerOf(tiffOf(strips)).isCutShort);
    strips.further << TiffField { 279, tiffLong, { 4, 4, 0 } }; // an empty strip stands anywhere
    QVERIFY(!headerOf(tiffOf(strips)).isCutShort);
}

void TestImageHeader::tiff_misreadKinds_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("misread");
    const auto row = [](const char* name, TiffImage image, bool misread,
                         const QVector<TiffField>& further = {}) {
        image.further = further;
        QTest::newRow(name) << tiffOf(image) << misread;
    };
    row("gray, 8 bits", tiffImage(8), false);
    row("white is zero, 8 bits", tiffImage(8, 1, 1, 0), false);
    row("white is zero, 16 bits", tiffImage(16, 1, 1, 0), true);
    row("gray and alpha, 8 bits", tiffImage(8, 2), false);
    row("gray and alpha, 16 bits", tiffImage(16, 2), true);
    row("color, 16 bits", tiffImage(16, 3, 1, 2), false);
    row("planes, 8 bits", tiffImage(8, 3, 1, 2), false, { { 284, tiffShort, { 2 } } });
    row("planes, 16 bits", tiffImage(16, 3, 1, 2), true, { { 284, tiffShort, { 2 } } });
    row("inks, 16 bits", tiffImage(16, 4, 1, 5), true);
    row("packed, 12 bits", tiffImage(12), false);
    row("packed and signed, 12 bits", tiffImage(12, 1, 2), true);
    row("floating-point", tiffImage(32, 1, 3), false);
    row("unknown compression, 8 bits", tiffImage(8), true, { { 259, tiffShort, { 60000 } } });
    row("unknown compression, 16 bits", tiffImage(16), false, { { 259, tiffShort, { 60000 } } });
}

void TestImageHeader::tiff_misreadKinds()
{
    QFETCH(QByteArray, bytes);
    const ImageHeader header = headerOf(bytes);
    QVERIFY(header.isSound);
    QTEST(header.isMisread, "misread");
}

void TestImageHeader::tiff_hostileDirectories_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("directory beyond the end") << QByteArray("II\x2A\0\xFF\xFF\xFF\xFF", 8);
    QTest::newRow("more entries than bytes")
        << QByteArray("II\x2A\0\x08\0\0\0\xFF\xFF", 10) + QByteArray(100, '\1');
    const QByteArray bigStart("II\x2B\0\x08\0\0\0\x10\0\0\0\0\0\0\0", 16);
    QTest::newRow("2^64 - 1 entries") << bigStart + QByteArray(8, '\xFF') + QByteArray(999, '\1');
    QTest::newRow("65536 entries that are there")
        << bigStart + littleEndian(quint64(65536)) + QByteArray(65536 * 20 + 8, '\0');
    QTest::newRow("BigTIFF offsets of four bytes")
        << QByteArray("II\x2B\0\4\0\0\0\x10\0\0\0\0\0\0\0", 16) + QByteArray(999, '\0');
    const auto withWidth = [](const TiffField& width) {
        TiffWriter writer;
        writer.addDirectory({ width, { 257, tiffShort, { 5 } } });
        return writer.file();
    };
    QTest::newRow("width 0") << withWidth({ 256, tiffShort, { 0 } });
    QTest::newRow("no width") << withWidth({ 255, tiffShort, { 4 } });
    QTest::newRow("width without a value") << withWidth({ 256, tiffShort, {} });
    QTest::newRow("two widths in one") << withWidth({ 256, tiffLong, { 8, 8 } });
    QTest::newRow("width as a double") << withWidth({ 256, 12, { 4 } });
    QTest::newRow("width as a signed number") << withWidth({ 256, 9, { 4 } });
    TiffImage strips = tiffImage(8); // more strips than the file has bytes
    QByteArray many = tiffOf(strips);
    const int countOffset = 8 + 2 + 12 * 5 + 4; // of the sixth entry, the strip offsets
    many.replace(countOffset, 4, littleEndian(quint32(100000)));
    many.replace(countOffset + 3 * 12, 4, littleEndian(quint32(100000)));
    QTest::newRow("more strips than bytes") << many;
}

void TestImageHeader::tiff_hostileDirectories()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!headerOf(bytes).isSound);
}

void TestImageHeader::jpeg_endlessSegmentsEnd()
{
    QByteArray bytes("\xFF\xD8", 2);
    for (int i = 0; i < 100000; ++i) {
        bytes += jpegSegment(0xE1, QByteArray());
    }
    QVERIFY(!headerOf(bytes + jpeg(0xC0).mid(2)).isSound);
}

void TestImageHeader::jpeg_endMarker_data()
{
    QTest::addColumn<QByteArray>("pixels");
    QTest::addColumn<bool>("ended");
    const QByteArray end("\xFF\xD9", 2);
    QTest::newRow("at the end") << QByteArray(100, 'p') + end << true;
    QTest::newRow("with something behind") << QByteArray(100, 'p') + end + "more" << true;
    QTest::newRow("far from the end") << QByteArray(5, 'p') + end + QByteArray(200000, 'm') << true;
    // The two bytes stand on both sides of the place 65536 bytes before the end.
    QTest::newRow("between two pieces")
        << QByteArray(5, 'p') + end + QByteArray(65535, 'm') << true;
    QTest::newRow("missing") << QByteArray(200000, 'p') << false;
    QTest::newRow("half of it") << QByteArray(100, 'p') + end.left(1) << false;
    QTest::newRow("no pixels") << QByteArray() << false;
}

void TestImageHeader::jpeg_endMarker()
{
    QFETCH(QByteArray, pixels);
    QFETCH(bool, ended);
    // A small picture in front has an end of its own.
    const QByteArray thumbnail = jpegSegment(0xE1, QByteArray("\xFF\xD8\xFF\xD9", 4));
    QByteArray bytes
        = jpeg(0xC0).left(2) + thumbnail + jpeg(0xC0).mid(2) + jpegSegment(0xDA, QByteArray());
    bytes += pixels;
    QBuffer file(&bytes);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const ImageHeader header = readImageHeader(&file, 0);
    QVERIFY(header.isSound);
    QCOMPARE(header.jpegPixels, qint64(bytes.size() - pixels.size()));
    QCOMPARE(holdsJpegEnd(&file, header), ended);
}

QTEST_GUILESS_MAIN(TestImageHeader)
#include "tst_imageheader.moc"
