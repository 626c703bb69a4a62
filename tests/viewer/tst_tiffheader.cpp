#include "tiffheader.h"

#include "tifffile.h"

#include <QBuffer>
#include <QtTest>

namespace {

constexpr quint16 widthTag = 256;
constexpr quint16 heightTag = 257;
constexpr quint16 bitsTag = 258;
constexpr quint16 samplesTag = 277;

bool read(QByteArray bytes, TiffHeader* header)
{
    QBuffer file(&bytes);
    return file.open(QIODevice::ReadOnly) && readTiffHeader(&file, header);
}

} // namespace

class TestTiffHeader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tiff_data();
    void tiff();
    void fields_inBothByteOrders();
    void fields_haveDefaults();
    void bits_ofSeveralSamplesStandElsewhere();
    void fieldTwice_theLargerCounts();
    void refusals_data();
    void refusals();
};

void TestTiffHeader::tiff_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("tiff");
    QTest::newRow("little-endian") << QByteArray("II\x2A\0\x08\0\0\0", 8) << true;
    QTest::newRow("big-endian") << QByteArray("MM\0\x2A\0\0\0\x08", 8) << true;
    QTest::newRow("number in the other order") << QByteArray("II\0\x2A\x08\0\0\0", 8) << false;
    QTest::newRow("other number") << QByteArray("II\x2B\0\x08\0\0\0", 8) << false;
    QTest::newRow("other letters") << QByteArray("IM\x2A\0\x08\0\0\0", 8) << false;
    QTest::newRow("short") << QByteArray("II\x2A\0\x08\0\0", 7) << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void TestTiffHeader::tiff()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, tiff);
    QBuffer file(&content);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(isTiff(&file), tiff);
}

void TestTiffHeader::fields_inBothByteOrders()
{
    const QVector<TiffEntry> entries { { widthTag, tiffLong, 1, 70000 },
        { heightTag, tiffShort, 1, 513 }, { bitsTag, tiffShort, 1, 16 },
        { samplesTag, tiffByte, 1, 3 } };
    for (const bool bigEndian : { false, true }) {
        TiffHeader header;
        QVERIFY(read(tiffFile(entries, bigEndian), &header));
        QCOMPARE(header.width, 70000u);
        QCOMPARE(header.height, 513u);
        QCOMPARE(header.bitsPerSample, 16u);
        QCOMPARE(header.samplesPerPixel, 3u);
    }
}

void TestTiffHeader::fields_haveDefaults()
{
    TiffHeader header;
    QVERIFY(
        read(tiffFile({ { widthTag, tiffShort, 1, 4 }, { heightTag, tiffShort, 1, 5 } }), &header));
    QCOMPARE(header.bitsPerSample, 1u);
    QCOMPARE(header.samplesPerPixel, 1u);
}

void TestTiffHeader::bits_ofSeveralSamplesStandElsewhere()
{
    // Behind start, count, three entries and the offset of the next directory: 8 + 2 + 36 + 4.
    const QByteArray file = tiffFile({ { widthTag, tiffShort, 1, 4 },
        { heightTag, tiffShort, 1, 5 }, { bitsTag, tiffShort, 3, 50 } });
    QCOMPARE(file.size(), 50);
    TiffHeader header;
    QVERIFY(read(file + QByteArray("\x08\0\x08\0\x08\0", 6), &header));
    QCOMPARE(header.bitsPerSample, 8u);
    QVERIFY(!read(file + QByteArray("\x08", 1), &header)); // cut short
}

void TestTiffHeader::fieldTwice_theLargerCounts()
{
    TiffHeader header;
    QVERIFY(read(tiffFile({ { widthTag, tiffShort, 1, 4 }, { widthTag, tiffLong, 1, 400000 },
                     { widthTag, tiffShort, 1, 3 }, { heightTag, tiffShort, 1, 5 } }),
        &header));
    QCOMPARE(header.width, 400000u);
}

void TestTiffHeader::refusals_data()
{
    QTest::addColumn<QByteArray>("content");
    const TiffEntry width { widthTag, tiffShort, 1, 4 };
    const TiffEntry height { heightTag, tiffShort, 1, 5 };
    const QByteArray good = tiffFile({ width, height });
    QTest::newRow("no width") << tiffFile({ height });
    QTest::newRow("no height") << tiffFile({ width });
    QTest::newRow("width 0") << tiffFile({ { widthTag, tiffShort, 1, 0 }, height });
    QTest::newRow("no entries") << tiffFile({});
    QTest::newRow("width without a value") << tiffFile({ { widthTag, tiffShort, 0, 4 }, height });
    QTest::newRow("two widths in one") << tiffFile({ { widthTag, tiffLong, 2, 8 }, height });
    QTest::newRow("width as a double") << tiffFile({ { widthTag, 12, 1, 4 }, height });
    QTest::newRow("width as a signed number") << tiffFile({ { widthTag, 9, 1, 4 }, height });
    QTest::newRow("cut in an entry") << good.left(30);
    QTest::newRow("cut behind the start") << good.left(8);
    QByteArray many = good;
    many.replace(8, 2, "\xFF\xFF");
    QTest::newRow("more entries than bytes") << many;
    QByteArray far = good;
    far.replace(4, 4, "\xFF\xFF\xFF\xFF");
    QTest::newRow("directory beyond the end") << far;
}

void TestTiffHeader::refusals()
{
    QFETCH(QByteArray, content);
    TiffHeader header;
    header.width = 77;
    QVERIFY(!read(content, &header));
    QCOMPARE(header.width, 77u);
}

QTEST_GUILESS_MAIN(TestTiffHeader)
#include "tst_tiffheader.moc"
