#include "imagetexts.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using LoadProblem = CVKIntensityWidget::LoadProblem;
using SampleKind = CVKIntensityWidget::SampleKind;

Q_DECLARE_METATYPE(CVKIntensityWidget::LoadProblem)
Q_DECLARE_METATYPE(CVKIntensityWidget::ImageInfo)

class TestImageTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void summary_data();
    void summary();
    void problem_data();
    void problem();
    void problem_hasASentenceEach();
    void problem_noPermission();
    void problem_longSuffixIsCut();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    void write(const QString& name, const QByteArray& bytes);

    QTemporaryDir m_folder;
};

void TestImageTexts::write(const QString& name, const QByteArray& bytes)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

void TestImageTexts::initTestCase()
{
    for (const char* name :
        { "notes.txt", "noext", "a.raw", "a.png", "a.JPG", "a.jpeg", "a.tif" }) {
        write(name, "hello");
    }
    write("nothing.bmp", "");
    QVERIFY(QDir(m_folder.path()).mkdir("folder.png"));
}

void TestImageTexts::summary_data()
{
    using Info = CVKIntensityWidget::ImageInfo;
    QTest::addColumn<Info>("info");
    QTest::addColumn<QString>("text");
    QTest::newRow("no image") << Info() << QString();
    Info info;
    info.size = QSize(1024, 256);
    info.bitDepth = 16;
    info.channels = 1;
    info.pageCount = 1;
    QTest::newRow("plain") << info << QString::fromUtf8("1024 × 256 pixels   16 bit");
    Info color = info;
    color.isColorReduced = color.isAlphaDropped = true;
    QTest::newRow("color with alpha")
        << color << QString::fromUtf8("color as gray, alpha dropped   1024 × 256 pixels   16 bit");
    Info converted = info;
    converted.bitDepth = 32;
    converted.isTypeConverted = true;
    converted.sampleKind = SampleKind::Signed;
    QTest::newRow("signed") << converted
                            << QString::fromUtf8("signed samples as whole numbers   "
                                                 "1024 × 256 pixels   32 bit");
    converted.sampleKind = SampleKind::Floating;
    QTest::newRow("floating") << converted
                              << QString::fromUtf8("floating-point samples as whole numbers   "
                                                   "1024 × 256 pixels   32 bit");
}

void TestImageTexts::summary()
{
    QFETCH(CVKIntensityWidget::ImageInfo, info);
    QTEST(imageSummary(info), "text");
}

void TestImageTexts::problem_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<LoadProblem>("problem");
    QTest::addColumn<QString>("text");
    const QString known = " Images end in jpg, jpeg, tif, tiff, bmp, png, raw.";
    const QString folder = "This is a folder, not an image file.";
    QTest::newRow("none") << "a.png" << LoadProblem::None << "";
    QTest::newRow("missing") << "gone.png" << LoadProblem::Missing
                             << "There is no file of this name.";
    QTest::newRow("folder") << "folder.png" << LoadProblem::NotAFile << folder;
    QTest::newRow("unknown suffix") << "notes.txt" << LoadProblem::UnknownSuffix
                                    << "Files of the kind \"txt\" are not known." + known;
    QTest::newRow("no suffix") << "noext" << LoadProblem::UnknownSuffix
                               << "The file name has no suffix." + known;
    QTest::newRow("empty") << "nothing.bmp" << LoadProblem::NotReadable << "The file is empty.";
    const QString damaged = ": it is damaged, or of another kind than its suffix says.";
    const QVector<QPair<QString, QString>> kinds { { "a.raw", "raw camera file" },
        { "a.png", "PNG image" }, { "a.JPG", "JPEG image" }, { "a.jpeg", "JPEG image" },
        { "a.tif", "TIFF image" } };
    for (const auto& [name, kind] : kinds) {
        QTest::newRow(qPrintable("damaged " + name))
            << name << LoadProblem::NotReadable << "The file cannot be read as a " + kind + damaged;
    }
#ifdef Q_OS_UNIX
    QCOMPARE(::mkfifo(QFile::encodeName(path("pipe.raw")).constData(), 0600), 0);
    QTest::newRow("pipe") << "pipe.raw" << LoadProblem::NotAFile << "This is not a regular file.";
#endif
}

void TestImageTexts::problem()
{
    QFETCH(QString, name);
    QFETCH(LoadProblem, problem);
    QTEST(problemText(path(name), problem), "text");
}

/// A file that is sound but not supported is not called damaged.
void TestImageTexts::problem_hasASentenceEach()
{
    QSet<QString> texts;
    for (int i = int(LoadProblem::Missing); i <= int(LoadProblem::BadFrame); ++i) {
        const QString text = problemText(path("a.tif"), LoadProblem(i));
        QVERIFY2(text.endsWith('.') && text.at(0).isUpper(), qPrintable(text));
        QCOMPARE(text.contains("damaged"), LoadProblem(i) == LoadProblem::NotReadable);
        texts << text;
    }
    QCOMPARE(texts.size(), int(LoadProblem::BadFrame)); // no two are the same
    QVERIFY(problemText(path("a.tif"), LoadProblem::UnsupportedKind).contains("not supported"));
}

void TestImageTexts::problem_noPermission()
{
    write("locked.png", "hello");
    QVERIFY(QFile::setPermissions(path("locked.png"), QFileDevice::WriteOwner));
    if (QFile(path("locked.png")).open(QIODevice::ReadOnly)) {
        QTest::qSkip("this user may read every file", __FILE__, __LINE__);
        return;
    }
    QCOMPARE(problemText(path("locked.png"), LoadProblem::NotReadable),
        QString("You have no permission to read this file."));
}

void TestImageTexts::problem_longSuffixIsCut()
{
    const QString text = problemText("a." + QString(200, 'z'), LoadProblem::UnknownSuffix);
    QVERIFY(text.contains('"' + QString(20, 'z') + '"'));
}

QTEST_GUILESS_MAIN(TestImageTexts)
#include "tst_imagetexts.moc"
