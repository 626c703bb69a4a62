#include "thumbnailloader.h"

#include <QBuffer>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

using LoadProblem = CVKIntensityWidget::LoadProblem;

Q_DECLARE_METATYPE(CVKIntensityWidget::LoadProblem)

/// Batches of pictures made in other threads.
class TestThumbnailLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyRow_isAnnouncedOnceHere();
    void missingFile_isAnnouncedWithItsProblem();
    void brokenFiles_areAnnouncedAsNull_data();
    void brokenFiles_areAnnouncedAsNull();
    void emptyBatch_announcesNothing();
    void cancel_silencesTheBatch();
    void cancel_insideTheAnnouncement();
    void newBatch_replacesTheOld();
    void newBatch_startedByTheLastAnnouncement();
    void preferred_comeFirst();
    void preferred_outsideTheBatch();
    void destroyedWhileLoading();

private:
    QVector<ThumbnailRequest> requests(int count) const;

    QTemporaryDir m_folder;
    const QSize m_bounds { 40, 30 };
};

void TestThumbnailLoader::initTestCase()
{
    qRegisterMetaType<LoadProblem>("CVKIntensityWidget::LoadProblem"); // for spies
    QImage image(400, 300, QImage::Format_Grayscale8);
    image.fill(50);
    QPainter(&image).fillRect(200, 0, 200, 300, QColor(100, 100, 100));
    QVERIFY(image.save(m_folder.filePath("halves.png")));
}

/// The same file again and again, with the rows 10, 11 and so on.
QVector<ThumbnailRequest> TestThumbnailLoader::requests(int count) const
{
    QVector<ThumbnailRequest> all;
    for (int i = 0; i < count; ++i) {
        all << ThumbnailRequest { 10 + i, m_folder.filePath("halves.png") };
    }
    return all;
}

void TestThumbnailLoader::everyRow_isAnnouncedOnceHere()
{
    ThumbnailLoader loader;
    QSignalSpy finished(&loader, SIGNAL(finished()));
    QMap<int, int> times;
    connect(&loader, &ThumbnailLoader::loaded, this,
        [&](int row, const QImage& picture, LoadProblem problem) {
            QCOMPARE(QThread::currentThread(), thread());
            QCOMPARE(picture.size(), QSize(40, 30));
            QCOMPARE(qGray(picture.pixel(5, 15)), 0); // the values fill the range
            QVERIFY(qGray(picture.pixel(35, 15)) >= 250);
            QCOMPARE(problem, LoadProblem::None);
            QVERIFY(loader.isLoading());
            QVERIFY(finished.isEmpty());
            ++times[row];
        });
    QVERIFY(!loader.isLoading());
    loader.start(requests(20), m_bounds);
    QVERIFY(loader.isLoading());
    QVERIFY(times.isEmpty()); // nothing before the events run
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(!loader.isLoading());
    QCOMPARE(times.size(), 20);
    for (int row = 10; row < 30; ++row) {
        QCOMPARE(times.value(row), 1);
    }
}

void TestThumbnailLoader::missingFile_isAnnouncedWithItsProblem()
{
    ThumbnailLoader loader;
    QSignalSpy loaded(&loader, &ThumbnailLoader::loaded);
    QSignalSpy finished(&loader, SIGNAL(finished()));
    loader.start({ { 3, m_folder.filePath("gone.png") } }, m_bounds);
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loaded.size(), 1);
    QCOMPARE(loaded.first().at(0).toInt(), 3);
    QVERIFY(loaded.first().at(1).value<QImage>().isNull());
    QCOMPARE(loaded.first().at(2).value<LoadProblem>(), LoadProblem::Missing);
}

void TestThumbnailLoader::brokenFiles_areAnnouncedAsNull_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QImage image(64, 48, QImage::Format_Grayscale8);
    image.fill(50);
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    QVERIFY(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "JPEG"));
    QTest::newRow("start marker alone") << QByteArray("\xff\xd8\xff");
    for (const int length : { 20, 90, 150 }) {
        QTest::addRow("cut off after %d bytes", length) << jpeg.left(length);
    }
    const int frame = int(jpeg.indexOf("\xff\xc0")); // marker, length, bits a sample
    QVERIFY(frame > 0 && jpeg.at(frame + 4) == 8);
    QByteArray twelve = jpeg;
    twelve[frame + 4] = 12;
    QTest::newRow("12 bits a sample") << twelve;
    QByteArray lossless = jpeg;
    lossless[frame + 1] = '\xc3';
    QTest::newRow("lossless") << lossless;
    QByteArray lowLoss = jpeg;
    lowLoss[frame + 1] = '\xf7';
    QTest::newRow("JPEG-LS") << lowLoss;
}

/// Under every suffix, since content decides which decoder gets them.
void TestThumbnailLoader::brokenFiles_areAnnouncedAsNull()
{
    QFETCH(QByteArray, bytes);
    QVector<ThumbnailRequest> broken;
    for (const char* suffix : { "jpg", "jpeg", "png", "bmp", "tif", "tiff" }) {
        const QString path = m_folder.filePath(QString("broken.") + suffix);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        broken << ThumbnailRequest { int(broken.size()), path };
    }
    ThumbnailLoader loader;
    QSignalSpy loaded(&loader, &ThumbnailLoader::loaded);
    QSignalSpy finished(&loader, &ThumbnailLoader::finished);
    loader.start(broken, m_bounds);
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(loaded.size(), broken.size());
    for (const QList<QVariant>& answer : loaded) {
        QVERIFY(answer.at(1).value<QImage>().isNull());
        const auto problem = answer.at(2).value<LoadProblem>();
        QVERIFY(problem == LoadProblem::NotReadable || problem == LoadProblem::UnsupportedKind);
    }
}

void TestThumbnailLoader::emptyBatch_announcesNothing()
{
    ThumbnailLoader loader;
    QSignalSpy finished(&loader, SIGNAL(finished()));
    loader.start({}, m_bounds);
    QVERIFY(!loader.isLoading());
    QTest::qWait(20);
    QVERIFY(finished.isEmpty());
}

void TestThumbnailLoader::cancel_silencesTheBatch()
{
    ThumbnailLoader loader;
    QSignalSpy loaded(&loader, &ThumbnailLoader::loaded);
    QSignalSpy finished(&loader, SIGNAL(finished()));
    loader.start(requests(50), m_bounds);
    QTest::qSleep(30); // some pictures are ready and wait to be announced
    loader.cancel();
    QVERIFY(!loader.isLoading());
    QTest::qWait(100);
    QVERIFY(loaded.isEmpty());
    QVERIFY(finished.isEmpty());
    loader.cancel(); // twice is harmless
}

void TestThumbnailLoader::cancel_insideTheAnnouncement()
{
    ThumbnailLoader loader;
    int count = 0;
    QSignalSpy finished(&loader, SIGNAL(finished()));
    connect(&loader, &ThumbnailLoader::loaded, this, [&] {
        if (++count == 3) {
            loader.cancel();
        }
    });
    loader.start(requests(50), m_bounds);
    QTRY_COMPARE(count, 3);
    QTest::qWait(50);
    QCOMPARE(count, 3);
    QVERIFY(finished.isEmpty());
}

void TestThumbnailLoader::newBatch_replacesTheOld()
{
    ThumbnailLoader loader;
    QSignalSpy loaded(&loader, &ThumbnailLoader::loaded);
    QSignalSpy finished(&loader, SIGNAL(finished()));
    loader.start(requests(50), m_bounds);
    QTest::qSleep(20);
    loader.start({ { 7, m_folder.filePath("halves.png") } }, QSize(20, 20));
    QTRY_COMPARE(finished.size(), 1);
    QTest::qWait(50);
    QCOMPARE(loaded.size(), 1);
    QCOMPARE(loaded.first().at(0).toInt(), 7);
    QCOMPARE(loaded.first().at(1).value<QImage>().size(), QSize(20, 15));
}

void TestThumbnailLoader::newBatch_startedByTheLastAnnouncement()
{
    ThumbnailLoader loader;
    QSignalSpy finished(&loader, SIGNAL(finished()));
    QVector<int> rows;
    connect(&loader, &ThumbnailLoader::loaded, this, [&](int row) {
        rows << row;
        if (row == 10) {
            loader.start({ { 99, m_folder.filePath("halves.png") } }, m_bounds);
        }
    });
    loader.start(requests(1), m_bounds);
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(rows, (QVector<int> { 10, 99 }));
}

void TestThumbnailLoader::preferred_comeFirst()
{
    ThumbnailLoader loader;
    QSignalSpy finished(&loader, SIGNAL(finished()));
    QVector<int> rows;
    connect(&loader, &ThumbnailLoader::loaded, this, [&](int row) { rows << row; });
    loader.start(requests(200), m_bounds);
    loader.preferFrom(150);
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(rows.size(), 200);
    QVERIFY(rows.indexOf(151) < rows.indexOf(149));
    QVERIFY(rows.indexOf(209) < rows.indexOf(149)); // to the end, then from the start
    QVERIFY(rows.indexOf(100) < rows.indexOf(149));
}

void TestThumbnailLoader::preferred_outsideTheBatch()
{
    ThumbnailLoader loader;
    QSignalSpy finished(&loader, SIGNAL(finished()));
    loader.preferFrom(5); // without a batch
    for (const int row : { -1, 0, 12, 1000 }) {
        loader.start(requests(5), m_bounds);
        loader.preferFrom(row);
        QTRY_COMPARE(finished.size(), 1);
        finished.clear();
    }
}

void TestThumbnailLoader::destroyedWhileLoading()
{
    for (int i = 1; i < 20; ++i) {
        ThumbnailLoader loader;
        connect(&loader, &ThumbnailLoader::loaded, this, [] { QFAIL("nobody ran the events"); });
        loader.start(requests(100), m_bounds);
        QTest::qSleep(i);
    }
    QTest::qWait(20);
}

QTEST_GUILESS_MAIN(TestThumbnailLoader)
#include "tst_thumbnailloader.moc"
