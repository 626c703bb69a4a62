#include "vkintensityhost.h"

#include "cvkintensitywidget.h"
#include "rawframe.h"
#include "support/focusvisibility.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGraphicsView>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSet>
#include <QSplitter>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// The ring around the control with the keyboard focus.
class TestFocusRing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void everyControlOfTheWidget_showsTheFocus();
    void ring_comesWithKeysOnly();
    void ring_followsItsControl();
    void ring_goesWithItsControl();
    void ring_leavesClicksToWhatIsBelow();
    void ring_isNoPartOfASplitter();
    void ring_isThereOnceHoweverOftenTheLookIsSet();
};

namespace {

/// Two buttons far apart in a shown window.
struct Buttons
{
    Buttons()
    {
        auto* row = new QHBoxLayout(&window);
        row->setContentsMargins(40, 40, 40, 40);
        row->setSpacing(80);
        first = new QPushButton("first");
        second = new QPushButton("second");
        for (QPushButton* button : { first, second }) {
            row->addWidget(button);
            QSizePolicy policy = button->sizePolicy();
            policy.setRetainSizeWhenHidden(true);
            button->setSizePolicy(policy);
        }
        window.show();
        QApplication::setActiveWindow(&window);
        QTest::mouseClick(&window, Qt::LeftButton); // no key was pressed since
        first->setFocus(Qt::OtherFocusReason);
    }

    /// Whether something is painted between the buttons and the edge of the window, close to it.
    bool hasRing(const QWidget* button) const
    {
        const QRect around = button->geometry().adjusted(-8, -8, 8, 8);
        const QImage picture = const_cast<QWidget*>(&window)->grab(around).toImage();
        const QRgb ground = picture.pixel(0, 0);
        int other = 0;
        for (int y = 0; y < 8; ++y) {
            other += picture.pixel(picture.width() / 2, y) != ground;
        }
        return other > 0;
    }

    QWidget window;
    QPushButton* first;
    QPushButton* second;
};

bool writeFrame(const QString& path)
{
    RawFrame frame;
    frame.width = 64;
    frame.height = 48;
    frame.bytesPerChannel = 1;
    for (int i = 0; i < frame.width * frame.height; ++i) {
        frame.bytes.append(char(i % 251));
    }
    QString problem;
    return writeRawFrame(path, frame, &problem);
}

} // namespace

void TestFocusRing::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    vkintensityhost::applyLook();
}

/// Tab leads through all of them once everything is enabled.
void TestFocusRing::everyControlOfTheWidget_showsTheFocus()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("frame.raw");
    QVERIFY(writeFrame(path));
    CVKIntensityWidget widget;
    widget.setAttribute(Qt::WA_DeleteOnClose, false);
    widget.resize(1280, 1000); // all of the panel
    widget.show();
    QApplication::setActiveWindow(&widget);
    QVERIFY(widget.loadImage(path));
    widget.findChild<QComboBox*>("comboBoxType")->setCurrentIndex(1); // enables its row
    QTest::mouseClick(widget.findChild<QAbstractButton*>("pushButtonAdd"), Qt::LeftButton);
    QTest::mouseClick(widget.findChild<QAbstractButton*>("radioButton2D"), Qt::LeftButton);

    QSet<QString> seen;
    const auto walk = [&] {
        auto* start = widget.findChild<QWidget*>("Return");
        start->setFocus(Qt::TabFocusReason);
        do {
            QWidget* control = QApplication::focusWidget();
            const QString name = control->objectName().isEmpty()
                ? control->metaObject()->className()
                : control->objectName();
            QVERIFY2(focusIsSeen(control), qPrintable(name));
            seen << name;
            QTest::keyClick(control, Qt::Key_Tab);
        } while (QApplication::focusWidget() != start);
    };
    walk(); // the chart
    QTest::mouseClick(widget.findChild<QAbstractButton*>("radioButtonImage"), Qt::LeftButton);
    walk(); // the image, with the zoom buttons

    for (const char* name :
        { "Return", "left_flex1", "radioButtonImage", "radioButton2D", "comboBoxDisplay",
            "checkBoxPeak", "lineEditPeaks", "pushButtonGray", "pushButtonRed", "pushButtonGreen",
            "pushButtonBlue", "pushButtonColor", "comboBoxType", "comboBoxUnits", "lineEditXStart",
            "lineEditPixelWidth", "pushButtonApply", "comboBoxRoi", "pushButtonAdd",
            "pushButtonDelete", "tool_Zoom_In", "tool_Zoom_Out", "QGraphicsView" }) {
        QVERIFY2(seen.contains(name), name);
    }
}

void TestFocusRing::ring_comesWithKeysOnly()
{
    Buttons buttons;
    QVERIFY(!buttons.hasRing(buttons.first));
    QTest::keyClick(buttons.first, Qt::Key_Tab);
    QVERIFY(buttons.hasRing(buttons.second));
    QVERIFY(!buttons.hasRing(buttons.first));
    QTest::keyClick(buttons.second, Qt::Key_Tab, Qt::ShiftModifier);
    QVERIFY(buttons.hasRing(buttons.first));
    QTest::mouseClick(buttons.second, Qt::LeftButton);
    QVERIFY(!buttons.hasRing(buttons.first));
    QVERIFY(!buttons.hasRing(buttons.second));
}

void TestFocusRing::ring_followsItsControl()
{
    Buttons buttons;
    QTest::keyClick(buttons.first, Qt::Key_Tab);
    const QRect before = buttons.second->geometry();
    buttons.window.resize(buttons.window.width() + 200, buttons.window.height() + 100);
    QCoreApplication::processEvents();
    QVERIFY(buttons.second->geometry() != before);
    QVERIFY(buttons.hasRing(buttons.second));
    buttons.second->hide();
    QVERIFY(!buttons.hasRing(buttons.second));
}

void TestFocusRing::ring_goesWithItsControl()
{
    Buttons buttons;
    QTest::keyClick(buttons.first, Qt::Key_Tab);
    const QRect around = buttons.second->geometry().adjusted(-8, -8, 8, 8);
    delete buttons.second;
    QCoreApplication::processEvents();
    const QImage picture = buttons.window.grab(around).toImage();
    for (int y = 0; y < picture.height(); ++y) {
        QCOMPARE(picture.pixel(picture.width() - 4, y), picture.pixel(0, 0));
    }
}

void TestFocusRing::ring_leavesClicksToWhatIsBelow()
{
    Buttons buttons;
    buttons.second->setParent(buttons.first); // fills its parent, so the ring lies over it
    buttons.second->setGeometry(buttons.first->rect());
    buttons.second->show();
    QTest::keyClick(buttons.first, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), buttons.second);
    QCOMPARE(
        buttons.window.childAt(buttons.first->geometry().topLeft() + QPoint(1, 1)), buttons.second);
}

void TestFocusRing::ring_isNoPartOfASplitter()
{
    QSplitter splitter;
    auto* first = new QPushButton("first");
    splitter.addWidget(first);
    splitter.addWidget(new QPushButton("second"));
    splitter.show();
    QApplication::setActiveWindow(&splitter);
    first->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    QCOMPARE(splitter.count(), 2);
    QVERIFY(focusIsSeen(first));
}

void TestFocusRing::ring_isThereOnceHoweverOftenTheLookIsSet()
{
    vkintensityhost::applyLook();
    Buttons buttons;
    const auto childCount = [&buttons] { return buttons.window.findChildren<QWidget*>().size(); };
    QTest::keyClick(buttons.first, Qt::Key_Tab);
    const auto withOneRing = childCount();
    QTest::keyClick(buttons.second, Qt::Key_Tab);
    QCOMPARE(childCount(), withOneRing);
    QCOMPARE(int(withOneRing), 3);
}

QTEST_MAIN(TestFocusRing)
#include "tst_focusring.moc"
