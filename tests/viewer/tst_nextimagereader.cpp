#include "nextimagereader.h"

#include "imagedocument.h"
#include "imagepage.h"
#include "readahead.h"

#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

/// A document in a shown page, with "a.png", "b.png" and "c.png" in its folder.
class TestNextImageReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void readsTheNextImage();
    void readsTheOneBefore_inThatDirection();
    void folderEnd();
    void passesWhatIsNoFile();
    void missingFolder();
    void cancelled_announcesNothing();
    void load_cancels();
    void close_cancels();
    void destroyedWhileItReads();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    qint64 size(const QString& name) const { return QFileInfo(path(name)).size(); }
    static constexpr int longEnough = 3 * NextImageReader::restMilliseconds;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ImagePage> m_page;
    std::unique_ptr<ImageDocument> m_document;
    std::unique_ptr<NextImageReader> m_reader;
    std::unique_ptr<QSignalSpy> m_finished;
};

void TestNextImageReader::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
}

void TestNextImageReader::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    for (const char* name : { "a.png", "b.png", "c.png" }) {
        QImage image(64, 48, QImage::Format_Grayscale8);
        image.fill(name[0]);
        image.setPixel(0, 0, 0);
        QVERIFY(image.save(path(name)));
    }
    m_page = std::make_unique<ImagePage>();
    m_page->resize(900, 600);
    m_page->show();
    m_document = std::make_unique<ImageDocument>(m_page.get());
    m_reader = std::make_unique<NextImageReader>(m_document.get());
    m_finished = std::make_unique<QSignalSpy>(m_reader.get(), &NextImageReader::finished);
}

void TestNextImageReader::cleanup()
{
    m_finished.reset();
    m_reader.reset();
    m_document.reset();
    m_page.reset();
    m_folder.reset();
}

void TestNextImageReader::readsTheNextImage()
{
    QVERIFY(m_document->open(path("a.png")));
    QVERIFY(m_finished->isEmpty()); // not before the window is at rest
    QTRY_COMPARE(m_finished->size(), 1);
    QCOMPARE(QFileInfo(m_finished->at(0).at(0).toString()).fileName(), QString("b.png"));
    QCOMPARE(m_finished->at(0).at(1).toLongLong(), size("b.png"));
}

void TestNextImageReader::readsTheOneBefore_inThatDirection()
{
    m_reader->setDirection(-1);
    QVERIFY(m_document->open(path("b.png")));
    QTRY_COMPARE(m_finished->size(), 1);
    QCOMPARE(QFileInfo(m_finished->at(0).at(0).toString()).fileName(), QString("a.png"));
}

void TestNextImageReader::folderEnd()
{
    QVERIFY(m_document->open(path("c.png")));
    QTRY_COMPARE(m_finished->size(), 1);
    QVERIFY(m_finished->at(0).at(0).toString().isEmpty());
    QCOMPARE(m_finished->at(0).at(1).toLongLong(), 0);
}

/// Would wait for ever if the pipe were opened.
void TestNextImageReader::passesWhatIsNoFile()
{
#ifdef Q_OS_UNIX
    QCOMPARE(mkfifo(qPrintable(path("aa.png")), 0600), 0);
#endif
    QVERIFY(QDir(m_folder->path()).mkdir("ab.png"));
    QVERIFY(m_document->open(path("a.png")));
    QTRY_COMPARE(m_finished->size(), 1);
    QCOMPARE(QFileInfo(m_finished->at(0).at(0).toString()).fileName(), QString("b.png"));
}

void TestNextImageReader::missingFolder()
{
    QVERIFY(m_document->open(path("a.png")));
    QVERIFY(m_folder->remove());
    QTRY_COMPARE(m_finished->size(), 1);
    QVERIFY(m_finished->at(0).at(0).toString().isEmpty());
}

void TestNextImageReader::cancelled_announcesNothing()
{
    QVERIFY(m_document->open(path("a.png")));
    m_reader->cancel();
    QTest::qWait(longEnough);
    QVERIFY(m_finished->isEmpty());
    QVERIFY(m_document->reload()); // and again
    QTRY_COMPARE(m_finished->size(), 1);
}

void TestNextImageReader::load_cancels()
{
    QVERIFY(m_document->open(path("a.png")));
    QVERIFY(!m_document->open(path("gone.png"))); // a file that is not shown has no next one
    QTest::qWait(longEnough);
    QVERIFY(m_finished->isEmpty());
}

void TestNextImageReader::close_cancels()
{
    QVERIFY(m_document->open(path("a.png")));
    m_document->close();
    QTest::qWait(longEnough);
    QVERIFY(m_finished->isEmpty());
}

/// The large file is left after a few pieces: all of it would take seconds.
void TestNextImageReader::destroyedWhileItReads()
{
    QFile large(path("aa.png"));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(largestFileReadEarly));
    QVERIFY(m_document->open(path("a.png")));
    QTest::qWait(NextImageReader::restMilliseconds + 50);
    m_finished.reset();
    m_reader.reset();
    QVERIFY(QFile::remove(path("aa.png")));
}

QTEST_MAIN(TestNextImageReader)
#include "tst_nextimagereader.moc"
