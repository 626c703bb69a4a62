#include "image/imagedata.h"
#include "image/imageloadregistry.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// The example program writes what the library reads.
class TestRawWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ramp_isRead();
    void unwritableFile_isAFailure();

private:
    static int run(const QString& path);

    QTemporaryDir m_folder;
};

int TestRawWriter::run(const QString& path)
{
    QProcess process;
    process.start(VKINTENSITY_RAWWRITER, { path });
    const bool finished = process.waitForFinished(60000);
    return finished && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

void TestRawWriter::ramp_isRead()
{
    const QString path = m_folder.filePath("ramp.raw");
    QCOMPARE(run(path), 0);
    ImageLoadRegistry loaders;
    ImageData image;
    QVERIFY(loaders.load(path, &image));
    QCOMPARE(image.width, 640);
    QCOMPARE(image.height, 480);
    QCOMPARE(image.bitDepth, 16);
    QCOMPARE(image.channels, 1);
    QCOMPARE(image.pixelValue(0, 0), 1000);
    QCOMPARE(image.pixelValue(3, 2), 1032);
    QCOMPARE(image.pixelValue(639, 479), 7869); // 1000 + 6390 + 479
}

void TestRawWriter::unwritableFile_isAFailure()
{
    QCOMPARE(run(m_folder.filePath("missing/ramp.raw")), 1);
}

QTEST_GUILESS_MAIN(TestRawWriter)
#include "tst_rawwriter.moc"
