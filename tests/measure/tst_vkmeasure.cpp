#include "rawframe.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/stat.h>
#endif

/// The program from outside: order, exit codes, what it writes where.
class TestVkmeasure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void help_goesToStandardOutput();
    void usageErrors_endWithTwo_data();
    void usageErrors_endWithTwo();
    void numbers_areThoseOfThePixels();
    void folder_isMeasuredByName();
    void order_isThatOfTheArguments_data();
    void order_isThatOfTheArguments();
    void refusedFiles_doNotStopTheRest();
    void refusedFiles_areToldInOneLine_data();
    void refusedFiles_areToldInOneLine();
    void regionFile_isReadForEachImage();
    void regionFile_tellsWhatIsLeftOut();
    void csv_isOneTable_data();
    void csv_isOneTable();
    void csv_quotesFileNames();
    void output_thatIsFullEndsWithOne();
    void output_thatIsClosedKeepsWholeLines();
    void interruption_keepsWholeLines_data();
    void interruption_keepsWholeLines();
    void codecs_areNotHeard();

private:
    int run(const QStringList& arguments);
    QString path(const QString& name) const { return m_folder.filePath(name); }
    void writeBytes(const QString& name, const QByteArray& bytes);
    QList<QJsonObject> objects() const;

    QTemporaryDir m_folder;
    QByteArray m_output;
    QByteArray m_errors;
};

namespace {

void writeFrame(const QString& path, int width, int height, const QByteArray& samples)
{
    RawFrame frame;
    frame.width = width;
    frame.height = height;
    frame.bytes = samples;
    QString problem;
    QVERIFY2(writeRawFrame(path, frame, &problem), qPrintable(problem));
}

/// Lines without the empty rest behind the last line end.
QList<QByteArray> linesOf(const QByteArray& text)
{
    QList<QByteArray> lines = text.split('\n');
    lines.removeLast();
    return lines;
}

} // namespace

void TestVkmeasure::initTestCase()
{
    writeFrame(path("small.raw"), 3, 2, QByteArray("\1\2\3\4\5\6", 6));
    writeFrame(path("large.raw"), 2000, 1000, QByteArray(2000000, '\7'));
    writeBytes("text.png", "no picture");
    writeBytes("empty.raw", "");
    writeBytes("notes.txt", "a");
    QDir(m_folder.path()).mkdir("empty");
    QDir(m_folder.path()).mkdir("frames");
    for (int i = 12; i > 0; --i) {
        writeFrame(path(QString("frames/f%1.raw").arg(i)), i, 1, QByteArray(i, char(i)));
    }
    writeBytes("frames/readme.txt", "a");
}

int TestVkmeasure::run(const QStringList& arguments)
{
    QProcess process;
    process.setWorkingDirectory(m_folder.path());
    process.start(VKMEASURE_PROGRAM, arguments);
    const bool hasEnded
        = process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit;
    m_output = process.readAllStandardOutput();
    m_errors = process.readAllStandardError();
    return hasEnded ? process.exitCode() : -1;
}

void TestVkmeasure::writeBytes(const QString& name, const QByteArray& bytes)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QList<QJsonObject> TestVkmeasure::objects() const
{
    QList<QJsonObject> objects;
    for (const QByteArray& line : linesOf(m_output)) {
        objects << QJsonDocument::fromJson(line).object();
    }
    return objects;
}

void TestVkmeasure::help_goesToStandardOutput()
{
    QCOMPARE(run({ "--help" }), 0);
    QVERIFY(m_output.startsWith("Usage: vkmeasure"));
    QCOMPARE(m_errors, QByteArray());
    QCOMPARE(run({ "--version" }), 0);
    QVERIFY(m_output.startsWith("vkmeasure "));
}

void TestVkmeasure::usageErrors_endWithTwo_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("option");
    QTest::newRow("nothing") << QStringList() << QByteArray("file");
    QTest::newRow("row") << QStringList { "--row", "-1", "small.raw" } << QByteArray("--row");
    QTest::newRow("unknown") << QStringList { "--x", "small.raw" } << QByteArray("--x");
    QTest::newRow("region file") << QStringList { "--regions", "gone.reg", "small.raw" }
                                 << QByteArray("--regions gone.reg");
    QTest::newRow("region folder")
        << QStringList { "--regions", "frames", "small.raw" } << QByteArray("--regions");
}

void TestVkmeasure::usageErrors_endWithTwo()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, option);
    QCOMPARE(run(arguments), 2);
    QCOMPARE(m_output, QByteArray());
    QCOMPARE(linesOf(m_errors).size(), 1);
    QVERIFY2(m_errors.startsWith("vkmeasure: ") && m_errors.contains(option), m_errors);
}

void TestVkmeasure::numbers_areThoseOfThePixels()
{
    QCOMPARE(run({ "--roi", "1,0,2,2", "--row", "1", "--column", "2", "--peaks", "1", "--histogram",
                 "small.raw" }),
        0);
    QCOMPARE(m_errors, QByteArray());
    const QJsonObject found = objects().value(0);
    QCOMPARE(found["file"].toString(), QString("small.raw"));
    QCOMPARE(found["image"].toObject()["mean"].toDouble(), 3.5);
    const QJsonObject region = found["regions"].toArray().at(0).toObject();
    QCOMPARE(region["mean"].toDouble(), 4.0); // 2, 3, 5 and 6
    QCOMPARE(region["maximum"].toInt(), 6);
    QCOMPARE(region["histogram"].toObject()["first"].toInt(), 2);
    QCOMPARE(region["histogram"].toObject()["counts"].toArray(), QJsonArray({ 1, 1, 0, 1, 1 }));
    QCOMPARE(found["rows"].toArray().at(0).toObject()["values"].toArray(), QJsonArray({ 4, 5, 6 }));
    QCOMPARE(found["columns"].toArray().at(0).toObject()["values"].toArray(), QJsonArray({ 3, 6 }));
    QCOMPARE(found["histogram"].toObject()["counts"].toArray(), QJsonArray({ 1, 1, 1, 1, 1, 1 }));
    QVERIFY(found["calibration"].isNull());
}

void TestVkmeasure::folder_isMeasuredByName()
{
    QCOMPARE(run({ "frames", "small.raw" }), 0);
    const QList<QJsonObject> found = objects();
    QCOMPARE(found.size(), 13);
    for (int i = 1; i <= 12; ++i) {
        QCOMPARE(found.at(i - 1)["file"].toString(), QString("frames/f%1.raw").arg(i));
        QCOMPARE(found.at(i - 1)["width"].toInt(), i);
    }
    QCOMPARE(run({ "empty" }), 1);
    QVERIFY2(m_errors.startsWith("vkmeasure: empty: "), m_errors);
}

void TestVkmeasure::order_isThatOfTheArguments_data()
{
    QTest::addColumn<QString>("jobs");
    for (const char* jobs : { "1", "3", "64" }) {
        QTest::newRow(jobs) << jobs;
    }
}

void TestVkmeasure::order_isThatOfTheArguments()
{
    QFETCH(QString, jobs);
    QStringList files;
    for (int i = 0; i < 20; ++i) {
        files << (i % 5 == 0 ? "large.raw" : QString("frames/f%1.raw").arg(i % 12 + 1));
    }
    QCOMPARE(run(QStringList { "--jobs", jobs, "--histogram", "--row", "0" } + files), 0);
    QStringList measured;
    for (const QJsonObject& object : objects()) {
        measured << object["file"].toString();
    }
    QCOMPARE(measured, files);
}

void TestVkmeasure::refusedFiles_doNotStopTheRest()
{
    for (const char* jobs : { "1", "3" }) {
        QCOMPARE(run({ "--jobs", jobs, "--row", "1", "small.raw", "text.png", "frames/f1.raw",
                     "gone.raw", "large.raw" }),
            1);
        QCOMPARE(objects().size(), 2);
        QCOMPARE(objects().at(1)["file"].toString(), QString("large.raw"));
        QCOMPARE(linesOf(m_errors).size(), 3);
    }
}

void TestVkmeasure::refusedFiles_areToldInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("missing") << QStringList { "gone.raw" } << QByteArray("no file of this name");
    QTest::newRow("suffix") << QStringList { "notes.txt" } << QByteArray("suffix");
    QTest::newRow("damaged") << QStringList { "text.png" } << QByteArray("damaged");
    QTest::newRow("empty") << QStringList { "empty.raw" } << QByteArray("empty");
    QTest::newRow("page") << QStringList { "--page", "1", "small.raw" } << QByteArray("--page");
    QTest::newRow("row") << QStringList { "--row", "2", "small.raw" } << QByteArray("--row");
    QTest::newRow("column") << QStringList { "--column", "3", "small.raw" }
                            << QByteArray("--column");
    QTest::newRow("huge row") << QStringList { "--row", "2147483647", "small.raw" }
                              << QByteArray("--row");
    QTest::newRow("region") << QStringList { "--roi", "1,1,3,1", "small.raw" }
                            << QByteArray("--roi");
    QTest::newRow("huge region") << QStringList { "--roi", "2147483646,0,1,1", "small.raw" }
                                 << QByteArray("--roi");
    QTest::newRow("line end in the name") << QStringList { "a\nb.raw" } << QByteArray("a b.raw");
}

void TestVkmeasure::refusedFiles_areToldInOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, reason);
    QCOMPARE(run(arguments), 1);
    QCOMPARE(m_output, QByteArray());
    QCOMPARE(linesOf(m_errors).size(), 1);
    QVERIFY2(m_errors.contains(reason), m_errors);
}

void TestVkmeasure::regionFile_isReadForEachImage()
{
    // The bottom left pixel: value 4 in one image, 7 in the other.
    writeBytes("corner.reg", "image\nbox(1,1,1,1,0)\n");
    QCOMPARE(run({ "--roi", "0,0,1,1", "--regions", "corner.reg", "small.raw", "large.raw" }), 0);
    QCOMPARE(m_errors, QByteArray());
    const QJsonArray small = objects().at(0)["regions"].toArray();
    QCOMPARE(small.size(), 2);
    QCOMPARE(small.at(0).toObject()["mean"].toDouble(), 1.0);
    QCOMPARE(small.at(1).toObject()["mean"].toDouble(), 4.0);
    const QJsonObject large = objects().at(1)["regions"].toArray().at(1).toObject();
    QCOMPARE(large["y"].toInt(), 999);
    QCOMPARE(large["mean"].toDouble(), 7.0);
}

void TestVkmeasure::regionFile_tellsWhatIsLeftOut()
{
    writeBytes("mixed.reg", "image\ncircle(2,2,1)\nbox(1,1,1,1,45)\njunk\nbox(1,1,1,1,0)\n");
    QCOMPARE(run({ "--regions", "mixed.reg", "small.raw", "large.raw" }), 0);
    QCOMPARE(linesOf(m_errors).size(), 1);
    QVERIFY2(m_errors.contains("2 other than upright boxes, 1 that cannot be read"), m_errors);
    QCOMPARE(objects().at(0)["regions"].toArray().size(), 1);
    writeBytes("outside.reg", "image\nbox(100,100,2,2,0)\n");
    QCOMPARE(run({ "--regions", "outside.reg", "small.raw", "large.raw" }), 1);
    QCOMPARE(objects().size(), 1);
    QVERIFY2(m_errors.contains("small.raw: 1 of the boxes in outside.reg"), m_errors);
}

void TestVkmeasure::csv_isOneTable_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("table");
    QTest::newRow("statistics")
        << QStringList { "--roi", "0,0,1,1" }
        << QByteArray("file,page,region,x,y,width,height,pixels,mean,minimum,maximum,deviation,"
                      "signal_to_noise\n"
                      "frames/f1.raw,0,image,0,0,1,1,1,1,1,1,0,nan\n"
                      "frames/f1.raw,0,1,0,0,1,1,1,1,1,1,0,nan\n"
                      "frames/f2.raw,0,image,0,0,2,1,2,2,2,2,0,nan\n"
                      "frames/f2.raw,0,1,0,0,1,1,1,2,2,2,0,nan\n");
    QTest::newRow("histogram") << QStringList { "--histogram" }
                               << QByteArray("file,page,region,value,count\n"
                                             "frames/f1.raw,0,image,1,1\n"
                                             "frames/f2.raw,0,image,2,2\n");
    QTest::newRow("profiles") << QStringList { "--column", "0", "--row", "0" }
                              << QByteArray("file,page,axis,index,pixel,position,value\n"
                                            "frames/f1.raw,0,row,0,0,0,1\n"
                                            "frames/f1.raw,0,column,0,0,0,1\n"
                                            "frames/f2.raw,0,row,0,0,0,2\n"
                                            "frames/f2.raw,0,row,0,1,1,2\n"
                                            "frames/f2.raw,0,column,0,0,0,2\n");
    // A flat profile: every sample is a peak.
    QTest::newRow("peaks") << QStringList { "--row", "0", "--peaks", "1" }
                           << QByteArray("file,page,axis,index,rank,pixel,position,value\n"
                                         "frames/f1.raw,0,row,0,1,0,0,1\n"
                                         "frames/f2.raw,0,row,0,1,0,0,2\n");
}

void TestVkmeasure::csv_isOneTable()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, table);
    QCOMPARE(
        run(options
            + QStringList { "--jobs", "2", "--format", "csv", "frames/f1.raw", "frames/f2.raw" }),
        0);
    QVERIFY(m_output.startsWith("# program: vkmeasure\n# version: "));
    QCOMPARE(m_output.mid(m_output.indexOf("file,")), table);
}

void TestVkmeasure::csv_quotesFileNames()
{
    writeFrame(path("a,\"b.raw"), 1, 1, "\1");
    QCOMPARE(run({ "--format", "csv", "a,\"b.raw" }), 0);
    QVERIFY2(m_output.contains("\n\"a,\"\"b.raw\",0,image,"), m_output);
}

void TestVkmeasure::output_thatIsFullEndsWithOne()
{
#ifdef Q_OS_LINUX
    for (const QString format : { "json", "csv" }) {
        QProcess process;
        process.setStandardOutputFile("/dev/full");
        process.start(VKMEASURE_PROGRAM, { "--format", format, "--jobs", "3", path("frames") });
        QVERIFY(process.waitForFinished(120000));
        QCOMPARE(process.exitCode(), 1);
        const QByteArray errors = process.readAllStandardError();
        QCOMPARE(linesOf(errors).size(), 1);
        QVERIFY2(errors.startsWith("vkmeasure: standard output: "), errors);
    }
#endif
}

void TestVkmeasure::output_thatIsClosedKeepsWholeLines()
{
#ifdef Q_OS_UNIX
    QProcess shell;
    shell.start("sh",
        { "-c",
            "(\"$0\" --histogram \"$1\"/frames \"$1\"/frames \"$1\"/large.raw; echo $? >&2)"
            " | head -n 1",
            VKMEASURE_PROGRAM, m_folder.path() });
    QVERIFY(shell.waitForFinished(120000));
    const QByteArray output = shell.readAllStandardOutput();
    QCOMPARE(linesOf(output).size(), 1);
    QVERIFY(QJsonDocument::fromJson(output).isObject());
    const QByteArray status = shell.readAllStandardError();
    QVERIFY2(status == "1\n" || status == "0\n", status); // 0 when all was written before
#endif
}

void TestVkmeasure::interruption_keepsWholeLines_data()
{
#ifdef Q_OS_UNIX
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGINT") << int(SIGINT);
    QTest::newRow("SIGTERM") << int(SIGTERM);
#endif
}

void TestVkmeasure::interruption_keepsWholeLines()
{
#ifdef Q_OS_UNIX
    QFETCH(int, signal);
    QStringList arguments { "--jobs", "3", "--row", "0" };
    for (int i = 0; i < 3000; ++i) {
        arguments << path("large.raw");
    }
    QProcess process;
    process.start(VKMEASURE_PROGRAM, arguments);
    QVERIFY(process.waitForReadyRead(120000));
    QCOMPARE(::kill(pid_t(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished(120000));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit); // by the signal
    QCOMPARE(process.exitCode(), signal);
    const QByteArray output = process.readAllStandardOutput();
    QVERIFY(output.endsWith("}\n"));
    QVERIFY(linesOf(output).size() < 3000);
#endif
}

void TestVkmeasure::codecs_areNotHeard()
{
    QFile sample(QString(VKINTENSITY_SAMPLES) + "/colour-chart.png");
    QVERIFY(sample.open(QIODevice::ReadOnly));
    writeBytes("cut.png", sample.read(2000)); // the codec writes its own complaint
    run({ "cut.png", "small.raw", "cut.png" });
    for (const QByteArray& line : linesOf(m_errors)) {
        QVERIFY2(line.startsWith("vkmeasure: cut.png: "), line);
    }
    QCOMPARE(objects().last()["file"].toString(), QString("small.raw"));
}

QTEST_GUILESS_MAIN(TestVkmeasure)
#include "tst_vkmeasure.moc"
