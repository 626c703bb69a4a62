#include "filewatch.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

namespace {

/// Waits between writes. A busy machine can make such a pause as long as a rest.
class Pauses
{
public:
    void wait(int milliseconds)
    {
        QElapsedTimer clock;
        clock.start();
        QTest::qWait(milliseconds);
        m_longest = std::max(m_longest, clock.elapsed());
    }

    bool isDisturbed() const { return m_longest >= FileWatch::restMilliseconds; }

private:
    qint64 m_longest = 0;
};

} // namespace

class TestFileWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tells_ofAFileWrittenAnew();
    void tells_onceOfManyWrites();
    void tells_amidChangesOfOtherFiles();
    void tells_nowAndThenOfAFileWithoutRest();
    void tells_ofAFileInItsPlace();
    void tells_ofAFileThatComesBack();
    void tells_ofTheSecondChangeToo();
    void isQuiet_whileTheFileIsGone();
    void isQuiet_aboutOtherFiles();
    void isQuiet_afterTheWatchHasEnded();
    void watchesAnotherFileInstead();
    void missingFolder();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    void write(const QString& name, const QByteArray& bytes);

    static constexpr int longEnough = 10 * FileWatch::restMilliseconds;
    static constexpr int quiet = 3 * FileWatch::restMilliseconds;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestFileWatch::write(const QString& name, const QByteArray& bytes)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

void TestFileWatch::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    write("a.raw", "first");
    write("b.raw", "other");
}

void TestFileWatch::tells_ofAFileWrittenAnew()
{
    FileWatch watch;
    QSignalSpy changes(&watch, &FileWatch::changed);
    watch.watch(path("a.raw"));
    write("a.raw", "second one");
    QVERIFY(changes.wait(longEnough));
    QCOMPARE(changes.size(), 1);
}

void TestFileWatch::tells_onceOfManyWrites()
{
    FileWatch watch;
    QSignalSpy changes(&watch, &FileWatch::changed);
    watch.watch(path("a.raw"));
    QFile file(path("a.raw"));
    QVERIFY(file.open(QIODevice::Append));
    Pauses pauses;
    for (int i = 0; i < 8; ++i) { // together longer than a rest
        file.write("more");
        file.flush();
        pauses.wait(FileWatch::restMilliseconds / 4);
    }
    QVERIFY(changes.isEmpty() || pauses.isDisturbed());
    QTRY_VERIFY_WITH_TIMEOUT(!changes.isEmpty(), longEnough);
    QTest::qWait(quiet);
    QVERIFY(changes.size() == 1 || pauses.isDisturbed());
}

/// A camera that writes a sequence into the folder.
void TestFileWatch::tells_amidChangesOfOtherFiles()
{
    FileWatch watch;
    QSignalSpy changes(&watch, &FileWatch::changed);
    watch.watch(path("a.raw"));
    write("a.raw", "second one");
    for (int i = 0; i < 12 && changes.isEmpty(); ++i) { // far more often than a rest
        QTest::qWait(FileWatch::restMilliseconds / 4);
        write(QString("frame %1.raw").arg(i), "frame");
    }
    QCOMPARE(changes.size(), 1);
}

void TestFileWatch::tells_nowAndThenOfAFileWithoutRest()
{
    FileWatch watch;
    QSignalSpy changes(&watch, &FileWatch::changed);
    watch.watch(path("a.raw"));
    QElapsedTimer clock;
    clock.start();
    Pauses pauses;
    for (int i = 0; changes.isEmpty() && !clock.hasExpired(longEnough + quiet); ++i) {
        write("a.raw", QByteArray(i + 10, 'x'));
        pauses.wait(FileWatch::restMilliseconds / 4);
    }
    QVERIFY(clock.elapsed() >= FileWatch::longestMilliseconds || pauses.isDisturbed());
    QCOMPARE(changes.size(), 1);
}

void TestFileWatch::tells_ofAFileInItsPlace()
{
    FileWatch watch;
    QSignalSpy changes(&watch, &FileWatch::changed);
    watch.watch(path("a.raw"));
    write("new", "written elsewhere");
    QVERIFY(QFile::remove(path("a.raw")));
    QVERIFY(QFile::rename(path("new"), path("a.raw")));
    QVERIFY(changes.wait(longEnough));
    QCOMPARE(changes.size(), 1);
}

void TestFileWatch::tells_ofAFileThatComesBack()
{
    FileWatch watch;
    QSignalSpy changes(&watch, &FileWatch::changed);
    QVERIFY(QFile::remove(path("a.raw")));
    watch.watch(path("a.raw"));
    write("a.raw", "back again");
    QVERIFY(changes.wait(longEnough));
}

void TestFileWatch::tells_ofTheSecondChangeToo()
{
    FileWatch watch;
    QSignalSpy changes(&watch, &FileWatch::changed);
    watch.watch(path("a.raw"));
    write("a.raw", "second one");
    QVERIFY(changes.wait(longEnough));
    QVERIFY(QFile::remove(path("a.raw")));
    write("a.raw", "the third");
    QVERIFY(changes.wait(longEnough));
    QCOMPARE(changes.size(), 2);
}

void TestFileWatch::isQuiet_whileTheFileIsGone()
{
    FileWatch watch;
    QSignalSpy changes(&watch, &FileWatch::changed);
    watch.watch(path("a.raw"));
    QVERIFY(QFile::remove(path("a.raw")));
    QVERIFY(!changes.wait(quiet));
}

void TestFileWatch::isQuiet_aboutOtherFiles()
{
    FileWatch watch;
    QSignalSpy changes(&watch, &FileWatch::changed);
    watch.watch(path("a.raw"));
    write("b.raw", "another text");
    write("c.raw", "one more");
    QVERIFY(!changes.wait(quiet));
}

void TestFileWatch::isQuiet_afterTheWatchHasEnded()
{
    FileWatch watch;
    QSignalSpy changes(&watch, &FileWatch::changed);
    watch.watch(path("a.raw"));
    write("a.raw", "second one");
    watch.watch(QString());
    QVERIFY(!changes.wait(quiet));
}

void TestFileWatch::watchesAnotherFileInstead()
{
    FileWatch watch;
    QSignalSpy changes(&watch, &FileWatch::changed);
    watch.watch(path("a.raw"));
    watch.watch(path("b.raw"));
    write("a.raw", "second one");
    QVERIFY(!changes.wait(quiet));
    write("b.raw", "second one");
    QVERIFY(changes.wait(longEnough));
}

void TestFileWatch::missingFolder()
{
    FileWatch watch;
    QSignalSpy changes(&watch, &FileWatch::changed);
    watch.watch(path("no such folder/a.raw"));
    QVERIFY(!changes.wait(FileWatch::restMilliseconds));
}

QTEST_GUILESS_MAIN(TestFileWatch)
#include "tst_filewatch.moc"
