#include "image/imagedata.h"
#include "image/imageloadregistry.h"
#include "support/sampleframes.h"

#include <QTemporaryDir>
#include <QtTest>

#if defined(Q_OS_UNIX)
#include <sys/stat.h>
#endif

class TestImageLoadRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void suffixPicksTheLoader_data();
    void suffixPicksTheLoader();
    void upperCaseSuffix_givesDepthAndChannels();
    void unknownSuffixesFail_data();
    void unknownSuffixesFail();
    void aLoaderReadsOnlyItsOwnFormat();
    void missingFilesFail();
    void notARegularFile();
    void noRecord();
    void loadsOneAfterTheOther();

private:
    QTemporaryDir m_folder;
    ImageLoadRegistry m_loaders;
};

void TestImageLoadRegistry::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

void TestImageLoadRegistry::suffixPicksTheLoader_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : { "photo.jpg", "Photo.JPG", "photo.jpeg", "photo.tif", "photo.TIFF",
             "photo.bmp", "photo.png", "two.dots.PnG" }) {
        QTest::newRow(name) << QString(name);
    }
    for (const char* name : { "frame.raw", "FRAME.RAW", "archive.tar.raw" }) {
        QTest::newRow(name) << QString(name);
    }
}

void TestImageLoadRegistry::suffixPicksTheLoader()
{
    QFETCH(QString, name);
    const QString path = m_folder.filePath(name);
    if (name.toLower().endsWith(".raw")) {
        QVERIFY(writeRawFile(path, rawFile(2, 1, 1, 1, "ab")));
    } else {
        QVERIFY(writeImageFile(path, 2, 1, 1, FrameSample::Unsigned8, "ab"));
    }
    ImageData image;
    QVERIFY(m_loaders.load(path, &image));
    QCOMPARE(image.width, 2);
    QCOMPARE(image.height, 1);
    QVERIFY(image.isLoaded());
}

void TestImageLoadRegistry::upperCaseSuffix_givesDepthAndChannels()
{
    const QString path = m_folder.filePath("Photo.JPG");
    QVERIFY(writeImageFile(path, 2, 1, 3, FrameSample::Unsigned8, "abcdef"));
    ImageData image;
    QVERIFY(m_loaders.load(path, &image));
    QCOMPARE(image.bitDepth, 8);
    QCOMPARE(image.channels, 3);
    QCOMPARE(image.dataSize, 6);
    QVERIFY(writeImageFile(path, 2, 1, 1, FrameSample::Unsigned8, "ab"));
    QVERIFY(m_loaders.load(path, &image));
    QCOMPARE(image.bitDepth, 8);
    QCOMPARE(image.channels, 1);
    QCOMPARE(image.dataSize, 2);
}

void TestImageLoadRegistry::unknownSuffixesFail_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : { "raw", "frame.raw2", "frame.gif", "frame.", "frame.raw.txt" }) {
        QTest::newRow(name) << QString(name);
    }
}

void TestImageLoadRegistry::unknownSuffixesFail()
{
    QFETCH(QString, name);
    const QString path = m_folder.filePath(name);
    QVERIFY(writeRawFile(path, rawFile(2, 1, 1, 1, "ab")));
    ImageData image;
    QVERIFY(!m_loaders.load(path, &image));
    QVERIFY(!image.data);
}

void TestImageLoadRegistry::aLoaderReadsOnlyItsOwnFormat()
{
    ImageData image;
    const QString raw = m_folder.filePath("really-raw.png");
    QVERIFY(writeRawFile(raw, rawFile(2, 1, 1, 1, "ab")));
    QVERIFY(!m_loaders.load(raw, &image));
    const QString png = m_folder.filePath("really.png");
    QVERIFY(writeImageFile(png, 2, 1, 1, FrameSample::Unsigned8, "ab"));
    const QString renamed = m_folder.filePath("really-png.raw");
    QVERIFY(QFile::rename(png, renamed));
    QVERIFY(!m_loaders.load(renamed, &image));
    QVERIFY(!image.data);
}

void TestImageLoadRegistry::missingFilesFail()
{
    ImageData image;
    QVERIFY(!m_loaders.load(m_folder.filePath("missing.raw"), &image));
    QVERIFY(!m_loaders.load(m_folder.filePath("missing.png"), &image));
    QVERIFY(!m_loaders.load(QString(), &image));
}

void TestImageLoadRegistry::notARegularFile()
{
    ImageData image;
    QVERIFY(QDir(m_folder.path()).mkdir("folder.raw"));
    QVERIFY(!m_loaders.load(m_folder.filePath("folder.raw"), &image));
#if defined(Q_OS_UNIX)
    const QString pipe = m_folder.filePath("x.raw");
    QCOMPARE(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    QVERIFY(!m_loaders.load(pipe, &image));
#endif
}

void TestImageLoadRegistry::noRecord()
{
    const QString path = m_folder.filePath("some.raw");
    QVERIFY(writeRawFile(path, rawFile(2, 1, 1, 1, "ab")));
    QVERIFY(!m_loaders.load(path, nullptr));
}

void TestImageLoadRegistry::loadsOneAfterTheOther()
{
    const QString first = m_folder.filePath("first.raw");
    const QString second = m_folder.filePath("second.png");
    QVERIFY(writeRawFile(first, rawFile(2, 1, 1, 2, "abcd")));
    QVERIFY(writeImageFile(second, 3, 1, 1, FrameSample::Unsigned8, "xyz"));
    ImageData image;
    QVERIFY(m_loaders.load(first, &image));
    QVERIFY(m_loaders.load(second, &image)); // no release in between
    QCOMPARE(image.width, 3);
    QCOMPARE(image.bitDepth, 8);
    QCOMPARE(image.pixelValue(2, 0), int('z'));
    QVERIFY(!m_loaders.load(m_folder.filePath("missing.png"), &image));
    QCOMPARE(image.pixelValue(2, 0), int('z'));
}

QTEST_GUILESS_MAIN(TestImageLoadRegistry)
#include "tst_imageloadregistry.moc"
