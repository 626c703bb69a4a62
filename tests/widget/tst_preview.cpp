#include "support/sampleframes.h"
#include "support/tiffwriter.h"
#include "widget/preview.h"

#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <thread>

#if defined(Q_OS_UNIX)
#include <sys/stat.h>
#endif

namespace {

const QSize bounds(160, 120);

QVector<int> firstLine(const QImage& picture)
{
    QVector<int> levels;
    for (int x = 0; x < picture.width(); ++x) {
        levels << qGray(picture.pixel(x, 0));
    }
    return levels;
}

} // namespace

/// Small pictures of files of every kind, good and bad.
class TestPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void smallImages_haveTheDisplayLevels_data();
    void smallImages_haveTheDisplayLevels();
    void colors_areReducedToGray();
    void wideColors_doNotWrap();
    void floatingPoint_isShown();
    void largeImages_areReduced_data();
    void largeImages_areReduced();
    void shortRawFile_isDarkWhereItEnds();
    void content_decidesNotTheSuffix();
    void unreadable_data();
    void unreadable();
    void pixelLimit();
    void emptyBounds();
    void pipesAreNotOpened();
    void manyThreads();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString written(const QString& name, const QByteArray& bytes);

    QTemporaryDir m_folder;
};

void TestPreview::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

QString TestPreview::written(const QString& name, const QByteArray& bytes)
{
    return writeFile(path(name), bytes) ? path(name) : QString();
}

void TestPreview::smallImages_haveTheDisplayLevels_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : { "deep.raw", "deep.png", "deep.tif" }) {
        QTest::newRow(name) << QString(name);
    }
}

void TestPreview::smallImages_haveTheDisplayLevels()
{
    QFETCH(QString, name);
    const QByteArray samples = bytesOf<quint16>({ 1000, 1010, 1004, 1005, 1000 });
    if (name.endsWith(".raw")) {
        QVERIFY(writeRawFile(path(name), rawFile(5, 1, 1, 2, samples)));
    } else {
        QVERIFY(writeImageFile(path(name), 5, 1, 1, FrameSample::Unsigned16, samples));
    }
    LoadProblem problem = LoadProblem::BadFrame;
    const QImage picture = previewOf(path(name), bounds, 0, &problem);
    QVERIFY(problem == LoadProblem::None);
    QCOMPARE(picture.format(), QImage::Format_Grayscale8);
    QCOMPARE(picture.size(), QSize(5, 1));
    QCOMPARE(firstLine(picture), (QVector<int> { 0, 255, 102, 127, 0 })); // 25.5 levels a value
}

void TestPreview::colors_areReducedToGray()
{
    // Blue, green, red and black with the gray values 29, 149, 75 and 0.
    const QByteArray samples("\xff\0\0\0\xff\0\0\0\xff\0\0\0", 12);
    QVERIFY(writeImageFile(path("colors.png"), 4, 1, 3, FrameSample::Unsigned8, samples));
    // 29 x 255 / 149 = 49.63; 75 x 255 / 149 = 128.36
    QCOMPARE(firstLine(previewOf(path("colors.png"), bounds, 0, nullptr)),
        (QVector<int> { 49, 255, 128, 0 }));
}

void TestPreview::wideColors_doNotWrap()
{
    const quint32 white = 4294967295u;
    const QByteArray samples = bytesOf<quint32>({ 0, 0, 0, white, white, white, white, 0, 0 });
    QVERIFY(writeRawFile(path("wide.raw"), rawFile(3, 1, 3, 4, samples)));
    // Blue has 15 / 128 of white: 29.88
    QCOMPARE(
        firstLine(previewOf(path("wide.raw"), bounds, 0, nullptr)), (QVector<int> { 0, 255, 29 }));
}

void TestPreview::floatingPoint_isShown()
{
    TiffImage image;
    image.width = 3;
    image.bits = 32;
    image.format = 3;
    image.pixels = bytesOf<float>({ 10.0f, 20.0f, 14.0f });
    QCOMPARE(firstLine(previewOf(written("float.tif", tiffOf(image)), bounds, 0, nullptr)),
        (QVector<int> { 0, 255, 102 }));
    image.pixels = bytesOf<float>({ 10.0f, 20.5f, 14.0f });
    LoadProblem problem = LoadProblem::None;
    QVERIFY(previewOf(written("float.tif", tiffOf(image)), bounds, 0, &problem).isNull());
    QVERIFY(problem == LoadProblem::UnfaithfulValues);
}

void TestPreview::largeImages_areReduced_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : { "l.png", "l.bmp", "l.jpg", "l.tif", "l.raw" }) {
        QTest::newRow(name) << QString(name);
    }
}

void TestPreview::largeImages_areReduced()
{
    QFETCH(QString, name);
    QByteArray samples(1000 * 500, '\x10');
    for (int y = 0; y < 500; ++y) {
        samples.replace(y * 1000 + 500, 500, QByteArray(500, '\x30')); // the right half
    }
    if (name.endsWith(".raw")) {
        QVERIFY(writeRawFile(path(name), rawFile(1000, 500, 1, 1, samples)));
    } else {
        QVERIFY(writeImageFile(path(name), 1000, 500, 1, FrameSample::Unsigned8, samples));
    }
    const QImage picture = previewOf(path(name), bounds, 0, nullptr);
    QCOMPARE(picture.size(), QSize(160, 80));
    QVERIFY(qGray(picture.pixel(20, 40)) < 40); // a JPEG is not exact
    QVERIFY(qGray(picture.pixel(140, 40)) > 215);
}

void TestPreview::shortRawFile_isDarkWhereItEnds()
{
    RawFile frame = rawFile(2, 2, 1, 1, "\x50\x50");
    frame.dataSize = 4;
    QVERIFY(writeRawFile(path("short.raw"), frame));
    const QImage picture = previewOf(path("short.raw"), bounds, 0, nullptr);
    QCOMPARE(qGray(picture.pixel(1, 0)), 255);
    QCOMPARE(qGray(picture.pixel(0, 1)), 0);
}

void TestPreview::content_decidesNotTheSuffix()
{
    QVERIFY(writeImageFile(path("real.png"), 2, 1, 1, FrameSample::Unsigned8, "ab"));
    QVERIFY(QFile::rename(path("real.png"), path("named.tif")));
    QCOMPARE(
        firstLine(previewOf(path("named.tif"), bounds, 0, nullptr)), (QVector<int> { 0, 255 }));
}

void TestPreview::unreadable_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("problem");
    const auto row = [](const char* name, const QString& file, LoadProblem problem) {
        QTest::newRow(name) << file << int(problem);
    };
    row("missing", path("gone.png"), LoadProblem::Missing);
    row("no name", QString(), LoadProblem::Missing);
    row("folder", m_folder.path(), LoadProblem::NotAFile);
    row("empty", written("empty.png", ""), LoadProblem::NotReadable);
    row("text", written("text.png", "hello"), LoadProblem::NotReadable);
    row("text as raw", written("text.raw", "hello"), LoadProblem::NotReadable);
    row("other suffix", written("text.txt", "hello"), LoadProblem::UnknownSuffix);
    row("raw of 3 bytes a sample",
        written("three.raw", rawHeaderBytesOf(rawFile(10, 10, 1, 3, ""))),
        LoadProblem::UnfaithfulDepth);
    row("raw without pixels", written("none.raw", rawHeaderBytesOf(rawFile(0, 10, 1, 1, ""))),
        LoadProblem::NoPixels);
    row("raw beyond memory", written("huge.raw", rawHeaderBytesOf(rawFile(65535, 65535, 4, 4, ""))),
        LoadProblem::NotReadable);
}

void TestPreview::unreadable()
{
    QFETCH(QString, file);
    LoadProblem problem = LoadProblem::None;
    QVERIFY(previewOf(file, bounds, 0, &problem).isNull());
    QTEST(int(problem), "problem");
    QVERIFY(previewOf(file, bounds, 0, nullptr).isNull());
}

void TestPreview::pixelLimit()
{
    QVERIFY(writeRawFile(path("limit.raw"), rawFile(4, 5, 1, 1, QByteArray(20, 'a'))));
    LoadProblem problem = LoadProblem::None;
    QVERIFY(previewOf(path("limit.raw"), bounds, 19, &problem).isNull());
    QVERIFY(problem == LoadProblem::OverPixelLimit);
    QCOMPARE(previewOf(path("limit.raw"), bounds, 20, &problem).size(), QSize(4, 5));
    QVERIFY(problem == LoadProblem::None);
}

void TestPreview::emptyBounds()
{
    QVERIFY(writeRawFile(path("good.raw"), rawFile(2, 1, 1, 1, "ab")));
    LoadProblem problem = LoadProblem::BadFrame;
    for (const QSize& empty : { QSize(0, 10), QSize(10, 0), QSize(-1, -1), QSize() }) {
        QVERIFY(previewOf(path("good.raw"), empty, 0, &problem).isNull());
        QVERIFY(problem == LoadProblem::None);
    }
    QCOMPARE(previewOf(path("good.raw"), QSize(1, 1), 0, &problem).size(), QSize(1, 1));
}

void TestPreview::pipesAreNotOpened()
{
#if defined(Q_OS_UNIX)
    for (const char* name : { "pipe.png", "pipe.raw", "pipe.tif" }) {
        QCOMPARE(mkfifo(path(name).toLocal8Bit().constData(), 0600), 0);
        QVERIFY(previewOf(path(name), bounds, 0, nullptr).isNull()); // and waits for no writer
    }
#else
    QTest::qSkip("only Unix has pipes with a file name", __FILE__, __LINE__);
#endif
}

void TestPreview::manyThreads()
{
    const QByteArray samples = bytesOf<quint16>({ 1000, 1010, 1004 });
    QVERIFY(writeImageFile(path("shared.tif"), 3, 1, 1, FrameSample::Unsigned16, samples));
    QVERIFY(writeImageFile(path("shared.png"), 3, 1, 1, FrameSample::Unsigned16, samples));
    const QString bad = written("shared_bad.png", "\x89PNG\r\n");
    std::atomic<int> wrong { 0 };
    const auto work = [&] {
        for (int i = 0; i < 50; ++i) {
            for (const char* name : { "shared.tif", "shared.png" }) {
                const QImage picture = previewOf(path(name), bounds, 0, nullptr);
                wrong += firstLine(picture) == (QVector<int> { 0, 255, 102 }) ? 0 : 1;
            }
            wrong += previewOf(bad, bounds, 0, nullptr).isNull() ? 0 : 1;
        }
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back(work);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(TestPreview)
#include "tst_preview.moc"
