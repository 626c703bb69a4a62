#include "imagefiles.h"

#include "rawframe.h"
#include "tifffile.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

class TestImageFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void suffixes();
    void filter_listsEverySuffix();
    void folder_isListedByName();
    void folder_holdsOnlyRegularImageFiles();
    void problem_data();
    void problem();
    void problem_noPermission();
    void problem_longSuffixIsCut();
    void rawWithoutPixels_data();
    void rawWithoutPixels();
    void hugeRawCutShort_data();
    void hugeRawCutShort();
    void size_isThatOfTheHeader();
    void neighbours();
    void neighbours_ofAFileThatIsGone();
    void neighbours_withoutAFolder();
    void mayBeImage_looksAtTheOutside();
    void depth_data();
    void depth();
    void summary_data();
    void summary();

private:
    void write(const QString& name, const QByteArray& bytes);
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void TestImageFiles::write(const QString& name, const QByteArray& bytes)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

void TestImageFiles::initTestCase()
{
    write("notes.txt", "hello");
    write("noext", "hello");
    write("fake.raw", QByteArray(2000, 'x'));
    write("text.png", "hello");
    write("text.JPG", "hello");
    write("text.tif", "hello");
    write("nothing.bmp", "");
    QVERIFY(QDir(m_folder.path()).mkdir("folder.png"));

    RawHeader header;
    header.width = 7;
    header.channels = 1;
    header.bytesPerChannel = 2;
    write("empty.raw", encodedRawHeader(header));
    write("short.RAW", "VORLAK");
    header.height = 5;
    header.dataSize = 70;
    write("good.raw", encodedRawHeader(header) + QByteArray(70, 'x'));
    header.width = header.height = 65535;
    header.channels = header.bytesPerChannel = 255;
    write("huge.raw", encodedRawHeader(header));
    header.channels = header.bytesPerChannel = 1;
    write("sparse.raw", encodedRawHeader(header));
    QVERIFY(QFile::resize(path("sparse.raw"), Q_INT64_C(4294837249))); // 1024 + 65535 x 65535
    QVERIFY(QImage(12, 9, QImage::Format_RGB32).save(path("real.png")));
    QVERIFY(QFile::copy(path("real.png"), path("png.jpg")));
    QVERIFY(QImage(12, 9, QImage::Format_Grayscale16).save(path("deep.png")));
    QVERIFY(QImage(12, 9, QImage::Format_Mono).save(path("flat.png")));
    QVERIFY(QImage(12, 9, QImage::Format_RGB32).save(path("real.bmp")));
    write("deep.tif",
        tiffFile(
            { { 256, tiffShort, 1, 300 }, { 257, tiffShort, 1, 200 }, { 258, tiffShort, 1, 16 } }));
    write("twelve.tif",
        tiffFile(
            { { 256, tiffShort, 1, 300 }, { 257, tiffShort, 1, 200 }, { 258, tiffShort, 1, 12 } }));
    write("real.tif", tiffFile({ { 256, tiffShort, 1, 300 }, { 257, tiffShort, 1, 200 } }));
}

void TestImageFiles::suffixes()
{
    QCOMPARE(imageSuffixes(), (QStringList { "jpg", "jpeg", "tif", "tiff", "bmp", "png", "raw" }));
}

void TestImageFiles::filter_listsEverySuffix()
{
    QCOMPARE(openDialogFilter(),
        QString("Images (*.jpg *.jpeg *.tif *.tiff *.bmp *.png *.raw);;All files (*)"));
}

void TestImageFiles::folder_isListedByName()
{
    const QTemporaryDir folder;
    const QStringList names { "B.PNG", "a.raw", "frame 1.jpeg", "frame 2.jpg", "frame 10.tif",
        "frame.bmp", "z.tiff" };
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QStringList listed;
    for (const QFileInfo& file : imagesInFolder(folder.path())) {
        QCOMPARE(file.absolutePath(), folder.path());
        listed << file.fileName();
    }
    QCOMPARE(listed.mid(0, 2), (QStringList { "a.raw", "B.PNG" }));
    QCOMPARE(
        listed.filter("frame "), (QStringList { "frame 1.jpeg", "frame 2.jpg", "frame 10.tif" }));
    QCOMPARE(listed.last(), QString("z.tiff"));
    QCOMPARE(listed.size(), names.size());
}

void TestImageFiles::folder_holdsOnlyRegularImageFiles()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("folder.png"));
    for (const char* name : { "notes.txt", "noext", "png", "image.png" }) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
#ifdef Q_OS_UNIX
    QCOMPARE(mkfifo(qPrintable(folder.filePath("pipe.png")), 0600), 0);
    QVERIFY(QFile::link(folder.filePath("gone.png"), folder.filePath("dangling.png")));
    QVERIFY(QFile::link(folder.filePath("pipe.png"), folder.filePath("link to a pipe.png")));
    QVERIFY(QFile::link(folder.filePath("folder.png"), folder.filePath("link to a folder.png")));
#endif
    const QFileInfoList files = imagesInFolder(folder.path());
    QCOMPARE(files.size(), 1);
    QCOMPARE(files.first().fileName(), QString("image.png"));
    QVERIFY(imagesInFolder(folder.filePath("gone")).isEmpty());
    QVERIFY(imagesInFolder(folder.filePath("image.png")).isEmpty());
}

void TestImageFiles::problem_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    const QString known = "Images end in jpg, jpeg, tif, tiff, bmp, png, raw.";
    QTest::newRow("missing") << "gone.png"
                             << "There is no file of this name.";
    QTest::newRow("no name") << ""
                             << "This is a folder, not an image file.";
    QTest::newRow("folder") << "folder.png"
                            << "This is a folder, not an image file.";
    QTest::newRow("unknown suffix") << "notes.txt"
                                    << "Files of the kind \"txt\" are not known. " + known;
    QTest::newRow("no suffix") << "noext"
                               << "The file name has no suffix. " + known;
    QTest::newRow("empty") << "nothing.bmp"
                           << "The file is empty.";
    QTest::newRow("no signature")
        << "fake.raw"
        << "This is no raw camera file: it does not carry the camera's signature.";
    QTest::newRow("no pixels") << "empty.raw"
                               << "This raw camera file holds no pixels.";
    QTest::newRow("signature alone") << "short.RAW"
                                     << "This raw camera file holds no pixels.";
    QTest::newRow("claims too much")
        << "huge.raw"
        << "This raw camera file claims 65535 x 65535 pixels but does not hold them.";
    QTest::newRow("holds too much") << "sparse.raw"
                                    << "This raw camera file claims 65535 x 65535 pixels with 1 "
                                       "channels of 1 bytes, which is more than can be loaded.";
    const QString damaged = ": it is damaged, or of another kind than its suffix says.";
    QTest::newRow("not a PNG") << "text.png"
                               << "The file cannot be read as a PNG image" + damaged;
    QTest::newRow("not a JPEG") << "text.JPG"
                                << "The file cannot be read as a JPEG image" + damaged;
    QTest::newRow("not a TIFF") << "text.tif"
                                << "The file cannot be read as a TIFF image" + damaged;
#ifdef Q_OS_UNIX
    QCOMPARE(::mkfifo(QFile::encodeName(path("pipe.raw")).constData(), 0600), 0);
    QTest::newRow("pipe") << "pipe.raw"
                          << "This is not a regular file.";
    QVERIFY(QFile::link(path("nowhere.png"), path("dangling.png")));
    QTest::newRow("dangling link") << "dangling.png"
                                   << "There is no file of this name.";
#endif
}

void TestImageFiles::problem()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    QCOMPARE(loadProblem(path(name)), reason);
}

void TestImageFiles::problem_noPermission()
{
    write("locked.png", "hello");
    QVERIFY(QFile::setPermissions(path("locked.png"), QFileDevice::WriteOwner));
    if (QFile(path("locked.png")).open(QIODevice::ReadOnly)) {
        QTest::qSkip("this user may read every file", __FILE__, __LINE__);
        return;
    }
    QCOMPARE(loadProblem(path("locked.png")), QString("You have no permission to read this file."));
}

void TestImageFiles::problem_longSuffixIsCut()
{
    const QString name = "a." + QString(200, 'z');
    write(name, "hello");
    QVERIFY(loadProblem(path(name)).contains('"' + QString(20, 'z') + '"'));
}

void TestImageFiles::rawWithoutPixels_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("empty");
    QTest::newRow("height 0") << "empty.raw" << true;
    QTest::newRow("signature alone, upper-case suffix") << "short.RAW" << true;
    QTest::newRow("good") << "good.raw" << false;
    QTest::newRow("huge") << "huge.raw" << false;
    QTest::newRow("no signature") << "fake.raw" << false;
    QTest::newRow("missing") << "gone.raw" << false;
    QTest::newRow("another kind") << "text.png" << false;
}

void TestImageFiles::rawWithoutPixels()
{
    QFETCH(QString, name);
    QFETCH(bool, empty);
    QCOMPARE(isRawFileWithoutPixels(path(name)), empty);
}

void TestImageFiles::hugeRawCutShort_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<qint64>("fileSize");
    QTest::addColumn<bool>("refused");
    // Rows of 16384 pixels, 16 bit: 8192 rows are 256 MiB.
    QTest::newRow("256 MiB, none there") << 8192 << qint64(1024) << false;
    QTest::newRow("a row more, none there") << 8193 << qint64(1024) << true;
    QTest::newRow("a row more, a byte missing") << 8193 << qint64(268469247) << true;
    QTest::newRow("a row more, all there") << 8193 << qint64(268469248) << false;
    QTest::newRow("header cut short") << 8193 << qint64(24) << true;
}

void TestImageFiles::hugeRawCutShort()
{
    QFETCH(int, height);
    QFETCH(qint64, fileSize);
    QFETCH(bool, refused);
    RawHeader header;
    header.width = 16384;
    header.height = height;
    header.channels = 1;
    header.bytesPerChannel = 2;
    write("long.raw", encodedRawHeader(header));
    QVERIFY(QFile::resize(path("long.raw"), fileSize)); // a sparse file: takes no room
    QCOMPARE(isHugeRawFileCutShort(path("long.raw")), refused);
}

void TestImageFiles::neighbours()
{
    const QTemporaryDir folder;
    for (const char* name : { "frame 1.png", "frame 2.png", "frame 10.png", "notes.txt" }) {
        QVERIFY(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
    }
    const auto near = [&folder](const char* name, int step) {
        return QFileInfo(neighbourInFolder(folder.filePath(name), step)).fileName();
    };
    QCOMPARE(near("frame 1.png", 1), QString("frame 2.png"));
    QCOMPARE(near("frame 2.png", 1), QString("frame 10.png"));
    QCOMPARE(near("frame 10.png", 1), QString()); // notes.txt is no image
    QCOMPARE(near("frame 10.png", -1), QString("frame 2.png"));
    QCOMPARE(near("frame 2.png", -1), QString("frame 1.png"));
    QCOMPARE(near("frame 1.png", -1), QString());
    QCOMPARE(QFileInfo(neighbourInFolder(folder.filePath("frame 1.png"), 1)).absolutePath(),
        folder.path());
}

void TestImageFiles::neighbours_ofAFileThatIsGone()
{
    const QTemporaryDir folder;
    for (const char* name : { "a.png", "c.png" }) {
        QVERIFY(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
    }
    const auto near = [&folder](const char* name, int step) {
        return QFileInfo(neighbourInFolder(folder.filePath(name), step)).fileName();
    };
    QCOMPARE(near("b.png", 1), QString("c.png"));
    QCOMPARE(near("b.png", -1), QString("a.png"));
    QCOMPARE(near("0.png", -1), QString());
    QCOMPARE(near("0.png", 1), QString("a.png"));
    QCOMPARE(near("z.png", 1), QString());
    QCOMPARE(near("z.png", -1), QString("c.png"));
}

void TestImageFiles::neighbours_withoutAFolder()
{
    QVERIFY(neighbourInFolder("/no such folder/a.png", 1).isEmpty());
    QVERIFY(neighbourInFolder("/no such folder/a.png", -1).isEmpty());
}

void TestImageFiles::mayBeImage_looksAtTheOutside()
{
    for (const char* name : { "good.raw", "real.png", "text.png", "fake.raw", "empty.raw" }) {
        QVERIFY2(mayBeImage(path(name)), name); // what is inside only the load can tell
    }
    for (const char* name : { "gone.png", "folder.png", "nothing.bmp", "huge.raw" }) {
        QVERIFY2(!mayBeImage(path(name)), name);
    }
    write("film.mkv", "not an image");
    QVERIFY(!mayBeImage(path("film.mkv")));
}

void TestImageFiles::depth_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("bits");
    QTest::newRow("raw, 2 bytes") << "good.raw" << 16;
    QTest::newRow("PNG, 8 bit") << "real.png" << 8;
    QTest::newRow("PNG under another suffix") << "png.jpg" << 8;
    QTest::newRow("PNG, 16 bit") << "deep.png" << 16;
    QTest::newRow("PNG, 1 bit") << "flat.png" << 8;
    QTest::newRow("TIFF, no depth given") << "real.tif" << 8;
    QTest::newRow("TIFF, 16 bit") << "deep.tif" << 16;
    QTest::newRow("TIFF, 12 bit") << "twelve.tif" << 16; // as the pixels are held
    QTest::newRow("BMP") << "real.bmp" << 8;
    QTest::newRow("empty") << "nothing.bmp" << 0;
    QTest::newRow("missing") << "gone.png" << 0;
    QTest::newRow("no signature") << "fake.raw" << 0;
}

void TestImageFiles::depth()
{
    QFETCH(QString, name);
    QFETCH(int, bits);
    QCOMPARE(imageDepth(path(name)), bits);
}

void TestImageFiles::summary_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("raw") << "good.raw" << QString::fromUtf8("7 × 5 pixels   16 bit");
    QTest::newRow("picture") << "real.png" << QString::fromUtf8("12 × 9 pixels   8 bit");
    QTest::newRow("TIFF") << "real.tif" << QString::fromUtf8("300 × 200 pixels   8 bit");
    QTest::newRow("PNG under another suffix")
        << "png.jpg" << QString::fromUtf8("12 × 9 pixels   8 bit");
    QTest::newRow("raw without pixels") << "empty.raw" << QString();
    QTest::newRow("missing") << "gone.png" << QString();
    QTest::newRow("unreadable") << "text.png" << QString();
    QTest::newRow("no signature") << "fake.raw" << QString();
}

void TestImageFiles::size_isThatOfTheHeader()
{
    QCOMPARE(imageSize(path("good.raw")), QSize(7, 5));
    QCOMPARE(imageSize(path("real.png")), QSize(12, 9));
    QCOMPARE(imageSize(path("real.tif")), QSize(300, 200));
    QVERIFY(imageSize(path("empty.raw")).isEmpty());
    QVERIFY(imageSize(path("folder.png")).isEmpty());
    QVERIFY(imageSize(QString()).isEmpty());
}

void TestImageFiles::summary()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QCOMPARE(imageSummary(path(name)), text);
}

QTEST_GUILESS_MAIN(TestImageFiles)
#include "tst_imagefiles.moc"
