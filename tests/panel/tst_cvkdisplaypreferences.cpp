#include "panel/cvkdisplaypreferences.h"

#include "panel/eventcounter.h"
#include "panel/signallog.h"
#include "qtcompat.h"
#include "support/recordingpaintdevice.h"
#include "support/sampleframes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QWheelEvent>
#include <QtTest>

#include <memory>

namespace {

const QString grey = "color: rgb(60, 60, 60);";

/// The folder beside the program in which the panel looks for palettes.
QString paletteFolder()
{
    return QCoreApplication::applicationDirPath() + "/pal";
}

void clickLeft(QWidget* control)
{
    QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
}

/// The panel, with the wheel events that reach it counted.
class WheelPanel : public CVKDisplayPreferences
{
public:
    using CVKDisplayPreferences::CVKDisplayPreferences;
    int wheelCount = 0;
    bool isSpontaneous = true;
    QWidget* sendsBackTo = nullptr;

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        ++wheelCount;
        isSpontaneous = event->spontaneous();
        event->accept();
        if (sendsBackTo) {
            QCoreApplication::sendEvent(sendsBackTo, event);
        }
    }
};

/// A wheel turn over `target`, as the window system sends it.
void turnWheel(QWidget* target)
{
    const QPoint center = target->rect().center();
    QWheelEvent event(center, target->mapToGlobal(center), QPoint(), QPoint(0, -120), {}, {},
        Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(target, &event);
}

} // namespace

class TestCVKDisplayPreferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void metaObject_listsSignalsAndSlots();
    void construction_isTheReset();
    void clickImage_and2D();
    void clickOnTheCheckedRadioButton();
    void axisBox_sendsTheAxis();
    void peakLabels_sendTheirState();
    void wavelength_sendsTitleAndNumbers();
    void wavelength_takesTheFields();
    void emptiedStart_isSentAsZero();
    void unit_sendsTheWavelengthTitle();
    void unit_sendsTheWavelengthTitleWithPixelNumbers();
    void unknownIndices_haveNoTitle();
    void apply_inEveryMode();
    void apply_sendsWhatTheFieldHolds();
    void peaksField_snapsToOne_data();
    void peaksField_snapsToOne();
    void pixelWidthField_snapsToOne();
    void validators_refuseKeys();

    void gray_isBuiltInCode();
    void palette_isReadFromItsFile_data();
    void palette_isReadFromItsFile();
    void palette_isReadOnce();
    void palette_missingFile_movesTheFrame();
    void palette_emptyFile_isTriedAgain();
    void palette_hostileFiles();

    void reset_sendsWhatChanges();
    void reset_withNanometres_endsWithTheTitleOfMicrometres();
    void reset_restoresEveryControl();
    void reset_disablesTheUnitRowInAnyCase();
    void palettes_areKnownByName();
    void styleSheet_isGivenToEnabledControls();
    void shrinkage_hidesThePanel();

    void paint_drawsBackgroundThenFrame();
    void paint_groupIsRepaintedAtOnce();
    void paint_frameFollowsThePalette();
    void paint_frameHasThePanelsOwnPen();

    void wheel_goesToThePanel();
    void wheel_resultIsThatOfThePanel();
    void wheel_overThePanelItself();
    void wheel_sentBackByThePanel();
    void wheel_panelDeletedByIt();
    void otherEvents_passTheFilter();

    void receiverDeletesThePanel();
    void close_deletesThePanel();

private:
    template <class Widget>
    Widget* child(const QString& name) const
    {
        return m_panel->findChild<Widget*>(name);
    }
    void writePalette(const QString& name, const QByteArray& contents) const;
    void listen();
    void choose(const QString& comboBox, int index);

    std::unique_ptr<CVKDisplayPreferences> m_panel;
    SignalLog m_log;
};

void TestCVKDisplayPreferences::init()
{
    QVERIFY(QDir().mkpath(paletteFolder()));
    m_panel = std::make_unique<CVKDisplayPreferences>();
    m_panel->setAttribute(Qt::WA_DeleteOnClose, false); // owned by the test
    m_panel->setFixedSize(290, 360);
    m_panel->show();
    listen();
}

void TestCVKDisplayPreferences::cleanup()
{
    m_panel.reset();
    m_log.taken();
    QDir(paletteFolder()).removeRecursively();
}

void TestCVKDisplayPreferences::writePalette(const QString& name, const QByteArray& contents) const
{
    QVERIFY(writeFile(paletteFolder() + '/' + name, contents));
}

void TestCVKDisplayPreferences::listen()
{
    using Panel = CVKDisplayPreferences;
    CVKDisplayPreferences* const panel = m_panel.get();
    connect(panel, &Panel::switchAxis, this,
        [this](int index) { m_log.add(QString("axis %1").arg(index)); });
    connect(panel, &Panel::switchDisplayType, this,
        [this](int index) { m_log.add(QString("display %1").arg(index)); });
    connect(panel, &Panel::changeMaxPeaksCount, this,
        [this](int count) { m_log.add(QString("peaks %1").arg(count)); });
    connect(panel, &Panel::changeShowPeaksState, this,
        [this](bool isShow) { m_log.add(isShow ? "show" : "hide"); });
    connect(panel, &Panel::changePalette, this, [this](const QVector<QColor>& palette) {
        m_log.add(QString("palette %1 %2 %3")
                      .arg(palette.size())
                      .arg(palette.first().name(), palette.last().name()));
    });
    connect(panel, &Panel::changeVerticalRulerTitle, this,
        [this](const QString& title) { m_log.add("vertical " + title); });
    connect(panel, &Panel::changeHorizontalRulerTitle, this,
        [this](const QString& title) { m_log.add("title " + title); });
    connect(panel, &Panel::changePixelsToWavelength, this, [this](qreal start, qreal width) {
        m_log.add(QString("wavelength %1 %2").arg(start).arg(width));
    });
}

void TestCVKDisplayPreferences::choose(const QString& comboBox, int index)
{
    auto* const box = child<QComboBox>(comboBox);
    const bool isDown = index > box->currentIndex();
    while (box->currentIndex() != index) {
        QTest::keyClick(box, isDown ? Qt::Key_Down : Qt::Key_Up);
    }
}

void TestCVKDisplayPreferences::metaObject_listsSignalsAndSlots()
{
    const QMetaObject& meta = CVKDisplayPreferences::staticMetaObject;
    const QString palette = QMetaObject::normalizedType("QVector<QColor>"); // as this Qt spells it
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        const bool isPrivate = method.access() == QMetaMethod::Private;
        signatures.append(QString(isPrivate ? "private " : "") + method.methodSignature() + ' '
            + method.parameterNames().join(','));
    }
    QCOMPARE(signatures,
        QStringList({ "switchAxis(int) index", "switchDisplayType(int) index",
            "changeMaxPeaksCount(int) count", "changeShowPeaksState(bool) isShow",
            "changePalette(" + palette + ") pal", "changeVerticalRulerTitle(QString) title",
            "changeHorizontalRulerTitle(QString) title",
            "changePixelsToWavelength(double,double) startX,pixelWidth",
            "onShrinkaged(bool) shrinkaged", "private on_radioButtonImage_clicked(bool) checked",
            "private on_radioButton2D_clicked(bool) checked",
            "private on_comboBoxDisplay_currentIndexChanged(int) index",
            "private on_comboBoxType_currentIndexChanged(int) index",
            "private on_comboBoxUnits_currentIndexChanged(int) index",
            "private on_pushButtonGray_clicked(bool) checked",
            "private on_pushButtonRed_clicked(bool) checked",
            "private on_pushButtonGreen_clicked(bool) checked",
            "private on_pushButtonBlue_clicked(bool) checked",
            "private on_pushButtonColor_clicked(bool) checked",
            "private on_pushButtonApply_clicked() ",
            "private on_checkBoxPeak_clicked(bool) checked",
            "private on_lineEditPeaks_textEdited(QString) arg1",
            "private on_lineEditPixelWidth_textEdited(QString) arg1" }));
}

void TestCVKDisplayPreferences::construction_isTheReset()
{
    QVERIFY(child<QRadioButton>("radioButtonImage")->isChecked());
    QVERIFY(!child<QRadioButton>("radioButton2D")->isChecked());
    QVERIFY(!child<QCheckBox>("checkBoxPeak")->isChecked());
    QVERIFY(child<QPushButton>("pushButtonGray")->isChecked());
    QVERIFY(!child<QPushButton>("pushButtonRed")->isChecked());
    for (const char* const name : { "labelPeaks", "checkBoxPeak", "lineEditPeaks",
             "comboBoxDisplay", "labelUnits", "comboBoxUnits", "labelXStart", "lineEditXStart",
             "labelPixelWidth", "lineEditPixelWidth" }) {
        QVERIFY2(!child<QWidget>(name)->isEnabled(), name);
        QCOMPARE(child<QWidget>(name)->styleSheet(), grey);
    }
    for (const char* const name : { "label", "comboBoxType", "pushButtonApply" }) {
        QVERIFY2(child<QWidget>(name)->isEnabled(), name);
        QVERIFY(child<QWidget>(name)->styleSheet().isEmpty());
    }
}

void TestCVKDisplayPreferences::clickImage_and2D()
{
    clickLeft(child<QRadioButton>("radioButton2D"));
    QCOMPARE(m_log.taken(), QStringList({ "display 1" }));
    QVERIFY(child<QRadioButton>("radioButton2D")->isChecked());
    QVERIFY(!child<QRadioButton>("radioButtonImage")->isChecked());
    for (const char* const name :
        { "labelPeaks", "checkBoxPeak", "lineEditPeaks", "comboBoxDisplay" }) {
        QVERIFY2(child<QWidget>(name)->isEnabled(), name);
        QVERIFY(child<QWidget>(name)->styleSheet().isEmpty());
    }
    QVERIFY(!child<QWidget>("comboBoxUnits")->isEnabled());

    clickLeft(child<QRadioButton>("radioButtonImage"));
    QCOMPARE(m_log.taken(), QStringList({ "display 0" }));
    QVERIFY(child<QRadioButton>("radioButtonImage")->isChecked());
    QVERIFY(!child<QRadioButton>("radioButton2D")->isChecked());
    for (const char* const name :
        { "labelPeaks", "checkBoxPeak", "lineEditPeaks", "comboBoxDisplay" }) {
        QVERIFY2(!child<QWidget>(name)->isEnabled(), name);
        QCOMPARE(child<QWidget>(name)->styleSheet(), grey);
    }
}

void TestCVKDisplayPreferences::clickOnTheCheckedRadioButton()
{
    clickLeft(child<QRadioButton>("radioButtonImage"));
    QCOMPARE(m_log.taken(), QStringList({ "display 0" }));
    QVERIFY(child<QRadioButton>("radioButtonImage")->isChecked());

    // Called with false, each slot sends its own value all the same.
    QVERIFY(QMetaObject::invokeMethod(
        m_panel.get(), "on_radioButtonImage_clicked", Q_ARG(bool, false)));
    QCOMPARE(m_log.taken(), QStringList({ "display 0" }));
    QVERIFY(child<QRadioButton>("radioButton2D")->isChecked());
    QVERIFY(child<QWidget>("lineEditPeaks")->isEnabled());
    QVERIFY(
        QMetaObject::invokeMethod(m_panel.get(), "on_radioButton2D_clicked", Q_ARG(bool, false)));
    QCOMPARE(m_log.taken(), QStringList({ "display 1" }));
    QVERIFY(child<QRadioButton>("radioButtonImage")->isChecked());
    QVERIFY(!child<QWidget>("lineEditPeaks")->isEnabled());
}

void TestCVKDisplayPreferences::axisBox_sendsTheAxis()
{
    clickLeft(child<QRadioButton>("radioButton2D"));
    m_log.taken();
    choose("comboBoxDisplay", 1);
    QCOMPARE(m_log.taken(), QStringList({ "axis 1" }));
    choose("comboBoxDisplay", 0);
    QCOMPARE(m_log.taken(), QStringList({ "axis 0" }));
}

void TestCVKDisplayPreferences::peakLabels_sendTheirState()
{
    clickLeft(child<QCheckBox>("checkBoxPeak")); // disabled
    QCOMPARE(m_log.taken(), QStringList());
    clickLeft(child<QRadioButton>("radioButton2D"));
    m_log.taken();
    clickLeft(child<QCheckBox>("checkBoxPeak"));
    clickLeft(child<QCheckBox>("checkBoxPeak"));
    QCOMPARE(m_log.taken(), QStringList({ "show", "hide" }));
}

void TestCVKDisplayPreferences::wavelength_sendsTitleAndNumbers()
{
    choose("comboBoxType", 1);
    QCOMPARE(m_log.taken(), QStringList({ "title Wavelength  (um)", "wavelength 100 1" }));
    for (const char* const name : { "labelUnits", "comboBoxUnits", "labelXStart", "lineEditXStart",
             "labelPixelWidth", "lineEditPixelWidth" }) {
        QVERIFY2(child<QWidget>(name)->isEnabled(), name);
        QVERIFY(child<QWidget>(name)->styleSheet().isEmpty());
    }
    choose("comboBoxType", 0);
    QCOMPARE(m_log.taken(), QStringList({ "title Pixels Number", "wavelength -1 -1" }));
    for (const char* const name : { "labelUnits", "comboBoxUnits", "labelXStart", "lineEditXStart",
             "labelPixelWidth", "lineEditPixelWidth" }) {
        QVERIFY2(!child<QWidget>(name)->isEnabled(), name);
        QCOMPARE(child<QWidget>(name)->styleSheet(), grey);
    }
}

void TestCVKDisplayPreferences::wavelength_takesTheFields()
{
    choose("comboBoxType", 1);
    choose("comboBoxUnits", 1);
    QTest::keyClicks(child<QLineEdit>("lineEditXStart"), "0"); // behind the 100
    QTest::keyClicks(child<QLineEdit>("lineEditPixelWidth"), "2");
    m_log.taken();
    choose("comboBoxType", 0);
    m_log.taken();
    choose("comboBoxType", 1);
    QCOMPARE(m_log.taken(), QStringList({ "title Wavelength  (nm)", "wavelength 1000 12" }));
}

void TestCVKDisplayPreferences::emptiedStart_isSentAsZero()
{
    choose("comboBoxType", 1);
    auto* const start = child<QLineEdit>("lineEditXStart");
    QTest::keyClick(start, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(start, Qt::Key_Delete);
    QVERIFY(start->text().isEmpty());
    m_log.taken();
    clickLeft(child<QPushButton>("pushButtonApply"));
    QCOMPARE(m_log.taken(), QStringList({ "wavelength 0 1" }));
}

void TestCVKDisplayPreferences::unit_sendsTheWavelengthTitle()
{
    choose("comboBoxType", 1);
    m_log.taken();
    choose("comboBoxUnits", 1);
    QCOMPARE(m_log.taken(), QStringList({ "title Wavelength  (nm)" }));
    choose("comboBoxType", 0);
    m_log.taken();
    child<QComboBox>("comboBoxUnits")->setCurrentIndex(0); // with pixel numbers it is disabled
    QCOMPARE(m_log.taken(), QStringList({ "title Wavelength  (um)" }));
}

void TestCVKDisplayPreferences::unit_sendsTheWavelengthTitleWithPixelNumbers()
{
    QCOMPARE(child<QComboBox>("comboBoxType")->currentText(), QString("Pixels Number"));
    child<QComboBox>("comboBoxUnits")->setCurrentIndex(1); // disabled, so by a program alone
    QCOMPARE(m_log.taken(), QStringList({ "title Wavelength  (nm)" }));
    QVERIFY(!child<QWidget>("comboBoxUnits")->isEnabled());
}

void TestCVKDisplayPreferences::unknownIndices_haveNoTitle()
{
    child<QComboBox>("comboBoxType")->setCurrentIndex(-1);
    QCOMPARE(m_log.taken(), QStringList({ "title ", "wavelength -1 -1" }));
    QVERIFY(child<QWidget>("comboBoxUnits")->isEnabled()); // everything but index 0 enables
    child<QComboBox>("comboBoxUnits")->setCurrentIndex(-1);
    QCOMPARE(m_log.taken(), QStringList({ "title Wavelength" }));
    child<QComboBox>("comboBoxType")->addItem("third");
    child<QComboBox>("comboBoxType")->setCurrentIndex(2);
    QCOMPARE(m_log.taken(), QStringList({ "title ", "wavelength -1 -1" }));
}

void TestCVKDisplayPreferences::apply_inEveryMode()
{
    auto* const apply = child<QPushButton>("pushButtonApply");
    clickLeft(apply);
    QCOMPARE(m_log.taken(), QStringList()); // image, pixel numbers
    choose("comboBoxType", 1);
    m_log.taken();
    clickLeft(apply);
    QCOMPARE(m_log.taken(), QStringList({ "wavelength 100 1" }));
    clickLeft(child<QRadioButton>("radioButton2D"));
    m_log.taken();
    clickLeft(apply);
    QCOMPARE(m_log.taken(), QStringList({ "wavelength 100 1", "peaks 10" }));
    choose("comboBoxType", 0);
    m_log.taken();
    clickLeft(apply);
    QCOMPARE(m_log.taken(), QStringList({ "peaks 10" }));
}

void TestCVKDisplayPreferences::apply_sendsWhatTheFieldHolds()
{
    clickLeft(child<QRadioButton>("radioButton2D"));
    auto* const peaks = child<QLineEdit>("lineEditPeaks");
    QTest::keyClick(peaks, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(peaks, "200");
    m_log.taken();
    clickLeft(child<QPushButton>("pushButtonApply"));
    QCOMPARE(m_log.taken(), QStringList({ "peaks 200" }));
}

void TestCVKDisplayPreferences::peaksField_snapsToOne_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("emptied") << int(Qt::Key_Delete);
    QTest::newRow("zero") << int(Qt::Key_0);
}

void TestCVKDisplayPreferences::peaksField_snapsToOne()
{
    QFETCH(int, key);
    clickLeft(child<QRadioButton>("radioButton2D"));
    m_log.taken();
    auto* const peaks = child<QLineEdit>("lineEditPeaks");
    QTest::keyClick(peaks, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(peaks, Qt::Key(key));
    QCOMPARE(peaks->text(), QString("1"));
    QTest::keyClicks(peaks, "7");
    QCOMPARE(peaks->text(), QString("17"));
    QCOMPARE(m_log.taken(), QStringList());
    QVERIFY(QMetaObject::invokeMethod(
        m_panel.get(), "on_lineEditPeaks_textEdited", Q_ARG(QString, "many")));
    QCOMPARE(peaks->text(), QString("1"));
}

void TestCVKDisplayPreferences::pixelWidthField_snapsToOne()
{
    choose("comboBoxType", 1);
    m_log.taken();
    auto* const width = child<QLineEdit>("lineEditPixelWidth");
    QTest::keyClicks(width, "2");
    QCOMPARE(width->text(), QString("12"));
    QTest::keyClick(width, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(width, Qt::Key_Delete);
    QCOMPARE(width->text(), QString("1"));
    QCOMPARE(m_log.taken(), QStringList());
}

void TestCVKDisplayPreferences::validators_refuseKeys()
{
    clickLeft(child<QRadioButton>("radioButton2D"));
    choose("comboBoxType", 1);
    auto* const peaks = child<QLineEdit>("lineEditPeaks");
    QTest::keyClicks(peaks, "x-5"); // behind the 10: 105 is the only number
    QCOMPARE(peaks->text(), QString("105"));
    auto* const start = child<QLineEdit>("lineEditXStart");
    QTest::keyClicks(start, "-.05");
    QCOMPARE(start->text(), QString("1000"));
    auto* const width = child<QLineEdit>("lineEditPixelWidth");
    QTest::keyClicks(width, "001");
    QCOMPARE(width->text(), QString("100"));
}

void TestCVKDisplayPreferences::gray_isBuiltInCode()
{
    QVector<QColor> received;
    connect(m_panel.get(), &CVKDisplayPreferences::changePalette, this,
        [&received](const QVector<QColor>& palette) { received = palette; });
    clickLeft(child<QPushButton>("pushButtonGray"));
    QCOMPARE(m_log.taken(), QStringList({ "palette 256 #000000 #ffffff" }));
    QCOMPARE(received.size(), 256);
    for (int level = 0; level < 256; ++level) {
        QCOMPARE(received.at(level), QColor(level, level, level, 255));
    }
    QVERIFY(child<QPushButton>("pushButtonGray")->isChecked()); // although it was before
}

void TestCVKDisplayPreferences::palette_isReadFromItsFile_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("file");
    QTest::newRow("red") << "pushButtonRed"
                         << "red.pal";
    QTest::newRow("green") << "pushButtonGreen"
                           << "green.pal";
    QTest::newRow("blue") << "pushButtonBlue"
                          << "blue.pal";
    QTest::newRow("color") << "pushButtonColor"
                           << "color.pal";
}

void TestCVKDisplayPreferences::palette_isReadFromItsFile()
{
    QFETCH(QString, button);
    QFETCH(QString, file);
    writePalette(file, "1 2 3\n16 32 64\n");
    clickLeft(child<QPushButton>(button));
    QCOMPARE(m_log.taken(), QStringList({ "palette 2 #010203 #102040" }));
    for (const char* const name : { "pushButtonGray", "pushButtonRed", "pushButtonGreen",
             "pushButtonBlue", "pushButtonColor" }) {
        QCOMPARE(child<QPushButton>(name)->isChecked(), button == name);
    }
}

void TestCVKDisplayPreferences::palette_isReadOnce()
{
    writePalette("color.pal", "1 2 3\n4 5 6\n");
    clickLeft(child<QPushButton>("pushButtonColor"));
    writePalette("color.pal", "7 8 9\n");
    clickLeft(child<QPushButton>("pushButtonColor"));
    QVERIFY(child<QPushButton>("pushButtonColor")->isChecked());
    m_panel->resetDefaults();
    QVERIFY(QFile::remove(paletteFolder() + "/color.pal"));
    clickLeft(child<QPushButton>("pushButtonColor"));
    QCOMPARE(m_log.taken(),
        QStringList({ "palette 2 #010203 #040506", "palette 2 #010203 #040506", "display 0",
            "palette 256 #000000 #ffffff", "palette 2 #010203 #040506" }));
}

void TestCVKDisplayPreferences::palette_missingFile_movesTheFrame()
{
    clickLeft(child<QPushButton>("pushButtonBlue"));
    QCOMPARE(m_log.taken(), QStringList());
    QVERIFY(child<QPushButton>("pushButtonBlue")->isChecked());
    QVERIFY(!child<QPushButton>("pushButtonGray")->isChecked());
    writePalette("blue.pal", "1 2 3\n"); // it appears, and the next click finds it
    clickLeft(child<QPushButton>("pushButtonBlue"));
    QCOMPARE(m_log.taken(), QStringList({ "palette 1 #010203 #010203" }));
}

void TestCVKDisplayPreferences::palette_emptyFile_isTriedAgain()
{
    writePalette("green.pal", QByteArray());
    clickLeft(child<QPushButton>("pushButtonGreen"));
    QCOMPARE(m_log.taken(), QStringList());
    QVERIFY(child<QPushButton>("pushButtonGreen")->isChecked());
    writePalette("green.pal", "1 2 3\n");
    clickLeft(child<QPushButton>("pushButtonGreen"));
    QCOMPARE(m_log.taken(), QStringList({ "palette 1 #010203 #010203" }));
}

void TestCVKDisplayPreferences::palette_hostileFiles()
{
    QVERIFY(QDir().mkpath(paletteFolder() + "/red.pal")); // a folder
    clickLeft(child<QPushButton>("pushButtonRed"));
    QCOMPARE(m_log.taken(), QStringList());
    writePalette("green.pal", QByteArray(100, '\0') + "\n" + QByteArray(100, ' '));
    clickLeft(child<QPushButton>("pushButtonGreen"));
    QCOMPARE(m_log.taken(), QStringList({ "palette 2 #000000 #000000" }));
}

void TestCVKDisplayPreferences::reset_sendsWhatChanges()
{
    m_panel->resetDefaults();
    QCOMPARE(m_log.taken(), QStringList({ "display 0", "palette 256 #000000 #ffffff" }));
    clickLeft(child<QRadioButton>("radioButton2D"));
    choose("comboBoxDisplay", 1);
    choose("comboBoxType", 1);
    m_log.taken();
    m_panel->resetDefaults();
    QCOMPARE(m_log.taken(),
        QStringList({ "display 0", "palette 256 #000000 #ffffff", "title Pixels Number",
            "wavelength -1 -1", "axis 0" }));
}

void TestCVKDisplayPreferences::reset_withNanometres_endsWithTheTitleOfMicrometres()
{
    choose("comboBoxType", 1);
    choose("comboBoxUnits", 1);
    m_log.taken();
    m_panel->resetDefaults();
    QCOMPARE(m_log.taken(),
        QStringList({ "display 0", "palette 256 #000000 #ffffff", "title Pixels Number",
            "wavelength -1 -1", "title Wavelength  (um)" }));
    QCOMPARE(child<QComboBox>("comboBoxType")->currentIndex(), 0);
    QVERIFY(!child<QComboBox>("comboBoxUnits")->isEnabled());
}

void TestCVKDisplayPreferences::reset_restoresEveryControl()
{
    clickLeft(child<QRadioButton>("radioButton2D"));
    clickLeft(child<QCheckBox>("checkBoxPeak"));
    choose("comboBoxDisplay", 1);
    choose("comboBoxType", 1);
    choose("comboBoxUnits", 1);
    child<QLineEdit>("lineEditPeaks")->setText("33");
    child<QLineEdit>("lineEditXStart")->setText("44");
    child<QLineEdit>("lineEditPixelWidth")->setText("55");
    clickLeft(child<QPushButton>("pushButtonRed"));
    m_log.taken();
    m_panel->resetDefaults();
    construction_isTheReset();
    QVERIFY(!m_log.taken().contains("hide")); // no peak signals
    QCOMPARE(child<QLineEdit>("lineEditPeaks")->text(), QString("10"));
    QCOMPARE(child<QLineEdit>("lineEditXStart")->text(), QString("100"));
    QCOMPARE(child<QLineEdit>("lineEditPixelWidth")->text(), QString("1"));
    for (const char* const name : { "comboBoxDisplay", "comboBoxType", "comboBoxUnits" }) {
        QCOMPARE(child<QComboBox>(name)->currentIndex(), 0);
    }
}

void TestCVKDisplayPreferences::reset_disablesTheUnitRowInAnyCase()
{
    for (const char* const name : { "lineEditXStart", "lineEditPeaks" }) {
        child<QWidget>(name)->setEnabled(true); // by the application; the type stays pixels
    }
    m_panel->resetDefaults();
    QVERIFY(!child<QWidget>("lineEditXStart")->isEnabled());
    QVERIFY(!child<QWidget>("lineEditPeaks")->isEnabled());
}

void TestCVKDisplayPreferences::palettes_areKnownByName()
{
    QVERIFY(QtCompat::isTypeName("QVector<QColor>"));
}

void TestCVKDisplayPreferences::styleSheet_isGivenToEnabledControls()
{
    m_panel->setStyleSheet("color: white;");
    clickLeft(child<QRadioButton>("radioButton2D"));
    QCOMPARE(child<QWidget>("labelPeaks")->styleSheet(), QString("color: white;"));
    choose("comboBoxType", 1);
    QCOMPARE(child<QWidget>("labelXStart")->styleSheet(), QString("color: white;"));
}

void TestCVKDisplayPreferences::shrinkage_hidesThePanel()
{
    m_panel->onShrinkaged(true);
    QVERIFY(m_panel->isHidden());
    m_panel->onShrinkaged(false);
    QVERIFY(!m_panel->isHidden());
}

void TestCVKDisplayPreferences::paint_drawsBackgroundThenFrame()
{
    RecordingPaintDevice recorded;
    m_panel->render(&recorded, QPoint(), QRegion(), QWidget::RenderFlags());
    const auto& entries = recorded.entries();
    QCOMPARE(entries.size(), 38); // the background of 290 x 360 and the frame
    QCOMPARE(entries.first().rect, QRectF(50, 0, 50, 60));
    QCOMPARE(entries.at(36).kind, RecordingPaintDevice::Pixmap);
    QCOMPARE(entries.at(37).kind, RecordingPaintDevice::Rect);
}

void TestCVKDisplayPreferences::paint_groupIsRepaintedAtOnce()
{
    QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
    QCoreApplication::processEvents();
    EventCounter paints(child<QGroupBox>("groupBoxPalette"), QEvent::Paint);
    m_panel->resetDefaults(); // a click would paint the button, and the group with it
    QCOMPARE(paints.count, 1);
}

void TestCVKDisplayPreferences::paint_frameFollowsThePalette()
{
    for (const char* const name : { "pushButtonGray", "pushButtonRed", "pushButtonGreen",
             "pushButtonBlue", "pushButtonColor" }) {
        auto* const button = child<QPushButton>(name);
        clickLeft(button);
        RecordingPaintDevice recorded;
        m_panel->render(&recorded, QPoint(), QRegion(), QWidget::RenderFlags());
        const QPoint corner = button->mapTo(m_panel.get(), QPoint(-1, -1));
        QCOMPARE(recorded.rects(), QVector<QRectF>({ QRectF(corner, QSizeF(31, 31)) }));
    }
}

void TestCVKDisplayPreferences::paint_frameHasThePanelsOwnPen()
{
    QPalette colors = m_panel->palette();
    colors.setColor(QPalette::WindowText, QColor(1, 2, 3));
    m_panel->setPalette(colors);
    RecordingPaintDevice recorded;
    m_panel->render(&recorded, QPoint(), QRegion(), QWidget::RenderFlags());
    const QPen pen = recorded.of(RecordingPaintDevice::Rect).first().pen;
    QCOMPARE(pen.color(), QColor(1, 2, 3));
    QCOMPARE(pen.width(), 1);
    QCOMPARE(recorded.of(RecordingPaintDevice::Rect).first().brush, QBrush(Qt::NoBrush));
}

void TestCVKDisplayPreferences::wheel_goesToThePanel()
{
    WheelPanel panel;
    auto* const box = panel.findChild<QComboBox*>("comboBoxType");
    box->installEventFilter(&panel);
    turnWheel(box);
    QCOMPARE(panel.wheelCount, 1);
    QVERIFY(!panel.isSpontaneous);
    QCOMPARE(box->currentIndex(), 0);
    box->removeEventFilter(&panel);
    turnWheel(box);
    QCOMPARE(box->currentIndex(), 1); // what the filter prevents
}

void TestCVKDisplayPreferences::wheel_resultIsThatOfThePanel()
{
    WheelPanel panel;
    QWheelEvent event(QPoint(5, 5), panel.mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120), {},
        {}, Qt::NoScrollPhase, false);
    QVERIFY(panel.eventFilter(panel.findChild<QComboBox*>("comboBoxType"), &event));
    panel.setEnabled(false); // Qt hands a disabled widget no wheel
    QVERIFY(!panel.eventFilter(panel.findChild<QComboBox*>("comboBoxType"), &event));
}

void TestCVKDisplayPreferences::wheel_overThePanelItself()
{
    WheelPanel panel;
    panel.installEventFilter(&panel);
    turnWheel(&panel);
    QCOMPARE(panel.wheelCount, 1);
    QVERIFY(panel.isSpontaneous); // as it came
}

void TestCVKDisplayPreferences::wheel_sentBackByThePanel()
{
    WheelPanel panel;
    auto* const box = panel.findChild<QComboBox*>("comboBoxType");
    box->installEventFilter(&panel);
    panel.sendsBackTo = box;
    turnWheel(box);
    QCOMPARE(panel.wheelCount, 1);
    QCOMPARE(box->currentIndex(), 1); // sent on purpose, it gets through
    turnWheel(box); // the filter is ready again
    QCOMPARE(panel.wheelCount, 2);
}

void TestCVKDisplayPreferences::wheel_panelDeletedByIt()
{
    class Deleting : public QObject
    {
    public:
        explicit Deleting(CVKDisplayPreferences* panel)
            : m_panel(panel)
        {
        }
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Wheel) {
                delete m_panel.data();
                return true;
            }
            return false;
        }

    private:
        QPointer<CVKDisplayPreferences> m_panel;
    };
    QWidget watched;
    const QPointer<CVKDisplayPreferences> panel(new CVKDisplayPreferences);
    Deleting deleting(panel);
    panel->installEventFilter(&deleting);
    QWheelEvent event(
        QPoint(5, 5), QPoint(5, 5), QPoint(), QPoint(0, -120), {}, {}, Qt::NoScrollPhase, false);
    QVERIFY(panel->eventFilter(&watched, &event));
    QVERIFY(!panel);
}

void TestCVKDisplayPreferences::otherEvents_passTheFilter()
{
    WheelPanel panel;
    QEvent enter(QEvent::Enter);
    QVERIFY(!panel.eventFilter(panel.findChild<QComboBox*>("comboBoxType"), &enter));
    QCOMPARE(panel.wheelCount, 0);
}

void TestCVKDisplayPreferences::receiverDeletesThePanel()
{
    using Panel = CVKDisplayPreferences;
    const auto deleting = [](QPointer<Panel>& panel) { return [&panel] { delete panel.data(); }; };
    for (const char* const name : { "radioButtonImage", "radioButton2D" }) {
        QPointer<Panel> panel(new Panel);
        panel->show();
        connect(panel, &Panel::switchDisplayType, panel, deleting(panel));
        clickLeft(panel->findChild<QRadioButton*>(name));
        QVERIFY2(!panel, name);
    }
    QPointer<Panel> panel(new Panel);
    panel->show();
    connect(panel, &Panel::changePalette, panel, deleting(panel));
    clickLeft(panel->findChild<QPushButton*>("pushButtonGray"));
    QVERIFY(!panel);

    panel = new Panel;
    panel->show();
    panel->findChild<QComboBox*>("comboBoxType")->setCurrentIndex(1);
    connect(panel, &Panel::changePixelsToWavelength, panel, deleting(panel));
    clickLeft(panel->findChild<QPushButton*>("pushButtonApply"));
    QVERIFY(!panel);

    panel = new Panel;
    connect(panel, &Panel::switchDisplayType, panel, deleting(panel));
    panel->resetDefaults();
    QVERIFY(!panel);

    panel = new Panel;
    connect(panel, &Panel::changePalette, panel, deleting(panel));
    panel->resetDefaults();
    QVERIFY(!panel);
}

void TestCVKDisplayPreferences::close_deletesThePanel()
{
    const QPointer<CVKDisplayPreferences> panel(new CVKDisplayPreferences);
    panel->show();
    panel->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!panel);
}

QTEST_MAIN(TestCVKDisplayPreferences)
#include "tst_cvkdisplaypreferences.moc"
