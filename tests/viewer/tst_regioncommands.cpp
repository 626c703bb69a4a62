#include "regioncommands.h"

#include "regiondialog.h"
#include "support/nextdialog.h"
#include "viewerfixture.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGraphicsView>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace {

using Regions = QVector<QRect>;

const QRect first(3, 4, 20, 16);
const QRect second(40, 10, 20, 30);

} // namespace

/// The menu "Regions" in an image of 65 x 48 pixels, with real events.
class TestRegionCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void add_putsARegionIntoTheMiddleOfWhatIsSeen();
    void addKey_belongsToAField();
    void deleteKey_removesTheMarkedRegion();
    void entries_followTheRegions();

    void undo_takesBackAnAddedRegion();
    void undo_takesBackADrag();
    void undo_takesBackAResize();
    void undo_takesBackThePanelsButtons();
    void undo_bringsBackADeletedRegionInItsPlace();
    void undo_takesBackWhatIsNotToldYet();
    void undo_takesBackCalls();
    void undo_isNamed();
    void redo_byBothKeys();
    void redo_endsWithAnotherChange();
    void selection_isAsItWas();
    void aDragBeyondTheEdge_canBeRepeated();
    void steps_areAHundred();
    void anotherImage_startsAfresh();
    void aReload_startsAfresh();
    void theGallery_hasNoSteps();
    void undoKey_belongsToAField();

    void edit_setsExactlyTheTypedPixels();
    void edit_thatChangesNothingIsNoStep();
    void edit_endsWithItsImage();
    void addByNumbers_addsExactlyTheTypedPixels();

private:
    void press(const char* keys) const;
    void typeNextRegion(const QRect& region);
    QString undoText() const { return m_viewer->action("actionUndo")->text(); }
    bool canUndo() const { return m_viewer->action("actionUndo")->isEnabled(); }
    bool canRedo() const { return m_viewer->action("actionRedo")->isEnabled(); }
    Regions regions() const { return m_viewer->intensity()->regions(); }
    QPoint place(const QPoint& pixel) const;
    void drag(const QPoint& from, const QPoint& to) const;

    std::unique_ptr<ViewerFixture> m_viewer;
    CVKIntensityWidget* m_image = nullptr;
};

void TestRegionCommands::initTestCase()
{
    ViewerFixture::setUpProgram();
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestRegionCommands::init()
{
    m_viewer = std::make_unique<ViewerFixture>();
    QVERIFY(m_viewer->window->openFile(m_viewer->path("frame 2.raw")));
    m_image = m_viewer->intensity();
    QVERIFY(!canUndo() && !canRedo());
}

void TestRegionCommands::cleanup()
{
    m_viewer.reset();
}

void TestRegionCommands::press(const char* keys) const
{
    QApplication::setActiveWindow(m_viewer->window.get()); // no window manager does after a dialog
    QTest::keySequence(m_viewer->window.get(), QKeySequence(keys));
}

/// Types the numbers into the region dialog that comes up next and accepts it.
void TestRegionCommands::typeNextRegion(const QRect& region)
{
    withNextDialog<RegionDialog>(this, [region](RegionDialog* dialog) {
        const QVector<QPair<const char*, int>> numbers { { "spinRegionX", region.x() },
            { "spinRegionY", region.y() }, { "spinRegionWidth", region.width() },
            { "spinRegionHeight", region.height() } };
        for (const auto& [name, number] : numbers) {
            auto* box = dialog->findChild<QSpinBox*>(name);
            box->setFocus();
            box->selectAll();
            QTest::keyClicks(box, QString::number(number));
        }
        auto* ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        if (ok->isEnabled()) {
            QTest::mouseClick(ok, Qt::LeftButton);
        } else {
            dialog->reject();
        }
    });
}

/// Where the canvas shows the middle of a pixel.
QPoint TestRegionCommands::place(const QPoint& pixel) const
{
    const QWidget* viewport = m_image->findChild<QGraphicsView*>()->viewport();
    const auto pixelAt = [&](const QPoint& position) {
        return m_image->pixelAt(viewport->mapTo(m_image, position)).value_or(QPoint(-1, -1));
    };
    QRect shown;
    for (int x = 0; x < viewport->width(); ++x) {
        if (pixelAt(QPoint(x, viewport->height() / 2)).x() == pixel.x()) {
            shown |= QRect(x, 0, 1, 1);
        }
    }
    const int x = shown.center().x();
    shown = QRect();
    for (int y = 0; y < viewport->height(); ++y) {
        if (pixelAt(QPoint(x, y)).y() == pixel.y()) {
            shown |= QRect(x, y, 1, 1);
        }
    }
    return shown.center();
}

void TestRegionCommands::drag(const QPoint& from, const QPoint& to) const
{
    QWidget* viewport = m_image->findChild<QGraphicsView*>()->viewport();
    const auto moveTo = [viewport](const QPoint& on, Qt::MouseButtons buttons) {
        QMouseEvent move(QEvent::MouseMove, QPointF(on), QPointF(viewport->mapToGlobal(on)),
            Qt::NoButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
        QCoreApplication::processEvents(); // a report in the middle of a drag
    };
    moveTo(from - QPoint(9, 9), Qt::NoButton);
    moveTo(from, Qt::NoButton);
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, from);
    for (const QPoint& on : { from + (to - from) / 3, from + (to - from) * 2 / 3, to }) {
        moveTo(on, Qt::LeftButton);
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, to);
    QCoreApplication::processEvents();
}

/// 65 x 48 pixels are less than the usual region, which is then an eighth of both: 8 x 6.
void TestRegionCommands::add_putsARegionIntoTheMiddleOfWhatIsSeen()
{
    press("Ins");
    QCOMPARE(regions(), Regions { QRect(28, 21, 8, 6) });
    QCOMPARE(m_image->selectedRegion(), 0);
    QVERIFY(m_image->setCrossHair(QPoint(5, 5)));
    while (m_image->visiblePixels().width() > 16 && m_image->zoomIn()) { }
    const QRect seen = m_image->visiblePixels();
    QVERIFY(seen.width() <= 16);
    press("Ins");
    QCOMPARE(regions().size(), 2);
    QVERIFY(seen.contains(regions()[1]));
    QVERIFY(!regions()[1].isEmpty());
}

void TestRegionCommands::addKey_belongsToAField()
{
    press("Ctrl+2");
    auto* field = m_viewer->control<QLineEdit>("lineEditPeaks");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Insert);
    QVERIFY(regions().isEmpty());
    m_viewer->control<QPushButton>("pushButtonAdd")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Insert);
    QCOMPARE(regions().size(), 1);
}

void TestRegionCommands::deleteKey_removesTheMarkedRegion()
{
    QVERIFY(m_image->setRegions({ first, second }));
    QTest::mouseClick(m_image->findChild<QGraphicsView*>()->viewport(), Qt::LeftButton,
        Qt::NoModifier, place(first.center()));
    QTRY_COMPARE(m_image->selectedRegion(), 0);
    press("Del");
    QCOMPARE(regions(), Regions { second });
}

void TestRegionCommands::entries_followTheRegions()
{
    const auto enabled = [this](const char* name) { return m_viewer->action(name)->isEnabled(); };
    const QStringList always { "actionAddRegion", "actionAddRegionByNumbers", "actionLoadRegions" };
    const QStringList selected { "actionEditRegion", "actionDeleteRegion" };
    const auto areEnabled = [&enabled](const QStringList& names) {
        return std::count_if(names.begin(), names.end(),
            [&enabled](const QString& name) { return enabled(qPrintable(name)); });
    };
    QCOMPARE(areEnabled(always), 3);
    QCOMPARE(areEnabled(selected), 0);
    QVERIFY(!enabled("actionSaveRegions"));
    QVERIFY(m_image->addRegion(first));
    QCOMPARE(areEnabled(selected), 2);
    QVERIFY(enabled("actionSaveRegions"));
    QVERIFY(m_image->selectRegion(-1));
    QCOMPARE(areEnabled(selected), 0);
    QVERIFY(enabled("actionSaveRegions"));
    m_viewer->window->showGallery(m_viewer->folder.path());
    QCOMPARE(areEnabled(always), 0);
    QCOMPARE(areEnabled(selected), 0);
    QVERIFY(!enabled("actionSaveRegions"));
    QVERIFY(!m_viewer->window->openFile(m_viewer->path("gone.raw")));
    QCOMPARE(areEnabled(always), 0);
}

void TestRegionCommands::undo_takesBackAnAddedRegion()
{
    press("Ins");
    QVERIFY(canUndo() && !canRedo());
    press("Ctrl+Z");
    QVERIFY(regions().isEmpty());
    QVERIFY(!canUndo() && canRedo());
    press("Ctrl+Z"); // does nothing
    QVERIFY(regions().isEmpty());
}

/// All of the drag is one step, although the event loop runs in between.
void TestRegionCommands::undo_takesBackADrag()
{
    QVERIFY(m_image->setRegions({ first, second }));
    drag(place(QPoint(13, 12)), place(QPoint(25, 20)));
    const Regions moved = regions();
    QCOMPARE(moved[1], second);
    QCOMPARE(moved[0], first.translated(12, 8));
    QCOMPARE(undoText(), QString("&Undo Move Region"));
    press("Ctrl+Z");
    QCOMPARE(regions(), (Regions { first, second }));
    QCOMPARE(m_image->selectedRegion(), 0);
    press("Ctrl+Shift+Z");
    QCOMPARE(regions(), moved);
}

void TestRegionCommands::undo_takesBackAResize()
{
    QVERIFY(m_image->setRegions({ first }));
    // The handle stands where the last pixel of the region begins.
    const QPoint corner
        = (place(first.bottomRight()) + place(first.bottomRight() - QPoint(1, 1))) / 2;
    drag(corner, place(QPoint(40, 35)));
    QCOMPARE(regions()[0].topLeft(), first.topLeft());
    QVERIFY(regions()[0].width() > first.width() && regions()[0].height() > first.height());
    QCOMPARE(undoText(), QString("&Undo Resize Region"));
    press("Ctrl+Z");
    QCOMPARE(regions(), Regions { first });
}

void TestRegionCommands::undo_takesBackThePanelsButtons()
{
    QTest::mouseClick(m_viewer->control<QPushButton>("pushButtonAdd"), Qt::LeftButton);
    QTRY_VERIFY(canUndo());
    QCOMPARE(undoText(), QString("&Undo Add Region"));
    const Regions added = regions();
    QCOMPARE(added.size(), 1);
    QTest::mouseClick(m_viewer->control<QPushButton>("pushButtonDelete"), Qt::LeftButton);
    QTRY_COMPARE(undoText(), QString("&Undo Delete Region"));
    QVERIFY(regions().isEmpty());
    press("Ctrl+Z");
    QCOMPARE(regions().size(), 1);
    QCOMPARE(m_image->selectedRegion(), 0);
    press("Ctrl+Z");
    QVERIFY(regions().isEmpty());
    QVERIFY(!canUndo());
}

void TestRegionCommands::undo_bringsBackADeletedRegionInItsPlace()
{
    const QRect middle(30, 20, 5, 5);
    QVERIFY(m_image->setRegions({ first, middle, second }));
    QVERIFY(m_image->selectRegion(1));
    press("Del");
    QCOMPARE(regions(), (Regions { first, second }));
    press("Ctrl+Z");
    QCOMPARE(regions(), (Regions { first, middle, second }));
    QCOMPARE(m_image->selectedRegion(), 1);
    QCOMPARE(m_viewer->control<QComboBox>("comboBoxRoi")->currentText(), QString("ROI 2"));
}

/// Both events stand in the queue before the widget tells of the first one.
void TestRegionCommands::undo_takesBackWhatIsNotToldYet()
{
    QVERIFY(m_image->setRegions({ first }));
    QTest::mouseClick(m_viewer->control<QPushButton>("pushButtonAdd"), Qt::LeftButton);
    m_viewer->action("actionUndo")->trigger();
    QCOMPARE(regions(), Regions { first });
    QCoreApplication::processEvents();
    QCOMPARE(regions(), Regions { first });
    QVERIFY(canRedo());
}

void TestRegionCommands::undo_takesBackCalls()
{
    QVERIFY(m_image->addRegion(first));
    QVERIFY(m_image->setRegions({ second, first, second }));
    QCOMPARE(undoText(), QString("&Undo Change Regions"));
    QVERIFY(m_image->setRegion(1, QRect(0, 0, 65, 48)));
    QVERIFY(m_image->removeRegion(2));
    press("Ctrl+Z");
    QCOMPARE(regions(), (Regions { second, QRect(0, 0, 65, 48), second }));
    press("Ctrl+Z");
    QCOMPARE(regions(), (Regions { second, first, second }));
    press("Ctrl+Z");
    QCOMPARE(regions(), Regions { first });
    press("Ctrl+Z");
    QVERIFY(regions().isEmpty());
    for (int i = 0; i < 4; ++i) {
        press("Ctrl+Y");
    }
    QCOMPARE(regions(), (Regions { second, QRect(0, 0, 65, 48) }));
    QVERIFY(!canRedo());
}

void TestRegionCommands::undo_isNamed()
{
    QCOMPARE(undoText(), QString("&Undo"));
    QVERIFY(m_image->addRegion(first));
    QCOMPARE(undoText(), QString("&Undo Add Region"));
    QVERIFY(m_image->setRegion(0, first.translated(1, 0)));
    QCOMPARE(undoText(), QString("&Undo Move Region"));
    QVERIFY(m_image->setRegion(0, first));
    QVERIFY(m_image->setRegion(0, first.adjusted(0, 0, 1, 0)));
    QCOMPARE(undoText(), QString("&Undo Resize Region"));
    QVERIFY(m_image->removeRegion(0));
    QCOMPARE(undoText(), QString("&Undo Delete Region"));
    press("Ctrl+Z");
    QCOMPARE(m_viewer->action("actionRedo")->text(), QString("&Redo Delete Region"));
}

void TestRegionCommands::redo_byBothKeys()
{
    QVERIFY(m_image->addRegion(first));
    for (const char* keys : { "Ctrl+Shift+Z", "Ctrl+Y" }) {
        press("Ctrl+Z");
        QVERIFY(regions().isEmpty());
        press(keys);
        QCOMPARE(regions(), Regions { first });
        QVERIFY(canUndo() && !canRedo());
    }
}

void TestRegionCommands::redo_endsWithAnotherChange()
{
    QVERIFY(m_image->addRegion(first));
    press("Ctrl+Z");
    QVERIFY(canRedo());
    QVERIFY(m_image->addRegion(second));
    QVERIFY(!canRedo());
    press("Ctrl+Y");
    QCOMPARE(regions(), Regions { second });
}

void TestRegionCommands::selection_isAsItWas()
{
    QVERIFY(m_image->setRegions({ first, second }));
    QVERIFY(m_image->selectRegion(0));
    press("Ins");
    QCOMPARE(m_image->selectedRegion(), 2);
    press("Ctrl+Z");
    QCOMPARE(m_image->selectedRegion(), 0);
    press("Ctrl+Y");
    QCOMPARE(m_image->selectedRegion(), 2);
    press("Ctrl+Z");
    QVERIFY(m_image->selectRegion(-1));
    press("Ctrl+Z"); // the list before the two
    QVERIFY(regions().isEmpty());
    QCOMPARE(m_image->selectedRegion(), -1);
}

/// The widget lets an edge stand one pixel outside; calls do not set such a region.
void TestRegionCommands::aDragBeyondTheEdge_canBeRepeated()
{
    const QRect image(0, 0, 65, 48);
    QVERIFY(m_image->setRegions({ first, second }));
    drag(place(QPoint(50, 25)), place(QPoint(64, 47)));
    const QRect moved = regions()[1];
    QVERIFY(moved.right() >= 64 && moved.bottom() >= 47);
    press("Ctrl+Z");
    QCOMPARE(regions(), (Regions { first, second }));
    press("Ctrl+Y");
    QCOMPARE(regions(), (Regions { first, moved & image }));
    press("Ctrl+Z");
    QCOMPARE(regions(), (Regions { first, second }));
}

void TestRegionCommands::steps_areAHundred()
{
    QVERIFY(m_image->addRegion(QRect(0, 0, 2, 2)));
    for (int i = 1; i <= 105; ++i) {
        QVERIFY(m_image->setRegion(0, QRect(i % 60, i / 60, 2, 2)));
    }
    int undone = 0;
    while (canUndo() && undone < 200) {
        press("Ctrl+Z");
        ++undone;
    }
    QCOMPARE(undone, 100);
    QCOMPARE(regions(), Regions { QRect(5, 0, 2, 2) });
}

void TestRegionCommands::anotherImage_startsAfresh()
{
    QVERIFY(m_image->addRegion(first));
    QVERIFY(m_image->addRegion(second));
    press("Ctrl+Z");
    QVERIFY(canUndo() && canRedo());
    press("PgDown");
    QCOMPARE(m_viewer->shownFile(), QString("frame 10.raw"));
    QVERIFY(!canUndo() && !canRedo());
    press("Ctrl+Z");
    press("Ctrl+Y");
    QCOMPARE(regions(), Regions { first }); // kept, and none of the steps
    QVERIFY(m_image->addRegion(second));
    press("Ctrl+Z");
    QCOMPARE(regions(), Regions { first });
    QVERIFY(!canUndo());
}

void TestRegionCommands::aReload_startsAfresh()
{
    QVERIFY(m_image->setRegions({ first, second }));
    press("F5");
    QCOMPARE(regions(), (Regions { first, second }));
    QVERIFY(!canUndo() && !canRedo());
    press("Del");
    press("Ctrl+Z");
    QCOMPARE(regions(), (Regions { first, second }));
    QVERIFY(!canUndo());
}

void TestRegionCommands::theGallery_hasNoSteps()
{
    QVERIFY(m_image->addRegion(first));
    m_viewer->window->showGallery(m_viewer->folder.path());
    QVERIFY(!canUndo());
}

void TestRegionCommands::undoKey_belongsToAField()
{
    QVERIFY(m_image->addRegion(first));
    press("Ctrl+2");
    auto* field = m_viewer->control<QLineEdit>("lineEditPeaks");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "7");
    QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(field->text(), QString("10"));
    QCOMPARE(regions(), Regions { first });
}

void TestRegionCommands::edit_setsExactlyTheTypedPixels()
{
    QVERIFY(m_image->setRegions({ first, second }));
    QVERIFY(m_image->selectRegion(0));
    QString title;
    withNextDialog<RegionDialog>(this, [&title](RegionDialog* dialog) {
        title = dialog->windowTitle();
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    press("F2");
    QCOMPARE(title, QString("ROI 1"));
    QCOMPARE(regions(), (Regions { first, second }));
    typeNextRegion(QRect(0, 0, 65, 48));
    press("F2");
    QCOMPARE(regions(), (Regions { QRect(0, 0, 65, 48), second }));
    QCOMPARE(m_image->selectedRegion(), 0);
    typeNextRegion(QRect(64, 47, 1, 1));
    press("F2");
    QCOMPARE(regions(), (Regions { QRect(64, 47, 1, 1), second }));
    typeNextRegion(QRect(64, 47, 2, 1)); // cannot be accepted
    press("F2");
    QCOMPARE(regions(), (Regions { QRect(64, 47, 1, 1), second }));
    press("Ctrl+Z");
    press("Ctrl+Z");
    QCOMPARE(regions(), (Regions { first, second }));
}

void TestRegionCommands::edit_thatChangesNothingIsNoStep()
{
    QVERIFY(m_image->addRegion(first));
    typeNextRegion(first);
    press("F2");
    press("Ctrl+Z");
    QVERIFY(regions().isEmpty());
}

/// The file has changed on disk and is loaded again while the dialog is open.
void TestRegionCommands::edit_endsWithItsImage()
{
    QVERIFY(m_image->addRegion(first));
    withNextDialog<RegionDialog>(this, [this](RegionDialog* dialog) {
        dialog->findChild<QSpinBox*>("spinRegionX")->setValue(10);
        m_viewer->window->reload();
        QVERIFY(!dialog->isVisible());
    });
    press("F2");
    QCOMPARE(regions(), Regions { first });
    QVERIFY(!canUndo());
}

void TestRegionCommands::addByNumbers_addsExactlyTheTypedPixels()
{
    QVERIFY(m_image->addRegion(first));
    QString title;
    withNextDialog<RegionDialog>(this, [&title](RegionDialog* dialog) {
        title = dialog->windowTitle();
        dialog->reject();
    });
    press("Shift+Ins");
    QCOMPARE(title, QString("New Region"));
    QCOMPARE(regions(), Regions { first });
    typeNextRegion(second);
    press("Shift+Ins");
    QCOMPARE(regions(), (Regions { first, second }));
    QCOMPARE(m_image->selectedRegion(), 1);
    press("Ctrl+Z");
    QCOMPARE(regions(), Regions { first });
}

QTEST_MAIN(TestRegionCommands)
#include "tst_regioncommands.moc"
