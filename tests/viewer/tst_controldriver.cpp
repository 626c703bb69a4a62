#include "controldriver.h"

#include "appearance.h"
#include "cvkintensitywidget.h"
#include "scenes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QtTest>

/// The driver on the real widget, in a window of 1290 x 800.
class TestControlDriver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void nothing_changesNothing();
    void view_x();
    void view_y();
    void view_backToTheImage();
    void peaks_areCountedAndShown();
    void peaks_needAChart();
    void wavelength_fillsTheFields();
    void wavelength_withAUnit();
    void palette_data();
    void palette();
    void region_becomesWhatWasAsked_data();
    void region_becomesWhatWasAsked();
    void region_asNearAsTheScaleAllows();
    void region_ofASmallImageIsExact();
    void regions_areNumbered();
    void regions_beforeTheChart();
    void panel_isScrolledToTheControl();
    void missingControl_isNamed();
    void missingCanvas_isAProblem();

private:
    void load(const RawFrame& frame);
    template <class Control>
    Control* control(const char* name) const
    {
        return m_widget->findChild<Control*>(name);
    }
    QString text(const char* label) const { return control<QLabel>(label)->text(); }
    QString apply(const ControlSettings& settings);

    QTemporaryDir m_folder;
    CVKIntensityWidget* m_widget = nullptr;
    std::unique_ptr<QWidget> m_window;
    QSize m_imageSize;
    QStringList m_report;
};

namespace {

RawFrame plainFrame(int width, int height)
{
    RawFrame frame;
    frame.width = width;
    frame.height = height;
    frame.bytes = QByteArray(width * height, '\0');
    for (int i = 0; i < frame.bytes.size(); ++i) {
        frame.bytes[i] = char(i % 251);
    }
    return frame;
}

ControlSettings withRegions(const QVector<QRect>& regions)
{
    ControlSettings settings;
    settings.regions = regions;
    return settings;
}

ControlSettings withView(const QString& view)
{
    ControlSettings settings;
    settings.view = view;
    return settings;
}

} // namespace

void TestControlDriver::initTestCase()
{
    initViewerResources();
    applyAppearance();
    QLoggingCategory::setFilterRules("*.debug=false");
}

void TestControlDriver::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(1290, 800);
    m_widget = new CVKIntensityWidget(m_window.get());
    m_widget->setGeometry(m_window->rect());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    load(lampSpectrum());
}

void TestControlDriver::cleanup()
{
    m_window.reset();
}

void TestControlDriver::load(const RawFrame& frame)
{
    const QString path = m_folder.filePath("frame.raw");
    QString problem;
    QVERIFY(writeRawFrame(path, frame, &problem));
    m_widget->closeImage();
    QVERIFY(m_widget->loadImage(path));
    m_imageSize = QSize(frame.width, frame.height);
}

QString TestControlDriver::apply(const ControlSettings& settings)
{
    ControlDriver driver(m_widget, m_imageSize);
    const QString problem = driver.apply(settings);
    m_report = driver.report();
    return problem;
}

void TestControlDriver::nothing_changesNothing()
{
    QVERIFY(apply(ControlSettings()).isEmpty());
    QVERIFY(m_report.isEmpty());
    QVERIFY(control<QRadioButton>("radioButtonImage")->isChecked());
}

void TestControlDriver::view_x()
{
    QVERIFY(apply(withView("x")).isEmpty());
    QVERIFY(control<QRadioButton>("radioButton2D")->isChecked());
    QVERIFY(!control<QRadioButton>("radioButtonImage")->isChecked());
    QCOMPARE(control<QComboBox>("comboBoxDisplay")->currentIndex(), 0);
    QVERIFY(!control<QPushButton>("tool_Zoom_In")->isVisible()); // the canvas has followed
}

void TestControlDriver::view_y()
{
    QVERIFY(apply(withView("y")).isEmpty());
    QVERIFY(control<QRadioButton>("radioButton2D")->isChecked());
    QCOMPARE(control<QComboBox>("comboBoxDisplay")->currentIndex(), 1);
    QVERIFY(apply(withView("x")).isEmpty());
    QCOMPARE(control<QComboBox>("comboBoxDisplay")->currentIndex(), 0);
}

void TestControlDriver::view_backToTheImage()
{
    QVERIFY(apply(withView("y")).isEmpty());
    QVERIFY(apply(withView("image")).isEmpty());
    QVERIFY(control<QRadioButton>("radioButtonImage")->isChecked());
    QVERIFY(control<QPushButton>("tool_Zoom_In")->isVisible());
}

void TestControlDriver::peaks_areCountedAndShown()
{
    ControlSettings settings = withView("x");
    settings.peakCount = 200;
    QVERIFY(apply(settings).isEmpty());
    QCOMPARE(control<QLineEdit>("lineEditPeaks")->text(), QString("200"));
    QVERIFY(control<QCheckBox>("checkBoxPeak")->isChecked());
    settings.peakCount = 7;
    QVERIFY(apply(settings).isEmpty());
    QCOMPARE(control<QLineEdit>("lineEditPeaks")->text(), QString("7"));
    QVERIFY(control<QCheckBox>("checkBoxPeak")->isChecked()); // and not off again
}

void TestControlDriver::peaks_needAChart()
{
    ControlSettings settings;
    settings.peakCount = 5;
    settings.palette = "red";
    QCOMPARE(apply(settings), QString("the control lineEditPeaks is disabled"));
    QCOMPARE(control<QLineEdit>("lineEditPeaks")->text(), QString("10"));
    QVERIFY(!control<QPushButton>("pushButtonRed")->isChecked()); // what follows is left undone
}

void TestControlDriver::wavelength_fillsTheFields()
{
    ControlSettings settings;
    settings.hasWavelength = true;
    settings.wavelengthStart = 2000;
    settings.pixelWidth = 100;
    QVERIFY(apply(settings).isEmpty());
    QCOMPARE(control<QComboBox>("comboBoxType")->currentIndex(), 1);
    QCOMPARE(control<QComboBox>("comboBoxUnits")->currentIndex(), 0);
    QCOMPARE(control<QLineEdit>("lineEditXStart")->text(), QString("2000"));
    QCOMPARE(control<QLineEdit>("lineEditPixelWidth")->text(), QString("100"));
    settings.wavelengthStart = 0;
    settings.pixelWidth = 1;
    QVERIFY(apply(settings).isEmpty());
    QCOMPARE(control<QLineEdit>("lineEditXStart")->text(), QString("0"));
    QCOMPARE(control<QLineEdit>("lineEditPixelWidth")->text(), QString("1"));
}

void TestControlDriver::wavelength_withAUnit()
{
    ControlSettings settings;
    settings.hasWavelength = true;
    settings.wavelengthUnit = "nm";
    QVERIFY(apply(settings).isEmpty());
    QCOMPARE(control<QComboBox>("comboBoxUnits")->currentText(), QString("nm"));
    settings.wavelengthUnit = "um";
    QVERIFY(apply(settings).isEmpty());
    QCOMPARE(control<QComboBox>("comboBoxUnits")->currentText(), QString("um"));
}

void TestControlDriver::palette_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("gray") << "pushButtonGray";
    QTest::newRow("red") << "pushButtonRed";
    QTest::newRow("green") << "pushButtonGreen";
    QTest::newRow("blue") << "pushButtonBlue";
    QTest::newRow("color") << "pushButtonColor";
}

void TestControlDriver::palette()
{
    QFETCH(QString, button);
    ControlSettings settings;
    settings.palette = QTest::currentDataTag();
    QVERIFY(apply(settings).isEmpty());
    for (const char* name : { "pushButtonGray", "pushButtonRed", "pushButtonGreen",
             "pushButtonBlue", "pushButtonColor" }) {
        QCOMPARE(control<QPushButton>(name)->isChecked(), button == name);
    }
}

void TestControlDriver::region_becomesWhatWasAsked_data()
{
    QTest::addColumn<QRect>("pixels");
    // 256 x 256 pixels on a canvas of 1000 x 800: each is shown 2.25 units wide.
    QTest::newRow("inside") << QRect(10, 20, 20, 20);
    QTest::newRow("the whole image") << QRect(0, 0, 256, 256);
    QTest::newRow("upper left of where a new one stands") << QRect(2, 3, 15, 9);
    QTest::newRow("lower right of it") << QRect(200, 190, 50, 60);
    QTest::newRow("upper right") << QRect(190, 5, 66, 20);
    QTest::newRow("lower left") << QRect(0, 240, 30, 16);
    QTest::newRow("one high line") << QRect(100, 0, 2, 256);
    QTest::newRow("as small as regions become") << QRect(128, 128, 2, 2);
}

void TestControlDriver::region_becomesWhatWasAsked()
{
    QFETCH(QRect, pixels);
    load(plainFrame(256, 256));
    QCOMPARE(apply(withRegions({ pixels })), QString());
    const int left = pixels.left();
    const int right = pixels.right();
    const int fromBottom = 255 - pixels.bottom();
    const int toBottom = 255 - pixels.top();
    QCOMPARE(text("labelValueX"), QString("%1 to %2").arg(left).arg(right));
    QCOMPARE(text("labelValueY"), QString("%1 to %2").arg(fromBottom).arg(toBottom));
    QCOMPARE(m_report,
        QStringList(QString("ROI 1: x %1 to %2, y %3 to %4 (from the top %5 to %6)")
                        .arg(left)
                        .arg(right)
                        .arg(fromBottom)
                        .arg(toBottom)
                        .arg(pixels.top())
                        .arg(pixels.bottom())));
}

void TestControlDriver::region_asNearAsTheScaleAllows()
{
    load(plainFrame(2600, 1300)); // on 860 x 428 units: three pixels share one
    QCOMPARE(apply(withRegions({ QRect(1001, 302, 500, 400) })), QString());
    const QStringList columns = text("labelValueX").split(" to ");
    QVERIFY(qAbs(columns.value(0).toInt() - 1001) <= 2);
    QVERIFY(qAbs(columns.value(1).toInt() - 1500) <= 2);
    const QStringList rows = text("labelValueY").split(" to ");
    QVERIFY(qAbs(rows.value(1).toInt() - (1299 - 302)) <= 2);
    QVERIFY(qAbs(rows.value(0).toInt() - (1299 - 701)) <= 2);
    const QString shown = QString("ROI 1: x %1, y %2 (from the top %3 to %4)")
                              .arg(text("labelValueX"), text("labelValueY"))
                              .arg(1299 - rows.value(1).toInt())
                              .arg(1299 - rows.value(0).toInt());
    QCOMPARE(m_report, QStringList(shown)); // says what it became, not what was asked
}

void TestControlDriver::region_ofASmallImageIsExact()
{
    load(plainFrame(30, 20)); // shown more than ten times as large, where edges snap to pixels
    QCOMPARE(apply(withRegions({ QRect(3, 4, 20, 10), QRect(0, 0, 30, 20) })), QString());
    QCOMPARE(m_report.value(0), QString("ROI 1: x 3 to 22, y 6 to 15 (from the top 4 to 13)"));
    QCOMPARE(m_report.value(1), QString("ROI 2: x 0 to 29, y 0 to 19 (from the top 0 to 19)"));
}

void TestControlDriver::regions_areNumbered()
{
    load(plainFrame(256, 256));
    const QRect same(60, 60, 40, 40); // one on top of the other
    QCOMPARE(apply(withRegions({ same, same, QRect(70, 70, 10, 10) })), QString());
    QCOMPARE(m_report.size(), 3);
    QCOMPARE(m_report.at(0), QString("ROI 1: x 60 to 99, y 156 to 195 (from the top 60 to 99)"));
    QCOMPARE(m_report.at(1), QString("ROI 2: x 60 to 99, y 156 to 195 (from the top 60 to 99)"));
    QCOMPARE(m_report.at(2), QString("ROI 3: x 70 to 79, y 176 to 185 (from the top 70 to 79)"));
    auto* box = control<QComboBox>("comboBoxRoi");
    QCOMPARE(box->count(), 4);
    for (int row : { 1, 2 }) { // where they were left
        box->setCurrentIndex(row);
        QCOMPARE(text("labelValueX"), QString("60 to 99"));
    }
}

void TestControlDriver::regions_beforeTheChart()
{
    ControlSettings settings = withRegions({ QRect(100, 20, 50, 60) });
    settings.view = "x";
    settings.peakCount = 5;
    QCOMPARE(apply(settings), QString());
    QCOMPARE(m_report.size(), 1);
    QVERIFY(control<QRadioButton>("radioButton2D")->isChecked());
}

void TestControlDriver::panel_isScrolledToTheControl()
{
    m_window->resize(1290, 480);
    m_widget->setGeometry(m_window->rect());
    const auto* area = control<QScrollArea>("Scroll_ModuleWidget");
    QCOMPARE(area->verticalScrollBar()->value(), 0);
    QCOMPARE(apply(withRegions({ QRect(10, 10, 50, 60) })), QString());
    QVERIFY(area->verticalScrollBar()->value() > 0);
    const auto* add = control<QPushButton>("pushButtonAdd");
    const QRect shown(add->mapTo(area->viewport(), QPoint()), add->size());
    QVERIFY(area->viewport()->rect().contains(shown));
}

void TestControlDriver::missingControl_isNamed()
{
    QWidget bare;
    ControlSettings settings = withView("x");
    settings.palette = "red";
    QCOMPARE(ControlDriver(&bare, QSize(10, 10)).apply(settings),
        QString("there is no control radioButton2D"));
}

void TestControlDriver::missingCanvas_isAProblem()
{
    QWidget bare;
    QCOMPARE(ControlDriver(&bare, QSize(10, 10)).apply(withRegions({ QRect(0, 0, 5, 5) })),
        QString("the canvas takes no region"));
    delete control<QPushButton>("pushButtonAdd");
    QCOMPARE(
        apply(withRegions({ QRect(0, 0, 5, 5) })), QString("there is no control pushButtonAdd"));
}

QTEST_MAIN(TestControlDriver)
#include "tst_controldriver.moc"
