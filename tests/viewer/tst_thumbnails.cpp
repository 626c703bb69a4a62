#include "thumbnails.h"

#include "imagefile.h"
#include "tifffile.h"

#include <QImageReader>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

const QSize bounds(160, 120);

/// `samples` of `bytesPerChannel` bytes in one line.
template <class Sample>
RawFrame lineFrame(const QVector<Sample>& samples, int channels)
{
    RawFrame frame;
    frame.width = int(samples.size()) / channels;
    frame.height = 1;
    frame.channels = channels;
    frame.bytesPerChannel = sizeof(Sample);
    frame.bytes = QByteArray(
        reinterpret_cast<const char*>(samples.constData()), samples.size() * int(sizeof(Sample)));
    return frame;
}

} // namespace

/// Small pictures of files of every kind, good and bad.
class TestThumbnails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deepFrames_areStretched_data();
    void deepFrames_areStretched();
    void deepColours_keepTheirChannels_data();
    void deepColours_keepTheirChannels();
    void eightBits_areShownAsTheyAre_data();
    void eightBits_areShownAsTheyAre();
    void large_isReducedToTheBounds_data();
    void large_isReducedToTheBounds();
    void content_decidesNotTheSuffix();
    void otherFormats_areNotRead();
    void shortRawFile_isDarkWhereItEnds();
    void unreadable_data();
    void unreadable();
    void limit_raw();
    void limit_bitmap();
    void limit_tiff();
    void pipes_areNotOpened();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString written(const QString& name, const QByteArray& bytes);
    QString sparse(const QString& name, const QByteArray& start, qint64 size);

    QTemporaryDir m_folder;
};

QString TestThumbnails::written(const QString& name, const QByteArray& bytes)
{
    QFile file(path(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName()
                                                                                : QString();
}

/// A file of which only the start takes room.
QString TestThumbnails::sparse(const QString& name, const QByteArray& start, qint64 size)
{
    const QString file = written(name, start);
    return QFile::resize(file, size) ? file : QString();
}

void TestThumbnails::deepFrames_areStretched_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : { "deep.raw", "deep.png", "deep.tif" }) {
        QTest::newRow(name) << QString(name);
    }
}

void TestThumbnails::deepFrames_areStretched()
{
    QFETCH(QString, name);
    QString problem;
    const RawFrame frame = lineFrame(QVector<quint16> { 1000, 1100, 1040, 1000 }, 1);
    QVERIFY(writeImageFile(path(name), frame, &problem));
    const QImage picture = thumbnail(path(name), bounds);
    QCOMPARE(picture.size(), QSize(4, 1));
    QCOMPARE(qGray(picture.pixel(0, 0)), 0);
    QCOMPARE(qGray(picture.pixel(1, 0)), 255);
    QCOMPARE(qGray(picture.pixel(2, 0)), 102); // 40 of 100
}

void TestThumbnails::deepColours_keepTheirChannels_data()
{
    deepFrames_areStretched_data();
}

void TestThumbnails::deepColours_keepTheirChannels()
{
    QFETCH(QString, name);
    QString problem;
    // Blue, green, red: an orange pixel, then a black one.
    const RawFrame frame = lineFrame(QVector<quint16> { 1000, 1040, 1100, 1000, 1000, 1000 }, 3);
    QVERIFY(writeImageFile(path(name), frame, &problem));
    const QImage picture = thumbnail(path(name), bounds);
    QCOMPARE(picture.size(), QSize(2, 1));
    QCOMPARE(picture.pixel(0, 0), qRgb(255, 102, 0));
    QCOMPARE(picture.pixel(1, 0), qRgb(0, 0, 0));
}

void TestThumbnails::eightBits_areShownAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : { "plain.png", "plain.bmp", "plain.tif" }) {
        QTest::newRow(name) << QString(name);
    }
}

void TestThumbnails::eightBits_areShownAsTheyAre()
{
    QFETCH(QString, name);
    QString problem;
    QVERIFY(writeImageFile(
        path(name), lineFrame(QVector<quint8> { 30, 20, 10, 60, 50, 40 }, 3), &problem));
    const QImage colours = thumbnail(path(name), bounds);
    QCOMPARE(colours.pixel(0, 0), qRgb(10, 20, 30));
    QCOMPARE(colours.pixel(1, 0), qRgb(40, 50, 60));
    QVERIFY(writeImageFile(path(name), lineFrame(QVector<quint8> { 30, 20 }, 1), &problem));
    const QImage grays = thumbnail(path(name), bounds);
    QCOMPARE(grays.pixel(0, 0), qRgb(30, 30, 30));
    QCOMPARE(grays.pixel(1, 0), qRgb(20, 20, 20));
}

void TestThumbnails::large_isReducedToTheBounds_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : { "l.png", "l.bmp", "l.jpg", "l.tif", "l.raw" }) {
        QTest::newRow(name) << QString(name);
    }
}

void TestThumbnails::large_isReducedToTheBounds()
{
    QFETCH(QString, name);
    RawFrame frame;
    frame.width = 1000;
    frame.height = 500;
    frame.bytes = QByteArray(500000, '\0');
    for (int y = 0; y < 500; ++y) {
        memset(frame.bytes.data() + y * 1000 + 500, 200, 500); // the right half
    }
    QString problem;
    QVERIFY(writeImageFile(path(name), frame, &problem));
    const QImage picture = thumbnail(path(name), bounds);
    QCOMPARE(picture.size(), QSize(160, 80));
    QVERIFY(qGray(picture.pixel(20, 40)) < 4);
    QVERIFY(qGray(picture.pixel(140, 40)) > 196);
}

void TestThumbnails::content_decidesNotTheSuffix()
{
    QString problem;
    const RawFrame frame = lineFrame(QVector<quint8> { 30, 20 }, 1);
    QVERIFY(writeImageFile(path("a.png"), frame, &problem));
    QVERIFY(writeImageFile(path("a.tif"), frame, &problem));
    QVERIFY(QFile::rename(path("a.png"), path("swapped.tif")));
    QVERIFY(QFile::rename(path("a.tif"), path("swapped.png")));
    QCOMPARE(qGray(thumbnail(path("swapped.tif"), bounds).pixel(0, 0)), 30);
    QCOMPARE(qGray(thumbnail(path("swapped.png"), bounds).pixel(0, 0)), 30);
}

void TestThumbnails::otherFormats_areNotRead()
{
    const QString file = written("other.png", "P5 2 1 255\n\x10\x20");
    QVERIFY(!QImage(file).isNull()); // Qt would read it
    QVERIFY(thumbnail(file, bounds).isNull());
}

void TestThumbnails::shortRawFile_isDarkWhereItEnds()
{
    RawHeader header;
    header.width = 2;
    header.height = 2;
    header.channels = header.bytesPerChannel = 1;
    header.dataSize = 4;
    const QImage picture
        = thumbnail(written("short.raw", encodedRawHeader(header) + "\x50\x50"), bounds);
    QCOMPARE(qGray(picture.pixel(1, 0)), 255);
    QCOMPARE(qGray(picture.pixel(0, 1)), 0);
}

void TestThumbnails::unreadable_data()
{
    QTest::addColumn<QString>("file");
    RawHeader header;
    header.width = header.height = 10;
    header.channels = 1;
    header.bytesPerChannel = 3;
    QTest::newRow("missing") << path("gone.png");
    QTest::newRow("no name") << "";
    QTest::newRow("folder") << m_folder.path();
    QTest::newRow("empty") << written("empty.png", "");
    QTest::newRow("text") << written("text.png", "hello");
    QTest::newRow("text as raw") << written("text.raw", "hello");
    QTest::newRow("raw of 3 bytes a sample") << written("three.raw", encodedRawHeader(header));
    header.bytesPerChannel = 0;
    QTest::newRow("raw without pixels") << written("none.raw", encodedRawHeader(header));
    header.width = header.height = 65535;
    header.channels = header.bytesPerChannel = 255;
    QTest::newRow("raw beyond memory") << written("huge.raw", encodedRawHeader(header));
    QTest::newRow("PNG, signature alone") << written("start.png", "\x89PNG\r\n\x1A\n");
    QTest::newRow("TIFF without a directory") << written("start.tif", QByteArray("II\x2A\0", 4));
    QTest::newRow("TIFF without pixels")
        << written("none.tif", tiffFile({ { 256, tiffLong, 1, 9 }, { 257, tiffLong, 1, 9 } }));
}

void TestThumbnails::unreadable()
{
    QFETCH(QString, file);
    QVERIFY(thumbnail(file, bounds).isNull());
}

void TestThumbnails::limit_raw()
{
    RawHeader header;
    header.width = 16384;
    header.height = 16384; // 256 MiB of one byte each
    header.channels = header.bytesPerChannel = 1;
    header.dataSize = 100;
    const QString within = written("within.raw", encodedRawHeader(header) + QByteArray(100, 'x'));
    QCOMPARE(thumbnail(within, bounds).size(), QSize(120, 120));
    header.height = 16385;
    const QString beyond = written("beyond.raw", encodedRawHeader(header) + QByteArray(100, 'x'));
    QVERIFY(thumbnail(beyond, bounds).isNull());
}

/// A black-and-white bitmap: a small file of many pixels.
void TestThumbnails::limit_bitmap()
{
    QImage image(8192, 8192, QImage::Format_Mono); // 256 MiB at four bytes a pixel
    image.fill(1);
    QVERIFY(image.save(path("within.bmp")));
    QCOMPARE(thumbnail(path("within.bmp"), bounds).size(), QSize(120, 120));
    QVERIFY(QImage(8192, 8193, QImage::Format_Mono).save(path("beyond.bmp")));
    QCOMPARE(QImageReader(path("beyond.bmp")).size(), QSize(8192, 8193));
    QVERIFY(thumbnail(path("beyond.bmp"), bounds).isNull());
}

void TestThumbnails::limit_tiff()
{
    // Grey, 8 bits, not compressed, one strip behind the directory of nine entries.
    const auto grayTiff = [](quint32 width, quint32 height) {
        return tiffFile({ { 256, tiffLong, 1, width }, { 257, tiffLong, 1, height },
            { 258, tiffShort, 1, 8 }, { 259, tiffShort, 1, 1 }, { 262, tiffShort, 1, 1 },
            { 273, tiffLong, 1, 256 }, { 277, tiffShort, 1, 1 }, { 278, tiffLong, 1, height },
            { 279, tiffLong, 1, width * height } });
    };
    const QString small = sparse("small.tif", grayTiff(20, 10), 256 + 200);
    QCOMPARE(thumbnail(small, bounds).size(), QSize(20, 10));
    const QString beyond = sparse("beyond.tif", grayTiff(8192, 8193), 256 + 8192 * 8193);
    QVERIFY(thumbnail(beyond, bounds).isNull());
}

void TestThumbnails::pipes_areNotOpened()
{
#ifdef Q_OS_UNIX
    for (const char* name : { "pipe.png", "pipe.raw", "pipe.tif" }) {
        QCOMPARE(mkfifo(qPrintable(path(name)), 0600), 0);
        QVERIFY(thumbnail(path(name), bounds).isNull()); // and does not wait for a writer
    }
#else
    QTest::qSkip("only Unix has pipes with a file name", __FILE__, __LINE__);
#endif
}

QTEST_GUILESS_MAIN(TestThumbnails)
#include "tst_thumbnails.moc"
