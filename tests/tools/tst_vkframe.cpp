#include "scenes.h"

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestVkframe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void help_listsTheScenes();
    void scene_writesARawFrame();
    void scenes_writesAllOfThem();
    void raw_keeps16BitsOfAPng();
    void raw_keepsTheColoursOfAPng();
    void raw_keepsRowsOfOddWidth();
    void errors_data();
    void errors();
    void brokenImage_isOneFailure();

private:
    int run(const QStringList& arguments);
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    QByteArray m_output;
    QByteArray m_errors;
};

int TestVkframe::run(const QStringList& arguments)
{
    QProcess process;
    process.start(VKFRAME_PROGRAM, arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit) {
        return -1;
    }
    m_output = process.readAllStandardOutput();
    m_errors = process.readAllStandardError();
    return process.exitCode();
}

void TestVkframe::help_listsTheScenes()
{
    QCOMPARE(run({ "--help" }), 0);
    for (const Scene& scene : allScenes()) {
        QVERIFY(m_output.contains(scene.fileName.toUtf8()));
    }
    QVERIFY(m_errors.isEmpty());
}

void TestVkframe::scene_writesARawFrame()
{
    QCOMPARE(run({ "scene", "rings", path("rings.raw") }), 0);
    RawFrame frame;
    QCOMPARE(readRawFrame(path("rings.raw"), &frame), RawFileError::None);
    QCOMPARE(frame.bytesPerChannel, 4);
    QVERIFY(frame.bytes == ringCounts().bytes);
}

void TestVkframe::scenes_writesAllOfThem()
{
    QCOMPARE(run({ "scenes", path("new/samples") }), 0);
    for (const Scene& scene : allScenes()) {
        QVERIFY(QFileInfo(path("new/samples/" + scene.fileName)).size() > 1024);
    }
}

void TestVkframe::raw_keeps16BitsOfAPng()
{
    QCOMPARE(run({ "scene", "lamp", path("lamp.png") }), 0);
    QCOMPARE(run({ "raw", path("lamp.png"), path("lamp.raw") }), 0);
    RawFrame frame;
    QCOMPARE(readRawFrame(path("lamp.raw"), &frame), RawFileError::None);
    QCOMPARE(frame.bytesPerChannel, 2);
    QCOMPARE(frame.channels, 1);
    QVERIFY(frame.bytes == lampSpectrum().bytes);
}

void TestVkframe::raw_keepsTheColoursOfAPng()
{
    QCOMPARE(run({ "scene", "chart", path("chart.png") }), 0);
    QCOMPARE(run({ "raw", path("chart.png"), path("chart.raw") }), 0);
    RawFrame frame;
    QCOMPARE(readRawFrame(path("chart.raw"), &frame), RawFileError::None);
    QCOMPARE(frame.channels, 3);
    QVERIFY(frame.bytes == colourChart().bytes);
}

void TestVkframe::raw_keepsRowsOfOddWidth()
{
    QCOMPARE(run({ "scene", "target", path("target.bmp") }), 0);
    QCOMPARE(run({ "raw", path("target.bmp"), path("target.raw") }), 0);
    RawFrame frame;
    QCOMPARE(readRawFrame(path("target.raw"), &frame), RawFileError::None);
    QCOMPARE(QSize(frame.width, frame.height), QSize(501, 377));
    QVERIFY(frame.bytes == greyTarget().bytes);
}

void TestVkframe::errors_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::newRow("nothing to do") << QStringList() << 2;
    QTest::newRow("unknown command") << QStringList { "frobnicate", "a" } << 2;
    QTest::newRow("too few names") << QStringList { "raw", "a.png" } << 2;
    QTest::newRow("unknown scene") << QStringList { "scene", "moon", path("moon.raw") } << 2;
    QTest::newRow("missing image") << QStringList { "raw", path("no.png"), path("no.raw") } << 1;
    QTest::newRow("line feed in a name") << QStringList { "raw", "a\nb.png", path("no.raw") } << 1;
    QTest::newRow("a folder") << QStringList { "raw", m_folder.path(), path("no.raw") } << 1;
    QTest::newRow("unwritable") << QStringList { "scene", "lamp", path("no/such/lamp.raw") } << 1;
    QTest::newRow("unwritable picture")
        << QStringList { "scene", "target", path("no/such/target.bmp") } << 1;
    QTest::newRow("too deep for a picture") << QStringList { "scene", "rings", path("r.png") } << 1;
    QTest::newRow("unknown format") << QStringList { "scene", "target", path("t.xyz") } << 1;
    QTest::newRow("folder that is a file")
        << QStringList { "scenes", VKFRAME_PROGRAM "/samples" } << 1;
}

void TestVkframe::errors()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QCOMPARE(run(arguments), code);
    QVERIFY(m_errors.startsWith("vkframe: "));
    QCOMPARE(m_errors.count('\n'), 1);
    QVERIFY(m_output.isEmpty());
}

void TestVkframe::brokenImage_isOneFailure()
{
    QFile whole(path("whole.png"));
    QCOMPARE(run({ "scene", "target", whole.fileName() }), 0);
    QVERIFY(whole.open(QIODevice::ReadOnly));
    QFile broken(path("broken.png"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write(whole.read(20)); // ends within the first chunk
    broken.close();
    QCOMPARE(run({ "raw", broken.fileName(), path("broken.raw") }), 1);
    QCOMPARE(m_errors,
        "vkframe: " + broken.fileName().toUtf8()
            + ": the file cannot be read as an image\n"); // nothing of the codec's own
    QVERIFY(!QFile::exists(path("broken.raw")));
}

QTEST_GUILESS_MAIN(TestVkframe)
#include "tst_vkframe.moc"
