#include "viewermenu.h"

#include "about.h"
#include "gallerypage.h"
#include "helpoverlay.h"
#include "imagepage.h"
#include "pages.h"
#include "support/nextdialog.h"
#include "viewerfixture.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QGraphicsView>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTimer>

namespace {

constexpr int dialogMilliseconds = 50;

/// Closes every dialog and menu that comes up, and counts them.
class Closer : public QTimer
{
public:
    Closer()
    {
        connect(this, &QTimer::timeout, this, [this] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (dialog) {
                titles << dialog->windowTitle();
                dialog->close();
            }
        });
        start(dialogMilliseconds);
    }

    QStringList titles;
};

} // namespace

/// Every entry and every key of the menus, with real events.
class TestViewerMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void structure();
    void keysAreDifferent();
    void availability_followsThePage();
    void everyEntry_byMouse_data();
    void everyEntry_byMouse();

    void open();
    void openFolder();
    void gallery();
    void nextAndPrevious();
    void nextAndPrevious_fromAProblem();
    void pageKeys_belongToTheGallery();
    void pageKeys_belongToAField();
    void reload();
    void reload_keepsTheSettings();
    void reload_keepsTheChartBehindTheImage();
    void reload_keepsTheRegions();
    void deleteKey_removesTheSelectedRegion();
    void deleteKey_belongsToATextField();
    void saveScreenshot();
    void saveScreenshot_suggestsNameAndFolder();
    void saveScreenshot_thatCannotBeWritten();
    void close();
    void quit();
    void copyWindow();
    void copyCanvas();
    void copyKey_belongsToATextField();
    void zoom();
    void zoom_restsBesideAChart();
    void views();
    void views_markWhatThePanelShows();
    void palettes_data();
    void palettes();
    void fullScreen();
    void help();
    void help_scrollsInASmallWindow();
    void help_listsEveryKey();
    void about();

private:
    void press(const char* keys);
    QStringList entries(int menu) const;

    std::unique_ptr<ViewerFixture> m_viewer;
};

void TestViewerMenu::initTestCase()
{
    ViewerFixture::setUpProgram();
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestViewerMenu::init()
{
    m_viewer = std::make_unique<ViewerFixture>();
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 2.raw")));
}

void TestViewerMenu::cleanup()
{
    m_viewer.reset();
}

void TestViewerMenu::press(const char* keys)
{
    m_viewer->press(keys);
}

QStringList TestViewerMenu::entries(int menu) const
{
    QStringList texts;
    for (const QAction* action : m_viewer->window->menuBar()->actions()[menu]->menu()->actions()) {
        texts << action->text();
    }
    return texts;
}

void TestViewerMenu::structure()
{
    QCOMPARE(m_viewer->window->menuBar()->actions().size(), 5);
    QCOMPARE(entries(0),
        (QStringList { "&Open...", "Open &Folder...", "Open &Recent", "&Gallery", "", "&Next Image",
            "&Previous Image", "Next P&age", "Previo&us Page", "Re&load", "", "&Save Screenshot...",
            "Save P&icture...", "Save &Visible Part...", "&Export Numbers...", "", "Prin&t...", "",
            "&Close", "&Quit" }));
    QCOMPARE(entries(1),
        (QStringList { "&Copy Window", "Copy C&anvas", "Copy &Numbers...", "Copy &Value" }));
    QCOMPARE(entries(2),
        (QStringList { "&Add Region", "Add Region by &Numbers...", "&Edit Numbers...",
            "&Delete Region", "", "&Undo", "&Redo", "", "&Save Regions...", "&Load Regions..." }));
    QCOMPARE(entries(3),
        (QStringList { "Zoom &In", "Zoom &Out", "&Whole Image", "", "I&mage",
            "2D Chart of the &Row", "2D Chart of the &Column", "", "&Palette", "&Keep Settings", "",
            "&Full Screen" }));
    QCOMPARE(entries(4), (QStringList { "&Mouse and Keys", "User &Guide", "&About" }));
}

void TestViewerMenu::keysAreDifferent()
{
    QStringList keys;
    for (const QAction* action : m_viewer->window->findChildren<QAction*>()) {
        for (const QKeySequence& key : action->shortcuts()) {
            keys << key.toString();
        }
    }
    QVERIFY(keys.size() > 20);
    QCOMPARE(keys.removeDuplicates(), 0);
}

void TestViewerMenu::availability_followsThePage()
{
    const auto enabled = [this](const char* name) { return m_viewer->action(name)->isEnabled(); };
    for (const char* name : { "actionNext", "actionPrevious", "actionReload", "actionCopyCanvas",
             "actionZoomIn", "actionRowChart", "actionPaletteRed", "actionOpen", "actionHelp" }) {
        QVERIFY2(enabled(name), name);
    }
    QVERIFY(!m_viewer->window->openFile(m_viewer->path("gone.raw"))); // a problem is a file, too
    for (const char* name : { "actionNext", "actionReload", "actionOpen", "actionCopyWindow" }) {
        QVERIFY2(enabled(name), name);
    }
    for (const char* name : { "actionCopyCanvas", "actionZoomIn", "actionZoomOut",
             "actionImageView", "actionRowChart", "actionColumnChart", "actionPaletteGray" }) {
        QVERIFY2(!enabled(name), name);
    }
    m_viewer->window->showGallery(m_viewer->folder.path());
    for (const char* name : { "actionNext", "actionPrevious", "actionCopyCanvas" }) {
        QVERIFY2(!enabled(name), name);
    }
    QVERIFY(enabled("actionCopyWindow") && enabled("actionReload"));
}

void TestViewerMenu::everyEntry_byMouse_data()
{
    QTest::addColumn<int>("menu");
    QTest::addColumn<QString>("name");
    const QVector<QStringList> menus {
        { "actionOpen", "actionOpenFolder", "actionGallery", "actionNext", "actionPrevious",
            "actionReload", "actionSaveScreenshot", "actionSavePicture", "actionSaveVisiblePart",
            "actionExportNumbers", "actionPrint", "actionClose", "actionQuit" },
        { "actionCopyWindow", "actionCopyCanvas", "actionCopyNumbers", "actionCopyValue" },
        { "actionAddRegion", "actionAddRegionByNumbers", "actionLoadRegions" },
        { "actionZoomIn", "actionZoomOut", "actionFit", "actionImageView", "actionRowChart",
            "actionColumnChart", "actionKeepSettings", "actionFullScreen" },
        { "actionHelp", "actionUserGuide", "actionAbout" }
    };
    for (int menu = 0; menu < menus.size(); ++menu) {
        for (const QString& name : menus[menu]) {
            QTest::newRow(qPrintable(name)) << menu << name;
        }
    }
}

void TestViewerMenu::everyEntry_byMouse()
{
    QFETCH(int, menu);
    QFETCH(QString, name);
    const Closer closer;
    QMenuBar* bar = m_viewer->window->menuBar();
    QAction* title = bar->actions()[menu];
    QSignalSpy opened(title->menu(), &QMenu::aboutToShow);
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->actionGeometry(title).center());
    QCOMPARE(opened.size(), 1);
    QAction* entry = m_viewer->action(qPrintable(name));
    QSignalSpy chosen(entry, &QAction::triggered);
    QTest::mouseClick(title->menu(), Qt::LeftButton, Qt::NoModifier,
        title->menu()->actionGeometry(entry).center());
    QCOMPARE(chosen.size(), 1);
}

void TestViewerMenu::open()
{
    chooseNextFile(this, m_viewer->path("frame 1.raw"));
    press("Ctrl+O");
    QTRY_COMPARE(m_viewer->shownFile(), QString("frame 1.raw"));
}

void TestViewerMenu::openFolder()
{
    QTemporaryDir other;
    chooseNextFile(this, other.path());
    press("Ctrl+Shift+O");
    QTRY_VERIFY(qobject_cast<GalleryPage*>(m_viewer->page()));
    QCOMPARE(qobject_cast<GalleryPage*>(m_viewer->page())->folder(), other.path());
}

void TestViewerMenu::gallery()
{
    press("Ctrl+G");
    auto* gallery = qobject_cast<GalleryPage*>(m_viewer->page());
    QVERIFY(gallery);
    QCOMPARE(gallery->findChild<QListView*>()->model()->rowCount(), 3);
    m_viewer->writeFrame("frame 11.raw", 64);
    press("F5"); // looks at the folder once more
    QCOMPARE(gallery->findChild<QListView*>()->model()->rowCount(), 4);
}

void TestViewerMenu::nextAndPrevious()
{
    press("PgDown");
    QCOMPARE(m_viewer->shownFile(), QString("frame 10.raw")); // ten comes after two
    press("PgDown");
    QCOMPARE(m_viewer->shownFile(), QString("frame 10.raw"));
    QCOMPARE(m_viewer->window->statusBar()->currentMessage(),
        QString("This is the last image of the folder."));
    press("PgUp");
    QVERIFY(m_viewer->window->statusBar()->currentMessage().isEmpty()); // is about another image
    press("PgUp");
    QCOMPARE(m_viewer->shownFile(), QString("frame 1.raw"));
    press("PgUp");
    QCOMPARE(m_viewer->shownFile(), QString("frame 1.raw"));
    QCOMPARE(m_viewer->window->statusBar()->currentMessage(),
        QString("This is the first image of the folder."));
    QVERIFY(m_viewer->window->problem().isEmpty());
}

void TestViewerMenu::nextAndPrevious_fromAProblem()
{
    QVERIFY(!m_viewer->window->openFile(m_viewer->path("frame 3.raw"))); // is not there
    press("PgDown");
    QCOMPARE(m_viewer->shownFile(), QString("frame 10.raw"));
    QVERIFY(qobject_cast<ImagePage*>(m_viewer->page()));
}

void TestViewerMenu::pageKeys_belongToTheGallery()
{
    m_viewer->window->showGallery(m_viewer->folder.path());
    auto* gallery = qobject_cast<GalleryPage*>(m_viewer->page());
    QTest::keyClick(m_viewer->window->focusWidget(), Qt::Key_PageDown);
    QCOMPARE(m_viewer->page(), gallery);
}

void TestViewerMenu::pageKeys_belongToAField()
{
    press("Ctrl+2");
    auto* field = m_viewer->control<QLineEdit>("lineEditPeaks");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_PageDown);
    QTest::keyClick(field, Qt::Key_PageUp);
    auto* box = m_viewer->control<QComboBox>("comboBoxType");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_PageDown);
    QTest::keyClick(box, Qt::Key_PageUp);
    QCOMPARE(m_viewer->shownFile(), QString("frame 2.raw"));
    QCOMPARE(m_viewer->intensity()->view(), CVKIntensityWidget::View::RowChart);
}

void TestViewerMenu::reload()
{
    m_viewer->writeFrame("frame 2.raw", 80);
    press("F5");
    QCOMPARE(m_viewer->status("statusImageSize"), QString::fromUtf8("80 × 48 pixels   16 bit"));
}

void TestViewerMenu::reload_keepsTheSettings()
{
    using Widget = CVKIntensityWidget;
    Widget* image = m_viewer->intensity();
    press("Alt+2");
    press("Ctrl+3");
    auto* peaks = m_viewer->control<QAbstractButton>("checkBoxPeak");
    QTest::mouseClick(peaks, Qt::LeftButton, Qt::NoModifier, QPoint(8, peaks->height() / 2));
    auto* type = m_viewer->control<QComboBox>("comboBoxType");
    type->setFocus(); // else the key moves the cross-hair
    QTest::keyClick(type, Qt::Key_Down);
    auto* start = m_viewer->control<QLineEdit>("lineEditXStart");
    start->selectAll();
    QTest::keyClicks(start, "300");
    QTest::mouseClick(m_viewer->control<QAbstractButton>("pushButtonApply"), Qt::LeftButton);
    QWidget* focused = m_viewer->window->focusWidget();
    auto* canvas = image->findChild<QGraphicsView*>();
    const QImage before = canvas->grab().toImage();
    press("F5");
    QCOMPARE(canvas->grab().toImage(), before);
    QCOMPARE(image->colorPalette(), QString("Red"));
    QVERIFY(image->peakLabels().areShown);
    QCOMPARE(start->text(), QString("300"));
    QCOMPARE(m_viewer->window->focusWidget(), focused);
    QVERIFY(m_viewer->window->statusBar()->currentMessage().isEmpty());
    m_viewer->action("actionKeepSettings")->trigger();
    press("PgDown"); // another image starts afresh
    QCOMPARE(image->view(), Widget::View::Image);
    QCOMPARE(image->colorPalette(), QString("Gray"));
    press("F5");
    QCOMPARE(image->colorPalette(), QString("Gray"));
    QVERIFY(!image->peakLabels().areShown);
}

/// The chart was set up while it was in front; now the image is.
void TestViewerMenu::reload_keepsTheChartBehindTheImage()
{
    CVKIntensityWidget* image = m_viewer->intensity();
    press("Ctrl+3");
    auto* peaks = m_viewer->control<QAbstractButton>("checkBoxPeak");
    QTest::mouseClick(peaks, Qt::LeftButton, Qt::NoModifier, QPoint(8, peaks->height() / 2));
    press("Ctrl+1");
    press("F5");
    QCOMPARE(image->view(), CVKIntensityWidget::View::Image);
    QCOMPARE(image->chartAxis(), CVKIntensityWidget::Axis::Column);
    QVERIFY(image->peakLabels().areShown);
    press("Ctrl+3");
    QVERIFY(peaks->isChecked());
}

void TestViewerMenu::reload_keepsTheRegions()
{
    CVKIntensityWidget* image = m_viewer->intensity();
    const QVector<QRect> regions { QRect(3, 4, 5, 6), QRect(30, 10, 34, 20) };
    QVERIFY(image->setRegions(regions));
    press("F5");
    QCOMPARE(image->regions(), regions);
    QVERIFY(m_viewer->window->statusBar()->currentMessage().isEmpty());
    m_viewer->writeFrame("frame 2.raw", 60); // the second one reaches to column 63
    press("F5");
    QCOMPARE(image->regions(), QVector<QRect> { regions[0] });
    QCOMPARE(m_viewer->window->statusBar()->currentMessage(),
        QString("Not all is as before: the region 30,10,34,20 does not lie inside the image of "
                "60x48 pixels."));
}

void TestViewerMenu::deleteKey_removesTheSelectedRegion()
{
    CVKIntensityWidget* image = m_viewer->intensity();
    const QAction* action = m_viewer->action("actionDeleteRegion");
    QVERIFY(!action->isEnabled());
    QVERIFY(image->setRegions({ QRect(3, 4, 5, 6), QRect(30, 10, 30, 20) }));
    QVERIFY(image->selectRegion(0));
    QTRY_VERIFY(action->isEnabled());
    press("Del");
    QCOMPARE(image->regions(), QVector<QRect> { QRect(30, 10, 30, 20) });
    QVERIFY(image->selectRegion(0));
    press("Del");
    QVERIFY(image->regions().isEmpty());
    QTRY_VERIFY(!action->isEnabled());
    press("Del"); // does nothing
    QCOMPARE(m_viewer->shownFile(), QString("frame 2.raw"));
}

void TestViewerMenu::deleteKey_belongsToATextField()
{
    CVKIntensityWidget* image = m_viewer->intensity();
    QVERIFY(image->addRegion(QRect(3, 4, 5, 6)));
    press("Ctrl+2");
    auto* field = m_viewer->control<QLineEdit>("lineEditPeaks");
    field->setFocus();
    QCOMPARE(field->text(), QString("10"));
    field->setCursorPosition(1);
    QTest::keyClick(field, Qt::Key_Delete);
    QCOMPARE(field->text(), QString("1"));
    QCOMPARE(image->regions().size(), 1);
}

void TestViewerMenu::saveScreenshot()
{
    chooseNextFile(this, m_viewer->path("picture")); // the suffix comes by itself
    press("Ctrl+S");
    const QImage picture(m_viewer->path("picture.png"));
    QCOMPARE(picture.size(), m_viewer->window->size());
    QCOMPARE(m_viewer->window->statusBar()->currentMessage(),
        "Saved as " + m_viewer->path("picture.png"));
}

void TestViewerMenu::saveScreenshot_suggestsNameAndFolder()
{
    QString name;
    QDir folder;
    const auto cancelNextDialog = [this, &name, &folder] {
        withNextDialog<QFileDialog>(this, [&name, &folder](QFileDialog* dialog) {
            name = dialog->findChild<QLineEdit*>()->text();
            folder = dialog->directory();
            dialog->reject();
        });
    };
    cancelNextDialog();
    press("Ctrl+S");
    QCOMPARE(name, QString("frame 2-screenshot.png"));
    QVERIFY(QDir(m_viewer->folder.path()).entryList({ "*.png" }).isEmpty());

    QVERIFY(QDir(m_viewer->folder.path()).mkdir("pictures"));
    chooseNextFile(this, m_viewer->path("pictures/a.png"));
    press("Ctrl+S");
    QVERIFY(QFile::exists(m_viewer->path("pictures/a.png")));
    m_viewer->window->showGallery(m_viewer->folder.path());
    name.clear();
    cancelNextDialog();
    press("Ctrl+S");
    QCOMPARE(folder.path(), m_viewer->path("pictures")); // where the one before went
    QCOMPARE(name, QDir(m_viewer->folder.path()).dirName() + "-screenshot.png");
}

void TestViewerMenu::saveScreenshot_thatCannotBeWritten()
{
    // A link into a folder that is not there: the dialog sees a name that is free.
    QVERIFY(QFile::link(m_viewer->path("no such folder/a.png"), m_viewer->path("link.png")));
    chooseNextFile(this, m_viewer->path("link.png"));
    QStringList titles;
    withNextDialog<QMessageBox>(this, [&titles](QMessageBox* message) {
        titles << message->windowTitle();
        message->close();
    });
    press("Ctrl+S");
    QCOMPARE(titles, QStringList("Save Screenshot"));
    QVERIFY(m_viewer->window->statusBar()->currentMessage().isEmpty());
}

void TestViewerMenu::close()
{
    press("Ctrl+W");
    QVERIFY(qobject_cast<GalleryPage*>(m_viewer->page()));
    press("Ctrl+W");
    QVERIFY(qobject_cast<WelcomePage*>(m_viewer->page()));
}

void TestViewerMenu::quit()
{
    press("Ctrl+Q");
    QVERIFY(!m_viewer->window->isVisible());
}

void TestViewerMenu::copyWindow()
{
    QApplication::clipboard()->clear();
    m_viewer->intensity()->findChild<QRadioButton*>("radioButtonImage")->setFocus();
    press("Ctrl+C"); // with the focus on the canvas the value under the cross-hair
    QCOMPARE(QApplication::clipboard()->image().size(), m_viewer->window->size());
}

void TestViewerMenu::copyCanvas()
{
    QApplication::clipboard()->clear();
    auto* canvas = m_viewer->intensity()->findChild<QGraphicsView*>();
    press("Ctrl+Shift+C");
    QCOMPARE(QApplication::clipboard()->image().size(), canvas->size());
    QVERIFY(canvas->width() < m_viewer->window->width() - 250); // without the panel
}

void TestViewerMenu::copyKey_belongsToATextField()
{
    press("Ctrl+2");
    auto* field = m_viewer->control<QLineEdit>("lineEditPeaks");
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QString("10"));
}

void TestViewerMenu::zoom()
{
    const CVKIntensityWidget* image = m_viewer->intensity();
    const double fitted = image->zoomFactor();
    press("Ctrl++");
    const double once = image->zoomFactor();
    QVERIFY(once > fitted);
    press("Ctrl+="); // the same key without shift
    QVERIFY(image->zoomFactor() > once);
    press("Ctrl+-");
    press("Ctrl+-");
    QCOMPARE(image->zoomFactor(), fitted);
    for (int i = 0; i < 3; ++i) {
        press("Ctrl++");
    }
    QVERIFY(image->zoomFactor() > once);
    press("Ctrl+0");
    QCOMPARE(image->zoomFactor(), fitted);
    QCOMPARE(image->visiblePixels(), QRect(0, 0, 65, 48));
}

void TestViewerMenu::zoom_restsBesideAChart()
{
    const CVKIntensityWidget* image = m_viewer->intensity();
    const double fitted = image->zoomFactor();
    press("Ctrl+2");
    QVERIFY(!m_viewer->action("actionZoomIn")->isEnabled());
    press("Ctrl++");
    press("Ctrl+1");
    QCOMPARE(image->zoomFactor(), fitted);
    QVERIFY(m_viewer->action("actionZoomIn")->isEnabled());
    press("Ctrl++");
    QVERIFY(image->zoomFactor() > fitted);
}

void TestViewerMenu::views()
{
    auto* image = m_viewer->control<QRadioButton>("radioButtonImage");
    auto* chart = m_viewer->control<QRadioButton>("radioButton2D");
    auto* axis = m_viewer->control<QComboBox>("comboBoxDisplay");
    auto* canvas = m_viewer->intensity()->findChild<QGraphicsView*>();
    const QImage imageView = canvas->grab().toImage();
    press("Ctrl+2");
    QVERIFY(chart->isChecked() && !image->isChecked());
    QCOMPARE(axis->currentIndex(), 0);
    const QImage rowChart = canvas->grab().toImage();
    press("Ctrl+3");
    QVERIFY(chart->isChecked());
    QCOMPARE(axis->currentIndex(), 1);
    const QImage columnChart = canvas->grab().toImage();
    QVERIFY(rowChart != imageView && columnChart != imageView && columnChart != rowChart);
    press("Ctrl+1");
    QVERIFY(image->isChecked() && !chart->isChecked());
    QCOMPARE(canvas->grab().toImage(), imageView);
    press("Ctrl+3"); // straight to the column
    QCOMPARE(canvas->grab().toImage(), columnChart);
}

void TestViewerMenu::views_markWhatThePanelShows()
{
    const auto marked = [this](const char* name) { return m_viewer->action(name)->isChecked(); };
    QVERIFY(marked("actionImageView"));
    auto* chart = m_viewer->control<QRadioButton>("radioButton2D");
    QTest::mouseClick(chart, Qt::LeftButton, Qt::NoModifier, QPoint(8, chart->height() / 2));
    QTRY_VERIFY(marked("actionRowChart"));
    QTest::keyClick(m_viewer->control<QComboBox>("comboBoxDisplay"), Qt::Key_Down);
    QTRY_VERIFY(marked("actionColumnChart") && !marked("actionRowChart"));
    m_viewer->action("actionKeepSettings")->trigger();
    press("PgDown"); // another image
    QVERIFY(marked("actionImageView"));
}

void TestViewerMenu::palettes_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("name");
    const QStringList names { "Gray", "Red", "Green", "Blue", "Color" };
    for (int i = 0; i < names.size(); ++i) {
        QTest::newRow(qPrintable(names[i])) << QString("Alt+%1").arg(i + 1) << names[i];
    }
}

void TestViewerMenu::palettes()
{
    QFETCH(QString, keys);
    QFETCH(QString, name);
    CVKIntensityWidget* image = m_viewer->intensity();
    const QString other = name == "Blue" ? "Green" : "Blue";
    QVERIFY(image->setColorPalette(other));
    press(qPrintable(keys));
    QCOMPARE(image->colorPalette(), name);
    QVERIFY(image->setColorPalette(other));
    m_viewer->action(qPrintable("actionPalette" + name))->trigger();
    QCOMPARE(image->colorPalette(), name);
    QVERIFY(m_viewer->window->statusBar()->currentMessage().isEmpty());
}

void TestViewerMenu::fullScreen()
{
    QMainWindow* window = m_viewer->window.get();
    press("F11");
    QVERIFY(window->isFullScreen());
    QVERIFY(!window->menuBar()->isVisible() && !window->statusBar()->isVisible());
    press("PgDown"); // keys work without their menu
    QCOMPARE(m_viewer->shownFile(), QString("frame 10.raw"));
    press("PgDown");
    QVERIFY(window->statusBar()->isVisible()); // while it says that this was the last one
    window->statusBar()->clearMessage();
    QVERIFY(!window->statusBar()->isVisible());
    press("Esc");
    QVERIFY(!window->isFullScreen());
    QVERIFY(window->menuBar()->isVisible() && window->statusBar()->isVisible());
    press("Esc"); // does nothing any more
    QVERIFY(!window->isFullScreen() && window->isVisible());
    press("F11");
    press("F11");
    QVERIFY(!window->isFullScreen());
    QVERIFY(!m_viewer->action("actionFullScreen")->isChecked());
    window->showMaximized();
    press("F11");
    press("Esc");
    QVERIFY(window->isMaximized()); // as it was before
}

void TestViewerMenu::help()
{
    auto* overlay = m_viewer->window->findChild<HelpOverlay*>();
    QVERIFY(!overlay->isVisible());
    press("F1");
    QVERIFY(overlay->isVisible() && overlay->hasFocus());
    QCOMPARE(overlay->size(), m_viewer->window->size());
    m_viewer->window->resize(900, 650);
    QCOMPARE(overlay->size(), m_viewer->window->size());
    QTest::keyClick(overlay, Qt::Key_Shift);
    QVERIFY(overlay->isVisible()); // half a key
    QTest::keyClick(overlay, Qt::Key_F11);
    QVERIFY(!overlay->isVisible() && !m_viewer->window->isFullScreen()); // only closes the help
    press("F1");
    QTest::mouseClick(overlay, Qt::LeftButton);
    QVERIFY(!overlay->isVisible());
    press("F1");
    QTest::keyClick(overlay, Qt::Key_F1);
    QVERIFY(!overlay->isVisible());
    press("F1");
    QTest::keyClick(overlay, Qt::Key_Tab);
    QVERIFY(!overlay->isVisible());
}

void TestViewerMenu::help_scrollsInASmallWindow()
{
    auto* overlay = m_viewer->window->findChild<HelpOverlay*>();
    press("F1");
    QScrollBar* bar = overlay->findChild<QScrollArea*>()->verticalScrollBar();
    QCOMPARE(bar->maximum(), 0); // all of it is seen
    m_viewer->window->resize(640, 480);
    QTRY_VERIFY(bar->maximum() > 0);
    QCOMPARE(overlay->findChild<QScrollArea*>()->horizontalScrollBar()->maximum(), 0);
    QTest::keyClick(overlay, Qt::Key_Down);
    const int line = bar->value();
    QVERIFY(line > 0);
    QTest::keyClick(overlay, Qt::Key_PageDown);
    QVERIFY(bar->value() > 2 * line);
    QTest::keyClick(overlay, Qt::Key_PageUp);
    QTest::keyClick(overlay, Qt::Key_Up);
    QCOMPARE(bar->value(), 0);
    QVERIFY(overlay->isVisible());
    QTest::keyClick(overlay, Qt::Key_Escape);
    QVERIFY(!overlay->isVisible());
}

void TestViewerMenu::help_listsEveryKey()
{
    QStringList listed;
    for (const QLabel* label : m_viewer->window->findChildren<QLabel*>("helpKeys")) {
        listed << label->text();
    }
    for (const QAction* action : m_viewer->window->findChildren<QAction*>()) {
        const QString key = action->shortcut().toString(QKeySequence::NativeText);
        QVERIFY2(key.isEmpty() || listed.contains(key), qPrintable(key));
    }
    QStringList effects;
    for (const QLabel* label : m_viewer->window->findChildren<QLabel*>("helpEffect")) {
        effects << label->text();
        QVERIFY2(!label->text().contains('&') && !label->text().contains("..."),
            qPrintable(label->text()));
    }
    QVERIFY(effects.contains("Open Folder") && effects.contains("Green palette"));
    QVERIFY(effects.contains("Delete Region"));
}

void TestViewerMenu::about()
{
    const Closer closer;
    m_viewer->action("actionAbout")->trigger();
    QCOMPARE(closer.titles, QStringList("About VKIntensity Viewer"));
    QVERIFY(aboutText().contains("MIT License"));
    QVERIFY(aboutText().contains(QString("Qt ") + qVersion()));
    static const QRegularExpression library("VKIntensityWidget [0-9]+\\.[0-9]+\\.[0-9]+");
    QVERIFY(aboutText().contains(library));
}

QTEST_MAIN(TestViewerMenu)
#include "tst_viewermenu.moc"
