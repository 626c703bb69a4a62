#include "quietstderr.h"

#include <QFile>
#include <QProcess>
#include <QtTest>

#include <cstdio>
#include <memory>
#include <thread>
#include <vector>

namespace {

/// What the program writes to its standard error when it is started with the argument "write".
int writeAroundGuards()
{
    std::fputs("before,", stderr);
    {
        const QuietStandardError quiet;
        std::fputs("inside,", stderr);
        const QuietStandardError nested;
        std::fputs("nested,", stderr);
    }
    std::fputs("after", stderr);
    for (int i = 0; i < 5000; ++i) {
        const QuietStandardError quiet; // would run out of descriptors if it kept any
    }
    std::fputs(",again", stderr);
    return 0;
}

/// Started with the argument "threads": guards that overlap instead of nesting, then many at once.
int writeAroundThreads()
{
    auto first = std::make_unique<QuietStandardError>();
    auto second = std::make_unique<QuietStandardError>();
    first.reset();
    std::fputs("still one,", stderr);
    second.reset();
    std::fputs("none,", stderr);
    const auto guardOften = [] {
        for (int i = 0; i < 2000; ++i) {
            const QuietStandardError quiet;
            std::fputs("inside,", stderr);
        }
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back(guardOften);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    std::fputs("after", stderr);
    return 0;
}

QByteArray standardErrorWith(const char* argument)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), { argument });
    return process.waitForFinished() && process.exitCode() == 0 ? process.readAllStandardError()
                                                                : QByteArray("failed");
}

} // namespace

class TestQuietStandardError : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void silencesWhileItLives();
    void severalThreads_theLastRestores();
};

void TestQuietStandardError::silencesWhileItLives()
{
    QCOMPARE(standardErrorWith("write"), QByteArray("before,after,again"));
}

void TestQuietStandardError::severalThreads_theLastRestores()
{
    QCOMPARE(standardErrorWith("threads"), QByteArray("none,after"));
}

int main(int argc, char* argv[])
{
    if (argc == 2 && qstrcmp(argv[1], "write") == 0) {
        return writeAroundGuards();
    }
    if (argc == 2 && qstrcmp(argv[1], "threads") == 0) {
        return writeAroundThreads();
    }
    QCoreApplication application(argc, argv);
    TestQuietStandardError test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_quietstderr.moc"
