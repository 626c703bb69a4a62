#include "panel/cvkintensityctrlwidget.h"

#include "panel/cvkdatahistogram.h"
#include "panel/cvkdisplaypreferences.h"
#include "panel/cvkintensityctrltitlebar.h"
#include "panel/formtree.h"
#include "base/screenscale.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

namespace {

/// The host's window, two levels above the control panel.
class Host : public QWidget
{
    Q_OBJECT

public:
    int switchCount = 0;

public Q_SLOTS:
    void sltSwitchToGallery() { ++switchCount; }
};

/// The sizes that follow the screen, in pixels.
struct Sizes
{
    QSize returnButton;
    int spacing;
    int scrollTop;
};

/// Runs at 96 and at 144 dots per inch.
Sizes expectedSizes()
{
    return primaryDotsPerInch() == 96.0 ? Sizes { QSize(96, 44), 80, 57 }
                                        : Sizes { QSize(144, 66), 120, 85 };
}

QByteArray resizeLine(int width, int height)
{
    return "[resizeEvent]x: 0, y: " + QByteArray::number(expectedSizes().scrollTop)
        + ", wid: " + QByteArray::number(width) + ", hei: " + QByteArray::number(height) + "\n";
}

int warningCount = 0;

void countWarnings(QtMsgType type, const QMessageLogContext&, const QString&)
{
    warningCount += type == QtWarningMsg ? 1 : 0;
}

} // namespace

class TestCVKIntensityCtrlWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void metaObject_listsTheSignals();
    void returnButton_isBuilt();
    void returnButton_switchesToTheGallery();
    void returnButton_ofAHostWithoutTheSlot();
    void returnButton_withoutHost();
    void buttonRow_leavesRoom();
    void modules_standInTheColumn();
    void titles_haveTheirTextsAndIndexZero();
    void scrollArea_isASibling();
    void scrollArea_withoutParentBelongsToThePanel();
    void title_collapsesItsModule_data();
    void title_collapsesItsModule();
    void collapsing_closesTheGap();
    void resize_placesTheScrollArea();
    void resize_belowTheScrollAreasTop();
    void resize_toTenPixelsAt96();
    void signals_areNeverSent();

    void panelDiesAlone();
    void panelIsClosed();
    void parentDiesFirst();
    void scrollAreaDiesFirst();
    void containerDiesFirst();
    void closedModules_areForgotten();
    void closedTitles_leaveTheirModules();
    void closedReturnButton();

private:
    QScrollArea* scrollArea() const { return m_parent->findChild<QScrollArea*>(); }
    QList<CVKIntensityCtrlTitleBar*> titles() const
    {
        return m_parent->findChildren<CVKIntensityCtrlTitleBar*>();
    }
    static void deleteClosed()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    std::unique_ptr<Host> m_host;
    QWidget* m_parent = nullptr;
    QPointer<CVKIntensityCtrlWidget> m_panel;
};

void TestCVKIntensityCtrlWidget::init()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    m_host = std::make_unique<Host>();
    m_parent = new QWidget(m_host.get());
    m_parent->resize(600, 1000);
    m_panel = new CVKIntensityCtrlWidget(m_parent);
    m_host->show();
}

void TestCVKIntensityCtrlWidget::cleanup()
{
    m_host.reset();
}

void TestCVKIntensityCtrlWidget::metaObject_listsTheSignals()
{
    const QMetaObject& meta = CVKIntensityCtrlWidget::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("sglClickedCfg()"));
    QCOMPARE(
        meta.method(meta.methodOffset() + 1).methodSignature(), QByteArray("sglClickedSwitch()"));
}

void TestCVKIntensityCtrlWidget::returnButton_isBuilt()
{
    QVERIFY(m_panel->testAttribute(Qt::WA_DeleteOnClose));
    const auto* const button = m_panel->findChild<QPushButton*>("Return");
    QVERIFY(button->isCheckable());
    QVERIFY(!button->isChecked());
    QVERIFY(button->text().isEmpty());
    QCOMPARE(button->toolTip(), QString("Return"));
    QCOMPARE(button->minimumSize(), expectedSizes().returnButton);
    QCOMPARE(button->maximumSize(), expectedSizes().returnButton);
    QCOMPARE(button->styleSheet(),
        QString("QPushButton{border-image: url(:res/skin/mod_cfg_close_p.png);}"
                "QPushButton:hover{border-image: url(:res/skin/mod_cfg_close_h.png);}"
                "QPushButton:pressed{border-image: url(:res/skin/mod_cfg_close_p.png);}"));
}

void TestCVKIntensityCtrlWidget::returnButton_switchesToTheGallery()
{
    auto* const button = m_panel->findChild<QPushButton*>("Return");
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(m_host->switchCount, 1);
    QVERIFY(button->isChecked()); // the host unchecks it
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(m_host->switchCount, 2);
}

void TestCVKIntensityCtrlWidget::returnButton_ofAHostWithoutTheSlot()
{
    QWidget grandparent;
    QWidget parent(&grandparent);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("No such slot.*sltSwitchToGallery"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("sender name:.*Return"));
    const CVKIntensityCtrlWidget panel(&parent);
    grandparent.show();
    QTest::mouseClick(panel.findChild<QPushButton*>("Return"), Qt::LeftButton);
}

void TestCVKIntensityCtrlWidget::returnButton_withoutHost()
{
    warningCount = 0;
    const QtMessageHandler previous = qInstallMessageHandler(countWarnings);
    {
        const CVKIntensityCtrlWidget withoutParent(nullptr);
        QWidget parent;
        const CVKIntensityCtrlWidget withoutGrandparent(&parent);
    }
    qInstallMessageHandler(previous);
    QCOMPARE(warningCount, 0);
}

void TestCVKIntensityCtrlWidget::buttonRow_leavesRoom()
{
    auto* const main = qobject_cast<QVBoxLayout*>(m_panel->layout());
    QVERIFY(main);
    QCOMPARE(main->count(), 2);
    const auto* const row = qobject_cast<QHBoxLayout*>(main->itemAt(0)->layout());
    QVERIFY(row);
    QCOMPARE(row->spacing(), expectedSizes().spacing);
    QCOMPARE(itemNames(row), QStringList({ "Return", "0 x 0 h" }));
    QCOMPARE(nameOf(main->itemAt(1)), QString("0 x 0 v"));
    QWidget parent;
    const CVKIntensityCtrlWidget hidden(&parent);
    QCOMPARE(hidden.size(), hidden.sizeHint());
}

void TestCVKIntensityCtrlWidget::modules_standInTheColumn()
{
    const QWidget* const container = scrollArea()->widget();
    QCOMPARE(container->styleSheet(), QString("background: transparent"));
    const auto* const column = qobject_cast<QVBoxLayout*>(container->layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins());
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->count(), 6);
    QCOMPARE(column->itemAt(0)->widget(), titles().at(0));
    QCOMPARE(column->itemAt(1)->widget(), m_panel->displayPreferences());
    QCOMPARE(column->itemAt(2)->spacerItem()->sizeHint(), QSize(0, 5));
    QCOMPARE(column->itemAt(2)->spacerItem()->expandingDirections(), Qt::Orientations());
    QCOMPARE(column->itemAt(3)->widget(), titles().at(1));
    QCOMPARE(column->itemAt(4)->widget(), m_panel->dataHistogram());
    QCOMPARE(nameOf(column->itemAt(5)), QString("0 x 0 v"));
    QCOMPARE(m_panel->displayPreferences()->minimumHeight(), 360);
    QCOMPARE(m_panel->displayPreferences()->maximumHeight(), 360);
    QCOMPARE(m_panel->dataHistogram()->minimumHeight(), 450);
    QCOMPARE(m_panel->dataHistogram()->maximumHeight(), 450);
}

void TestCVKIntensityCtrlWidget::titles_haveTheirTextsAndIndexZero()
{
    QCOMPARE(titles().size(), 2);
    QCOMPARE(titles().at(0)->findChild<QLabel*>()->text(), QString("Display Preferences"));
    QCOMPARE(titles().at(1)->findChild<QLabel*>()->text(), QString("Data Histogram"));
    QCOMPARE(titles().at(0)->moduleIndex(), 0);
    QCOMPARE(titles().at(1)->moduleIndex(), 0);
    RecordingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    const CVKIntensityCtrlWidget panel(nullptr);
    QCoreApplication::removeTranslator(&translator);
    for (const char* const text : { "Return", "Display Preferences", "Data Histogram" }) {
        QVERIFY2(translator.hasLookedUp("CVKIntensityCtrlWidget", text), text);
    }
}

void TestCVKIntensityCtrlWidget::scrollArea_isASibling()
{
    const QScrollArea* const area = scrollArea();
    QCOMPARE(area->parentWidget(), m_parent);
    QCOMPARE(area->objectName(), QString("Scroll_ModuleWidget"));
    QCOMPARE(area->verticalScrollBar()->objectName(), QString("bar_ModuleWidget"));
    QVERIFY(area->widgetResizable());
    QCOMPARE(area->styleSheet(), QString("background: transparent"));
    QCOMPARE(area->frameShape(), QFrame::NoFrame);
    QCOMPARE(area->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(area->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    const CVKIntensityCtrlWidget second(m_parent); // on a parent that is shown already
    QCOMPARE(m_parent->findChildren<QScrollArea*>().size(), 2);
    QVERIFY(m_parent->findChildren<QScrollArea*>().last()->isVisible());
}

void TestCVKIntensityCtrlWidget::scrollArea_withoutParentBelongsToThePanel()
{
    const CVKIntensityCtrlWidget panel(nullptr);
    const auto* const area = panel.findChild<QScrollArea*>("Scroll_ModuleWidget");
    QVERIFY(area);
    QCOMPARE(area->parentWidget(), &panel);
}

void TestCVKIntensityCtrlWidget::title_collapsesItsModule_data()
{
    QTest::addColumn<int>("title");
    QTest::newRow("display preferences") << 0;
    QTest::newRow("data histogram") << 1;
}

void TestCVKIntensityCtrlWidget::title_collapsesItsModule()
{
    QFETCH(int, title);
    QWidget* const preferences = m_panel->displayPreferences();
    QWidget* const histogram = m_panel->dataHistogram();
    QWidget* const module = title == 0 ? preferences : histogram;
    QWidget* const other = title == 0 ? histogram : preferences;
    QTest::mouseClick(titles().at(title), Qt::LeftButton, {}, QPoint(2, 2));
    QVERIFY(module->isHidden());
    QVERIFY(!other->isHidden());
    QTest::mouseClick(titles().at(title)->findChild<QPushButton*>(), Qt::LeftButton);
    QVERIFY(!module->isHidden());
    QVERIFY(!other->isHidden());
}

void TestCVKIntensityCtrlWidget::collapsing_closesTheGap()
{
    m_panel->resize(500, 1000);
    QLayout* const column = scrollArea()->widget()->layout();
    column->activate();
    const int titleHeight = titles().at(0)->height();
    QCOMPARE(titles().at(1)->y(), titleHeight + 360 + 5);
    QTest::mouseClick(titles().at(0), Qt::LeftButton, {}, QPoint(2, 2));
    column->activate();
    QCOMPARE(titles().at(1)->y(), titleHeight + 5);
}

void TestCVKIntensityCtrlWidget::resize_placesTheScrollArea()
{
    QLoggingCategory::setFilterRules("*.debug=true");
    const int top = expectedSizes().scrollTop;
    QTest::ignoreMessage(QtDebugMsg, resizeLine(290, 800 - top));
    m_panel->resize(290, 800);
    QCOMPARE(scrollArea()->geometry(), QRect(0, top, 290, 800 - top));
}

void TestCVKIntensityCtrlWidget::resize_belowTheScrollAreasTop()
{
    QLoggingCategory::setFilterRules("*.debug=true");
    m_panel->setMinimumSize(1, 1); // below the layout's
    const int top = expectedSizes().scrollTop;
    QTest::ignoreMessage(QtDebugMsg, resizeLine(290, 10 - top));
    m_panel->resize(290, 10);
    QCOMPARE(scrollArea()->y(), top);
    QVERIFY(scrollArea()->height() <= 0);
}

void TestCVKIntensityCtrlWidget::resize_toTenPixelsAt96()
{
    if (primaryDotsPerInch() != 96.0) {
        QTest::qSkip("worked out for 96 dots per inch", __FILE__, __LINE__);
        return;
    }
    QLoggingCategory::setFilterRules("*.debug=true");
    m_panel->setMinimumSize(1, 1);
    QTest::ignoreMessage(QtDebugMsg, "[resizeEvent]x: 0, y: 57, wid: 290, hei: -47\n"); // 10 - 57
    m_panel->resize(290, 10);
    QCOMPARE(scrollArea()->geometry(), QRect(0, 57, 290, 0)); // Qt takes it as no height
}

void TestCVKIntensityCtrlWidget::signals_areNeverSent()
{
    QSignalSpy configuration(m_panel, SIGNAL(sglClickedCfg()));
    QSignalSpy change(m_panel, SIGNAL(sglClickedSwitch()));
    QTest::mouseClick(m_panel->findChild<QPushButton*>("Return"), Qt::LeftButton);
    QTest::mouseClick(titles().at(0), Qt::LeftButton, {}, QPoint(2, 2));
    QVERIFY(configuration.isEmpty());
    QVERIFY(change.isEmpty());
}

void TestCVKIntensityCtrlWidget::panelDiesAlone()
{
    const QPointer<QScrollArea> area(scrollArea());
    const QPointer<CVKDisplayPreferences> preferences(m_panel->displayPreferences());
    const QPointer<CVKDataHistogram> histogram(m_panel->dataHistogram());
    delete m_panel.data();
    QVERIFY(!area);
    QVERIFY(!preferences);
    QVERIFY(!histogram);
    QVERIFY(m_parent->children().isEmpty());
}

void TestCVKIntensityCtrlWidget::panelIsClosed()
{
    const QPointer<QScrollArea> area(scrollArea());
    m_panel->close();
    deleteClosed();
    QVERIFY(!m_panel);
    QVERIFY(!area);
}

void TestCVKIntensityCtrlWidget::parentDiesFirst()
{
    const QPointer<QScrollArea> area(scrollArea());
    delete m_parent; // deletes the panel, which deletes its sibling meanwhile
    QVERIFY(!m_panel);
    QVERIFY(!area);

    auto* const parent = new QWidget;
    m_panel = new CVKIntensityCtrlWidget(parent);
    m_panel->setParent(nullptr); // and back: now the scroll area is the first child
    m_panel->setParent(parent);
    delete parent;
    QVERIFY(!m_panel);
}

void TestCVKIntensityCtrlWidget::scrollAreaDiesFirst()
{
    delete scrollArea();
    QVERIFY(!m_panel->displayPreferences());
    QVERIFY(!m_panel->dataHistogram());
    QLoggingCategory::setFilterRules("*.debug=true");
    QTest::ignoreMessage(QtDebugMsg, "the only line");
    m_panel->resize(290, 800);
    qDebug("the only line");
    delete m_panel.data();
}

void TestCVKIntensityCtrlWidget::containerDiesFirst()
{
    delete scrollArea()->widget();
    QVERIFY(!m_panel->displayPreferences());
    m_panel->resize(290, 800);
    QCOMPARE(scrollArea()->width(), 290);
}

void TestCVKIntensityCtrlWidget::closedModules_areForgotten()
{
    m_panel->displayPreferences()->close();
    m_panel->dataHistogram()->close();
    deleteClosed();
    QVERIFY(!m_panel->displayPreferences());
    QVERIFY(!m_panel->dataHistogram());
    QTest::mouseClick(titles().at(0), Qt::LeftButton, {}, QPoint(2, 2));
    QTest::mouseClick(titles().at(1), Qt::LeftButton, {}, QPoint(2, 2));
    QVERIFY(titles().at(0)->isShrunk());
    m_panel->resize(290, 800);
}

void TestCVKIntensityCtrlWidget::closedTitles_leaveTheirModules()
{
    const auto bars = titles();
    for (CVKIntensityCtrlTitleBar* const bar : bars) {
        bar->close();
    }
    deleteClosed();
    QVERIFY(titles().isEmpty());
    QVERIFY(!m_panel->displayPreferences()->isHidden());
    QVERIFY(!m_panel->dataHistogram()->isHidden());
}

void TestCVKIntensityCtrlWidget::closedReturnButton()
{
    delete m_panel->findChild<QPushButton*>("Return");
    m_panel->resize(290, 800);
    delete m_panel.data();
    QVERIFY(!m_panel);
}

QTEST_MAIN(TestCVKIntensityCtrlWidget)
#include "tst_cvkintensityctrlwidget.moc"
