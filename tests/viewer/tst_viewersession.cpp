#include "filewatch.h"
#include "gallerypage.h"
#include "imagepage.h"
#include "readahead.h"
#include "viewerfixture.h"

#include <QApplication>
#include <QGraphicsView>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QStatusBar>
#include <QWheelEvent>
#include <QWindow>

/// What the window does beside its menus: what it remembers, follows and tells.
class TestViewerSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void recent_listsOpenedFiles();
    void recent_opensAFile();
    void recent_forgetsAFileThatIsGone();
    void recent_keepsAFileWhoseFolderIsAway();
    void recent_ofTwoWindows();
    void recent_isCleared();
    void session_isKept();
    void session_endedOnTheFullScreen();
    void session_ofTheFirstStart();
    void session_isNotTouchedWithoutSettings();
    void watch_reloadsAChangedFile();
    void watch_keepsRegions();
    void watch_keepsRegionsOverABrokenFile();
    void watch_waitsForTheMouseButton();
    void watch_mendsAProblem();
    void watch_leavesTheGalleryAlone();
    void load_showsProgressAndWaits();
    void load_ofASmallFileIsQuiet();
    void status_tellsSizeDepthAndTime();
    void status_tellsWhatWasChangedInReading();
    void wheel_zoomsByWholeNotches();
    void tabKey_followsThePanel();
    void controls_haveAccessibleNames();
    void names_inAnyScript_data();
    void names_inAnyScript();

private:
    std::unique_ptr<QSettings> settings() const;
    QStringList recentTexts() const;

    std::unique_ptr<ViewerFixture> m_viewer;
};

void TestViewerSession::initTestCase()
{
    ViewerFixture::setUpProgram();
}

void TestViewerSession::init()
{
    m_viewer = std::make_unique<ViewerFixture>();
}

void TestViewerSession::cleanup()
{
    m_viewer.reset();
}

std::unique_ptr<QSettings> TestViewerSession::settings() const
{
    return std::make_unique<QSettings>(m_viewer->path("viewer.ini"), QSettings::IniFormat);
}

/// The entries above the separator.
QStringList TestViewerSession::recentTexts() const
{
    QStringList texts;
    for (const QAction* action : m_viewer->window->findChild<QMenu*>("menuRecent")->actions()) {
        if (action->isSeparator()) {
            break;
        }
        if (action->isVisible()) {
            texts << action->text();
        }
    }
    return texts;
}

void TestViewerSession::recent_listsOpenedFiles()
{
    QVERIFY(!m_viewer->window->findChild<QMenu*>("menuRecent")->isEnabled());
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 2.raw")));
    QVERIFY(!m_viewer->window->openFile(m_viewer->path("gone.raw"))); // is not listed
    QCOMPARE(recentTexts(), (QStringList { "&1  frame 2.raw", "&2  frame 1.raw" }));
    QVERIFY(m_viewer->window->findChild<QMenu*>("menuRecent")->isEnabled());
}

void TestViewerSession::recent_opensAFile()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 2.raw")));
    auto* menu = m_viewer->window->findChild<QMenu*>("menuRecent");
    menu->popup(QPoint());
    QAction* second = menu->actions().at(1);
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(second).center());
    QTRY_COMPARE(m_viewer->shownFile(), QString("frame 1.raw"));
    QCOMPARE(recentTexts(), (QStringList { "&1  frame 1.raw", "&2  frame 2.raw" }));
}

void TestViewerSession::recent_forgetsAFileThatIsGone()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 2.raw")));
    QVERIFY(QFile::remove(m_viewer->path("frame 1.raw")));
    m_viewer->window->findChild<QMenu*>("menuRecent")->actions().at(1)->trigger();
    QTRY_VERIFY(!m_viewer->window->problem().isEmpty());
    QCOMPARE(recentTexts(), QStringList("&1  frame 2.raw"));
}

void TestViewerSession::recent_keepsAFileWhoseFolderIsAway()
{
    QVERIFY(QDir(m_viewer->folder.path()).mkdir("drive"));
    m_viewer->writeFrame("drive/far.raw", 64);
    QVERIFY(m_viewer->window->openFile(m_viewer->path("drive/far.raw")));
    QVERIFY(QDir(m_viewer->path("drive")).removeRecursively());
    m_viewer->window->findChild<QMenu*>("menuRecent")->actions().first()->trigger();
    QTRY_VERIFY(!m_viewer->window->problem().isEmpty());
    QCOMPARE(recentTexts(), QStringList("&1  far.raw"));
}

void TestViewerSession::recent_ofTwoWindows()
{
    QVERIFY(!m_viewer->window->restoreSession(settings()));
    ViewerWindow other;
    other.restoreSession(settings());
    QVERIFY(other.openFile(m_viewer->path("frame 1.raw")));
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 2.raw")));
    QCOMPARE(recentTexts(), (QStringList { "&1  frame 2.raw", "&2  frame 1.raw" }));
    other.close();
    QCOMPARE(settings()->value("files/recent").toStringList(),
        (QStringList { m_viewer->path("frame 2.raw"), m_viewer->path("frame 1.raw") }));
}

void TestViewerSession::recent_isCleared()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    m_viewer->window->findChild<QMenu*>("menuRecent")->actions().last()->trigger();
    QVERIFY(recentTexts().isEmpty());
}

void TestViewerSession::session_isKept()
{
    QVERIFY(!m_viewer->window->restoreSession(settings()));
    m_viewer->window->resize(777, 555);
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    m_viewer->window->close();
    m_viewer->makeWindow();
    QVERIFY(recentTexts().isEmpty());
    QVERIFY(m_viewer->window->restoreSession(settings()));
    QCOMPARE(m_viewer->window->size(), QSize(777, 555));
    QCOMPARE(recentTexts(), QStringList("&1  frame 1.raw"));
    m_viewer->action("actionGallery")->trigger(); // knows the folder and asks nothing
    QCOMPARE(m_viewer->window->findChild<GalleryPage*>()->folder(), m_viewer->folder.path());
}

void TestViewerSession::session_endedOnTheFullScreen()
{
    QVERIFY(!m_viewer->window->restoreSession(settings()));
    m_viewer->window->toggleFullScreen();
    QVERIFY(m_viewer->window->isFullScreen());
    m_viewer->window->close();
    m_viewer->makeWindow();
    QVERIFY(m_viewer->window->restoreSession(settings()));
    QVERIFY(!m_viewer->window->isFullScreen());
    QVERIFY(m_viewer->window->statusBar()->isVisible());
}

void TestViewerSession::session_ofTheFirstStart()
{
    QVERIFY(!m_viewer->window->restoreSession(settings()));
    QCOMPARE(m_viewer->window->size(), QSize(1000, 700));
    QVERIFY(recentTexts().isEmpty());
}

void TestViewerSession::session_isNotTouchedWithoutSettings()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    m_viewer->window->close();
    QVERIFY(settings()->allKeys().isEmpty());
}

void TestViewerSession::watch_reloadsAChangedFile()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    QCOMPARE(m_viewer->status("statusImageSize"), QString::fromUtf8("64 × 48 pixels   16 bit"));
    m_viewer->writeFrame("frame 1.raw", 100);
    QTRY_COMPARE(
        m_viewer->status("statusImageSize"), QString::fromUtf8("100 × 48 pixels   16 bit"));
    m_viewer->writeFrame("frame 1.raw", 90); // and once more
    QTRY_COMPARE(m_viewer->status("statusImageSize"), QString::fromUtf8("90 × 48 pixels   16 bit"));
}

void TestViewerSession::watch_keepsRegions()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    QVERIFY(m_viewer->intensity()->addRegion(QRect(5, 6, 7, 8)));
    m_viewer->writeFrame("frame 1.raw", 100);
    QTRY_COMPARE(
        m_viewer->status("statusImageSize"), QString::fromUtf8("100 × 48 pixels   16 bit"));
    QCOMPARE(m_viewer->intensity()->regions(), QVector<QRect> { QRect(5, 6, 7, 8) });
    QVERIFY(m_viewer->window->statusBar()->currentMessage().isEmpty());
}

/// A file may be read while it is half written.
void TestViewerSession::watch_keepsRegionsOverABrokenFile()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    QVERIFY(m_viewer->intensity()->addRegion(QRect(5, 6, 7, 8)));
    QFile file(m_viewer->path("frame 1.raw"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("half of it");
    file.close();
    QTRY_VERIFY(!m_viewer->window->problem().isEmpty());
    m_viewer->writeFrame("frame 1.raw", 100);
    QTRY_COMPARE(
        m_viewer->status("statusImageSize"), QString::fromUtf8("100 × 48 pixels   16 bit"));
    QCOMPARE(m_viewer->intensity()->regions(), QVector<QRect> { QRect(5, 6, 7, 8) });
}

/// Nothing is replaced under a button that is held down.
void TestViewerSession::watch_waitsForTheMouseButton()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    QWindow* window = m_viewer->window->windowHandle();
    const QPoint place(window->width() - 60, 60); // beside the image
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(QApplication::mouseButtons(), Qt::LeftButton);
    m_viewer->writeFrame("frame 1.raw", 100);
    QTest::qWait(4 * FileWatch::restMilliseconds);
    QCOMPARE(m_viewer->status("statusImageSize"), QString::fromUtf8("64 × 48 pixels   16 bit"));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, place);
    QTRY_COMPARE(
        m_viewer->status("statusImageSize"), QString::fromUtf8("100 × 48 pixels   16 bit"));
}

void TestViewerSession::watch_mendsAProblem()
{
    QVERIFY(!m_viewer->window->openFile(m_viewer->path("later.raw")));
    m_viewer->writeFrame("later.raw", 70);
    QTRY_VERIFY(qobject_cast<ImagePage*>(m_viewer->page()));
    QCOMPARE(m_viewer->shownFile(), QString("later.raw"));
}

void TestViewerSession::watch_leavesTheGalleryAlone()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    m_viewer->window->showGallery(m_viewer->folder.path());
    m_viewer->writeFrame("frame 1.raw", 100);
    QTest::qWait(3 * FileWatch::restMilliseconds);
    QVERIFY(qobject_cast<GalleryPage*>(m_viewer->page()));
}

void TestViewerSession::load_showsProgressAndWaits()
{
    RawFrame frame;
    frame.width = 4096;
    frame.height = 2560; // 20 MiB and a header
    frame.bytesPerChannel = 2;
    frame.bytes = QByteArray(4096 * 2560 * 2, 7);
    QString problem;
    QVERIFY(writeRawFrame(m_viewer->path("large.raw"), frame, &problem));
    auto* bar = m_viewer->window->findChild<QProgressBar*>("statusProgress");
    QVector<int> values;
    bool waits = true;
    bool shown = true;
    connect(bar, &QProgressBar::valueChanged, this, [&](int value) {
        values << value;
        const QCursor* cursor = QApplication::overrideCursor();
        waits = waits && cursor && cursor->shape() == Qt::WaitCursor;
        shown = shown && (value == 0 || bar->isVisible());
    });
    QVERIFY(m_viewer->window->openFile(m_viewer->path("large.raw")));
    QVERIFY(values.size() >= 20);
    QVERIFY(std::is_sorted(values.begin(), values.end()));
    QCOMPARE(values.last(), 100);
    QVERIFY(waits && shown);
    QVERIFY(!bar->isVisible());
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(m_viewer->shownFile(), QString("large.raw"));
}

void TestViewerSession::load_ofASmallFileIsQuiet()
{
    auto* bar = m_viewer->window->findChild<QProgressBar*>("statusProgress");
    QSignalSpy values(bar, &QProgressBar::valueChanged);
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    QCOMPARE(values.size(), 0);
}

void TestViewerSession::status_tellsSizeDepthAndTime()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    QCOMPARE(m_viewer->status("statusFileName"),
        QDir::toNativeSeparators(m_viewer->path("frame 1.raw")));
    QCOMPARE(m_viewer->status("statusImageSize"), QString::fromUtf8("64 × 48 pixels   16 bit"));
    const QRegularExpression time("\\A([0-9,.]+ ms|[0-9]+\\.[0-9] s)\\z");
    QVERIFY2(time.match(m_viewer->status("statusLoadTime")).hasMatch(),
        qPrintable(m_viewer->status("statusLoadTime")));
    m_viewer->window->showGallery(m_viewer->folder.path());
    QVERIFY(m_viewer->status("statusImageSize").isEmpty());
    QVERIFY(m_viewer->status("statusLoadTime").isEmpty());
}

void TestViewerSession::status_tellsWhatWasChangedInReading()
{
    QImage picture(64, 48, QImage::Format_ARGB32);
    picture.fill(QColor(200, 100, 50, 128));
    QVERIFY(picture.save(m_viewer->path("glass.png")));
    QVERIFY(m_viewer->window->openFile(m_viewer->path("glass.png")));
    QCOMPARE(m_viewer->status("statusImageSize"),
        QString::fromUtf8("color as gray, alpha dropped   64 × 48 pixels   8 bit"));
}

void TestViewerSession::wheel_zoomsByWholeNotches()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    auto* canvas = m_viewer->intensity()->findChild<QGraphicsView*>();
    const auto turn = [canvas](int angle) {
        const QPoint centre = canvas->viewport()->rect().center() + QPoint(60, -40);
        QWheelEvent event(centre, canvas->viewport()->mapToGlobal(centre), QPoint(),
            QPoint(0, angle), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(canvas->viewport(), &event);
        return canvas->grab().toImage();
    };
    const QImage fitted = canvas->grab().toImage();
    for (int i = 0; i < 14; ++i) {
        QCOMPARE(turn(8), fitted); // 14 x 8 = 112 eighths of a degree: not yet a notch
    }
    const QImage one = turn(8);
    QVERIFY(one != fitted);
    QCOMPARE(turn(0), one); // an angle of 0 does not zoom out
    QCOMPARE(turn(-120), fitted);
}

void TestViewerSession::tabKey_followsThePanel()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    QWidget* first = m_viewer->control<QPushButton>("Return");
    first->setFocus();
    QStringList visited;
    QWidget* focused = first;
    do {
        const bool isCanvas = qobject_cast<QGraphicsView*>(focused);
        visited << (isCanvas ? QString("canvas") : focused->objectName());
        QTest::keyClick(focused, Qt::Key_Tab);
        focused = m_viewer->window->focusWidget();
    } while (focused != first && visited.size() < 40);
    const QStringList order { "Return", "left_flex1", "radioButtonImage", "pushButtonGray",
        "pushButtonRed", "pushButtonGreen", "pushButtonBlue", "pushButtonColor", "comboBoxType",
        "pushButtonApply", "left_flex1", "comboBoxRoi", "pushButtonAdd", "canvas", "tool_Zoom_In",
        "tool_Zoom_Out" }; // from one radio button to the other lead the arrows
    QVERIFY2(visited.mid(0, order.size()) == order, qPrintable(visited.join(" ")));
    QVERIFY(visited.size() < 40); // it comes round
}

void TestViewerSession::controls_haveAccessibleNames()
{
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    for (const QWidget* child : m_viewer->intensity()->findChildren<QWidget*>()) {
        const auto* button = qobject_cast<const QAbstractButton*>(child);
        const bool speaksItself = (button && !button->text().isEmpty()) || child->focusProxy();
        if (child->focusPolicy() != Qt::NoFocus && !speaksItself && child->isVisible()) {
            QVERIFY2(!child->accessibleName().isEmpty(), qPrintable(child->objectName()));
        }
    }
    QVERIFY(!m_viewer->window->findChild<QWidget*>("galleryView")->accessibleName().isEmpty());
    QCOMPARE(m_viewer->control<QPushButton>("tool_Zoom_In")->accessibleName(), QString("Zoom in"));
    QStringList folds;
    for (const auto* fold : m_viewer->intensity()->findChildren<QPushButton*>("left_flex1")) {
        folds << fold->accessibleName();
    }
    QCOMPARE(folds, (QStringList { "Fold the display preferences", "Fold the data histogram" }));
}

void TestViewerSession::names_inAnyScript_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names { QString::fromUtf8("Übergröße ß"), QString::fromUtf8("光谱 図形"),
        QString::fromUtf8("תמונה"), "with  spaces", "100% & <b>", QString::fromUtf8("naïve 😀") };
    for (const QString& name : names) {
        for (const char* suffix : { ".raw", ".png" }) {
            QTest::newRow(qPrintable(name + suffix)) << name + suffix;
        }
    }
}

void TestViewerSession::names_inAnyScript()
{
    QFETCH(QString, name);
    const QString path = m_viewer->path(name);
    if (name.endsWith("raw")) {
        m_viewer->writeFrame(name, 64);
    } else {
        QImage picture(64, 48, QImage::Format_Grayscale8);
        picture.fill(90);
        QVERIFY(picture.save(path));
    }
    QVERIFY2(m_viewer->window->openFile(path), qPrintable(m_viewer->window->problem()));
    QVERIFY(m_viewer->status("statusImageSize").startsWith(QString::fromUtf8("64 × 48")));
    QVERIFY(m_viewer->window->windowTitle().startsWith(name.simplified()));
    m_viewer->window->showGallery(m_viewer->folder.path());
    QCOMPARE(m_viewer->window->findChild<GalleryPage*>()->currentPath(), path);
}

QTEST_MAIN(TestViewerSession)
#include "tst_viewersession.moc"
