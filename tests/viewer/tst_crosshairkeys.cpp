#include "crosshairkeys.h"

#include "gallerypage.h"
#include "support/focusvisibility.h"
#include "viewerfixture.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGraphicsView>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

/// Arrow keys and the focus of the canvas, in an image of 65 x 48 pixels.
class TestCrossHairKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void arrows_moveByOnePixel();
    void arrowsWithShift_moveByTen();
    void arrows_stopAtTheEdges();
    void arrows_followInTheZoomedImage();
    void arrows_moveInACharts();
    void arrows_workFromButtons();
    void fields_keepTheirArrows();
    void radioButtons_keepTheirArrows();
    void panel_scrollsByArrows();
    void menus_keepTheirArrows();
    void gallery_keepsItsArrows();
    void withoutAnImage_nothingHappens();
    void canvas_isReachedByTab();
    void canvas_showsTheFocus();
    void help_tellsTheKeys();

private:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    QPoint crossHair() const { return m_viewer->intensity()->crossHair().value_or(QPoint()); }
    QGraphicsView* canvas() const { return m_viewer->intensity()->findChild<QGraphicsView*>(); }

    std::unique_ptr<ViewerFixture> m_viewer;
};

void TestCrossHairKeys::initTestCase()
{
    ViewerFixture::setUpProgram();
}

void TestCrossHairKeys::init()
{
    m_viewer = std::make_unique<ViewerFixture>();
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 2.raw")));
    canvas()->setFocus();
    QVERIFY(m_viewer->intensity()->setCrossHair(QPoint(30, 20)));
}

void TestCrossHairKeys::cleanup()
{
    m_viewer.reset();
}

void TestCrossHairKeys::arrows_moveByOnePixel()
{
    press(Qt::Key_Right);
    QCOMPARE(crossHair(), QPoint(31, 20));
    press(Qt::Key_Down);
    QCOMPARE(crossHair(), QPoint(31, 21));
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    QCOMPARE(crossHair(), QPoint(29, 21));
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    QCOMPARE(crossHair(), QPoint(29, 19));
}

void TestCrossHairKeys::arrowsWithShift_moveByTen()
{
    press(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(crossHair(), QPoint(40, 20));
    press(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(crossHair(), QPoint(40, 30));
    press(Qt::Key_Left, Qt::ShiftModifier);
    press(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(crossHair(), QPoint(30, 20));
    press(Qt::Key_Right, Qt::ControlModifier); // means nothing
    QCOMPARE(crossHair(), QPoint(30, 20));
}

void TestCrossHairKeys::arrows_stopAtTheEdges()
{
    CVKIntensityWidget* image = m_viewer->intensity();
    QVERIFY(image->setCrossHair(QPoint(0, 0)));
    press(Qt::Key_Left);
    press(Qt::Key_Up);
    QCOMPARE(crossHair(), QPoint(0, 0));
    QVERIFY(image->setCrossHair(QPoint(4, 9)));
    press(Qt::Key_Left, Qt::ShiftModifier);
    press(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(crossHair(), QPoint(0, 0));
    QVERIFY(image->setCrossHair(QPoint(64, 47)));
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    QCOMPARE(crossHair(), QPoint(64, 47));
    QVERIFY(image->setCrossHair(QPoint(60, 40)));
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(crossHair(), QPoint(64, 47));
}

void TestCrossHairKeys::arrows_followInTheZoomedImage()
{
    CVKIntensityWidget* image = m_viewer->intensity();
    while (image->visiblePixels().width() > 20 && image->zoomIn()) { }
    QVERIFY(image->visiblePixels().width() <= 20);
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_Right, Qt::ShiftModifier);
    }
    QCOMPARE(crossHair(), QPoint(60, 20));
    QVERIFY(image->visiblePixels().contains(QPoint(60, 20)));
}

void TestCrossHairKeys::arrows_moveInACharts()
{
    using View = CVKIntensityWidget::View;
    for (const View view : { View::RowChart, View::ColumnChart }) {
        QVERIFY(m_viewer->intensity()->setView(view));
        QVERIFY(m_viewer->intensity()->setCrossHair(QPoint(30, 20)));
        press(Qt::Key_Right);
        press(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(crossHair(), QPoint(31, 30));
        QCOMPARE(m_viewer->intensity()->view(), view);
    }
}

/// A click on a button leaves the focus there.
void TestCrossHairKeys::arrows_workFromButtons()
{
    for (const char* name : { "pushButtonAdd", "Return", "tool_Zoom_In" }) {
        auto* button = m_viewer->control<QWidget>(name);
        button->setFocus();
        QVERIFY2(button->hasFocus(), name);
        QVERIFY(m_viewer->intensity()->setCrossHair(QPoint(30, 20)));
        press(Qt::Key_Right);
        QVERIFY2(button->hasFocus(), name);
        QCOMPARE(crossHair(), QPoint(31, 20));
    }
}

void TestCrossHairKeys::fields_keepTheirArrows()
{
    QVERIFY(m_viewer->intensity()->setView(CVKIntensityWidget::View::RowChart));
    auto* field = m_viewer->control<QLineEdit>("lineEditPeaks");
    field->setFocus();
    field->setCursorPosition(2);
    for (const Qt::Key key : { Qt::Key_Left, Qt::Key_Up, Qt::Key_Down }) {
        press(key);
    }
    QCOMPARE(field->cursorPosition(), 1);
    press(Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(field->selectedText(), QString("0")); // of "10"
    auto* box = m_viewer->control<QComboBox>("comboBoxDisplay");
    box->setFocus();
    press(Qt::Key_Down);
    QCOMPARE(box->currentIndex(), 1);
    press(Qt::Key_Left);
    press(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(crossHair(), QPoint(30, 20));
}

void TestCrossHairKeys::radioButtons_keepTheirArrows()
{
    auto* radio = m_viewer->control<QRadioButton>("radioButtonImage");
    radio->setFocus();
    press(Qt::Key_Down);
    QVERIFY(!radio->isChecked());
    QCOMPARE(m_viewer->intensity()->view(), CVKIntensityWidget::View::RowChart);
    QCOMPARE(crossHair(), QPoint(30, 20));
}

void TestCrossHairKeys::panel_scrollsByArrows()
{
    auto* panel = m_viewer->control<QScrollArea>("Scroll_ModuleWidget");
    QVERIFY(panel->verticalScrollBar()->maximum() > 0);
    panel->setFocus();
    press(Qt::Key_Down);
    QVERIFY(panel->verticalScrollBar()->value() > 0);
    QCOMPARE(crossHair(), QPoint(30, 20));
}

void TestCrossHairKeys::menus_keepTheirArrows()
{
    QMenuBar* bar = m_viewer->window->menuBar();
    bar->setFocus(Qt::MenuBarFocusReason); // as after Alt
    bar->setActiveAction(bar->actions()[0]);
    QMenu* first = bar->actions()[0]->menu();
    QTRY_VERIFY(first->isVisible());
    QTest::keyClick(first, Qt::Key_Right);
    QTRY_VERIFY(bar->actions()[1]->menu()->isVisible());
    QTest::keyClick(bar->actions()[1]->menu(), Qt::Key_Down);
    QTest::keyClick(bar->actions()[1]->menu(), Qt::Key_Escape);
    if (bar->hasFocus()) {
        press(Qt::Key_Left);
        QCOMPARE(bar->activeAction(), bar->actions()[0]);
    }
    QCOMPARE(crossHair(), QPoint(30, 20));
}

void TestCrossHairKeys::gallery_keepsItsArrows()
{
    m_viewer->window->showGallery(m_viewer->folder.path());
    auto* list = m_viewer->page()->findChild<QListView*>();
    QVERIFY(list->hasFocus());
    list->setCurrentIndex(list->model()->index(0, 0));
    press(Qt::Key_Right);
    QCOMPARE(list->currentIndex().row(), 1);
}

void TestCrossHairKeys::withoutAnImage_nothingHappens()
{
    m_viewer->intensity()->closeImage();
    press(Qt::Key_Right);
    press(Qt::Key_Down, Qt::ShiftModifier);
    QVERIFY(!m_viewer->intensity()->crossHair());
}

/// The canvas, the buttons on it, then the panel from top to bottom.
void TestCrossHairKeys::canvas_isReachedByTab()
{
    QStringList visited;
    for (int i = 0; i < 5; ++i) {
        press(Qt::Key_Tab);
        visited << QApplication::focusWidget()->objectName();
    }
    QCOMPARE(visited.mid(0, 4),
        (QStringList { "tool_Zoom_In", "tool_Zoom_Out", "Scroll_ModuleWidget", "Return" }));
    for (int i = 0; i < 5; ++i) {
        press(Qt::Key_Backtab, Qt::ShiftModifier);
    }
    QVERIFY(canvas()->hasFocus());
    for (int i = 0; i < 60 && (i == 0 || !canvas()->hasFocus()); ++i) {
        press(Qt::Key_Tab); // all around
    }
    QVERIFY(canvas()->hasFocus());
}

void TestCrossHairKeys::canvas_showsTheFocus()
{
    canvas()->setFocus(Qt::TabFocusReason);
    QVERIFY(focusIsSeen(canvas()));
}

void TestCrossHairKeys::help_tellsTheKeys()
{
    QStringList keys;
    for (const QLabel* label : m_viewer->window->findChildren<QLabel*>("helpKeys")) {
        keys << label->text();
    }
    QVERIFY(keys.contains("Arrows") && keys.contains("Shift+Arrows"));
    QVERIFY(keys.contains("Click a region"));
}

QTEST_MAIN(TestCrossHairKeys)
#include "tst_crosshairkeys.moc"
