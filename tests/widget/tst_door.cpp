#include "canvas/imagelayoutitem.h"
#include "panel/cvkdatahistogram.h"
#include "panel/cvkdisplaypreferences.h"
#include "panel/cvkintensityctrlwidget.h"
#include "plots/intensitycurveaxisitem.h"
#include "support/sampleframes.h"
#include "widget/cvkintensitymdiwidget.h"
#include "widget/cvkintensitywidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

using Widget = CVKIntensityWidget;

Q_DECLARE_METATYPE(CVKIntensityWidget::LoadProblem)

namespace {

constexpr int imageWidth = 400;
constexpr int imageHeight = 300;

/// 400 x 300 samples of 16 bits: 1000 + 2 x + 3 y, with some peaks in each row.
quint16 sampleAt(int x, int y)
{
    const int peak = x % 50 == 25 ? 300 + x : 0;
    return quint16(1000 + 2 * x + 3 * y + peak);
}

std::vector<quint16> samples()
{
    std::vector<quint16> pixels;
    for (int y = 0; y < imageHeight; ++y) {
        for (int x = 0; x < imageWidth; ++x) {
            pixels.push_back(sampleAt(x, y));
        }
    }
    return pixels;
}

Widget::Frame frameOf(const std::vector<quint16>& pixels, int width, int height)
{
    Widget::Frame frame;
    frame.samples = pixels.data();
    frame.width = width;
    frame.height = height;
    frame.bytesPerSample = 2;
    return frame;
}

/// Notes each call with what the widget answers at that moment.
class NotingListener : public Widget::Listener
{
public:
    void imageChanged() override { m_notes << "image"; }
    void viewChanged() override { m_notes << "view"; }
    void crossHairChanged() override { m_notes << "cross"; }
    void regionsChanged() override { m_notes << "regions"; }
    void selectionChanged() override { m_notes << "selection"; }
    void settingsChanged() override { m_notes << "settings"; }

    /// The notes since the last call.
    QStringList taken()
    {
        QStringList notes;
        notes.swap(m_notes);
        return notes;
    }

private:
    QStringList m_notes;
};

/// Does something at each change of the cross-hair.
class ActingListener : public Widget::Listener
{
public:
    explicit ActingListener(std::function<void()> action)
        : m_action(std::move(action))
    {
    }
    void crossHairChanged() override
    {
        ++calls;
        m_action();
    }

    int calls = 0;

private:
    std::function<void()> m_action;
};

} // namespace

/// What hosts ask and tell the exported widget.
class TestDoor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void withoutAnImage_gettersAreEmptyAndSettersRefuse();
    void afterClose_gettersAreEmpty();
    void withoutPanels_settersRefuse();
    void imageInfo_tellsWhatIsLoaded();
    void loadProblem_tellsWhy_data();
    void loadProblem_tellsWhy();
    void pixelLimit_refusesLargerImages();
    void faithfulLoad_closesTheImageBefore();
    void asStored_isTheDefaultAndDoublesConnections();
    void faithfulReading_hasExactRows();

    void view_switchesAsThePanelDoes();
    void chartAxis_canBeChosenWithTheImageInFront();
    void zoom_stepsAndEnds();
    void zoom_withoutRoomOrWithAChart();
    void crossHair_movesAsAClickDoes();
    void crossHair_outsideIsRefused();
    void pixelAt_isThePixelThatAClickMarks();
    void pixelAt_besideThePictureIsNothing();
    void picture_isTheColoredImage();
    void crossHair_scrollsIntoSight();
    void crossHair_withAChart_isReadOutThere();
    void settings_thatDoNotExistAreRefused();
    void regions_leftByALoadAsStored();
    void view_withoutPreferences();
    void value_isThatOfTheReadout();

    void colorPalette_followsThePanel();
    void colorPalette_refusesWhatCannotBeShown();
    void calibration_goesThroughThePanel();
    void calibration_refusesWhatTheFieldsDoNotTake();
    void calibration_ofTheUser();
    void peakLabels_goThroughThePanel();

    void regions_areExactWhateverTheZoom();
    void regions_outsideAreRefused();
    void setRegion_movesExactly();
    void setRegions_replacesAllOrNothing();
    void removeRegion_selectsTheFirst();
    void selectRegion_andNone();
    void markedRegion_differsAfterAClick();
    void regions_dragged_areThoseOfTheCanvas();

    void statistics_areThoseOfThePanel();
    void statistics_ofAFlatPart();
    void histogram_isThatOfThePanel();
    void profiles_haveValuesLevelsAndPositions();
    void peaks_areThoseOfTheChart_data();
    void peaks_areThoseOfTheChart();
    void peaks_ofBadProfiles();
    void numbers_leaveTheDisplayAlone();

    void listener_isToldOncePerCall();
    void listener_isToldOfTheUsersChanges();
    void listener_mayCallBack();
    void listener_mayLoadAndClose();
    void listener_mayBeDestroyedAnyTime();
    void listener_seesAConsistentWidget();
    void listener_thatAlwaysMovesTheCrossHair();
    void listener_ofTwoWidgets();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    CVKIntensityMdiWidget* host() const { return m_widget->findChild<CVKIntensityMdiWidget*>(); }
    CVKDisplayPreferences* preferences() const
    {
        return m_widget->findChild<CVKDisplayPreferences*>();
    }
    CVKDataHistogram* panel() const { return m_widget->findChild<CVKDataHistogram*>(); }
    QString labelText(const char* name) const { return m_widget->findChild<QLabel*>(name)->text(); }
    QString readout() const;
    QPoint onViewport(const QPointF& onImage) const;
    void clickImage(const QPointF& onImage);
    template <class Control>
    Control* control(const char* name) const
    {
        return m_widget->findChild<Control*>(name);
    }

    QTemporaryDir m_folder;
    std::unique_ptr<Widget> m_widget;
};

void TestDoor::initTestCase()
{
    QLoggingCategory::setFilterRules("*.debug=false");
    QVERIFY(writeRawFile(
        path("frame.raw"), rawFile(imageWidth, imageHeight, 1, 2, bytesOf(samples()))));
    QVERIFY(writeRawFile(path("empty.raw"), rawFile(0, 0, 1, 2, QByteArray())));
    const std::vector<quint16> odd { 0, 65535, 0, 65535, 0, 65535, 0, 65535, 0 };
    QVERIFY(writeRawFile(path("odd.raw"), rawFile(3, 3, 1, 2, bytesOf(odd))));
    QVERIFY(writeFile(path("frame.xyz"), "VORLAK"));
    QVERIFY(writeFile(path("noise.png"), "no image"));
    QVERIFY(QDir().mkpath(path("folder.raw")));
}

void TestDoor::init()
{
    m_widget = std::make_unique<Widget>();
    m_widget->resize(1280, 800);
    m_widget->show();
    QVERIFY(m_widget->loadImage(path("frame.raw")));
}

void TestDoor::cleanup()
{
    m_widget.reset();
}

QString TestDoor::readout() const
{
    for (QGraphicsItem* const item : host()->imageItem()->scene()->items()) {
        if (const auto* const text = dynamic_cast<QGraphicsTextItem*>(item)) {
            return text->toPlainText();
        }
    }
    return QString();
}

/// Place on the view's viewport of the middle of an image pixel.
QPoint TestDoor::onViewport(const QPointF& onImage) const
{
    const ImageLayoutItem& item = *host()->imageItem();
    const auto* const view = m_widget->findChild<QGraphicsView*>();
    const QPointF unit((onImage.x() + 0.5 - item.drawRect.x()) * item.scale + item.borderWidth,
        (onImage.y() + 0.5 - item.drawRect.y()) * item.scale + item.borderWidth);
    return view->mapFromScene(item.mapToScene(unit));
}

void TestDoor::clickImage(const QPointF& onImage)
{
    QWidget* const viewport = m_widget->findChild<QGraphicsView*>()->viewport();
    QTest::mouseMove(viewport, onViewport(onImage));
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, onViewport(onImage));
}

void TestDoor::withoutAnImage_gettersAreEmptyAndSettersRefuse()
{
    Widget widget;
    const QRect rect(0, 0, 1, 1);
    QVERIFY(!widget.imageInfo().isValid());
    QCOMPARE(widget.loadProblem(), Widget::LoadProblem::None);
    QCOMPARE(widget.reading(), Widget::Reading::AsStored);
    QCOMPARE(widget.pixelLimit(), qint64(0));
    QCOMPARE(widget.view(), Widget::View::Image);
    QVERIFY(!widget.setView(Widget::View::RowChart));
    QVERIFY(!widget.setChartAxis(Widget::Axis::Column));
    QCOMPARE(widget.chartAxis(), Widget::Axis::Row);
    QVERIFY(!widget.zoomIn());
    QVERIFY(!widget.zoomOut());
    QVERIFY(!widget.fit());
    QVERIFY(widget.visiblePixels().isEmpty());
    QVERIFY(widget.zoomFactor() == 0.0);
    QVERIFY(!widget.crossHair());
    QVERIFY(!widget.setCrossHair(QPoint(0, 0)));
    QVERIFY(!widget.value(QPoint(0, 0)));
    QVERIFY(widget.colorPalette().isEmpty());
    QVERIFY(!widget.setColorPalette("Gray"));
    QVERIFY(!widget.calibration());
    QVERIFY(!widget.setCalibration(Widget::Calibration()));
    QVERIFY(widget.peakLabels() == Widget::PeakLabels());
    QVERIFY(!widget.setPeakLabels(Widget::PeakLabels()));
    QVERIFY(widget.regions().isEmpty());
    QVERIFY(!widget.addRegion(rect));
    QVERIFY(!widget.setRegion(0, rect));
    QVERIFY(!widget.setRegions({}));
    QVERIFY(!widget.removeRegion(0));
    QVERIFY(!widget.selectRegion(-1));
    QCOMPARE(widget.selectedRegion(), -1);
    QCOMPARE(widget.markedRegion(), -1);
    QVERIFY(!widget.statistics(rect).isValid());
    QVERIFY(!widget.histogram(rect).isValid());
    QVERIFY(!widget.rowProfile(0).isValid());
    QVERIFY(!widget.columnProfile(0).isValid());
    QVERIFY(widget.peaks(m_widget->rowProfile(0), 3).isEmpty());
    const std::vector<quint16> pixels { 1 };
    QVERIFY(!widget.updateFrame(frameOf(pixels, 1, 1)));
    QCOMPARE(widget.loadProblem(), Widget::LoadProblem::BadFrame);
}

void TestDoor::afterClose_gettersAreEmpty()
{
    QVERIFY(m_widget->addRegion(QRect(10, 10, 20, 20)));
    m_widget->closeImage();
    QVERIFY(!m_widget->imageInfo().isValid());
    QVERIFY(!m_widget->crossHair());
    QVERIFY(m_widget->regions().isEmpty());
    QCOMPARE(m_widget->selectedRegion(), -1); // although the panel still shows its name
    QVERIFY(!m_widget->statistics(QRect(0, 0, 1, 1)).isValid());
    QVERIFY(!m_widget->setView(Widget::View::RowChart));
}

void TestDoor::withoutPanels_settersRefuse()
{
    delete preferences();
    QVERIFY(!m_widget->setView(Widget::View::RowChart));
    QVERIFY(!m_widget->setChartAxis(Widget::Axis::Column));
    QVERIFY(!m_widget->setColorPalette("Gray"));
    QVERIFY(m_widget->colorPalette().isEmpty());
    QVERIFY(!m_widget->setCalibration(Widget::Calibration()));
    QVERIFY(!m_widget->setPeakLabels(Widget::PeakLabels()));
    delete panel();
    QVERIFY(!m_widget->selectRegion(-1));
    QVERIFY(m_widget->addRegion(QRect(1, 1, 2, 2)));
    QCOMPARE(m_widget->selectedRegion(), -1);
    delete host();
    QVERIFY(!m_widget->fit());
    QVERIFY(m_widget->regions().isEmpty());
    QVERIFY(!m_widget->loadImage(path("frame.raw")));
    m_widget->closeImage();
}

void TestDoor::imageInfo_tellsWhatIsLoaded()
{
    const Widget::ImageInfo info = m_widget->imageInfo();
    QVERIFY(info.isValid());
    QCOMPARE(info.file, path("frame.raw"));
    QCOMPARE(info.size, QSize(400, 300));
    QCOMPARE(info.bitDepth, 16);
    QCOMPARE(info.channels, 1);
    QCOMPARE(info.sampleKind, Widget::SampleKind::Unsigned);
    QCOMPARE(info.page, 0);
    QCOMPARE(info.pageCount, 1);
    QCOMPARE(info.minimum, 1000U); // x = 0, y = 0
    QCOMPARE(info.maximum, 1000U + 750U + 897U + 675U); // the last peak, x = 375, in row 299
    QVERIFY(!info.isAlphaDropped);
    QVERIFY(!info.isColorReduced);
    QVERIFY(!info.isTypeConverted);
}

void TestDoor::loadProblem_tellsWhy_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Widget::LoadProblem>("problem");
    QTest::newRow("missing") << "none.png" << Widget::LoadProblem::Missing;
    QTest::newRow("folder") << "folder.raw" << Widget::LoadProblem::NotAFile;
    QTest::newRow("suffix") << "frame.xyz" << Widget::LoadProblem::UnknownSuffix;
    QTest::newRow("contents") << "noise.png" << Widget::LoadProblem::NotReadable;
}

void TestDoor::loadProblem_tellsWhy()
{
    QFETCH(QString, name);
    QFETCH(Widget::LoadProblem, problem);
    for (const auto reading : { Widget::Reading::AsStored, Widget::Reading::Faithful }) {
        m_widget->setReading(reading);
        QVERIFY(!m_widget->loadImage(path(name)));
        QCOMPARE(m_widget->loadProblem(), problem);
        QCOMPARE(m_widget->imageInfo().file, path("frame.raw")); // as it was
        QVERIFY(m_widget->loadImage(path("frame.raw")));
        QCOMPARE(m_widget->loadProblem(), Widget::LoadProblem::None);
    }
}

void TestDoor::pixelLimit_refusesLargerImages()
{
    m_widget->setPixelLimit(imageWidth * imageHeight - 1);
    QVERIFY(!m_widget->loadImage(path("frame.raw")));
    QCOMPARE(m_widget->loadProblem(), Widget::LoadProblem::OverPixelLimit);
    m_widget->setPixelLimit(imageWidth * imageHeight);
    QVERIFY(m_widget->loadImage(path("frame.raw")));
    m_widget->setPixelLimit(-5);
    QCOMPARE(m_widget->pixelLimit(), qint64(0));
    QVERIFY(m_widget->loadImage(path("frame.raw")));
}

void TestDoor::faithfulLoad_closesTheImageBefore()
{
    m_widget->closeImage();
    m_widget->setReading(Widget::Reading::Faithful);
    QVERIFY(m_widget->loadImage(path("frame.raw")));
    QVERIFY(m_widget->addRegion(QRect(5, 5, 10, 10)));
    QVERIFY(!m_widget->loadImage(path("empty.raw")));
    QCOMPARE(m_widget->loadProblem(), Widget::LoadProblem::NoPixels);
    QCOMPARE(m_widget->regions().size(), 1); // a refused file leaves everything
    QVERIFY(m_widget->loadImage(path("frame.raw")));
    QVERIFY(m_widget->regions().isEmpty());
    const double before = m_widget->zoomFactor();
    QTest::mouseClick(control<QPushButton>("tool_Zoom_In"), Qt::LeftButton);
    QCOMPARE(m_widget->zoomFactor(), before * 1.5); // one connection, one step
}

void TestDoor::asStored_isTheDefaultAndDoublesConnections()
{
    m_widget->closeImage();
    QVERIFY(m_widget->loadImage(path("empty.raw")));
    QVERIFY(!m_widget->imageInfo().isValid());
    m_widget->closeImage(); // does nothing without pixels
    QVERIFY(m_widget->loadImage(path("frame.raw")));
    const double before = m_widget->zoomFactor();
    QTest::mouseClick(control<QPushButton>("tool_Zoom_In"), Qt::LeftButton);
    QCOMPARE(m_widget->zoomFactor(), before * 2.25);
    // A faithful load, too, makes good what the loads before have left.
    m_widget->setReading(Widget::Reading::Faithful);
    QVERIFY(m_widget->loadImage(path("frame.raw")));
    QTest::mouseClick(control<QPushButton>("tool_Zoom_In"), Qt::LeftButton);
    QCOMPARE(m_widget->zoomFactor(), before * 1.5);
}

void TestDoor::faithfulReading_hasExactRows()
{
    m_widget->closeImage();
    m_widget->setReading(Widget::Reading::Faithful);
    QVERIFY(m_widget->loadImage(path("odd.raw")));
    const QImage& shown = *host()->analysis()->displayImage;
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 3; ++x) {
            const int level = (3 * y + x) % 2 == 0 ? 0 : 255;
            QCOMPARE(shown.pixelColor(x, y), QColor(level, level, level));
        }
    }
    m_widget->setReading(Widget::Reading::AsStored);
    QVERIFY(m_widget->loadImage(path("odd.raw")));
    // Nine bytes a row are read as twelve: row 1 starts with the last byte of pixel (3, 0).
    QCOMPARE(host()->analysis()->displayImage->bytesPerLine(), 12);
}

void TestDoor::view_switchesAsThePanelDoes()
{
    QSignalSpy types(preferences(), SIGNAL(switchDisplayType(int)));
    QSignalSpy axes(preferences(), SIGNAL(switchAxis(int)));
    QVERIFY(m_widget->setView(Widget::View::ColumnChart));
    QCOMPARE(m_widget->view(), Widget::View::ColumnChart);
    QCOMPARE(m_widget->chartAxis(), Widget::Axis::Column);
    QCOMPARE(types.size(), 1);
    QCOMPARE(axes.size(), 1);
    QVERIFY(control<QRadioButton>("radioButton2D")->isChecked());
    QVERIFY(!control<QRadioButton>("radioButtonImage")->isChecked());
    QVERIFY(control<QComboBox>("comboBoxDisplay")->isEnabled());
    QCOMPARE(control<QComboBox>("comboBoxDisplay")->currentIndex(), 1);
    QVERIFY(host()->columnChart().curve->isVisible());
    QVERIFY(m_widget->setView(Widget::View::RowChart));
    QVERIFY(host()->rowChart().curve->isVisible());
    QVERIFY(m_widget->setView(Widget::View::Image));
    QCOMPARE(m_widget->view(), Widget::View::Image);
    QVERIFY(!control<QComboBox>("comboBoxDisplay")->isEnabled());
    QVERIFY(host()->imageItem()->isVisible());
    QTest::mouseClick(control<QRadioButton>("radioButton2D"), Qt::LeftButton, Qt::NoModifier,
        QPoint(8, control<QRadioButton>("radioButton2D")->height() / 2));
    QCOMPARE(m_widget->view(), Widget::View::RowChart); // the user's choice, too
}

void TestDoor::chartAxis_canBeChosenWithTheImageInFront()
{
    QVERIFY(m_widget->setChartAxis(Widget::Axis::Column));
    QCOMPARE(m_widget->view(), Widget::View::Image);
    QCOMPARE(m_widget->chartAxis(), Widget::Axis::Column);
    QTest::mouseClick(control<QRadioButton>("radioButton2D"), Qt::LeftButton, Qt::NoModifier,
        QPoint(8, control<QRadioButton>("radioButton2D")->height() / 2));
    QCOMPARE(m_widget->view(), Widget::View::ColumnChart);
}

void TestDoor::zoom_stepsAndEnds()
{
    const double fitting = m_widget->zoomFactor();
    QCOMPARE(m_widget->visiblePixels(), QRect(0, 0, 400, 300));
    QVERIFY(!m_widget->zoomOut());
    QVERIFY(m_widget->zoomIn());
    QCOMPARE(m_widget->zoomFactor(), fitting * 1.5);
    QCOMPARE(m_widget->visiblePixels(), host()->imageItem()->drawRect.toRect());
    QVERIFY(m_widget->visiblePixels().width() < 400);
    while (m_widget->zoomIn()) { }
    QVERIFY(m_widget->zoomFactor() == 40.0);
    QVERIFY(m_widget->zoomOut());
    QVERIFY(m_widget->fit());
    QCOMPARE(m_widget->zoomFactor(), fitting);
    QVERIFY(m_widget->fit()); // twice the same
}

void TestDoor::zoom_withoutRoomOrWithAChart()
{
    m_widget->resize(700, 150); // 220 units are kept clear of the picture
    QCoreApplication::processEvents();
    QVERIFY(m_widget->zoomFactor() == 0.0);
    QVERIFY(!m_widget->zoomIn());
    QVERIFY(!m_widget->zoomOut());
    m_widget->resize(1280, 800);
    QCoreApplication::processEvents();
    QVERIFY(m_widget->setView(Widget::View::RowChart));
    QVERIFY(!m_widget->zoomIn()); // as the buttons, which a chart hides
    QVERIFY(!m_widget->zoomOut());
    QVERIFY(m_widget->setView(Widget::View::Image));
    QVERIFY(m_widget->zoomIn());
}

void TestDoor::pixelAt_isThePixelThatAClickMarks()
{
    auto* const view = host()->findChild<QGraphicsView*>();
    const auto check = [&](const QPointF& fraction) {
        const ImageLayoutItem& item = *host()->imageItem();
        const QPoint inView = view->mapFromScene(
            item.mapToScene(item.size.width() * fraction.x(), item.size.height() * fraction.y()));
        const std::optional<QPoint> pixel
            = m_widget->pixelAt(view->viewport()->mapTo(m_widget.get(), inView));
        QVERIFY(pixel);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, inView);
        QCOMPARE(*pixel, *m_widget->crossHair());
    };
    check(QPointF(0.25, 0.75));
    check(QPointF(0.9, 0.1));
    while (m_widget->zoomFactor() < 12.0) { // from 10 on positions snap
        QVERIFY(m_widget->zoomIn());
    }
    check(QPointF(0.4, 0.6));
}

void TestDoor::pixelAt_besideThePictureIsNothing()
{
    QVERIFY(!m_widget->pixelAt(QPoint(-1, -1)));
    QVERIFY(!m_widget->pixelAt(QPoint(0, 0))); // the rulers' corner
    QVERIFY(!m_widget->pixelAt(m_widget->rect().center() + QPoint(100000, 0)));
    auto* const view = host()->findChild<QGraphicsView*>();
    const ImageLayoutItem& item = *host()->imageItem();
    const QPoint inside = view->viewport()->mapTo(
        m_widget.get(), view->mapFromScene(item.mapToScene(QRectF(QPointF(), item.size).center())));
    QVERIFY(m_widget->pixelAt(inside));
    QVERIFY(m_widget->setView(Widget::View::RowChart));
    QVERIFY(!m_widget->pixelAt(inside));
    QVERIFY(m_widget->setView(Widget::View::Image));
    m_widget->closeImage();
    QVERIFY(!m_widget->pixelAt(inside));
}

void TestDoor::picture_isTheColoredImage()
{
    const uchar rows[2][8] { { 0, 1, 2, 3, 4, 5, 6, 255 }, { 7, 8, 9, 100, 101, 102, 103, 104 } };
    Widget::Frame frame;
    frame.samples = rows;
    frame.width = 8;
    frame.height = 2;
    QVERIFY(m_widget->showFrame(frame));
    QVERIFY(m_widget->addRegion(QRect(1, 0, 4, 2))); // not part of the picture
    const QImage picture = m_widget->picture();
    QCOMPARE(picture.size(), QSize(8, 2));
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 8; ++x) {
            const int level = rows[y][x]; // the values span all levels
            QCOMPARE(picture.pixel(x, y), qRgb(level, level, level));
        }
    }
    m_widget->closeImage();
    QVERIFY(m_widget->picture().isNull());
    QCOMPARE(picture.pixel(7, 0), qRgb(255, 255, 255)); // a copy
}

void TestDoor::crossHair_scrollsIntoSight()
{
    while (m_widget->zoomFactor() < 12.0) {
        QVERIFY(m_widget->zoomIn());
    }
    QVERIFY(m_widget->setCrossHair(QPoint(0, 0)));
    const QRect first = m_widget->visiblePixels();
    QCOMPARE(first.topLeft(), QPoint(0, 0));
    QVERIFY(m_widget->setCrossHair(first.bottomRight())); // in sight: nothing moves
    QCOMPARE(m_widget->visiblePixels(), first);
    QVERIFY(m_widget->setCrossHair(QPoint(399, 150)));
    QCOMPARE(m_widget->visiblePixels().right(), 399);
    QCOMPARE(m_widget->visiblePixels().bottom(), 150); // no further than needed
    QCOMPARE(m_widget->visiblePixels().size(), first.size());
    const ImageLayoutItem& item = *host()->imageItem();
    const QSizeF cell(item.size.width() / int(item.size.width() / item.scale),
        item.size.height() / int(item.size.height() / item.scale));
    QVERIFY(item.cross.position.x() > item.size.width() - cell.width());
    QVERIFY(item.cross.position.y() > item.size.height() - cell.height());
    QCOMPARE(m_widget->crossHair(), std::optional<QPoint>(QPoint(399, 150)));
}

void TestDoor::crossHair_withAChart_isReadOutThere()
{
    QVERIFY(m_widget->setView(Widget::View::ColumnChart));
    const int pick = host()->columnChart().curve->anchorIndex();
    QVERIFY(m_widget->setCrossHair(QPoint(30, 40)));
    // The chart of column 30 counts from the bottom row, and its pick stays.
    QCOMPARE(readout(), QString("X:30  Y:%1\nData:%2").arg(pick).arg(sampleAt(30, 299 - pick)));
    QVERIFY(m_widget->setView(Widget::View::RowChart));
    const int column = host()->rowChart().curve->anchorIndex();
    QVERIFY(m_widget->setCrossHair(QPoint(31, 41)));
    QCOMPARE(readout(), QString("X:%1  Y:258\nData:%2").arg(column).arg(sampleAt(column, 41)));
}

void TestDoor::settings_thatDoNotExistAreRefused()
{
    QVERIFY(!m_widget->setView(Widget::View(7)));
    QVERIFY(!m_widget->setChartAxis(Widget::Axis(5)));
    QVERIFY(!m_widget->setCalibration(Widget::Calibration { 100, 1, Widget::Unit(9) }));
    QCOMPARE(m_widget->view(), Widget::View::Image);
    QVERIFY(!m_widget->calibration());
}

void TestDoor::regions_leftByALoadAsStored()
{
    QVERIFY(m_widget->addRegion(QRect(10, 10, 20, 20)));
    QVERIFY(m_widget->loadImage(path("frame.raw")));
    QCOMPARE(m_widget->regions().size(), 1); // still on the canvas
    QVERIFY(!m_widget->selectRegion(0)); // but not in the panel
    QVERIFY(m_widget->selectRegion(-1));
}

void TestDoor::view_withoutPreferences()
{
    QVERIFY(m_widget->setView(Widget::View::ColumnChart));
    delete preferences();
    QCOMPARE(m_widget->view(), Widget::View::ColumnChart);
    QCOMPARE(m_widget->chartAxis(), Widget::Axis::Column);
}

void TestDoor::crossHair_movesAsAClickDoes()
{
    QCOMPARE(m_widget->crossHair(), std::optional<QPoint>(QPoint(200, 299)));
    QSignalSpy onItem(host()->imageItem(), SIGNAL(changeAnchorPosition(QPointF)));
    QSignalSpy onImage(host()->imageItem(), SIGNAL(changeAnchorImagePosition(QPointF)));
    QVERIFY(m_widget->setCrossHair(QPoint(30, 40)));
    QCOMPARE(onItem.size(), 1);
    QCOMPARE(onImage.size(), 1);
    QCOMPARE(onImage.first().first().toPointF(), QPointF(30, 40));
    QCOMPARE(m_widget->crossHair(), std::optional<QPoint>(QPoint(30, 40)));
    QCOMPARE(host()->imageItem()->anchor, QPointF(30, 40));
    QCOMPARE(readout(), QString("X:30  Y:259\nData:1180"));
    QVERIFY(m_widget->setCrossHair(QPoint(30, 40)));
    clickImage(QPointF(100, 100));
    QCOMPARE(m_widget->crossHair(), std::optional<QPoint>(host()->imageItem()->anchor.toPoint()));
    QVERIFY((*m_widget->crossHair() - QPoint(100, 100)).manhattanLength() <= 2);
}

void TestDoor::crossHair_outsideIsRefused()
{
    for (const QPoint& pixel : { QPoint(-1, 0), QPoint(0, -1), QPoint(400, 0), QPoint(0, 300),
             QPoint(std::numeric_limits<int>::max(), 0),
             QPoint(std::numeric_limits<int>::min(), std::numeric_limits<int>::min()) }) {
        QVERIFY(!m_widget->setCrossHair(pixel));
        QVERIFY(!m_widget->value(pixel));
    }
    QCOMPARE(m_widget->crossHair(), std::optional<QPoint>(QPoint(200, 299)));
}

void TestDoor::value_isThatOfTheReadout()
{
    QCOMPARE(m_widget->value(QPoint(0, 0)), std::optional<quint32>(1000));
    QCOMPARE(m_widget->value(QPoint(25, 299)), std::optional<quint32>(1000 + 50 + 897 + 325));
    const std::vector<quint32> pixels { 0xFFFFFFFFU, 1 };
    Widget::Frame frame;
    frame.samples = pixels.data();
    frame.width = 2;
    frame.height = 1;
    frame.bytesPerSample = 4;
    QVERIFY(m_widget->showFrame(frame));
    QCOMPARE(m_widget->value(QPoint(0, 0)), std::optional<quint32>(0xFFFFFFFFU));
}

void TestDoor::colorPalette_followsThePanel()
{
    QCOMPARE(Widget::colorPalettes(), QStringList({ "Gray", "Red", "Green", "Blue", "Color" }));
    QCOMPARE(m_widget->colorPalette(), QString("Gray"));
    QVERIFY(m_widget->setColorPalette("Gray")); // once more
    const QString folder = QCoreApplication::applicationDirPath() + "/pal";
    QVERIFY(QDir().mkpath(folder));
    QByteArray lines;
    for (int i = 0; i < 256; ++i) {
        lines += QByteArray::number(i) + " 0 0\n";
    }
    QVERIFY(writeFile(folder + "/red.pal", lines));
    QSignalSpy palettes(preferences(), SIGNAL(changePalette(QVector<QColor>)));
    QVERIFY(m_widget->setColorPalette("Red"));
    QCOMPARE(palettes.size(), 1);
    QCOMPARE(m_widget->colorPalette(), QString("Red"));
    QVERIFY(control<QPushButton>("pushButtonRed")->isChecked());
    QVERIFY(!control<QPushButton>("pushButtonGray")->isChecked());
    QCOMPARE(host()->analysis()->palette[200].red, uchar(200));
    QCOMPARE(host()->analysis()->palette[200].green, uchar(0));
    QVERIFY(QFile::remove(folder + "/red.pal"));
    QTest::mouseClick(control<QPushButton>("pushButtonGray"), Qt::LeftButton);
    QCOMPARE(m_widget->colorPalette(), QString("Gray"));
}

void TestDoor::colorPalette_refusesWhatCannotBeShown()
{
    QVERIFY(!m_widget->setColorPalette("Blue")); // no file
    QVERIFY(!m_widget->setColorPalette("gray"));
    QVERIFY(!m_widget->setColorPalette(QString()));
    QVERIFY(control<QPushButton>("pushButtonGray")->isChecked());
    QCOMPARE(m_widget->colorPalette(), QString("Gray"));
    QTest::mouseClick(control<QPushButton>("pushButtonBlue"), Qt::LeftButton);
    QVERIFY(control<QPushButton>("pushButtonBlue")->isChecked()); // the panel's own rule
    QCOMPARE(m_widget->colorPalette(), QString("Gray")); // the colors are still these
}

void TestDoor::calibration_goesThroughThePanel()
{
    QVERIFY(!m_widget->calibration());
    QSignalSpy wavelengths(preferences(), SIGNAL(changePixelsToWavelength(qreal, qreal)));
    QSignalSpy titles(preferences(), SIGNAL(changeHorizontalRulerTitle(QString)));
    const Widget::Calibration calibration { 400, 2, Widget::Unit::Nanometers };
    QVERIFY(m_widget->setCalibration(calibration));
    QVERIFY(m_widget->calibration() == calibration);
    QCOMPARE(wavelengths.size(), 1);
    QCOMPARE(wavelengths.first(), QVariantList({ 400.0, 2.0 }));
    QCOMPARE(titles.last().first().toString(), QString("Wavelength  (nm)"));
    QCOMPARE(control<QComboBox>("comboBoxType")->currentIndex(), 1);
    QCOMPARE(control<QComboBox>("comboBoxUnits")->currentIndex(), 1);
    QCOMPARE(control<QLineEdit>("lineEditXStart")->text(), QString("400"));
    QCOMPARE(control<QLineEdit>("lineEditPixelWidth")->text(), QString("2"));
    QVERIFY(control<QLineEdit>("lineEditXStart")->isEnabled());
    QCOMPARE(host()->rowChart().curve->rangeStart(), 400.0);
    QCOMPARE(host()->rowChart().curve->rangeEnd(), 1200.0);
    QVERIFY(m_widget->setCalibration(calibration)); // once more: as "Apply"
    QCOMPARE(wavelengths.size(), 2);
    QVERIFY(m_widget->setCalibration(std::nullopt));
    QVERIFY(!m_widget->calibration());
    QCOMPARE(control<QComboBox>("comboBoxType")->currentIndex(), 0);
    QCOMPARE(titles.last().first().toString(), QString("Pixels Number"));
}

void TestDoor::calibration_refusesWhatTheFieldsDoNotTake()
{
    for (const Widget::Calibration& calibration :
        { Widget::Calibration { -1, 1, Widget::Unit::Micrometers },
            Widget::Calibration { 2001, 1, Widget::Unit::Micrometers },
            Widget::Calibration { 100, 0, Widget::Unit::Micrometers },
            Widget::Calibration { 100, 101, Widget::Unit::Micrometers } }) {
        QVERIFY(!m_widget->setCalibration(calibration));
        QVERIFY(!m_widget->calibration());
    }
    QVERIFY(m_widget->setCalibration(Widget::Calibration { 0, 100, Widget::Unit::Micrometers }));
    QVERIFY(m_widget->setCalibration(Widget::Calibration { 2000, 1, Widget::Unit::Nanometers }));
}

void TestDoor::calibration_ofTheUser()
{
    control<QComboBox>("comboBoxType")->setCurrentIndex(1);
    QVERIFY(m_widget->calibration() == (Widget::Calibration { 100, 1, Widget::Unit::Micrometers }));
    control<QLineEdit>("lineEditXStart")->setText("7"); // typed, but not applied
    QCOMPARE(m_widget->calibration()->start, 100);
    QTest::mouseClick(control<QPushButton>("pushButtonApply"), Qt::LeftButton);
    QCOMPARE(m_widget->calibration()->start, 7);
    QVERIFY(m_widget->loadImage(path("frame.raw")));
    QVERIFY(!m_widget->calibration()); // a load resets the panel
}

void TestDoor::peakLabels_goThroughThePanel()
{
    QVERIFY(m_widget->peakLabels() == Widget::PeakLabels());
    QSignalSpy counts(preferences(), SIGNAL(changeMaxPeaksCount(int)));
    QSignalSpy states(preferences(), SIGNAL(changeShowPeaksState(bool)));
    QVERIFY(m_widget->setPeakLabels({ true, 3 })); // with the image in front
    QVERIFY(m_widget->peakLabels() == (Widget::PeakLabels { true, 3 }));
    QCOMPARE(counts.size(), 1);
    QCOMPARE(states.size(), 1);
    QVERIFY(control<QCheckBox>("checkBoxPeak")->isChecked());
    QCOMPARE(control<QLineEdit>("lineEditPeaks")->text(), QString("3"));
    QVERIFY(m_widget->setView(Widget::View::RowChart));
    QCOMPARE(host()->rowChart().curve->peakTicks().size(), 3);
    QCOMPARE(host()->rowChart().curve->valueScale(), 1.2);
    QVERIFY(!m_widget->setPeakLabels({ true, 0 }));
    QVERIFY(!m_widget->setPeakLabels({ true, 201 }));
    QVERIFY(m_widget->setPeakLabels({ false, 200 }));
    QVERIFY(m_widget->peakLabels() == (Widget::PeakLabels { false, 200 }));
    QVERIFY(m_widget->loadImage(path("frame.raw")));
    QVERIFY(m_widget->peakLabels() == (Widget::PeakLabels { false, 10 }));
}

void TestDoor::regions_areExactWhateverTheZoom()
{
    const QVector<QRect> wanted { QRect(0, 0, 1, 1), QRect(399, 299, 1, 1), QRect(0, 0, 400, 300),
        QRect(123, 45, 67, 8), QRect(13, 290, 300, 10) };
    for (int zoomed = 0; zoomed < 3; ++zoomed) {
        QVERIFY(m_widget->setRegions({}));
        for (const QRect& rect : wanted) {
            QVERIFY(m_widget->addRegion(rect));
            QCOMPARE(m_widget->selectedRegion(), int(m_widget->regions().size()) - 1);
            QCOMPARE(m_widget->markedRegion(), m_widget->selectedRegion());
            QCOMPARE(
                labelText("labelValueX"), QString("%1 to %2").arg(rect.left()).arg(rect.right()));
            QCOMPARE(labelText("labelValueY"),
                QString("%1 to %2").arg(299 - rect.bottom()).arg(299 - rect.top()));
        }
        QCOMPARE(m_widget->regions(), wanted);
        while (zoomed == 1 && m_widget->zoomIn()) { }
        m_widget->zoomOut();
        QCOMPARE(m_widget->regions(), wanted);
    }
}

void TestDoor::regions_outsideAreRefused()
{
    QVERIFY(m_widget->addRegion(QRect(1, 2, 3, 4)));
    const int most = std::numeric_limits<int>::max();
    QRect huge;
    huge.setCoords(std::numeric_limits<int>::min(), 0, most, 10);
    for (const QRect& rect : { QRect(), QRect(0, 0, 0, 5), QRect(-1, 0, 5, 5), QRect(0, -1, 5, 5),
             QRect(396, 0, 5, 5), QRect(0, 296, 5, 5), QRect(QPoint(5, 5), QPoint(4, 9)), huge }) {
        QVERIFY(!m_widget->addRegion(rect));
        QVERIFY(!m_widget->setRegion(0, rect));
        QVERIFY(!m_widget->setRegions({ QRect(0, 0, 5, 5), rect }));
        QVERIFY(!m_widget->statistics(rect).isValid());
        QVERIFY(!m_widget->histogram(rect).isValid());
    }
    QCOMPARE(m_widget->regions(), QVector<QRect>({ QRect(1, 2, 3, 4) }));
    for (const int index : { -2, -1, 1, most }) {
        QVERIFY(!m_widget->setRegion(index, QRect(0, 0, 5, 5)));
        QVERIFY(!m_widget->removeRegion(index));
        QVERIFY(index == -1 || !m_widget->selectRegion(index));
    }
}

void TestDoor::setRegion_movesExactly()
{
    QVERIFY(m_widget->setRegions({ QRect(10, 10, 20, 20), QRect(50, 50, 20, 20) }));
    QSignalSpy selected(&host()->imageItem()->rectangles, SIGNAL(updateSelectedRoi(int, QRectF)));
    QVERIFY(m_widget->setRegion(0, QRect(100, 101, 33, 7)));
    QCOMPARE(
        m_widget->regions(), QVector<QRect>({ QRect(100, 101, 33, 7), QRect(50, 50, 20, 20) }));
    QCOMPARE(m_widget->selectedRegion(), 0);
    QCOMPARE(m_widget->markedRegion(), 0);
    QCOMPARE(labelText("labelValueX"), QString("100 to 132"));
    QCOMPARE(selected.first(), QVariantList({ 0, QRectF(100, 101, 33, 7) }));
    QVERIFY(m_widget->zoomIn());
    QCOMPARE(m_widget->regions().first(), QRect(100, 101, 33, 7));
}

void TestDoor::setRegions_replacesAllOrNothing()
{
    QSignalSpy names(&host()->imageItem()->rectangles, SIGNAL(updateItemNames(QStringList)));
    const QVector<QRect> wanted { QRect(1, 1, 2, 2), QRect(3, 3, 4, 4), QRect(5, 5, 6, 6) };
    QVERIFY(m_widget->setRegions(wanted));
    QCOMPARE(m_widget->regions(), wanted);
    QCOMPARE(names.size(), 1);
    QCOMPARE(m_widget->selectedRegion(), 2);
    QCOMPARE(control<QComboBox>("comboBoxRoi")->count(), 4);
    QVERIFY(m_widget->setRegions({}));
    QVERIFY(m_widget->regions().isEmpty());
    QCOMPARE(m_widget->selectedRegion(), -1);
    QCOMPARE(control<QComboBox>("comboBoxRoi")->count(), 1);
    QVERIFY(labelText("labelValueX").isEmpty());
}

void TestDoor::removeRegion_selectsTheFirst()
{
    QVERIFY(m_widget->setRegions({ QRect(1, 1, 2, 2), QRect(3, 3, 4, 4), QRect(5, 5, 6, 6) }));
    QVERIFY(m_widget->removeRegion(1));
    QCOMPARE(m_widget->regions(), QVector<QRect>({ QRect(1, 1, 2, 2), QRect(5, 5, 6, 6) }));
    QCOMPARE(m_widget->selectedRegion(), 0);
    QVERIFY(m_widget->removeRegion(0));
    QVERIFY(m_widget->removeRegion(0));
    QVERIFY(!m_widget->removeRegion(0));
    QCOMPARE(m_widget->selectedRegion(), -1);
}

void TestDoor::selectRegion_andNone()
{
    QVERIFY(m_widget->setRegions({ QRect(1, 1, 2, 2), QRect(3, 3, 4, 4) }));
    QVERIFY(m_widget->selectRegion(0));
    QCOMPARE(m_widget->selectedRegion(), 0);
    QCOMPARE(m_widget->markedRegion(), 0);
    QCOMPARE(control<QComboBox>("comboBoxRoi")->currentText(), QString("ROI 1"));
    QVERIFY(m_widget->selectRegion(0)); // once more
    QCOMPARE(labelText("labelValueX"), QString("1 to 2"));
    QVERIFY(m_widget->selectRegion(-1));
    QCOMPARE(m_widget->selectedRegion(), -1);
    QVERIFY(labelText("labelValueX").isEmpty());
    QVERIFY(m_widget->selectRegion(-1));
}

void TestDoor::markedRegion_differsAfterAClick()
{
    QVERIFY(m_widget->setRegions({ QRect(20, 20, 100, 100), QRect(200, 150, 100, 100) }));
    QCOMPARE(m_widget->markedRegion(), 1);
    clickImage(QPointF(70, 70));
    QCOMPARE(m_widget->markedRegion(), 0);
    QCOMPARE(m_widget->selectedRegion(), 1);
    QVERIFY(m_widget->selectRegion(m_widget->markedRegion()));
    QCOMPARE(m_widget->selectedRegion(), 0);
    QCOMPARE(m_widget->markedRegion(), 0);
}

void TestDoor::regions_dragged_areThoseOfTheCanvas()
{
    QVERIFY(m_widget->setRegions({ QRect(100, 100, 80, 80) }));
    QWidget* const viewport = m_widget->findChild<QGraphicsView*>()->viewport();
    const QPoint from = onViewport(QPointF(140, 140));
    const QPoint to = onViewport(QPointF(180, 150));
    QTest::mouseMove(viewport, from);
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, viewport->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
        Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &move);
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, to);
    const QRect region = m_widget->regions().first();
    QCOMPARE(QRectF(region), host()->imageItem()->rectangles.rects.first());
    QVERIFY(std::abs(region.x() - 140) <= 1 && std::abs(region.y() - 110) <= 1);
}

void TestDoor::statistics_areThoseOfThePanel()
{
    const QRect rect(10, 20, 31, 17);
    QVERIFY(m_widget->addRegion(rect));
    const IntensityInfo& shown = host()->analysis()->roiInfo;
    QSignalSpy histograms(
        host()->analysis(), SIGNAL(updateRoiIntensityHistogram(uint*, int, uint, uint)));
    const Widget::Statistics statistics = m_widget->statistics(rect);
    QVERIFY(histograms.isEmpty()); // the display is not touched
    QCOMPARE(statistics.rect, rect);
    QCOMPARE(statistics.pixels, qint64(31 * 17));
    QVERIFY(statistics.mean == shown.mean);
    QCOMPARE(statistics.minimum, shown.min);
    QCOMPARE(statistics.minimum, quint32(sampleAt(10, 20)));
    QCOMPARE(statistics.maximum, shown.max);
    QVERIFY(statistics.deviation == shown.standardDeviation);
    QVERIFY(statistics.signalToNoise == shown.signalToNoise);
    QCOMPARE(QString::number(statistics.mean, 'f', 2), labelText("labelValueMean"));
    QCOMPARE(QString::number(statistics.deviation, 'f', 3), labelText("labelValueStandard"));
    QCOMPARE(QString::number(statistics.signalToNoise, 'f', 5), labelText("labelValueNoise"));
}

void TestDoor::statistics_ofAFlatPart()
{
    const Widget::Statistics pixel = m_widget->statistics(QRect(0, 0, 1, 1));
    QCOMPARE(pixel.pixels, qint64(1));
    QVERIFY(pixel.mean == 1000.0);
    QVERIFY(pixel.deviation == 0.0);
    QVERIFY(std::isnan(pixel.signalToNoise));
    const std::vector<quint16> pixels { 10, 20 };
    QVERIFY(m_widget->showFrame(frameOf(pixels, 2, 1)));
    const Widget::Statistics two = m_widget->statistics(QRect(0, 0, 2, 1));
    QVERIFY(two.mean == 15.0 && two.deviation == 5.0 && two.signalToNoise == 3.0);
}

void TestDoor::histogram_isThatOfThePanel()
{
    const Widget::Histogram whole = m_widget->histogram(QRect(0, 0, 400, 300));
    const HistogramData& counted = host()->analysis()->histogram;
    QCOMPARE(whole.first, counted.min);
    QCOMPARE(uint(whole.counts.size()), counted.size);
    QVERIFY(std::equal(whole.counts.begin(), whole.counts.end(), counted.histogram));
    const QRect rect(3, 4, 5, 2);
    QVERIFY(m_widget->addRegion(rect));
    const Widget::Histogram part = m_widget->histogram(rect);
    QCOMPARE(part.first, counted.roiMin);
    QCOMPARE(part.first, 1000U + 6 + 12);
    QVERIFY(std::equal(part.counts.begin(), part.counts.end(), counted.roiHistogram));
    // x 3..7 and y 4..5: 1018, 1020 .. 1026 and 1021, 1023 .. 1029
    QCOMPARE(part.counts, QVector<quint32>({ 1, 0, 1, 1, 1, 1, 1, 1, 1, 1, 0, 1 }));
}

void TestDoor::profiles_haveValuesLevelsAndPositions()
{
    const Widget::Profile row = m_widget->rowProfile(7);
    QCOMPARE(row.axis, Widget::Axis::Row);
    QCOMPARE(row.index, 7);
    QCOMPARE(row.values.size(), 400);
    QCOMPARE(row.values.at(25), quint32(sampleAt(25, 7)));
    QVERIFY(!row.isCalibrated);
    QVERIFY(row.position(25) == 25.0);
    const Widget::Profile column = m_widget->columnProfile(9);
    QCOMPARE(column.values.size(), 300);
    QCOMPARE(column.values.at(299), quint32(sampleAt(9, 299)));
    QVERIFY(column.position(299) == 299.0);
    QVERIFY(m_widget->setCrossHair(QPoint(9, 7)));
    const HistogramData& cut = host()->analysis()->histogram;
    QVERIFY(std::equal(row.levels.begin(), row.levels.end(), cut.horizontalLine));
    QVERIFY(std::equal(column.levels.begin(), column.levels.end(), cut.verticalLine));
    QVERIFY(m_widget->setCalibration(Widget::Calibration { 400, 2, Widget::Unit::Nanometers }));
    QVERIFY(m_widget->rowProfile(7).position(25) == 450.0);
    QVERIFY(m_widget->columnProfile(9).position(299) == 400.0); // from the bottom row upward
    QVERIFY(m_widget->columnProfile(9).position(0) == 998.0);
    for (const int outside :
        { -1, 400, std::numeric_limits<int>::max(), std::numeric_limits<int>::min() }) {
        QVERIFY(!m_widget->rowProfile(outside).isValid());
        QVERIFY(!m_widget->columnProfile(outside).isValid());
    }
}

void TestDoor::peaks_areThoseOfTheChart_data()
{
    QTest::addColumn<bool>("isRow");
    QTest::newRow("row") << true;
    QTest::newRow("column") << false;
}

void TestDoor::peaks_areThoseOfTheChart()
{
    QFETCH(bool, isRow);
    // Peaks of equal height, whose order is the chart's own.
    std::vector<quint16> pixels;
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 60; ++x) {
            const int along = isRow ? x : y;
            pixels.push_back(quint16(along % 7 == 3 ? 900 : 100 + along % 2));
        }
    }
    QVERIFY(m_widget->showFrame(frameOf(pixels, 60, 60)));
    QVERIFY(m_widget->setCrossHair(QPoint(11, 20)));
    QVERIFY(m_widget->setView(isRow ? Widget::View::RowChart : Widget::View::ColumnChart));
    const Widget::Profile profile = isRow ? m_widget->rowProfile(20) : m_widget->columnProfile(11);
    const QVector<Widget::Peak> peaks = m_widget->peaks(profile, 5);
    const auto* const curve = isRow ? host()->rowChart().curve : host()->columnChart().curve;
    QCOMPARE(peaks.size(), 5);
    for (int i = 0; i < 5; ++i) {
        const int shown = curve->peaks().at(i).index;
        QCOMPARE(peaks.at(i).rank, i + 1);
        QCOMPARE(peaks.at(i).pixel, isRow ? shown : 59 - shown);
        QCOMPARE(peaks.at(i).value, 900U);
        QVERIFY(peaks.at(i).position == peaks.at(i).pixel);
    }
}

void TestDoor::peaks_ofBadProfiles()
{
    Widget::Profile profile = m_widget->rowProfile(0);
    QCOMPARE(m_widget->peaks(profile, 0).size(), 0);
    QCOMPARE(m_widget->peaks(profile, -1).size(), 0);
    QVERIFY(m_widget->peaks(profile, std::numeric_limits<int>::max()).size() <= 200);
    QVERIFY(m_widget->peaks(Widget::Profile(), 5).isEmpty());
    profile.levels.resize(3);
    QVERIFY(m_widget->peaks(profile, 5).isEmpty());
}

void TestDoor::numbers_leaveTheDisplayAlone()
{
    QVERIFY(m_widget->addRegion(QRect(10, 10, 20, 20)));
    NotingListener listener;
    m_widget->setListener(&listener);
    QSignalSpy infos(host()->imageItem(), SIGNAL(changeDrawRect(QRectF)));
    QCoreApplication::processEvents(); // lays out what is new
    auto* const canvas = m_widget->findChild<QGraphicsView*>();
    const QImage before = canvas->grab().toImage();
    m_widget->statistics(QRect(0, 0, 400, 300));
    m_widget->histogram(QRect(5, 5, 9, 9));
    m_widget->peaks(m_widget->rowProfile(3), 4);
    m_widget->columnProfile(3);
    QCoreApplication::processEvents();
    QCOMPARE(listener.taken(), QStringList());
    QVERIFY(infos.isEmpty());
    QCOMPARE(canvas->grab().toImage(), before);
    QCOMPARE(labelText("labelValueX"), QString("10 to 29"));
    QCOMPARE(m_widget->selectedRegion(), 0);
}

void TestDoor::listener_isToldOncePerCall()
{
    NotingListener listener;
    m_widget->setListener(&listener);
    QCOMPARE(listener.taken(), QStringList());
    QVERIFY(m_widget->setCrossHair(QPoint(3, 4)));
    QCOMPARE(listener.taken(), QStringList({ "cross" }));
    QVERIFY(m_widget->setCrossHair(QPoint(3, 4)));
    QCOMPARE(listener.taken(), QStringList()); // nothing has changed
    QVERIFY(m_widget->addRegion(QRect(10, 10, 20, 20)));
    QCOMPARE(listener.taken(), QStringList({ "regions", "selection" }));
    QVERIFY(m_widget->setRegion(0, QRect(10, 10, 20, 21)));
    QCOMPARE(listener.taken(), QStringList({ "regions" }));
    QVERIFY(m_widget->selectRegion(-1));
    QCOMPARE(listener.taken(), QStringList({ "selection" }));
    QVERIFY(m_widget->zoomIn());
    QCOMPARE(listener.taken(), QStringList({ "view" }));
    QVERIFY(m_widget->setView(Widget::View::ColumnChart));
    QCOMPARE(listener.taken(), QStringList({ "view", "selection" })); // hidden: not marked
    QVERIFY(m_widget->setPeakLabels({ true, 4 }));
    QCOMPARE(listener.taken(), QStringList({ "settings" }));
    QVERIFY(m_widget->setCalibration(Widget::Calibration()));
    QCOMPARE(listener.taken(), QStringList({ "settings" }));
    QVERIFY(m_widget->loadImage(path("frame.raw")));
    QCOMPARE(listener.taken(),
        QStringList({
            "image",
            "view",
            "cross",
            "settings",
        }));
    QVERIFY(!m_widget->loadImage(path("none.raw")));
    QCOMPARE(listener.taken(), QStringList());
    m_widget->closeImage();
    QVERIFY(listener.taken().contains("image"));
    m_widget->closeImage();
    QCOMPARE(listener.taken(), QStringList());
    m_widget->setListener(nullptr);
    QVERIFY(m_widget->loadImage(path("frame.raw")));
    QCoreApplication::processEvents();
    QCOMPARE(listener.taken(), QStringList());
}

void TestDoor::listener_isToldOfTheUsersChanges()
{
    QCoreApplication::processEvents();
    NotingListener listener;
    m_widget->setListener(&listener);
    clickImage(QPointF(50, 60));
    QCoreApplication::processEvents();
    QCOMPARE(listener.taken(), QStringList({ "cross" }));
    QTest::mouseClick(control<QPushButton>("tool_Zoom_In"), Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(listener.taken(), QStringList({ "view" }));
    QVERIFY(m_widget->fit());
    listener.taken();
    QTest::mouseClick(control<QPushButton>("pushButtonAdd"), Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(listener.taken(), QStringList({ "regions", "selection" }));
    QTest::mouseClick(control<QPushButton>("pushButtonDelete"), Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(listener.taken(), QStringList({ "regions", "selection" }));
    control<QComboBox>("comboBoxType")->setCurrentIndex(1);
    QCoreApplication::processEvents();
    QCOMPARE(listener.taken(), QStringList({ "settings" }));
    QVERIFY(m_widget->setRegions({ QRect(20, 20, 100, 100), QRect(200, 150, 100, 100) }));
    listener.taken();
    clickImage(QPointF(70, 70));
    QCoreApplication::processEvents();
    QCOMPARE(listener.taken(), QStringList({ "selection" })); // marked, not selected
}

void TestDoor::listener_mayCallBack()
{
    ActingListener listener([this] {
        QVERIFY(m_widget->crossHair());
        QVERIFY(m_widget->statistics(QRect(0, 0, 2, 2)).isValid());
        QVERIFY(m_widget->addRegion(QRect(1, 1, 5, 5)));
        QVERIFY(m_widget->setView(Widget::View::RowChart));
        QVERIFY(m_widget->setPeakLabels({ true, 2 }));
        QVERIFY(m_widget->setCalibration(Widget::Calibration()));
        QVERIFY(m_widget->setColorPalette("Gray"));
        QVERIFY(m_widget->removeRegion(0));
        m_widget->setListener(nullptr);
    });
    m_widget->setListener(&listener);
    QVERIFY(m_widget->setCrossHair(QPoint(1, 1)));
    QCOMPARE(listener.calls, 1);
    QCOMPARE(m_widget->view(), Widget::View::RowChart);
    QVERIFY(m_widget->regions().isEmpty());
}

void TestDoor::listener_mayLoadAndClose()
{
    const std::vector<quint16> pixels(64, 5);
    int turn = 0;
    ActingListener listener([&] {
        switch (++turn) {
        case 1: m_widget->closeImage(); break;
        case 2: QVERIFY(m_widget->loadImage(path("frame.raw"))); break;
        case 3: QVERIFY(m_widget->showFrame(frameOf(pixels, 8, 8))); break;
        }
    });
    m_widget->setListener(&listener);
    QVERIFY(m_widget->setCrossHair(QPoint(1, 1)));
    QTRY_COMPARE(turn, 4); // the last one is about the frame's own cross-hair
    QCOMPARE(m_widget->imageInfo().size, QSize(8, 8));
    QCOMPARE(m_widget->crossHair(), std::optional<QPoint>(QPoint(4, 7)));
}

void TestDoor::listener_mayBeDestroyedAnyTime()
{
    auto listener = std::make_unique<NotingListener>();
    m_widget->setListener(listener.get());
    listener.reset();
    QVERIFY(m_widget->setCrossHair(QPoint(1, 1)));
    std::unique_ptr<ActingListener> own;
    own = std::make_unique<ActingListener>([&own] { own.reset(); });
    m_widget->setListener(own.get());
    QVERIFY(m_widget->setCrossHair(QPoint(2, 2)));
    QVERIFY(!own);
    QVERIFY(m_widget->setCrossHair(QPoint(3, 3)));
    NotingListener last;
    m_widget->setListener(&last);
    m_widget.reset(); // the listener outlives the widget
}

void TestDoor::listener_seesAConsistentWidget()
{
    while (m_widget->zoomFactor() < 4.0) {
        QVERIFY(m_widget->zoomIn());
    }
    QRect seen;
    ActingListener listener([&] { seen = m_widget->visiblePixels(); });
    m_widget->setListener(&listener);
    // Scrolling moves a cross-hair that would leave the view, and announces it before the view.
    ImageLayoutItem* const item = host()->imageItem();
    for (int i = 0; i < 200 && listener.calls == 0; ++i) {
        item->scrollDistanceVertical(-1);
        QCoreApplication::processEvents();
    }
    QCOMPARE(listener.calls, 1);
    QCOMPARE(seen, item->drawRect.toRect());
    QVERIFY(seen.contains(*m_widget->crossHair()));
}

void TestDoor::listener_thatAlwaysMovesTheCrossHair()
{
    int x = 0;
    ActingListener listener([&] { QVERIFY(m_widget->setCrossHair(QPoint(++x % 400, 0))); });
    m_widget->setListener(&listener);
    QVERIFY(m_widget->setCrossHair(QPoint(5, 5))); // returns
    QCOMPARE(listener.calls, 1);
    QTRY_VERIFY(listener.calls > 3); // and goes on with the event loop
    m_widget->setListener(nullptr);
}

void TestDoor::listener_ofTwoWidgets()
{
    Widget other;
    other.resize(800, 600);
    NotingListener listener;
    m_widget->setListener(&listener);
    other.setListener(&listener);
    QVERIFY(other.loadImage(path("frame.raw")));
    QVERIFY(listener.taken().contains("image"));
    QVERIFY(m_widget->setCrossHair(QPoint(9, 9)));
    QCOMPARE(listener.taken(), QStringList({ "cross" }));
}

QTEST_MAIN(TestDoor)
#include "tst_door.moc"
