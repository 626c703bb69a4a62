#include "exportdialog.h"
#include "support/focusvisibility.h"
#include "support/nextdialog.h"
#include "viewerfixture.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QGraphicsView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardPaths>
#include <QStatusBar>

namespace {

constexpr int width = 64;
constexpr int height = 48;

/// Values are x + y, apart from one of 200 at (30, 20).
QByteArray sampleBytes()
{
    QByteArray bytes;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            bytes.append(x == 30 && y == 20 ? char(uchar(200)) : char(x + y));
        }
    }
    return bytes;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The lines of a CSV file without its preamble.
QList<QByteArray> tableLines(const QByteArray& csv)
{
    QList<QByteArray> lines;
    for (const QByteArray& line : csv.split('\n')) {
        if (!line.startsWith('#') && !line.isEmpty()) {
            lines << line;
        }
    }
    return lines;
}

QString clipboardText()
{
    return QApplication::clipboard()->text();
}

} // namespace

/// Numbers and pictures that leave the viewer, with real events.
class TestExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void dialog_offersWhatThereIs();
    void dialog_remembersTheChoice();
    void dialog_escapeDoesNothing();
    void statistics_asCsv();
    void histogram_ofImageAndRegion();
    void profiles_asCsv();
    void peaks_asManyAsThePanelSays();
    void json_data();
    void json();
    void copyNumbers();
    void copyNumbers_byTheButton();
    void imageThatGoesMeanwhile();

    void copyKey_onTheCanvas();
    void copyKey_followsTheFocus();
    void copyValue_byTheMenu();
    void canvas_takesTheFocus();

    void fileName_isOfferedBesideTheImage();
    void unwritable_data();
    void unwritable();
    void openImage_isNotWrittenOver();
    void oldFile_isReplaced();

    void savePicture();
    void saveVisiblePart();
    void pictures_areOfferedAFolderOfTheirOwn();
    void savedPath_isElidedInTheMiddle();
    void print_withoutAPrinterSavesAPdf();
    void print_ofTheGallery();

private:
    void exportAs(const char* kind, bool isJson, const QString& file);
    void answerDialog(const char* kind, const char* format, const char* button);
    QString message() const { return m_viewer->window->statusBar()->currentMessage(); }

    std::unique_ptr<ViewerFixture> m_viewer;
};

void TestExport::initTestCase()
{
    qputenv("CUPS_SERVER", "/no such server"); // the machine may have a printer
    QStandardPaths::setTestModeEnabled(true);
    ViewerFixture::setUpProgram();
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setApplicationName("vkviewer");
}

void TestExport::init()
{
    m_viewer = std::make_unique<ViewerFixture>();
    RawFrame frame;
    frame.width = width;
    frame.height = height;
    frame.bytes = sampleBytes();
    QString problem;
    QVERIFY2(writeRawFrame(m_viewer->path("ramp.raw"), frame, &problem), qPrintable(problem));
    QVERIFY(m_viewer->window->openFile(m_viewer->path("ramp.raw")));
    QVERIFY(m_viewer->intensity()->setCrossHair(QPoint(10, 20)));
    QApplication::clipboard()->clear();
}

void TestExport::cleanup()
{
    m_viewer.reset();
}

/// Chooses in the next export dialog and presses one of its buttons.
void TestExport::answerDialog(const char* kind, const char* format, const char* button)
{
    withNextDialog<ExportDialog>(this, [=](ExportDialog* dialog) {
        for (const char* name : { kind, format }) {
            if (*name) {
                auto* radio = dialog->findChild<QRadioButton*>(name);
                QVERIFY2(radio->isEnabled(), name);
                QTest::mouseClick(radio, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
                QVERIFY(radio->isChecked());
            }
        }
        QTest::mouseClick(dialog->findChild<QPushButton*>(button), Qt::LeftButton);
    });
}

/// By Ctrl+E.
void TestExport::exportAs(const char* kind, bool isJson, const QString& file)
{
    answerDialog(kind, isJson ? "exportJson" : "exportCsv", "exportSave");
    chooseNextFile(this, m_viewer->path(file));
    m_viewer->press("Ctrl+E");
    QCOMPARE(message(), "Saved as " + m_viewer->path(file));
}

void TestExport::dialog_offersWhatThereIs()
{
    QStringList enabled;
    const auto look = [this, &enabled] {
        enabled.clear();
        withNextDialog<ExportDialog>(this, [&enabled](ExportDialog* dialog) {
            for (const auto* radio : dialog->findChildren<QRadioButton*>()) {
                enabled << (radio->isEnabled() ? radio->objectName() : QString());
            }
            dialog->reject();
        });
        m_viewer->press("Ctrl+E");
        enabled.removeAll(QString());
    };
    look();
    QCOMPARE(enabled,
        (QStringList { "exportImageHistogram", "exportRow", "exportColumn", "exportRowPeaks",
            "exportColumnPeaks", "exportCsv", "exportJson" }));
    QVERIFY(m_viewer->intensity()->addRegion(QRect(2, 3, 4, 2)));
    look();
    QVERIFY(enabled.contains("exportStatistics") && enabled.contains("exportRegionHistogram"));
    QVERIFY(m_viewer->intensity()->selectRegion(-1));
    look();
    QVERIFY(enabled.contains("exportStatistics") && !enabled.contains("exportRegionHistogram"));
    m_viewer->window->showGallery(m_viewer->folder.path());
    for (const char* name : { "actionExportNumbers", "actionCopyNumbers", "actionCopyValue",
             "actionSavePicture", "actionSaveVisiblePart" }) {
        QVERIFY2(!m_viewer->action(name)->isEnabled(), name);
    }
}

void TestExport::dialog_remembersTheChoice()
{
    exportAs("exportColumn", true, "a.json");
    QString checked;
    withNextDialog<ExportDialog>(this, [&checked](ExportDialog* dialog) {
        for (const auto* radio : dialog->findChildren<QRadioButton*>()) {
            checked += radio->isChecked() ? radio->objectName() + ' ' : QString();
        }
        dialog->reject();
    });
    m_viewer->press("Ctrl+E");
    QCOMPARE(checked, QString("exportColumn exportJson "));
    QVERIFY(m_viewer->intensity()->addRegion(QRect(2, 3, 4, 2)));
    answerDialog("exportStatistics", "", "exportCopy");
    m_viewer->press("Ctrl+E");
    QVERIFY(m_viewer->intensity()->setRegions({}));
    answerDialog("", "", "exportCopy"); // the first one that there is
    m_viewer->press("Ctrl+E");
    QVERIFY(clipboardText().startsWith("value\tcount\n"));
}

void TestExport::dialog_escapeDoesNothing()
{
    withNextDialog<ExportDialog>(
        this, [](ExportDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    m_viewer->press("Ctrl+E");
    QVERIFY(message().isEmpty());
    QVERIFY(clipboardText().isEmpty());
}

/// 5, 6, 7, 8 and 6, 7, 8, 9: a mean of 7, and squares of the distances that add up to 12.
void TestExport::statistics_asCsv()
{
    QVERIFY(m_viewer->intensity()->setRegions({ QRect(2, 3, 4, 2), QRect(0, 0, 1, 1) }));
    exportAs("exportStatistics", false, "a.csv");
    const QByteArray csv = contentOf(m_viewer->path("a.csv"));
    QVERIFY(csv.startsWith("# "));
    QVERIFY(csv.contains("# file: " + m_viewer->path("ramp.raw").toUtf8() + '\n'));
    QVERIFY(csv.contains("# program: vkviewer\n"));
    const QList<QByteArray> lines = tableLines(csv);
    QCOMPARE(int(lines.size()), 3);
    QCOMPARE(lines[0],
        QByteArray(
            "region,x,y,width,height,pixels,mean,minimum,maximum,deviation,signal_to_noise"));
    const QList<QByteArray> first = lines[1].split(',');
    QCOMPARE(first.mid(0, 6), (QList<QByteArray> { "1", "2", "3", "4", "2", "8" }));
    QCOMPARE(first[6].toDouble(), 7.0);
    QCOMPARE(first.mid(7, 2), (QList<QByteArray> { "5", "9" }));
    QCOMPARE(first[9].toDouble(), std::sqrt(1.5));
    QCOMPARE(first[10].toDouble(), 7.0 / std::sqrt(1.5));
    QVERIFY(lines[2].startsWith("2,0,0,1,1,1,0,0,0,0,nan")); // nothing deviates in one pixel
}

void TestExport::histogram_ofImageAndRegion()
{
    QVERIFY(m_viewer->intensity()->addRegion(QRect(2, 3, 4, 2)));
    exportAs("exportRegionHistogram", false, "a.csv");
    QByteArray csv = contentOf(m_viewer->path("a.csv"));
    QVERIFY(csv.contains("# region: x=2 y=3 width=4 height=2\n"));
    QCOMPARE(
        tableLines(csv), (QList<QByteArray> { "value,count", "5,1", "6,2", "7,2", "8,2", "9,1" }));
    exportAs("exportImageHistogram", false, "b.csv");
    csv = contentOf(m_viewer->path("b.csv"));
    QVERIFY(!csv.contains("# region"));
    const QList<QByteArray> lines = tableLines(csv);
    QCOMPARE(int(lines.size()), 1 + 201); // 0 to 200
    QCOMPARE(lines[1], QByteArray("0,1"));
    QCOMPARE(lines[3], QByteArray("2,3"));
    QCOMPARE(lines[201], QByteArray("200,1"));
}

void TestExport::profiles_asCsv()
{
    exportAs("exportRow", false, "a.csv");
    QByteArray csv = contentOf(m_viewer->path("a.csv"));
    QVERIFY(csv.contains("# region: x=0 y=20 width=64 height=1\n"));
    QList<QByteArray> lines = tableLines(csv);
    QCOMPARE(int(lines.size()), 1 + width);
    QCOMPARE(lines[0], QByteArray("pixel,position,value"));
    QCOMPARE(lines[1], QByteArray("0,0,20"));
    QCOMPARE(lines[31], QByteArray("30,30,200"));
    CVKIntensityWidget::Calibration nanometers;
    nanometers.start = 400;
    nanometers.pixelWidth = 2;
    nanometers.unit = CVKIntensityWidget::Unit::Nanometers;
    QVERIFY(m_viewer->intensity()->setCalibration(nanometers));
    exportAs("exportColumn", false, "b.csv");
    csv = contentOf(m_viewer->path("b.csv"));
    QVERIFY(csv.contains("# region: x=10 y=0 width=1 height=48\n"));
    QVERIFY(csv.contains("# calibration: start=400 width=2 unit=nm\n"));
    lines = tableLines(csv);
    QCOMPARE(int(lines.size()), 1 + height);
    QCOMPARE(lines[0], QByteArray("pixel,position [nm],value"));
    QCOMPARE(lines[48], QByteArray("47,400,57")); // the bottom row
    QCOMPARE(lines[1], QByteArray("0,494,10"));
}

void TestExport::peaks_asManyAsThePanelSays()
{
    exportAs("exportRowPeaks", false, "a.csv");
    const QList<QByteArray> lines = tableLines(contentOf(m_viewer->path("a.csv")));
    QVERIFY(lines.size() >= 2);
    QCOMPARE(lines[0], QByteArray("rank,pixel,position,value"));
    QCOMPARE(lines[1], QByteArray("1,30,30,200"));
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw"))); // full of peaks
    CVKIntensityWidget* image = m_viewer->intensity();
    for (const int count : { 3, 5 }) {
        QVERIFY(image->setPeakLabels({ false, count }));
        const QString file = QString("%1.csv").arg(count);
        exportAs("exportRowPeaks", false, file);
        QCOMPARE(int(tableLines(contentOf(m_viewer->path(file))).size()), 1 + count);
    }
}

void TestExport::json_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("filled");
    QTest::newRow("statistics") << "exportStatistics"
                                << "regions";
    QTest::newRow("region") << "exportRegionHistogram"
                            << "regions";
    QTest::newRow("image") << "exportImageHistogram"
                           << "histogram";
    QTest::newRow("row") << "exportRow"
                         << "rows";
    QTest::newRow("column") << "exportColumn"
                            << "columns";
    QTest::newRow("peaks") << "exportRowPeaks"
                           << "rows";
}

void TestExport::json()
{
    QFETCH(QString, kind);
    QFETCH(QString, filled);
    QVERIFY(m_viewer->intensity()->addRegion(QRect(2, 3, 4, 2)));
    exportAs(qPrintable(kind), true, "a.json");
    const QByteArray content = contentOf(m_viewer->path("a.json"));
    QVERIFY(content.endsWith("}\n") && content.count('\n') == 1);
    const QJsonObject object = QJsonDocument::fromJson(content).object();
    QCOMPARE(object["file"].toString(), m_viewer->path("ramp.raw"));
    QCOMPARE(object["width"].toInt(), 64);
    for (const char* name : { "regions", "rows", "columns" }) {
        QCOMPARE(int(object[name].toArray().size()), filled == name ? 1 : 0);
    }
    QCOMPARE(object["histogram"].isObject(), filled == "histogram");
    const QJsonObject region = object["regions"].toArray().at(0).toObject();
    QCOMPARE(region["histogram"].isObject(), kind == "exportRegionHistogram");
    QCOMPARE(region["pixels"].toInt(), filled == "regions" ? 8 : 0);
    const QJsonObject row = object["rows"].toArray().at(0).toObject();
    QCOMPARE(row["peaks"].isArray(), kind == "exportRowPeaks");
    QCOMPARE(row["index"].toInt(), filled == "rows" ? 20 : 0);
    QCOMPARE(object["columns"].toArray().at(0).toObject()["index"].toInt(),
        filled == "columns" ? 10 : 0);
}

/// Return copies at once.
void TestExport::copyNumbers()
{
    QVERIFY(m_viewer->intensity()->addRegion(QRect(2, 3, 4, 2)));
    withNextDialog<ExportDialog>(this, [](ExportDialog* dialog) {
        QTest::mouseClick(dialog->findChild<QRadioButton*>("exportRegionHistogram"), Qt::LeftButton,
            Qt::NoModifier, QPoint(8, 8));
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    m_viewer->action("actionCopyNumbers")->trigger();
    QCOMPARE(clipboardText(), QString("value\tcount\n5\t1\n6\t2\n7\t2\n8\t2\n9\t1\n"));
    QCOMPARE(message(), QString("The numbers are on the clipboard."));
}

void TestExport::copyNumbers_byTheButton()
{
    answerDialog("exportRow", "", "exportCopy");
    m_viewer->press("Ctrl+E");
    QVERIFY(clipboardText().startsWith("pixel\tposition\tvalue\n0\t0\t20\n1\t1\t21\n"));
    QVERIFY(!clipboardText().contains('#'));
}

/// Its file is written anew while the dialog is open.
void TestExport::imageThatGoesMeanwhile()
{
    QVERIFY(m_viewer->intensity()->addRegion(QRect(2, 3, 4, 2)));
    withNextDialog<ExportDialog>(this, [this](ExportDialog* dialog) {
        QVERIFY(m_viewer->intensity()->setRegions({}));
        QTest::mouseClick(dialog->findChild<QPushButton*>("exportSave"), Qt::LeftButton);
    });
    m_viewer->press("Ctrl+E");
    QCOMPARE(message(), QString("The image has changed, and these numbers are gone."));
}

void TestExport::copyKey_onTheCanvas()
{
    auto* view = m_viewer->intensity()->findChild<QGraphicsView*>();
    view->setFocus(Qt::TabFocusReason);
    m_viewer->press("Ctrl+C");
    QCOMPARE(clipboardText(), QString("10\t20\t30"));
    QCOMPARE(message(), QString("The value 30 is on the clipboard."));
    QVERIFY(m_viewer->intensity()->setCrossHair(QPoint(30, 20)));
    m_viewer->press("Ctrl+2"); // the chart of the row, with the same cross-hair
    m_viewer->press("Ctrl+C");
    QCOMPARE(clipboardText(), QString("30\t20\t200"));
    m_viewer->control<QWidget>("comboBoxType")->setFocus();
    m_viewer->press("Ctrl+C");
    QCOMPARE(QApplication::clipboard()->image().size(), m_viewer->window->size());
}

void TestExport::copyKey_followsTheFocus()
{
    auto* view = m_viewer->intensity()->findChild<QGraphicsView*>();
    const QKeySequence key("Ctrl+C");
    const auto keyIsOf = [this, &key](const char* name) {
        const char* other
            = qstrcmp(name, "actionCopyValue") == 0 ? "actionCopyWindow" : "actionCopyValue";
        return m_viewer->action(name)->shortcut() == key
            && m_viewer->action(other)->shortcut().isEmpty();
    };
    QVERIFY(view->hasFocus()); // as after each load
    QVERIFY(keyIsOf("actionCopyValue"));
    m_viewer->control<QWidget>("comboBoxType")->setFocus();
    QVERIFY(keyIsOf("actionCopyWindow"));
    view->setFocus();
    m_viewer->press("F1"); // the help takes the focus
    QVERIFY(keyIsOf("actionCopyWindow"));
    QTest::keyClick(m_viewer->window->focusWidget(), Qt::Key_Escape);
    QVERIFY(keyIsOf("actionCopyValue"));
    m_viewer->press("Ctrl+G");
    QVERIFY(keyIsOf("actionCopyWindow"));
    m_viewer->press("Ctrl+C");
    QCOMPARE(QApplication::clipboard()->image().size(), m_viewer->window->size());
}

void TestExport::copyValue_byTheMenu()
{
    m_viewer->action("actionCopyValue")->trigger();
    QCOMPARE(clipboardText(), QString("10\t20\t30"));
}

void TestExport::canvas_takesTheFocus()
{
    auto* view = m_viewer->intensity()->findChild<QGraphicsView*>();
    m_viewer->control<QWidget>("pushButtonAdd")->setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 5 && !view->hasFocus(); ++i) {
        QTest::keyClick(m_viewer->window->focusWidget(), Qt::Key_Tab);
    }
    QVERIFY(view->hasFocus());
    QVERIFY(focusIsSeen(view));
    m_viewer->control<QWidget>("comboBoxType")->setFocus();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 200));
    QVERIFY(view->hasFocus());
}

void TestExport::fileName_isOfferedBesideTheImage()
{
    QString name;
    QDir folder;
    answerDialog("exportRow", "exportJson", "exportSave");
    withNextDialog<QFileDialog>(this, [&name, &folder](QFileDialog* dialog) {
        name = dialog->selectedFiles().value(0);
        folder = dialog->directory();
        dialog->reject();
    });
    m_viewer->press("Ctrl+E");
    QCOMPARE(name, m_viewer->path("ramp-row.json"));
    QCOMPARE(folder.path(), m_viewer->folder.path());
    QVERIFY(message().isEmpty());
    QVERIFY(!QFile::exists(name));
}

void TestExport::unwritable_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("name");
    for (const char* entry : { "actionExportNumbers", "actionSavePicture", "actionPrint" }) {
        QTest::addRow("%s, below a file", entry) << entry << "ramp.raw/a";
        QTest::addRow("%s, a dead link", entry) << entry << "link";
    }
}

void TestExport::unwritable()
{
    QFETCH(QString, entry);
    QFETCH(QString, name);
    for (const char* suffix : { "csv", "png", "pdf" }) {
        QVERIFY(QFile::link(
            m_viewer->path("no such folder/a"), m_viewer->path(QString("link.") + suffix)));
    }
    if (entry == "actionExportNumbers") {
        answerDialog("exportRow", "exportCsv", "exportSave");
    }
    chooseNextFile(this, m_viewer->path(name));
    QString reason;
    withNextDialog<QMessageBox>(this, [&reason](QMessageBox* problem) {
        reason = problem->text();
        QTest::keyClick(problem, Qt::Key_Return);
    });
    m_viewer->action(qPrintable(entry))->trigger();
    QVERIFY2(reason.contains(name) && reason.contains("cannot be written: "), qPrintable(reason));
    QVERIFY(!reason.endsWith("Unknown error"));
    QVERIFY(message().isEmpty());
    QVERIFY(contentOf(m_viewer->path("ramp.raw")).size() > width * height);
}

void TestExport::openImage_isNotWrittenOver()
{
    const QByteArray before = contentOf(m_viewer->path("ramp.raw"));
    QVERIFY(QFile::link(m_viewer->path("ramp.raw"), m_viewer->path("other.csv")));
    answerDialog("exportRow", "exportCsv", "exportSave");
    chooseNextFile(this, m_viewer->path("other.csv"));
    QStringList texts;
    for (int i = 0; i < 2; ++i) { // the dialog asks whether to replace the file, then comes ours
        withNextDialog<QMessageBox>(this, [&texts](QMessageBox* problem) {
            texts << problem->text();
            auto* yes = problem->button(QMessageBox::Yes);
            QTest::mouseClick(yes ? yes : problem->button(QMessageBox::Ok), Qt::LeftButton);
        });
    }
    m_viewer->press("Ctrl+E");
    QCOMPARE(int(texts.size()), 2);
    QVERIFY2(texts[1].contains("this is the image that is shown"), qPrintable(texts[1]));
    QCOMPARE(contentOf(m_viewer->path("ramp.raw")), before);
}

void TestExport::oldFile_isReplaced()
{
    QFile old(m_viewer->path("a.csv"));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();
    withNextDialog<QMessageBox>(this, [](QMessageBox* question) {
        QTest::mouseClick(question->button(QMessageBox::Yes), Qt::LeftButton);
    });
    exportAs("exportRow", false, "a.csv");
    QVERIFY(contentOf(m_viewer->path("a.csv")).startsWith("# program"));
}

void TestExport::savePicture()
{
    QVERIFY(m_viewer->intensity()->zoomIn()); // changes nothing
    chooseNextFile(this, m_viewer->path("a"));
    m_viewer->action("actionSavePicture")->trigger();
    QCOMPARE(message(), "Saved as " + m_viewer->path("a.png"));
    const QImage picture(m_viewer->path("a.png"));
    QCOMPARE(picture.size(), QSize(width, height));
    QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::black)); // the smallest value
    QVERIFY(picture.pixelColor(30, 20).lightness() >= 250); // the largest one
}

void TestExport::saveVisiblePart()
{
    CVKIntensityWidget* image = m_viewer->intensity();
    QVERIFY(image->setCrossHair(QPoint(30, 20)));
    for (int i = 0; i < 3; ++i) {
        QVERIFY(image->zoomIn());
    }
    const QRect part = image->visiblePixels();
    QVERIFY(part.width() < width && part.contains(30, 20));
    chooseNextFile(this, m_viewer->path("a.png"));
    m_viewer->action("actionSaveVisiblePart")->trigger();
    const QImage picture(m_viewer->path("a.png"));
    QCOMPARE(picture.size(), part.size());
    QVERIFY(picture.pixelColor(QPoint(30, 20) - part.topLeft()).lightness() >= 250);
}

void TestExport::pictures_areOfferedAFolderOfTheirOwn()
{
    const QString home = QDir::homePath();
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const bool isThere = QFileInfo(pictures).isDir();
    QString folder;
    QString name;
    withNextDialog<QFileDialog>(this, [&folder, &name](QFileDialog* dialog) {
        folder = dialog->directory().path();
        name = QFileInfo(dialog->selectedFiles().value(0)).fileName();
        dialog->reject();
    });
    m_viewer->action("actionSavePicture")->trigger();
    QCOMPARE(folder, isThere ? pictures : home);
    QCOMPARE(name, QString("ramp-picture.png"));
}

void TestExport::savedPath_isElidedInTheMiddle()
{
    const QString deep = QString("folder with a long name/").repeated(8);
    QVERIFY(QDir(m_viewer->folder.path()).mkpath(deep));
    m_viewer->window->resize(m_viewer->window->minimumSize());
    chooseNextFile(this, m_viewer->path(deep + "a.png"));
    m_viewer->press("Ctrl+S");
    const QString text = message();
    QVERIFY2(text.startsWith("Saved as /") && text.endsWith("a.png"), qPrintable(text));
    QVERIFY(text.contains(QChar(0x2026)));
    const QStatusBar* bar = m_viewer->window->statusBar();
    const auto* summary = m_viewer->window->findChild<QLabel*>("statusImageSize");
    QVERIFY(bar->fontMetrics().horizontalAdvance(text) < summary->x() - 6);
}

void TestExport::print_withoutAPrinterSavesAPdf()
{
    QVERIFY(m_viewer->intensity()->addRegion(QRect(2, 3, 4, 2)));
    QString title;
    withNextDialog<QFileDialog>(this, [this, &title](QFileDialog* dialog) {
        title = dialog->windowTitle();
        QCOMPARE(dialog->selectedFiles().value(0), m_viewer->path("ramp-print.pdf"));
        QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
    });
    m_viewer->press("Ctrl+P");
    QCOMPARE(title, QString("No Printer: Save as PDF"));
    QCOMPARE(message(), "Saved as " + m_viewer->path("ramp-print.pdf"));
    const QByteArray pdf = contentOf(m_viewer->path("ramp-print.pdf"));
    QVERIFY(pdf.startsWith("%PDF-") && pdf.trimmed().endsWith("%%EOF"));
}

void TestExport::print_ofTheGallery()
{
    m_viewer->window->showGallery(m_viewer->folder.path());
    chooseNextFile(this, m_viewer->path("gallery"));
    m_viewer->press("Ctrl+P");
    QVERIFY(contentOf(m_viewer->path("gallery.pdf")).startsWith("%PDF-"));
}

QTEST_MAIN(TestExport)
#include "tst_export.moc"
