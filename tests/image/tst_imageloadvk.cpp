#include "image/imagedata.h"
#include "image/imageloadvk.h"
#include "support/sampleframes.h"

#include <QTemporaryDir>
#include <QtTest>

#if defined(Q_OS_UNIX)
#include <sys/stat.h>
#endif

class TestImageLoadVk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void loadsAFrame();
    void loadsColourAsItStands();
    void shortFileKeepsZeros();
    void shortFileIntoAUsedRecordKeepsZeros();
    void headerDataSizeLimitsTheRead();
    void headerDataSizeBeyondTheFrameIsCut();
    void fileEndingInsideTheHeader();
    void loadsDepthsAndChannelsNothingCanProcess_data();
    void loadsDepthsAndChannelsNothingCanProcess();
    void withoutWidthOrHeight_data();
    void withoutWidthOrHeight();
    void refusedFilesLeaveTheRecord_data();
    void refusedFilesLeaveTheRecord();
    void notARegularFile();
    void noRecord();

private:
    bool load(const RawFile& frame);
    bool loadFile(const QString& path);
    QByteArray pixels() const;

    QTemporaryDir m_folder;
    QString m_path;
    ImageData m_image;
};

void TestImageLoadVk::initTestCase()
{
    QVERIFY(m_folder.isValid());
    m_path = m_folder.filePath("frame.raw");
}

void TestImageLoadVk::init()
{
    m_image.release();
}

bool TestImageLoadVk::load(const RawFile& frame)
{
    return writeRawFile(m_path, frame) && loadFile(m_path);
}

bool TestImageLoadVk::loadFile(const QString& path)
{
    ImageLoadVk loader;
    loader.filePath = path;
    return loader.load(&m_image);
}

QByteArray TestImageLoadVk::pixels() const
{
    return QByteArray(reinterpret_cast<const char*>(m_image.data), int(m_image.allocatedBytes()));
}

void TestImageLoadVk::loadsAFrame()
{
    const QByteArray bytes = bytesOf<ushort>({ 1, 2, 3, 400, 500, 65535 });
    QVERIFY(load(rawFile(3, 2, 1, 2, bytes)));
    QCOMPARE(m_image.width, 3);
    QCOMPARE(m_image.height, 2);
    QCOMPARE(m_image.bitDepth, 16);
    QCOMPARE(m_image.channels, 1);
    QCOMPARE(m_image.dataSize, 12);
    QCOMPARE(pixels(), bytes);
    QCOMPARE(m_image.pixelValue(2, 1), 65535);
}

void TestImageLoadVk::loadsColourAsItStands()
{
    QVERIFY(load(rawFile(2, 1, 3, 1, "abcdef")));
    QCOMPARE(m_image.channels, 3);
    QCOMPARE(pixels(), QByteArray("abcdef"));
}

void TestImageLoadVk::shortFileKeepsZeros()
{
    RawFile frame = rawFile(4, 2, 1, 1, "abcde");
    frame.dataSize = 8;
    QVERIFY(load(frame));
    QCOMPARE(pixels(), QByteArray("abcde\0\0\0", 8));
}

void TestImageLoadVk::shortFileIntoAUsedRecordKeepsZeros()
{
    QVERIFY(load(rawFile(4, 2, 1, 1, "ABCDEFGH")));
    RawFile frame = rawFile(4, 2, 1, 1, "abcde");
    frame.dataSize = 8;
    QVERIFY(load(frame));
    QCOMPARE(pixels(), QByteArray("abcde\0\0\0", 8));
}

void TestImageLoadVk::headerDataSizeLimitsTheRead()
{
    RawFile frame = rawFile(4, 2, 1, 1, "abcdefgh");
    frame.dataSize = 3;
    QVERIFY(load(frame));
    QCOMPARE(pixels(), QByteArray("abc\0\0\0\0\0", 8));
}

void TestImageLoadVk::headerDataSizeBeyondTheFrameIsCut()
{
    RawFile frame = rawFile(2, 2, 1, 1, "abcdefgh");
    frame.dataSize = 4294967295u;
    QVERIFY(load(frame));
    QCOMPARE(pixels(), QByteArray("abcd"));
}

void TestImageLoadVk::fileEndingInsideTheHeader()
{
    const QByteArray header = rawHeaderBytesOf(rawFile(2, 2, 1, 1, "abcd"));
    QVERIFY(writeFile(m_path, header.left(24))); // width, height, channels and bytes, no data size
    QVERIFY(loadFile(m_path));
    QCOMPARE(pixels(), QByteArray(4, '\0'));

    QVERIFY(writeFile(m_path, header.left(13))); // one byte of the width
    QVERIFY(loadFile(m_path));
    QCOMPARE(m_image.width, 2);
    QCOMPARE(m_image.height, 0);
    QVERIFY(!m_image.isLoaded());
}

void TestImageLoadVk::loadsDepthsAndChannelsNothingCanProcess_data()
{
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("bytesPerChannel");
    QTest::newRow("two channels") << 2 << 1;
    QTest::newRow("four channels") << 4 << 2;
    QTest::newRow("24 bits") << 1 << 3;
    QTest::newRow("64 bits") << 1 << 8;
    QTest::newRow("2040 bits, 255 channels") << 255 << 255;
    QTest::newRow("no channels") << 0 << 1;
    QTest::newRow("no bytes") << 1 << 0;
}

void TestImageLoadVk::loadsDepthsAndChannelsNothingCanProcess()
{
    QFETCH(int, channels);
    QFETCH(int, bytesPerChannel);
    const QByteArray bytes(2 * 3 * channels * bytesPerChannel, 'x');
    QVERIFY(load(rawFile(3, 2, channels, bytesPerChannel, bytes)));
    QCOMPARE(m_image.bitDepth, 8 * bytesPerChannel);
    QCOMPARE(m_image.channels, channels);
    QCOMPARE(pixels(), bytes);
}

void TestImageLoadVk::withoutWidthOrHeight_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("format");
    QTest::newRow("no width") << 0 << 5 << 1;
    QTest::newRow("no height") << 5 << 0 << 1;
    QTest::newRow("no height, line length beyond an int") << 65535 << 0 << 255;
}

void TestImageLoadVk::withoutWidthOrHeight()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, format);
    QVERIFY(load(rawFile(width, height, format, format, "abcdef")));
    QCOMPARE(m_image.width, width);
    QCOMPARE(m_image.height, height);
    QVERIFY(m_image.data);
    QVERIFY(!m_image.isLoaded());
}

void TestImageLoadVk::refusedFilesLeaveTheRecord_data()
{
    QTest::addColumn<QByteArray>("bytes");
    RawFile lower = rawFile(2, 2, 1, 1, "abcd");
    lower.signature = "vorlak";
    QTest::newRow("signature in lower case") << rawHeaderBytesOf(lower) + "abcd";
    RawFile late = rawFile(2, 2, 1, 1, "abcd");
    late.signature = QByteArray("x\0VORLAK", 8);
    QTest::newRow("signature behind a zero byte") << rawHeaderBytesOf(late) + "abcd";
    QTest::newRow("signature behind the header") << QByteArray(1024, 'x') + "VORLAK";
    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("too many pixels") << rawHeaderBytesOf(rawFile(65535, 65535, 1, 1, "abcd"));
    QTest::newRow("too long a line") << rawHeaderBytesOf(rawFile(65535, 1, 255, 255, "abcd"));
    QTest::newRow("too many bytes") << rawHeaderBytesOf(rawFile(32768, 32768, 1, 2, "abcd"));
}

void TestImageLoadVk::refusedFilesLeaveTheRecord()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(load(rawFile(3, 1, 1, 1, "xyz")));
    const uchar* data = m_image.data;
    QVERIFY(writeFile(m_path, bytes));
    QVERIFY(!loadFile(m_path));
    QVERIFY(m_image.data == data);
    QCOMPARE(m_image.width, 3);
    QCOMPARE(m_image.height, 1);
    QCOMPARE(pixels(), QByteArray("xyz"));
}

void TestImageLoadVk::notARegularFile()
{
    QVERIFY(!loadFile(m_folder.filePath("missing.raw")));
    QVERIFY(!loadFile(m_folder.path()));
    QVERIFY(!loadFile(QString()));
#if defined(Q_OS_UNIX)
    const QString pipe = m_folder.filePath("pipe.raw");
    QCOMPARE(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    QVERIFY(!loadFile(pipe)); // opening it would wait for a writer for ever
#endif
}

void TestImageLoadVk::noRecord()
{
    QVERIFY(writeRawFile(m_path, rawFile(1, 1, 1, 1, "a")));
    ImageLoadVk loader;
    loader.filePath = m_path;
    QVERIFY(!loader.load(nullptr));
}

QTEST_GUILESS_MAIN(TestImageLoadVk)
#include "tst_imageloadvk.moc"
