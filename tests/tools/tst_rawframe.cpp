#include "rawframe.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

/// Header bytes put together by hand: signature, then the five numbers at their offsets.
QByteArray headerBytes(const QByteArray& width, const QByteArray& height, char channels,
    char bytesPerChannel, const QByteArray& dataSize)
{
    QByteArray bytes(1024, '\0');
    bytes.replace(0, 6, "VORLAK");
    bytes.replace(12, 2, width);
    bytes.replace(14, 2, height);
    bytes[22] = channels;
    bytes[23] = bytesPerChannel;
    bytes.replace(32, 4, dataSize);
    return bytes;
}

QByteArray hex(const char* digits)
{
    return QByteArray::fromHex(digits);
}

RawFrame smallFrame()
{
    RawFrame frame;
    frame.width = 3;
    frame.height = 2;
    frame.channels = 1;
    frame.bytesPerChannel = 2;
    frame.bytes = "abcdefghijkl";
    return frame;
}

} // namespace

class TestRawFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void header_isWrittenAtItsOffsets();
    void header_isReadFromItsOffsets();
    void signature_data();
    void signature();
    void shortHeader_countsAsZeros();
    void frame_roundTrip_data();
    void frame_roundTrip();
    void frame_shortFileIsFilledWithZeros();
    void frame_stopsAtTheDataSizeOfTheHeader();
    void frame_readsNoMoreThanItsPixels();
    void frame_withoutPixels_data();
    void frame_withoutPixels();
    void frame_hugeClaimIsRefusedUnread();
    void unreadable_data();
    void unreadable();
    void write_refusesWhatDoesNotFit_data();
    void write_refusesWhatDoesNotFit();
    void write_leavesTheOldFileWhenItFails();

private:
    QString write(const QString& name, const QByteArray& bytes);
    QTemporaryDir m_folder;
};

QString TestRawFrame::write(const QString& name, const QByteArray& bytes)
{
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName()
                                                                                : QString();
}

void TestRawFrame::header_isWrittenAtItsOffsets()
{
    RawHeader header;
    header.width = 0x1234;
    header.height = 0xFEDC;
    header.channels = 3;
    header.bytesPerChannel = 200;
    header.dataSize = 0x89ABCDEFu;
    const QByteArray expected
        = headerBytes(hex("3412"), hex("DCFE"), 3, char(200), hex("EFCDAB89"));
    QCOMPARE(encodedRawHeader(header), expected);
}

void TestRawFrame::header_isReadFromItsOffsets()
{
    RawHeader header;
    QVERIFY(decodeRawHeader(
        headerBytes(hex("3412"), hex("DCFE"), char(255), char(4), hex("EFCDAB89")), &header));
    QCOMPARE(header.width, 0x1234);
    QCOMPARE(header.height, 0xFEDC);
    QCOMPARE(header.channels, 255);
    QCOMPARE(header.bytesPerChannel, 4);
    QCOMPARE(header.dataSize, 0x89ABCDEFu);
}

void TestRawFrame::signature_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<bool>("known");
    QTest::newRow("in front") << QByteArray("VORLAK") << true;
    QTest::newRow("behind other text") << QByteArray("CAM 1 VORLAK") << true;
    QTest::newRow("up to the last header byte") << QByteArray(1018, 'x') + "VORLAK" << true;
    QTest::newRow("cut by the header's end") << QByteArray(1019, 'x') + "VORLAK" << false;
    QTest::newRow("behind a zero") << QByteArray("CAM\0VORLAK", 10) << false;
    QTest::newRow("lower case") << QByteArray("vorlak") << false;
    QTest::newRow("cut short") << QByteArray("VORLA") << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void TestRawFrame::signature()
{
    QFETCH(QByteArray, start);
    QFETCH(bool, known);
    RawHeader header;
    header.width = -7;
    QCOMPARE(decodeRawHeader(start, &header), known);
    QCOMPARE(header.width == -7, !known);
    const QString path = write("signature.raw", start);
    QCOMPARE(readRawHeader(path, &header), known ? RawFileError::None : RawFileError::NoSignature);
}

void TestRawFrame::shortHeader_countsAsZeros()
{
    // Ends after the low byte of the height.
    RawHeader header;
    QVERIFY(decodeRawHeader(QByteArray("VORLAK\0\0\0\0\0\0\x05\x01\x07", 15), &header));
    QCOMPARE(header.width, 0x0105);
    QCOMPARE(header.height, 7);
    QCOMPARE(header.channels, 0);
    QCOMPARE(header.dataSize, 0u);
}

void TestRawFrame::frame_roundTrip_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("bytesPerChannel");
    QTest::newRow("8 bit") << 5 << 3 << 1 << 1;
    QTest::newRow("16 bit") << 5 << 3 << 1 << 2;
    QTest::newRow("32 bit") << 5 << 3 << 1 << 4;
    QTest::newRow("colour") << 7 << 2 << 3 << 1;
    QTest::newRow("widest") << 65535 << 1 << 1 << 1;
    QTest::newRow("highest") << 1 << 65535 << 1 << 2;
}

void TestRawFrame::frame_roundTrip()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, channels);
    QFETCH(int, bytesPerChannel);
    RawFrame written;
    written.width = width;
    written.height = height;
    written.channels = channels;
    written.bytesPerChannel = bytesPerChannel;
    for (int i = 0; i < width * height * channels * bytesPerChannel; ++i) {
        written.bytes.append(char(i * 31 + 7));
    }
    const QString path = m_folder.filePath("round.raw");
    QString problem = "untouched";
    QVERIFY(writeRawFrame(path, written, &problem));
    QVERIFY(problem.isEmpty());
    QCOMPARE(QFileInfo(path).size(), qint64(1024) + written.bytes.size());

    RawFrame read;
    QCOMPARE(readRawFrame(path, &read), RawFileError::None);
    QCOMPARE(read.width, width);
    QCOMPARE(read.height, height);
    QCOMPARE(read.channels, channels);
    QCOMPARE(read.bytesPerChannel, bytesPerChannel);
    QCOMPARE(read.bytes, written.bytes);
}

void TestRawFrame::frame_shortFileIsFilledWithZeros()
{
    // 4 x 2 bytes promised, 3 there.
    const QString path
        = write("short.raw", headerBytes(hex("0400"), hex("0200"), 1, 1, hex("08000000")) + "abc");
    RawFrame frame;
    QCOMPARE(readRawFrame(path, &frame), RawFileError::None);
    QCOMPARE(frame.bytes, QByteArray("abc\0\0\0\0\0", 8));
}

void TestRawFrame::frame_stopsAtTheDataSizeOfTheHeader()
{
    const QString path = write(
        "size.raw", headerBytes(hex("0400"), hex("0200"), 1, 1, hex("02000000")) + "abcdefgh");
    RawFrame frame;
    QCOMPARE(readRawFrame(path, &frame), RawFileError::None);
    QCOMPARE(frame.bytes, QByteArray("ab\0\0\0\0\0\0", 8));
}

void TestRawFrame::frame_readsNoMoreThanItsPixels()
{
    const QString path = write("long.raw",
        headerBytes(hex("0400"), hex("0200"), 1, 1, hex("FFFFFFFF")) + "abcdefghijklmnop");
    RawFrame frame;
    QCOMPARE(readRawFrame(path, &frame), RawFileError::None);
    QCOMPARE(frame.bytes, QByteArray("abcdefgh"));
}

void TestRawFrame::frame_withoutPixels_data()
{
    QTest::addColumn<QByteArray>("header");
    const QByteArray four = hex("0400");
    const QByteArray none = hex("0000");
    const QByteArray size = hex("10000000");
    QTest::newRow("width 0") << headerBytes(none, four, 1, 1, size);
    QTest::newRow("height 0") << headerBytes(four, none, 1, 1, size);
    QTest::newRow("no channels") << headerBytes(four, four, 0, 1, size);
    QTest::newRow("no bytes a channel") << headerBytes(four, four, 1, 0, size);
    QTest::newRow("widest without height")
        << headerBytes(hex("FFFF"), none, char(255), char(255), size);
    QTest::newRow("nothing but the signature") << QByteArray("VORLAK");
}

void TestRawFrame::frame_withoutPixels()
{
    QFETCH(QByteArray, header);
    const QString path = write("empty.raw", header);
    RawHeader read;
    QCOMPARE(readRawHeader(path, &read), RawFileError::None);
    QVERIFY(rawPixelBytes(read) == 0);
    RawFrame frame = smallFrame();
    QCOMPARE(readRawFrame(path, &frame), RawFileError::NoPixels);
    QCOMPARE(frame.bytes, smallFrame().bytes);
}

void TestRawFrame::frame_hugeClaimIsRefusedUnread()
{
    const QString path = write(
        "huge.raw", headerBytes(hex("FFFF"), hex("FFFF"), char(255), char(255), hex("FFFFFFFF")));
    RawHeader header;
    QCOMPARE(readRawHeader(path, &header), RawFileError::None);
    // 65535 * 65535 * 255 * 255, far beyond 32 bits
    QVERIFY(rawPixelBytes(header) == Q_UINT64_C(279271725530625));
    RawFrame frame = smallFrame();
    QCOMPARE(readRawFrame(path, &frame), RawFileError::TooLarge);
    QCOMPARE(frame.width, 3);

    // One row of 16384 bytes above 1 GiB.
    const QString above
        = write("above.raw", headerBytes(hex("0040"), hex("0140"), 1, 4, hex("FFFFFFFF")));
    QCOMPARE(readRawFrame(above, &frame), RawFileError::TooLarge);
}

void TestRawFrame::unreadable_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << m_folder.filePath("missing.raw");
    QTest::newRow("a folder") << m_folder.path();
    QTest::newRow("no name") << QString();
#ifdef Q_OS_UNIX
    const QString pipe = m_folder.filePath("pipe.raw");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("a pipe") << pipe;
#endif
}

void TestRawFrame::unreadable()
{
    QFETCH(QString, path);
    RawHeader header;
    QCOMPARE(readRawHeader(path, &header), RawFileError::Unreadable);
    RawFrame frame;
    QCOMPARE(readRawFrame(path, &frame), RawFileError::Unreadable);
}

void TestRawFrame::write_refusesWhatDoesNotFit_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("bytesPerChannel");
    QTest::addColumn<int>("byteCount");
    QTest::newRow("no pixels") << 0 << 1 << 1 << 0;
    QTest::newRow("negative width") << -1 << 1 << 1 << 0;
    QTest::newRow("no channels") << 4 << 0 << 1 << 0;
    QTest::newRow("too wide") << 65536 << 1 << 1 << 65536;
    QTest::newRow("too many channels") << 1 << 256 << 1 << 256;
    QTest::newRow("too deep") << 1 << 1 << 256 << 256;
    QTest::newRow("bytes missing") << 4 << 1 << 2 << 7;
    QTest::newRow("bytes left over") << 4 << 1 << 2 << 9;
}

void TestRawFrame::write_refusesWhatDoesNotFit()
{
    QFETCH(int, width);
    QFETCH(int, channels);
    QFETCH(int, bytesPerChannel);
    QFETCH(int, byteCount);
    RawFrame frame;
    frame.width = width;
    frame.height = 1;
    frame.channels = channels;
    frame.bytesPerChannel = bytesPerChannel;
    frame.bytes.fill('x', byteCount);
    QString problem;
    const QString path = m_folder.filePath("refused.raw");
    QVERIFY(!writeRawFrame(path, frame, &problem));
    QVERIFY(!problem.isEmpty());
    QVERIFY(!problem.contains('\n'));
    QVERIFY(!QFile::exists(path));
}

void TestRawFrame::write_leavesTheOldFileWhenItFails()
{
    QString problem;
    QVERIFY(!writeRawFrame(m_folder.filePath("no/such/folder.raw"), smallFrame(), &problem));
    QVERIFY(!problem.isEmpty());

    const QString path = write("kept.raw", "old");
    RawFrame broken = smallFrame();
    broken.bytes.chop(1);
    QVERIFY(!writeRawFrame(path, broken, &problem));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("old"));
}

QTEST_GUILESS_MAIN(TestRawFrame)
#include "tst_rawframe.moc"
