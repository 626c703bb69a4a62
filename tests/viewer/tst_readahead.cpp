#include "readahead.h"

#include <QFile>
#include <QTemporaryDir>
#include <QVector>
#include <QtTest>

class TestReadAhead : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsEveryStepOnce();
    void saysNothingOfSmallAndOfHugeFiles();
    void saysNothingOfWhatIsNoFile();

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

QTEST_GUILESS_MAIN(TestReadAhead)
#include "tst_readahead.moc"
