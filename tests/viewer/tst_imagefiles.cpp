#include "imagefiles.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

class TestImageFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void suffixes();
    void filter_listsEverySuffix();
    void folder_isListedByName();
    void folder_holdsOnlyRegularImageFiles();
    void neighbours();
    void neighbours_ofAFileThatIsGone();
    void neighbours_withoutAFolder();
    void imageSuffix_ofAnyCase();
};

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

void TestImageFiles::imageSuffix_ofAnyCase()
{
    for (const char* name : { "a.png", "/no such folder/a.TIFF", "a.tar.raw" }) {
        QVERIFY2(hasImageSuffix(name), name);
    }
    for (const char* name : { "", "png", "film.mkv", "a.png.gz", "a." }) {
        QVERIFY2(!hasImageSuffix(name), name);
    }
}

QTEST_GUILESS_MAIN(TestImageFiles)
#include "tst_imagefiles.moc"
