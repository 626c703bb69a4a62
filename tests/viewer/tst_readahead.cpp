#include "readahead.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QVector>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

class TestReadAhead : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsEveryStepOnce();
    void saysNothingOfSmallAndOfHugeFiles();
    void saysNothingOfWhatIsNoFile();
    void readsAWholeFileEarly();
    void early_stopsWhenCancelled();
    void early_leavesLargeFilesAlone();
    void early_leavesTheFileFree();
    void early_readsFilesOnly();

private:
    QString file(qint64 size) const;
    static QVector<int> reportOf(const QString& path);

    QTemporaryDir m_folder;
};

/// A file of this size that takes no room on the disk.
QString TestReadAhead::file(qint64 size) const
{
    const QString path = m_folder.filePath(QString::number(size));
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.resize(size) ? path : QString();
}

QVector<int> TestReadAhead::reportOf(const QString& path)
{
    QVector<int> report;
    readAhead(path, [&report](int percent) { report << percent; });
    return report;
}

void TestReadAhead::reportsEveryStepOnce()
{
    // Read in pieces of 1 MiB: of 20 MiB each is five hundredths.
    QVector<int> fives;
    for (int percent = 5; percent <= 100; percent += 5) {
        fives << percent;
    }
    QCOMPARE(reportOf(file(qint64(20) << 20)), fives);
    const QVector<int> odd = reportOf(file((qint64(300) << 20) + 1)); // several pieces a hundredth
    QCOMPARE(odd.size(), 100);
    QCOMPARE(odd.first(), 1);
    QCOMPARE(odd.last(), 100);
}

void TestReadAhead::saysNothingOfSmallAndOfHugeFiles()
{
    QVERIFY(reportOf(file(0)).isEmpty());
    QVERIFY(reportOf(file(smallFileSize)).isEmpty());
    QVERIFY(!reportOf(file(smallFileSize + 1)).isEmpty());
    QVERIFY(reportOf(file(largestImageFileSize + 1)).isEmpty()); // nor of a film
}

void TestReadAhead::saysNothingOfWhatIsNoFile()
{
    QVERIFY(reportOf(m_folder.path()).isEmpty());
    QVERIFY(reportOf(m_folder.filePath("gone")).isEmpty());
    QVERIFY(reportOf(QString()).isEmpty());
}

void TestReadAhead::readsAWholeFileEarly()
{
    int pieces = 0;
    const auto count = [&pieces] { return ++pieces > 0; };
    QCOMPARE(readEarly(file((qint64(3) << 20) + 7), count), (qint64(3) << 20) + 7);
    QCOMPARE(pieces, 4); // of 1 MiB, and 7 bytes
    QCOMPARE(readEarly(file(5), count), qint64(5));
    QCOMPARE(readEarly(file(0), count), qint64(0));
}

void TestReadAhead::early_stopsWhenCancelled()
{
    int pieces = 0;
    QCOMPARE(
        readEarly(file(qint64(20) << 20), [&pieces] { return ++pieces <= 2; }), qint64(2) << 20);
    QCOMPARE(readEarly(file(qint64(20) << 20), [] { return false; }), qint64(0));
}

void TestReadAhead::early_leavesLargeFilesAlone()
{
    const auto goOn = [] { return true; };
    QCOMPARE(readEarly(file(4097), goOn, 4096), qint64(0));
    QCOMPARE(readEarly(file(4096), goOn, 4096), qint64(4096));
    const auto stop = [] { return false; };
    QCOMPARE(readEarly(file(largestFileReadEarly + 1), stop), qint64(0));
}

/// The file goes between two pieces, and something else takes its name.
void TestReadAhead::early_leavesTheFileFree()
{
    const QString path = file(qint64(5) << 20);
    int pieces = 0;
    const auto remove = [&pieces, &path] { return ++pieces != 3 || QFile::remove(path); };
    QCOMPARE(readEarly(path, remove), qint64(2) << 20);
    QCOMPARE(pieces, 3);
    const QString other = file(qint64(6) << 20);
    pieces = 0;
    const auto replace = [&pieces, &other] {
        return ++pieces != 2 || (QFile::remove(other) && QDir().mkdir(other));
    };
    QCOMPARE(readEarly(other, replace), qint64(1) << 20);
}

void TestReadAhead::early_readsFilesOnly()
{
    const auto goOn = [] { return true; };
    QCOMPARE(readEarly(m_folder.path(), goOn), qint64(0));
    QCOMPARE(readEarly(m_folder.filePath("gone"), goOn), qint64(0));
    QCOMPARE(readEarly(QString(), goOn), qint64(0));
#ifdef Q_OS_UNIX
    const QString pipe = m_folder.filePath("pipe.raw");
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    QCOMPARE(readEarly(pipe, goOn), qint64(0)); // and does not wait
#endif
}

QTEST_GUILESS_MAIN(TestReadAhead)
#include "tst_readahead.moc"
