#include "scenes.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

/// The program from outside: arguments, exit codes, what it writes.
class TestVkviewer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QFile::remove(path("never.png")); }

    void help();
    void version();
    void screenshot_ofEverySample_data();
    void screenshot_ofEverySample();
    void screenshot_withoutASize_data();
    void screenshot_withoutASize();
    void screenshot_atOtherResolutions_data();
    void screenshot_atOtherResolutions();
    void screenshot_onDenseScreens_data();
    void screenshot_onDenseScreens();
    void names_inAnyScript();
    void language_followsTheEnvironment();
    void screenshot_ofAGallery_data();
    void screenshot_ofAGallery();
    void screenshot_ofAGalleryOfHostileFiles();
    void screenshot_withRegions();
    void screenshot_withARegionFile();
    void screenshot_ofTheCharts();
    void screenshot_inAPalette();
    void screenshot_ofControlsInASmallWindow();
    void screenshot_withoutADisplay();
    void failures_data();
    void failures();
    void hostileFiles_data();
    void hostileFiles();
    void noDisplay();
    void palettesStandBesideTheProgram();

private:
    int run(const QStringList& arguments, const QMap<QString, QString>& environment = {});
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString written(const QString& name, const QByteArray& bytes);

    QTemporaryDir m_folder;
    QByteArray m_output;
    QByteArray m_errors;
};

namespace {

QString sample(const QString& fileName)
{
    return QString(VKINTENSITY_SAMPLES) + "/" + fileName;
}

QByteArray content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Different colours in the part of the window right of the panel column.
int canvasColours(const QImage& window, int columnWidth)
{
    QSet<QRgb> colours;
    for (int y = 40; y < window.height() - 40; y += 3) {
        for (int x = columnWidth; x < window.width(); x += 3) {
            colours << window.pixel(x, y);
        }
    }
    return int(colours.size());
}

/// How many pixels right of the panel column have a colour that `wanted` accepts.
template <class Wanted>
int canvasCount(const QImage& window, const Wanted& wanted)
{
    int count = 0;
    for (int y = 0; y < window.height(); ++y) {
        for (int x = 290; x < window.width(); ++x) {
            count += wanted(window.pixelColor(x, y));
        }
    }
    return count;
}

bool isRegionRed(const QColor& color)
{
    return color == QColor(Qt::red);
}

bool isCurveColour(const QColor& color)
{
    return color == QColor(40, 128, 140);
}

} // namespace

int TestVkviewer::run(const QStringList& arguments, const QMap<QString, QString>& environment)
{
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (auto it = environment.begin(); it != environment.end(); ++it) {
        variables.insert(it.key(), it.value());
    }
    process.setProcessEnvironment(variables);
    process.start(VKVIEWER_PROGRAM, arguments);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit) {
        return -1; // hangs, or ended by a signal
    }
    m_output = process.readAllStandardOutput();
    m_errors = process.readAllStandardError();
    return process.exitCode();
}

QString TestVkviewer::written(const QString& name, const QByteArray& bytes)
{
    QFile file(path(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName()
                                                                                : QString();
}

void TestVkviewer::help()
{
    QCOMPARE(run({ "--help" }, { { "QT_QPA_PLATFORM", "no such platform" } }), 0);
    QVERIFY(m_output.startsWith("Usage: vkviewer [--page N] [IMAGE | FOLDER]\n"));
    QVERIFY(m_errors.isEmpty());
}

void TestVkviewer::version()
{
    QCOMPARE(run({ "--version" }), 0);
    QVERIFY(QRegularExpression("^vkviewer [0-9]+\\.[0-9]+\\.[0-9]+\n$")
                .match(QString::fromUtf8(m_output))
                .hasMatch());
}

void TestVkviewer::screenshot_ofEverySample_data()
{
    QTest::addColumn<QString>("fileName");
    for (const Scene& scene : allScenes()) {
        QTest::newRow(qPrintable(scene.name)) << scene.fileName;
    }
}

void TestVkviewer::screenshot_ofEverySample()
{
    QFETCH(QString, fileName);
    const QString picture = path("sample.png");
    QCOMPARE(run({ "--screenshot", picture, "--size", "1000x700", sample(fileName) }), 0);
    QVERIFY2(m_errors.isEmpty(), m_errors.constData());
    QVERIFY(m_output.isEmpty());
    const QImage window(picture);
    QCOMPARE(window.size(), QSize(1000, 700));
    QVERIFY(canvasColours(window, 290) > 30);
    QVERIFY(QFile::remove(picture));
}

void TestVkviewer::screenshot_withoutASize_data()
{
    QTest::addColumn<QString>("dotsPerInch");
    QTest::addColumn<QSize>("size");
    QTest::newRow("96") << "96" << QSize(1280, 800);
    QTest::newRow("144") << "144" << QSize(1920, 1200);
}

/// Larger than the screen of this platform, which is 800 x 800.
void TestVkviewer::screenshot_withoutASize()
{
    QFETCH(QString, dotsPerInch);
    const QString picture = path("default.png");
    QCOMPARE(run({ "--screenshot", picture, sample("lamp-spectrum.raw") },
                 { { "QT_FONT_DPI", dotsPerInch } }),
        0);
    QTEST(QImage(picture).size(), "size");
}

void TestVkviewer::screenshot_atOtherResolutions_data()
{
    QTest::addColumn<QString>("dotsPerInch");
    QTest::addColumn<int>("columnWidth");
    QTest::newRow("96") << "96" << 290;
    QTest::newRow("120") << "120" << 362;
    QTest::newRow("144") << "144" << 435;
}

void TestVkviewer::screenshot_atOtherResolutions()
{
    QFETCH(QString, dotsPerInch);
    QFETCH(int, columnWidth);
    const QString picture = path("resolution.png");
    QCOMPARE(run({ "--screenshot", picture, "--size", "800x600", sample("lamp-spectrum.raw") },
                 { { "QT_FONT_DPI", dotsPerInch } }),
        0);
    const QImage window(picture);
    QCOMPARE(window.size(), QSize(800, 600));
    // The column's border: its last pixel column is darker than anything right or left of it.
    const int y = 400;
    QCOMPARE(QColor(window.pixel(columnWidth - 1, y)), QColor(9, 11, 14));
    QCOMPARE(QColor(window.pixel(columnWidth - 2, y)), QColor(63, 73, 86));
}

void TestVkviewer::screenshot_ofAGallery_data()
{
    QTest::addColumn<QString>("dotsPerInch");
    QTest::newRow("96") << "96";
    QTest::newRow("144") << "144";
}

void TestVkviewer::screenshot_ofAGallery()
{
    QFETCH(QString, dotsPerInch);
    const QString picture = path("gallery.png");
    QCOMPARE(run({ "--screenshot", picture, "--size", "900x700", VKINTENSITY_SAMPLES },
                 { { "QT_FONT_DPI", dotsPerInch } }),
        0);
    QVERIFY2(m_errors.isEmpty(), m_errors.constData());
    const QImage window(picture);
    QCOMPARE(window.size(), QSize(900, 700));
    // The pictures are there: of the texts only heading and selected name are as bright.
    int bright = 0;
    for (int y = 0; y < window.height(); ++y) {
        for (int x = 0; x < window.width(); ++x) {
            bright += qGray(window.pixel(x, y)) > 220;
        }
    }
    QVERIFY(bright > 1000);
}

void TestVkviewer::screenshot_ofAGalleryOfHostileFiles()
{
    const QTemporaryDir folder;
    for (const char* name : { "cut.png", "corrupt.png", "zeros.tif", "huge.raw", "text.jpg" }) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content(sample("colour-chart.png")).left(5000));
    }
    QFile marker(folder.filePath("marker.jpg"));
    QVERIFY(marker.open(QIODevice::WriteOnly) && marker.write("\xff\xd8\xff") == 3);
    marker.close();
    const QString picture = path("hostile.png");
    QCOMPARE(run({ "--screenshot", picture, folder.path() }), 0);
    QVERIFY2(m_errors.isEmpty(), m_errors.constData()); // nothing of the codecs' own
    QVERIFY(!QImage(picture).isNull());
}

void TestVkviewer::screenshot_withRegions()
{
    const QString picture = path("regions.png");
    const QString target = sample("dim-cells-12bit.raw"); // 1280 x 960, shown about half as large
    QCOMPARE(run({ "--screenshot", picture, "--size", "1280x900", target }), 0);
    QCOMPARE(canvasCount(QImage(picture), isRegionRed), 0);
    QCOMPARE(run({ "--screenshot", picture, "--size", "1280x900", "--roi", "200,100,300,200",
                 "--roi", "800,500,400,300", target }),
        0);
    QVERIFY2(m_errors.isEmpty(), m_errors.constData());
    // Two outlines of about 2 x (300 + 200) x 0.65 and 2 x (400 + 300) x 0.65 pixels.
    QVERIFY(canvasCount(QImage(picture), isRegionRed) > 1200);
    QVERIFY(m_output.isEmpty()); // they are exactly what was asked for
}

/// The same regions as boxes, which count y from the bottom row and from the middle of pixels.
void TestVkviewer::screenshot_withARegionFile()
{
    const QString target = sample("dim-cells-12bit.raw"); // 1280 x 960
    const QStringList start { "--screenshot", path("boxes.png"), "--size", "1280x900" };
    const QByteArray boxes = "image\nbox(350.5,760.5,300,200,0)\nbox(1000.5,310.5,400,300,0)\n";
    const auto shown = [&](const QStringList& options) {
        return run(start + options + QStringList { target }) == 0 ? QImage(path("boxes.png"))
                                                                  : QImage();
    };
    const QImage expected = shown({ "--roi", "200,100,300,200", "--roi", "800,500,400,300" });
    QVERIFY(!expected.isNull());
    QCOMPARE(shown({ "--regions", written("boxes.reg", boxes) }), expected);
    QVERIFY2(m_errors.isEmpty(), m_errors.constData());
    const QByteArray more = "circle(9,9,5)\nfk5\nbox(9,9,5,5,0)\n";
    const QString mixed = written("mixed.reg", boxes + more);
    QCOMPARE(shown({ "--regions", mixed }), expected);
    QCOMPARE(QString::fromLocal8Bit(m_errors),
        QString("vkviewer: %1: left out: shapes other than upright boxes (1), shapes in other than "
                "image coordinates (1)\n")
            .arg(mixed));
}

void TestVkviewer::screenshot_ofTheCharts()
{
    const QString lamp = sample("lamp-spectrum.raw");
    const auto chart = [&](const QString& view, const QStringList& more) {
        const QString picture = path("chart.png");
        const QStringList start { "--screenshot", picture, "--size", "1280x900", "--view", view };
        return run(start + more + QStringList { lamp }) == 0 ? QImage(picture) : QImage();
    };
    const QImage row = chart("x", {});
    const QImage column = chart("y", {});
    QVERIFY(!row.isNull() && !column.isNull() && row != column);
    QVERIFY(canvasCount(row, isCurveColour) > 1000);
    const QImage labelled = chart("x", { "--peaks", "12" });
    const QImage calibrated = chart("x", { "--peaks", "12", "--wavelength", "100,1,nm" });
    QVERIFY(!labelled.isNull() && !calibrated.isNull() && labelled != calibrated);
    QVERIFY(labelled != row);
    QVERIFY(m_output.isEmpty());
    QVERIFY2(m_errors.isEmpty(), m_errors.constData());
    QCOMPARE(chart("x", { "--peaks", "12", "--wavelength", "100,1,nm" }), calibrated); // no cursor
}

void TestVkviewer::screenshot_inAPalette()
{
    const QString picture = path("palette.png");
    const auto isDarkRed = [](const QColor& color) {
        return color.red() > 80 && color.green() < 30 && color.blue() < 30;
    };
    const QStringList start { "--screenshot", picture, "--size", "1280x900",
        sample("interference-rings-32bit.raw"), "--palette" };
    QCOMPARE(run(start + QStringList { "Gray" }), 0);
    QCOMPARE(canvasCount(QImage(picture), isDarkRed), 0);
    QCOMPARE(run(start + QStringList { "RED" }), 0);
    QVERIFY(canvasCount(QImage(picture), isDarkRed) > 50000);
}

void TestVkviewer::screenshot_ofControlsInASmallWindow()
{
    const QString picture = path("small.png");
    QCOMPARE(
        run({ "--screenshot", picture, "--size", "640x480", "--roi", "10,10,90,90", "--view", "y",
            "--peaks", "3", "--palette", "blue", "--wavelength", "0,5", sample("star-field.raw") }),
        0);
    QVERIFY(m_output.isEmpty());
    QCOMPARE(QImage(picture).size(), QSize(640, 480));
}

void TestVkviewer::screenshot_onDenseScreens_data()
{
    QTest::addColumn<QString>("dotsPerInch");
    QTest::addColumn<int>("columnWidth"); // of the panel, in pixels
    QTest::newRow("96") << "96" << 290;
    QTest::newRow("144") << "144" << 435; // not scaled as a whole: the widget grows by itself
    QTest::newRow("192") << "192" << 580; // twice as large as a whole
}

/// With the scaling of the window system, as users have it.
void TestVkviewer::screenshot_onDenseScreens()
{
    QFETCH(QString, dotsPerInch);
    QFETCH(int, columnWidth);
    const QString picture = path("dense.png");
    QCOMPARE(run({ "--screenshot", picture, "--size", "1501x1101", sample("lamp-spectrum.raw") },
                 { { "QT_FONT_DPI", dotsPerInch }, { "QT_ENABLE_HIGHDPI_SCALING", "1" } }),
        0);
    const QImage window(picture);
    QCOMPARE(window.size(), QSize(1501, 1101));
    // The border of the column is darker than the column, and the canvas lies right of it.
    const int middle = 1101 / 2;
    const auto isCanvas = [&window](int x, int y) { return qGray(window.pixel(x, y)) < 25; };
    QVERIFY(!isCanvas(columnWidth / 2, 60));
    for (int x = columnWidth + 2; x < columnWidth + 12; ++x) {
        QVERIFY(isCanvas(x, middle / 3));
    }
}

void TestVkviewer::names_inAnyScript()
{
    for (const char* name : { "Größe.raw", "光谱.raw", "תמונה.raw", "with  spaces.raw" }) {
        const QString image = path(QString::fromUtf8(name));
        const QString picture = image + ".png";
        QVERIFY(QFile::copy(sample("lamp-spectrum.raw"), image));
        QCOMPARE(run({ "--screenshot", picture, image }), 0);
        QVERIFY2(!QImage(picture).isNull(), name);
        QCOMPARE(run({ "--screenshot", path("again.png"), picture }), 0); // a PNG image, too
        QVERIFY2(m_errors.isEmpty(), m_errors.constData());
    }
}

void TestVkviewer::language_followsTheEnvironment()
{
    if (!QByteArray(VKINTENSITY_LANGUAGES).contains("de,zh_CN")) {
        QTest::qSkip("built without translations", __FILE__, __LINE__);
        return;
    }
    QCOMPARE(run({ "--help" }, { { "LC_ALL", "de_DE.UTF-8" } }), 0);
    QVERIFY(m_output.startsWith("Aufruf: vkviewer"));
    QCOMPARE(run({ "--nonsense" }, { { "LC_ALL", "de_DE.UTF-8" } }), 1);
    QVERIFY(m_errors.contains("unbekannte Option --nonsense"));
    QCOMPARE(run({ "--help" }, { { "LC_ALL", "zh_CN.UTF-8" } }), 0);
    QVERIFY(m_output.contains(QByteArray("用法")));
    QCOMPARE(run({ "--help" }, { { "LC_ALL", "en_GB.UTF-8" } }), 0);
    QVERIFY(m_output.startsWith("Usage: vkviewer"));
}

void TestVkviewer::screenshot_withoutADisplay()
{
    const QString picture = path("headless.png");
    QCOMPARE(run({ "--screenshot", picture, sample("lamp-spectrum.raw") },
                 { { "QT_QPA_PLATFORM", "" }, { "DISPLAY", "" }, { "WAYLAND_DISPLAY", "" } }),
        0);
    QVERIFY(!QImage(picture).isNull());
}

void TestVkviewer::failures_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    const QString lamp = sample("lamp-spectrum.raw");
    const QString out = path("never.png");
    const QString gone = path("gone.raw");
    const QString notes = written("notes.txt", "hello");
    const QString deep = path("no/such/folder.png");
    QTest::newRow("missing image")
        << QStringList { "--screenshot", out, gone } << gone + ": There is no file of this name.";
    QTest::newRow("unknown suffix") << QStringList { "--screenshot", out, notes }
                                    << notes
            + ": Files of the kind \"txt\" are not known. Images end in jpg, jpeg, tif, tiff, bmp, "
              "png, raw.";
    QTest::newRow("unwritable") << QStringList { "--screenshot", deep, lamp }
                                << deep + ": cannot be written: No such file or directory";
    QTest::newRow("no image") << QStringList { "--screenshot", out }
                              << "--screenshot needs an image to show";
    QTest::newRow("unknown option") << QStringList { "--screenshot", out, "--frobnicate" }
                                    << "unknown option --frobnicate (see --help)";
    QTest::newRow("region outside")
        << QStringList { "--screenshot", out, "--roi", "1000,0,25,10", lamp }
        << lamp + ": the region 1000,0,25,10 does not lie inside the image of 1024x256 pixels";
    const QString empty = written("empty.reg", QByteArray());
    const QString noRegions = path("gone.reg");
    QTest::newRow("no region file") << QStringList { "--screenshot", out, "--regions", noRegions,
        lamp } << noRegions + ": cannot be read: No such file or directory";
    QTest::newRow("region file without regions") << QStringList { "--screenshot", out, "--regions",
        empty, lamp } << empty + ": there is no region in it";
    QTest::newRow("regions of a folder") << QStringList { "--screenshot", out, "--regions", empty,
        m_folder.path() } << m_folder.path() + ": only an image has controls to set";
    QTest::newRow("controls of a folder") << QStringList { "--screenshot", out, "--view", "x",
        m_folder.path() } << m_folder.path() + ": only an image has controls to set";
    QTest::newRow("unknown palette") << QStringList { "--screenshot", out, "--palette", "pink",
        lamp } << "--palette needs gray, red, green, blue or color";
    QTest::newRow("absurd size") << QStringList { "--screenshot", out, "--size", "999999x999999",
        lamp } << "--size needs WIDTHxHEIGHT, each from 1 to 8192";
    QTest::newRow("tiny size") << QStringList { "--screenshot", out, "--size", "20x20", lamp }
                               << "the window is at least 640x480 pixels";
    QTest::newRow("page that is not there") << QStringList { "--screenshot", out, "--page", "2",
        lamp } << lamp + ": The file has no such page.";
    QTest::newRow("line feed in the name") << QStringList { "--screenshot", out, "a\nb.png" }
                                           << "a b.png: There is no file of this name.";
}

void TestVkviewer::failures()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    QCOMPARE(run(arguments), 1);
    QCOMPARE(QString::fromUtf8(m_errors), "vkviewer: " + error + "\n");
    QVERIFY(m_output.isEmpty());
    QVERIFY(!QFile::exists(path("never.png")));
}

void TestVkviewer::hostileFiles_data()
{
    QTest::addColumn<QString>("file");
    const QByteArray chart = content(sample("colour-chart.png"));
    const QByteArray target = content(sample("grey-target-odd-width.bmp"));
    const QByteArray lamp = content(sample("lamp-spectrum.raw"));
    QVERIFY(chart.size() > 6000 && target.size() > 6000 && lamp.size() > 6000);
    QByteArray corrupt = chart;
    corrupt.replace(1000, 3000, QByteArray(3000, '\x5A'));
    QTest::newRow("empty PNG") << written("empty.png", "");
    QTest::newRow("cut PNG") << written("cut.png", chart.left(5000));
    QTest::newRow("corrupt PNG") << written("corrupt.png", corrupt);
    QTest::newRow("header of a PNG") << written("header.png", chart.left(20));
    QTest::newRow("cut BMP") << written("cut.bmp", target.left(3000));
    QTest::newRow("text as JPEG") << written("text.jpg", "hello");
    QTest::newRow("start marker of a JPEG") << written("marker.jpg", "\xff\xd8\xff");
    QTest::newRow("zeros as TIFF") << written("zeros.tif", QByteArray(5000, '\0'));
    QTest::newRow("zeros as raw") << written("zeros.raw", QByteArray(5000, '\0'));
    RawHeader header;
    header.width = header.height = 65535;
    header.channels = header.bytesPerChannel = 255;
    header.dataSize = 0xFFFFFFFFu;
    QTest::newRow("raw beyond memory") << written("huge.raw", encodedRawHeader(header) + "abc");
    header.width = 0;
    QTest::newRow("raw without pixels") << written("none.raw", encodedRawHeader(header));
    QTest::newRow("raw, signature alone") << written("signature.raw", "VORLAK");
}

void TestVkviewer::hostileFiles()
{
    QFETCH(QString, file);
    QVERIFY(!file.isEmpty());
    QCOMPARE(run({ "--screenshot", path("never.png"), file }), 1);
    QCOMPARE(m_errors.count('\n'), 1); // nothing of the codecs' own
    QVERIFY(m_errors.startsWith("vkviewer: " + file.toUtf8() + ": "));
    QVERIFY(!QFile::exists(path("never.png")));
}

void TestVkviewer::noDisplay()
{
#ifdef Q_OS_LINUX
    QCOMPARE(
        run({}, { { "QT_QPA_PLATFORM", "" }, { "DISPLAY", "" }, { "WAYLAND_DISPLAY", "" } }), 1);
    QCOMPARE(m_errors.count('\n'), 1);
#else
    QTest::qSkip("only X and Wayland can be without a display", __FILE__, __LINE__);
#endif
}

void TestVkviewer::palettesStandBesideTheProgram()
{
    const QDir folder(QFileInfo(VKVIEWER_PROGRAM).absolutePath() + "/pal");
    for (const char* name : { "red.pal", "green.pal", "blue.pal", "color.pal" }) {
        QCOMPARE(content(folder.filePath(name)).count('\n'), 256);
    }
}

QTEST_GUILESS_MAIN(TestVkviewer)
#include "tst_vkviewer.moc"
