#include "loadfixture.h"

#if defined(Q_OS_UNIX)
#include <sys/stat.h>
#endif

/// What loads report and why they refuse, in both readings.
class TestLoadProblems : public QObject, private LoadFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { resetRecord(); }
    void asStoredReportsTheFile();
    void problems_data();
    void problems();
    void pipesAreNotOpened();
    void pixelLimit_data();
    void pixelLimit();
    void damagedFilesLeaveTheRecord_data();
    void damagedFilesLeaveTheRecord();
    void suffixMayDifferFromTheContent();
};

void TestLoadProblems::asStoredReportsTheFile()
{
    TiffWriter writer;
    writer.addImage(tiffLine<float>({ 1.5f, -2.0f }, 1, 3));
    writer.addImage(tiffLine<quint8>({ 1 }, 1, 1));
    QVERIFY(writeFile(path("stored.tif"), writer.file()));
    QVERIFY(load("stored.tif", ReadOptions()));
    QCOMPARE(pixels(), bytesOf<float>({ 1.5f, -2.0f }));
    QVERIFY(report.sampleKind == SampleKind::Floating);
    QCOMPARE(report.channels, 1);
    QCOMPARE(report.pageCount, 2);
    QVERIFY(!report.isTypeConverted);
    QVERIFY(writeImageFile(path("alpha.png"), 1, 1, 4, FrameSample::Unsigned8, "abcd"));
    QVERIFY(load("alpha.png", ReadOptions()));
    QCOMPARE(image.channels, 4);
    QCOMPARE(report.channels, 4);
    QCOMPARE(report.pageCount, 1);
    QVERIFY(!report.isAlphaDropped);
    QVERIFY(writeRawFile(path("stored.raw"), rawFile(1, 1, 7, 1, "abcdefg")));
    QVERIFY(load("stored.raw", ReadOptions()));
    QCOMPARE(report.channels, 7);
}

void TestLoadProblems::problems_data()
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
    row("too large a raw file", "e.raw", rawHeaderBytesOf(rawFile(65535, 65535, 255, 255, "")),
        LoadProblem::TooLarge);
}

/// Of a load as stored.
void TestLoadProblems::problems()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(LoadProblem, problem);
    QVERIFY(writeFile(path(name), bytes));
    QVERIFY(!load(name, ReadOptions()));
    QCOMPARE(int(report.problem), int(problem));
    QVERIFY(recordIsUntouched());
    QVERIFY(!loaders.load(path(name), &image));
    QVERIFY(!load("gone.png", ReadOptions()));
    QVERIFY(report.problem == LoadProblem::Missing);
    QVERIFY(QDir().mkpath(path("folder.png")));
    QVERIFY(!load("folder.png", ReadOptions()));
    QVERIFY(report.problem == LoadProblem::NotAFile);
}

void TestLoadProblems::pipesAreNotOpened()
{
#if defined(Q_OS_UNIX)
    for (const char* name : { "pipe.png", "pipe.tif", "pipe.raw" }) {
        QCOMPARE(mkfifo(path(name).toLocal8Bit().constData(), 0600), 0);
        QVERIFY(!load(name)); // opening it would wait for a writer for ever
        QVERIFY(report.problem == LoadProblem::NotAFile);
    }
#else
    QTest::qSkip("only Unix has pipes with a file name", __FILE__, __LINE__);
#endif
}

void TestLoadProblems::pixelLimit_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : { "limit.png", "limit.bmp", "limit.jpg", "limit.tif", "limit.raw" }) {
        QTest::newRow(name) << QString(name);
    }
}

void TestLoadProblems::pixelLimit()
{
    QFETCH(QString, name);
    const QByteArray samples(7 * 5, 'a');
    if (name.endsWith(".raw")) {
        QVERIFY(writeRawFile(path(name), rawFile(7, 5, 1, 1, samples)));
    } else {
        QVERIFY(writeImageFile(path(name), 7, 5, 1, FrameSample::Unsigned8, samples));
    }
    for (const Reading reading : { Reading::AsStored, Reading::Faithful }) {
        resetRecord();
        ReadOptions options;
        options.reading = reading;
        options.pixelLimit = 34;
        QVERIFY(!load(name, options));
        QVERIFY(report.problem == LoadProblem::OverPixelLimit);
        QVERIFY(recordIsUntouched());
        for (const qint64 limit : { 35, 0, -1 }) {
            options.pixelLimit = limit;
            QVERIFY(load(name, options));
            QCOMPARE(image.pixelCount, 35);
        }
    }
}

void TestLoadProblems::damagedFilesLeaveTheRecord_data()
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
    QTest::newRow("JPEG without its last byte") << jpeg.chopped(1);
    for (const char* name : { "whole.png", "whole.bmp", "whole.tif" }) {
        const QByteArray whole = written(name);
        for (const int part : { 0, 1, 2, 3 }) {
            QTest::newRow(qPrintable(QString("%1, %2 quarters").arg(name).arg(part)))
                << whole.left(whole.size() * part / 4 + 10);
        }
    }
}

void TestLoadProblems::damagedFilesLeaveTheRecord()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!bytes.isEmpty());
    for (const char* suffix : { "jpg", "jpeg", "tif", "tiff", "bmp", "png", "raw" }) {
        const QString name = QString("cut.") + suffix;
        QVERIFY(writeFile(path(name), bytes));
        QVERIFY2(!load(name), suffix);
        QCOMPARE(int(report.problem), int(LoadProblem::NotReadable));
        QVERIFY(recordIsUntouched());
    }
}

void TestLoadProblems::suffixMayDifferFromTheContent()
{
    QVERIFY(writeImageFile(path("real.jpg"), 8, 8, 1, FrameSample::Unsigned8, QByteArray(64, 'x')));
    QVERIFY(QFile::rename(path("real.jpg"), path("named.png")));
    for (const ReadOptions& options : { ReadOptions(), faithful() }) {
        QVERIFY(load("named.png", options));
        QCOMPARE(image.width, 8);
    }
}

QTEST_GUILESS_MAIN(TestLoadProblems)
#include "tst_loadproblems.moc"
