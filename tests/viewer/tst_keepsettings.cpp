#include "settingskeeper.h"

#include "gallerypage.h"
#include "viewerfixture.h"

#include <QApplication>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QStatusBar>

/// What another image takes over from the one before.
class TestKeepSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void nextAndPrevious_keep();
    void theGallery_keeps();
    void aProblem_keeps();
    void regionsThatDoNotFit_areLeftOut();
    void crossHairOutside_startsAfresh();
    void theWelcomePage_forgets();
    void off_startsAfresh();
    void off_doesNotConcernAReload();
    void statusLine_tells();
    void session_isKept();
    void session_isNotTouchedWithoutSettings();

private:
    using Widget = CVKIntensityWidget;
    void press(const char* keys) const;
    void chooseByMouse() const;
    void adjust() const;
    bool isAdjusted() const;
    bool isFresh() const;

    std::unique_ptr<ViewerFixture> m_viewer;
    const QVector<QRect> m_regions { QRect(3, 4, 5, 6), QRect(30, 10, 34, 20) };
};

void TestKeepSettings::initTestCase()
{
    ViewerFixture::setUpProgram();
}

void TestKeepSettings::init()
{
    m_viewer = std::make_unique<ViewerFixture>();
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 2.raw")));
}

void TestKeepSettings::cleanup()
{
    m_viewer.reset();
}

void TestKeepSettings::press(const char* keys) const
{
    QTest::keySequence(m_viewer->window.get(), QKeySequence(keys));
}

/// Clicks the entry in its menu.
void TestKeepSettings::chooseByMouse() const
{
    QMenuBar* bar = m_viewer->window->menuBar();
    QAction* title = bar->actions()[3];
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->actionGeometry(title).center());
    QAction* entry = m_viewer->action("actionKeepSettings");
    QTest::mouseClick(title->menu(), Qt::LeftButton, Qt::NoModifier,
        title->menu()->actionGeometry(entry).center());
}

/// Everything is other than after a load.
void TestKeepSettings::adjust() const
{
    Widget* image = m_viewer->intensity();
    QVERIFY(image->setCrossHair(QPoint(20, 10)));
    QVERIFY(image->setRegions(m_regions));
    QVERIFY(image->selectRegion(0));
    QVERIFY(image->setColorPalette("Blue"));
    QVERIFY(image->setCalibration(Widget::Calibration { 300, 2, Widget::Unit::Nanometers }));
    QVERIFY(image->setPeakLabels({ true, 7 }));
    QVERIFY(image->setView(Widget::View::ColumnChart));
}

bool TestKeepSettings::isAdjusted() const
{
    const Widget* image = m_viewer->intensity();
    return image->crossHair() == std::optional<QPoint>(QPoint(20, 10))
        && image->regions() == m_regions && image->selectedRegion() == 0
        && image->colorPalette() == "Blue"
        && image->calibration() == Widget::Calibration { 300, 2, Widget::Unit::Nanometers }
    && image->peakLabels() == Widget::PeakLabels { true, 7 }
    && image->view() == Widget::View::ColumnChart;
}

bool TestKeepSettings::isFresh() const
{
    const Widget* image = m_viewer->intensity();
    return image->crossHair() != std::optional<QPoint>(QPoint(20, 10)) && image->regions().isEmpty()
        && image->colorPalette() == "Gray" && !image->calibration()
        && image->peakLabels() == Widget::PeakLabels() && image->view() == Widget::View::Image;
}

void TestKeepSettings::nextAndPrevious_keep()
{
    adjust();
    QVERIFY(isAdjusted() && !isFresh());
    press("PgDown");
    QCOMPARE(m_viewer->shownFile(), QString("frame 10.raw"));
    QVERIFY(isAdjusted());
    press("PgUp");
    press("PgUp");
    QCOMPARE(m_viewer->shownFile(), QString("frame 1.raw"));
    QVERIFY(isAdjusted()); // 64 pixels wide: both regions fit to the edge
    QVERIFY(m_viewer->window->statusBar()->currentMessage().isEmpty());
}

void TestKeepSettings::theGallery_keeps()
{
    adjust();
    press("Ctrl+G");
    auto* view = m_viewer->window->findChild<QListView*>("galleryView");
    view->setCurrentIndex(view->model()->index(2, 0));
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(m_viewer->shownFile(), QString("frame 10.raw"));
    QVERIFY(isAdjusted());
}

void TestKeepSettings::aProblem_keeps()
{
    adjust();
    QFile empty(m_viewer->path("frame 3.raw"));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    press("PgDown");
    QVERIFY(!m_viewer->window->problem().isEmpty());
    press("PgDown");
    QCOMPARE(m_viewer->shownFile(), QString("frame 10.raw"));
    QVERIFY(isAdjusted());
}

void TestKeepSettings::regionsThatDoNotFit_areLeftOut()
{
    adjust();
    m_viewer->writeFrame("frame 3.raw", 60); // the second region reaches to column 63
    press("PgDown");
    const Widget* image = m_viewer->intensity();
    QCOMPARE(image->regions(), QVector<QRect> { m_regions[0] });
    QCOMPARE(image->colorPalette(), QString("Blue"));
    QCOMPARE(m_viewer->window->statusBar()->currentMessage(),
        QString("Not all is as before: the region 30,10,34,20 does not lie inside the image of "
                "60x48 pixels."));
    press("PgDown"); // tells no more
    QVERIFY(m_viewer->window->statusBar()->currentMessage().isEmpty());
}

void TestKeepSettings::crossHairOutside_startsAfresh()
{
    press("PgDown"); // 73 pixels wide
    QVERIFY(m_viewer->intensity()->setCrossHair(QPoint(70, 10)));
    press("PgUp"); // 65 pixels wide
    const auto crossHair = m_viewer->intensity()->crossHair();
    QVERIFY(crossHair && QRect(0, 0, 65, 48).contains(*crossHair));
    QVERIFY(m_viewer->window->statusBar()->currentMessage().isEmpty());
}

void TestKeepSettings::theWelcomePage_forgets()
{
    adjust();
    press("Ctrl+W");
    press("Ctrl+W");
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 1.raw")));
    QVERIFY(isFresh());
}

void TestKeepSettings::off_startsAfresh()
{
    adjust();
    chooseByMouse();
    QVERIFY(!m_viewer->action("actionKeepSettings")->isChecked());
    press("PgDown");
    QVERIFY(isFresh());
    adjust();
    press("Ctrl+G");
    auto* view = m_viewer->window->findChild<QListView*>("galleryView");
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(m_viewer->shownFile(), QString("frame 10.raw"));
    QVERIFY(isFresh());
    adjust();
    chooseByMouse();
    press("PgUp");
    QVERIFY(isAdjusted());
}

void TestKeepSettings::off_doesNotConcernAReload()
{
    chooseByMouse();
    adjust();
    press("F5");
    QVERIFY(isAdjusted());
}

void TestKeepSettings::statusLine_tells()
{
    m_viewer->window->resize(1200, 700);
    const auto* label = m_viewer->window->findChild<QLabel*>("statusSettingsKept");
    QVERIFY(label->isVisible());
    QCOMPARE(label->text(), QString("Settings kept"));
    chooseByMouse();
    QVERIFY(!label->isVisible());
    chooseByMouse();
    QVERIFY(label->isVisible());
}

void TestKeepSettings::session_isKept()
{
    const auto settings = [this] {
        return std::make_unique<QSettings>(m_viewer->path("viewer.ini"), QSettings::IniFormat);
    };
    m_viewer->makeWindow();
    m_viewer->window->restoreSession(settings());
    QVERIFY(m_viewer->action("actionKeepSettings")->isChecked()); // nothing is stored
    chooseByMouse();
    m_viewer->makeWindow();
    QVERIFY(m_viewer->action("actionKeepSettings")->isChecked()); // as long as nothing is read
    m_viewer->window->restoreSession(settings());
    QVERIFY(!m_viewer->action("actionKeepSettings")->isChecked());
    QVERIFY(m_viewer->status("statusSettingsKept").isEmpty());
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 2.raw")));
    adjust();
    press("PgDown");
    QVERIFY(isFresh());
}

void TestKeepSettings::session_isNotTouchedWithoutSettings()
{
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_viewer->path("settings"));
    chooseByMouse();
    m_viewer->window->close();
    QVERIFY(!QFileInfo::exists(m_viewer->path("settings")));
}

QTEST_MAIN(TestKeepSettings)
#include "tst_keepsettings.moc"
