#include "image/rawheader.h"
#include "support/sampleframes.h"

#include <QtTest>

namespace {

std::array<uchar, rawHeaderBytes> headerOf(const QByteArray& bytes)
{
    std::array<uchar, rawHeaderBytes> header {};
    std::copy(bytes.begin(), bytes.end(), header.begin());
    return header;
}

} // namespace

class TestRawHeader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsLittleEndianFields();
    void readsTheLargestNumbers();
    void signature_data();
    void signature();
};

void TestRawHeader::readsLittleEndianFields()
{
    std::array<uchar, rawHeaderBytes> bytes {};
    const QByteArray text("VORLAK");
    std::copy(text.begin(), text.end(), bytes.begin());
    bytes[12] = 0x02; // 0x0102 = 258
    bytes[13] = 0x01;
    bytes[14] = 0x04; // 0x0304 = 772
    bytes[15] = 0x03;
    bytes[22] = 3;
    bytes[23] = 2;
    bytes[32] = 0x78; // 0x12345678 = 305419896
    bytes[33] = 0x56;
    bytes[34] = 0x34;
    bytes[35] = 0x12;
    const auto header = parseRawHeader(bytes);
    QVERIFY(header.has_value());
    QCOMPARE(header->width, 258);
    QCOMPARE(header->height, 772);
    QCOMPARE(header->channels, 3);
    QCOMPARE(header->bytesPerChannel, 2);
    QCOMPARE(header->dataSize, quint32(305419896));
}

void TestRawHeader::readsTheLargestNumbers()
{
    std::array<uchar, rawHeaderBytes> bytes {};
    bytes.fill(0xff);
    const QByteArray text("VORLAK");
    std::copy(text.begin(), text.end(), bytes.begin());
    const auto header = parseRawHeader(bytes);
    QVERIFY(header.has_value());
    QCOMPARE(header->width, 65535);
    QCOMPARE(header->height, 65535);
    QCOMPARE(header->channels, 255);
    QCOMPARE(header->bytesPerChannel, 255);
    QCOMPARE(header->dataSize, quint32(4294967295u));
}

void TestRawHeader::signature_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("accepted");
    const QByteArray full(1018, 'x');
    QTest::newRow("at the start") << QByteArray("VORLAK") << true;
    QTest::newRow("further on") << QByteArray("camera VORLAK 2") << true;
    QTest::newRow("after a false start") << QByteArray("VORVORLAK") << true;
    QTest::newRow("last six bytes") << full + "VORLAK" << true;
    QTest::newRow("cut off by the end") << full + "xVORLA" << false;
    QTest::newRow("lower case") << QByteArray("vorlak") << false;
    QTest::newRow("mixed case") << QByteArray("Vorlak") << false;
    QTest::newRow("behind the first zero byte") << QByteArray("camera\0VORLAK", 13) << false;
    QTest::newRow("with a zero byte inside") << QByteArray("VOR\0LAK", 7) << false;
    QTest::newRow("no text") << QByteArray() << false;
}

void TestRawHeader::signature()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, accepted);
    QCOMPARE(parseRawHeader(headerOf(bytes)).has_value(), accepted);
}

QTEST_GUILESS_MAIN(TestRawHeader)
#include "tst_rawheader.moc"
