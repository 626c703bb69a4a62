#include "embeddingcode.h"

#include "support/sampleframes.h"

#include <QFile>
#include <QGraphicsTextItem>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>
#include <memory>

using LoadProblem = CVKIntensityWidget::LoadProblem;
using Reading = CVKIntensityWidget::Reading;

/// The code that hosts are told to copy does what the page says.
class TestHostCode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void look_hasARuleForEachBlankControl();
    void window_readsFaithfully();
    void returnButton_callsTheSlotOfTheParent();
    void layingOutOnce_bringsTheReadoutIntoTheCanvas();

    void asStored_closingBeforeEachLoadKeepsOneConnection();
    void asStored_loadAfterFileWithoutPixelsConnectsTwice();
    void faithful_refusesFileWithoutPixels();
    void failedLoad_tellsWhy();
    void failedPreview_tellsWhy();

    void frames_showTheFirstAndUpdateTheNext();
    void view_followsTheValueAtTheCrossHair();
    void settings_areSet();
    void regions_areShownWithTheirNumbers();
    void numbers_areThoseOfTheFrame();
    void listener_keepsTheLabelAtTheValue();

    void size_leavesRoomForTheChart();
    void styleSheet_paintsCanvasAndColumn();
    void styleSheet_namesControlsThatThereAre();
    void blankControls_haveTheNamesOnThePage();

    void wheelFilter_servesTheCanvas();
    void wheel_scrollsThePanelOverItsBoxes();
    void log_isSilenced();

    void wheel_wholeNotchesPass();
    void wheel_smallTurnsAreGathered();
    void wheel_turningBackStartsAnew();
    void wheel_nothingUpOrDownIsLeftOut();
    void wheel_hugeTurnsAreBounded();

private:
    QString path(const char* name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    QString m_page;
    QString m_styleSheet;
};

/// Without the images of the host kit, as in a program that does not link it. The macros belong
/// outside of every namespace.
static void removeSkinImages()
{
    Q_CLEANUP_RESOURCE(vkintensityhost);
}

static void restoreSkinImages()
{
    Q_INIT_RESOURCE(vkintensityhost);
}

namespace {

constexpr int frameWidth = 640; // as in the page's frame
constexpr int frameHeight = 480;

/// The value of column x and row y is base + 10 x + y.
std::vector<quint16> ramp(int base = 1000)
{
    std::vector<quint16> samples;
    for (int y = 0; y < frameHeight; ++y) {
        for (int x = 0; x < frameWidth; ++x) {
            samples.push_back(quint16(base + 10 * x + y));
        }
    }
    return samples;
}

std::unique_ptr<CVKIntensityWidget> shownWidget()
{
    auto widget = std::make_unique<CVKIntensityWidget>();
    widget->setAttribute(Qt::WA_DeleteOnClose, false);
    widget->resize(1000, 700);
    widget->show();
    return widget;
}

/// A widget that shows the ramp.
std::unique_ptr<CVKIntensityWidget> rampWidget(int base = 1000)
{
    auto widget = shownWidget();
    snippets::frames_from_memory_1(widget.get(), QString(), ramp(base));
    return widget;
}

QGraphicsView* canvasOf(const QWidget& widget)
{
    return widget.findChild<QGraphicsView*>();
}

const QGraphicsTextItem* readoutOf(const QWidget& widget)
{
    for (const QGraphicsItem* item : canvasOf(widget)->scene()->items()) {
        if (item->type() == QGraphicsTextItem::Type) {
            return static_cast<const QGraphicsTextItem*>(item);
        }
    }
    return nullptr;
}

QPushButton* button(const QWidget& widget, const char* name)
{
    return widget.findChild<QPushButton*>(name);
}

/// By how much one click on the zoom button scales.
double clickedZoom(const CVKIntensityWidget& widget)
{
    const double before = widget.zoomFactor();
    QTest::mouseClick(button(widget, "tool_Zoom_In"), Qt::LeftButton);
    return widget.zoomFactor() / before;
}

/// Turns the wheel over the middle of `target`.
void turnWheel(QWidget* target, int angle, int sideways = 0)
{
    const QPoint middle = target->rect().center();
    QWheelEvent event(middle, target->mapToGlobal(middle), QPoint(), QPoint(sideways, angle),
        Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &event);
}

/// Notes the angle of each turn of the wheel that reaches it.
class Wheeled : public QWidget
{
public:
    QVector<int> angles;

    void turn(int angle, int sideways = 0) { turnWheel(this, angle, sideways); }

protected:
    void wheelEvent(QWheelEvent* event) override { angles << event->angleDelta().y(); }
};

struct FilteredWheel
{
    FilteredWheel() { target.installEventFilter(&filter); }

    WholeNotches filter;
    Wheeled target;
};

/// A parent whose slot the Return button calls.
class Parent : public QWidget
{
    Q_OBJECT

public:
    int returns = 0;

public Q_SLOTS:
    void sltSwitchToGallery() { ++returns; }
};

} // namespace

void TestHostCode::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    QFile page(VKINTENSITY_EMBEDDING_PAGE);
    QVERIFY(page.open(QIODevice::ReadOnly));
    m_page = QString::fromUtf8(page.readAll());
    const QRegularExpression block("^```css\n(.*?)^```$",
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
    m_styleSheet = block.match(m_page).captured(1);
    QVERIFY(m_styleSheet.size() > 100);
    QVERIFY(writeRawFile(path("ramp.raw"), rawFile(640, 480, 1, 2, bytesOf(ramp()))));
    QVERIFY(writeRawFile(path("empty.raw"), rawFile(0, 0, 1, 2, QByteArray())));
}

void TestHostCode::cleanup()
{
    qApp->setStyleSheet(QString());
}

void TestHostCode::look_hasARuleForEachBlankControl()
{
    snippets::build_1(nullptr);
    for (const char* name : { "tool_Zoom_In", "tool_Zoom_Out", "left_flex1", "bar_ModuleWidget" }) {
        QVERIFY2(qApp->styleSheet().contains(QString("#%1").arg(name)), name);
    }
}

void TestHostCode::window_readsFaithfully()
{
    MainWindow window;
    window.resize(1000, 700);
    window.show();
    const auto* intensity = window.findChild<CVKIntensityWidget*>();
    QVERIFY(window.open(path("ramp.raw")));
    QCOMPARE(intensity->imageInfo().size, QSize(640, 480));
    QVERIFY(!window.open(path("empty.raw")));
    QVERIFY(window.open(path("ramp.raw")));
    QCOMPARE(clickedZoom(*intensity), 1.5);
}

void TestHostCode::returnButton_callsTheSlotOfTheParent()
{
    Parent parent;
    auto* intensity = new CVKIntensityWidget(&parent);
    parent.resize(1000, 700);
    intensity->resize(1000, 700);
    parent.show();
    QTest::mouseClick(button(*intensity, "Return"), Qt::LeftButton);
    QCOMPARE(parent.returns, 1);
}

void TestHostCode::layingOutOnce_bringsTheReadoutIntoTheCanvas()
{
    const auto intensity = rampWidget();
    const QGraphicsTextItem* readout = readoutOf(*intensity);
    QVERIFY(readout);
    QCOMPARE(readout->toPlainText().count('\n'), 1);
    const double placedForOneLine = readout->y();
    snippets::create_load_close_1(intensity.get());
    QCOMPARE(intensity->size(), QSize(1000, 700));
    QVERIFY(readout->y() < placedForOneLine);
    const double bottom = readout->sceneBoundingRect().bottom();
    QVERIFY2(bottom <= canvasOf(*intensity)->height(), qPrintable(QString::number(bottom)));
}

void TestHostCode::asStored_closingBeforeEachLoadKeepsOneConnection()
{
    const auto intensity = shownWidget();
    for (int load = 0; load < 3; ++load) {
        snippets::how_files_are_read_1(intensity.get(), path("ramp.raw"));
        QVERIFY(intensity->imageInfo().isValid());
    }
    QCOMPARE(clickedZoom(*intensity), 1.5);
}

void TestHostCode::asStored_loadAfterFileWithoutPixelsConnectsTwice()
{
    const auto intensity = shownWidget();
    QVERIFY(intensity->loadImage(path("empty.raw")));
    QVERIFY(!intensity->imageInfo().isValid());
    snippets::how_files_are_read_1(intensity.get(), path("ramp.raw"));
    QCOMPARE(clickedZoom(*intensity), 2.25);
}

void TestHostCode::faithful_refusesFileWithoutPixels()
{
    const auto intensity = shownWidget();
    intensity->setReading(Reading::Faithful);
    QVERIFY(!intensity->loadImage(path("empty.raw")));
    QCOMPARE(intensity->loadProblem(), LoadProblem::NoPixels);
    QVERIFY(intensity->loadImage(path("ramp.raw")));
    QVERIFY(intensity->loadImage(path("ramp.raw"))); // on top of the image that is open
    QCOMPARE(clickedZoom(*intensity), 1.5);
}

void TestHostCode::failedLoad_tellsWhy()
{
    const auto intensity = shownWidget();
    QTest::ignoreMessage(QtWarningMsg, "not shown, problem 1"); // Missing
    snippets::how_files_are_read_1(intensity.get(), path("missing.raw"));
    QCOMPARE(intensity->loadProblem(), LoadProblem::Missing);
}

void TestHostCode::failedPreview_tellsWhy()
{
    QTest::ignoreMessage(QtWarningMsg, "no preview, problem 1");
    snippets::how_files_are_read_2(nullptr, path("missing.raw"));
}

void TestHostCode::frames_showTheFirstAndUpdateTheNext()
{
    const auto intensity = rampWidget();
    QCOMPARE(intensity->imageInfo().size, QSize(640, 480));
    QVERIFY(intensity->addRegion(QRect(10, 20, 30, 40)));
    snippets::frames_from_memory_1(intensity.get(), QString(), ramp(1001));
    QCOMPARE(intensity->regions(), QVector<QRect> { QRect(10, 20, 30, 40) });
    QCOMPARE(intensity->value({ 2, 3 }).value_or(0), 1024U); // 1001 + 20 + 3
}

void TestHostCode::view_followsTheValueAtTheCrossHair()
{
    using View = CVKIntensityWidget::View;
    const auto dark = rampWidget(0); // 3300 at 320, 100
    snippets::view_and_cross_hair_1(dark.get());
    QCOMPARE(dark->crossHair().value_or(QPoint()), QPoint(320, 100));
    QCOMPARE(dark->view(), View::Image);
    const auto bright = rampWidget(1000);
    snippets::view_and_cross_hair_1(bright.get());
    QCOMPARE(bright->view(), View::RowChart);
}

void TestHostCode::settings_areSet()
{
    using Unit = CVKIntensityWidget::Unit;
    const auto intensity = rampWidget();
    snippets::settings_1(intensity.get());
    const CVKIntensityWidget::Calibration calibration { 400, 2, Unit::Nanometers };
    QVERIFY(intensity->calibration() == calibration);
    QVERIFY((intensity->peakLabels() == CVKIntensityWidget::PeakLabels { true, 20 }));
    QVERIFY(CVKIntensityWidget::colorPalettes().contains("Color"));
}

void TestHostCode::regions_areShownWithTheirNumbers()
{
    const auto intensity = rampWidget();
    // Means of the columns 59.5 and 249.5, of the rows 44.5.
    QTest::ignoreMessage(QtInfoMsg, "100 x 50 pixels: 1639.5");
    QTest::ignoreMessage(QtInfoMsg, "100 x 50 pixels: 3539.5");
    snippets::regions_of_interest_1(intensity.get());
    QCOMPARE(intensity->selectedRegion(), 0);
}

void TestHostCode::numbers_areThoseOfTheFrame()
{
    const auto intensity = rampWidget();
    // 1639.5 over the root of (100 (100^2 - 1) + (50^2 - 1)) / 12 = 83533.25
    QTest::ignoreMessage(QtInfoMsg, "signal to noise 5.67259");
    QTest::ignoreMessage(QtInfoMsg, "1 pixels have the value 1120"); // 1000 + 10 x 10 + 20
    // A rising row lists every sample, the highest level first, and of equal levels the smallest
    // number. Level 238 is from 1000 + 6411.1 on, each lower one 26.9 below the one before.
    const int columns[] { 639, 636, 637, 638, 634, 635, 631, 632, 633, 628 };
    for (int i = 0; i < 10; ++i) {
        const QString line = QString("%1. at %2: %3").arg(i + 1).arg(columns[i]);
        QTest::ignoreMessage(QtInfoMsg, qPrintable(line.arg(1025 + 10 * columns[i])));
    }
    snippets::numbers_1(intensity.get());
}

void TestHostCode::listener_keepsTheLabelAtTheValue()
{
    const auto intensity = rampWidget();
    CrossHairLabel label(intensity.get());
    QVERIFY(intensity->setCrossHair({ 5, 7 }));
    QCOMPARE(label.text(), QString("1057"));
    QWidget* viewport = canvasOf(*intensity)->viewport();
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, viewport->rect().center());
    const auto pixel = intensity->crossHair();
    QVERIFY(pixel && *pixel != QPoint(5, 7));
    QTRY_COMPARE(label.text(), QString::number(1000 + 10 * pixel->x() + pixel->y()));
    intensity->closeImage();
    QCOMPARE(label.text(), QString());
}

void TestHostCode::size_leavesRoomForTheChart()
{
    const auto intensity = shownWidget();
    snippets::size_1(intensity.get());
    QCOMPARE(intensity->minimumSize(), QSize(800, 600)); // 290 + 510 at 96 dots per inch
}

void TestHostCode::styleSheet_paintsCanvasAndColumn()
{
    removeSkinImages();
    qApp->setStyleSheet(m_styleSheet);
    const auto intensity = shownWidget();
    restoreSkinImages();
    snippets::a_look_of_your_own_1(intensity.get());
    const QImage picture = intensity->grab().toImage();
    QCOMPARE(QColor(picture.pixel(700, 350)).name(), QString("#1a1f26"));
    QCOMPARE(QColor(picture.pixel(250, 20)).name(), QString("#20252d")); // beside Return
    QCOMPARE(button(*intensity, "Return")->text(), QString("Return"));
}

void TestHostCode::styleSheet_namesControlsThatThereAre()
{
    const auto intensity = shownWidget();
    const QRegularExpression objectName("(Q[A-Za-z]+)#([A-Za-z0-9_]+)");
    auto matches = objectName.globalMatch(m_styleSheet);
    QVERIFY(matches.hasNext());
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QWidget* named = intensity->findChild<QWidget*>(match.captured(2));
        QVERIFY2(
            named && named->inherits(qPrintable(match.captured(1))), qPrintable(match.captured()));
    }
}

void TestHostCode::blankControls_haveTheNamesOnThePage()
{
    const auto intensity = shownWidget();
    for (const char* name : { "tool_Zoom_In", "tool_Zoom_Out", "left_flex1" }) {
        QVERIFY2(m_page.contains(QString("`%1`").arg(name)), name);
        const auto buttons = intensity->findChildren<QPushButton*>(name);
        QVERIFY2(!buttons.isEmpty(), name);
        for (const QPushButton* blank : buttons) {
            QVERIFY2(blank->text().isEmpty() && blank->icon().isNull(), name);
        }
    }
    QVERIFY(intensity->findChild<QScrollBar*>("bar_ModuleWidget"));
}

void TestHostCode::wheelFilter_servesTheCanvas()
{
    const auto intensity = rampWidget();
    snippets::wheel_and_trackpad_1(intensity.get());
    QWidget* viewport = canvasOf(*intensity)->viewport();
    const double fitted = intensity->zoomFactor();
    turnWheel(viewport, 119);
    QCOMPARE(intensity->zoomFactor(), fitted);
    turnWheel(viewport, 1);
    QCOMPARE(intensity->zoomFactor(), 1.5 * fitted);
}

void TestHostCode::wheel_scrollsThePanelOverItsBoxes()
{
    const auto intensity = rampWidget();
    auto* box = intensity->findChild<QComboBox*>("comboBoxType");
    turnWheel(box, -120);
    QCOMPARE(box->currentIndex(), 1); // that is why
    box->setCurrentIndex(0);
    snippets::wheel_and_trackpad_2(intensity.get());
    turnWheel(box, -120);
    QCOMPARE(box->currentIndex(), 0);
}

void TestHostCode::log_isSilenced()
{
    QLoggingCategory::setFilterRules("default.debug=true");
    QVERIFY(QLoggingCategory::defaultCategory()->isDebugEnabled());
    snippets::log_1(nullptr);
    QVERIFY(!QLoggingCategory::defaultCategory()->isDebugEnabled());
}

void TestHostCode::wheel_wholeNotchesPass()
{
    FilteredWheel wheel;
    wheel.target.turn(120);
    wheel.target.turn(-120);
    wheel.target.turn(240);
    QCOMPARE(wheel.target.angles, (QVector<int> { 120, -120, 120, 120 }));
}

void TestHostCode::wheel_smallTurnsAreGathered()
{
    FilteredWheel wheel;
    for (int i = 0; i < 14; ++i) {
        wheel.target.turn(8);
    }
    QVERIFY(wheel.target.angles.isEmpty()); // 14 x 8 = 112
    wheel.target.turn(10); // 122
    QCOMPARE(wheel.target.angles, QVector<int> { 120 });
    wheel.target.turn(117); // with the 2 that were left: 119
    QCOMPARE(wheel.target.angles.size(), 1);
    wheel.target.turn(1);
    QCOMPARE(wheel.target.angles.size(), 2);
}

void TestHostCode::wheel_turningBackStartsAnew()
{
    FilteredWheel wheel;
    wheel.target.turn(100);
    wheel.target.turn(-119);
    QVERIFY(wheel.target.angles.isEmpty());
    wheel.target.turn(-1);
    QCOMPARE(wheel.target.angles, QVector<int> { -120 });
}

void TestHostCode::wheel_nothingUpOrDownIsLeftOut()
{
    FilteredWheel wheel;
    wheel.target.turn(0);
    wheel.target.turn(0, 120);
    QVERIFY(wheel.target.angles.isEmpty());
}

void TestHostCode::wheel_hugeTurnsAreBounded()
{
    FilteredWheel wheel;
    wheel.target.turn(std::numeric_limits<int>::max());
    QCOMPARE(wheel.target.angles, QVector<int>(10, 120));
    wheel.target.turn(std::numeric_limits<int>::min());
    QCOMPARE(wheel.target.angles.mid(10), QVector<int>(10, -120));
}

QTEST_MAIN(TestHostCode)
#include "tst_hostcode.moc"
