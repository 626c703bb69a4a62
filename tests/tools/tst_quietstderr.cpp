#include "quietstderr.h"

#include <QFile>
#include <QProcess>
#include <QtTest>

#include <cstdio>

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

} // namespace

class TestQuietStandardError : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void silencesWhileItLives();
};

void TestQuietStandardError::silencesWhileItLives()
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), { "write" });
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardError(), QByteArray("before,after,again"));
}

int main(int argc, char* argv[])
{
    if (argc == 2 && qstrcmp(argv[1], "write") == 0) {
        return writeAroundGuards();
    }
    QCoreApplication application(argc, argv);
    TestQuietStandardError test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_quietstderr.moc"
