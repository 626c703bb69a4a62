// The members of the exported widget that tell and ask about view, settings and regions: each
// translates between the public types and the parts of the widget, which do the work.

#include "widget/cvkintensitywidget.h"

#include "analysis/imagenumbers.h"
#include "canvas/imagelayoutitem.h"
#include "base/saturate.h"
#include "panel/cvkdatahistogram.h"
#include "panel/cvkdisplaypreferences.h"
#include "plots/intensitycurveaxisitem.h"
#include "widget/cvkintensitymdiwidget.h"
#include "widget/intensitydoor.h"

#include <algorithm>
#include <new>

namespace {

/// The names as the door has them, in the order of the panel's buttons.
const char* const paletteNames[] { "Gray", "Red", "Green", "Blue", "Color" };

bool isTaken(const CVKIntensityWidget::Calibration& calibration)
{
    using Unit = CVKIntensityWidget::Unit;
    return CVKDisplayPreferences::takesWavelength(calibration.start, calibration.pixelWidth)
        && (calibration.unit == Unit::Micrometers || calibration.unit == Unit::Nanometers);
}

} // namespace

// --- view

CVKIntensityWidget::View CVKIntensityWidget::view() const
{
    const CVKIntensityMdiWidget* const host = m_door->imageHost();
    if (!host || host->displayType() == 0) {
        return View::Image;
    }
    return host->axis() == 0 ? View::RowChart : View::ColumnChart;
}

bool CVKIntensityWidget::setView(View view)
{
    const QPointer<CVKDisplayPreferences> preferences = m_door->preferences();
    const bool isKnown = view == View::Image || view == View::RowChart || view == View::ColumnChart;
    if (!m_door->imageHost() || !preferences || !isKnown) {
        return false;
    }
    const ChangeReporter::Call call(&m_door->changes);
    if (view != View::Image) {
        preferences->chooseAxis(view == View::RowChart ? 0 : 1);
    }
    if (preferences) {
        preferences->chooseDisplayType(view == View::Image ? 0 : 1);
    }
    return true;
}

CVKIntensityWidget::Axis CVKIntensityWidget::chartAxis() const
{
    const CVKIntensityMdiWidget* const host = m_door->imageHost();
    return host && host->axis() == 1 ? Axis::Column : Axis::Row;
}

bool CVKIntensityWidget::setChartAxis(Axis axis)
{
    CVKDisplayPreferences* const preferences = m_door->preferences();
    const bool isKnown = axis == Axis::Row || axis == Axis::Column;
    if (!m_door->imageHost() || !preferences || !isKnown) {
        return false;
    }
    const ChangeReporter::Call call(&m_door->changes);
    preferences->chooseAxis(axis == Axis::Row ? 0 : 1);
    return true;
}

bool CVKIntensityWidget::zoomIn()
{
    return zoom(true);
}

bool CVKIntensityWidget::zoomOut()
{
    return zoom(false);
}

/// One step; false when there is none to make, as in a canvas without room for a picture, and while
/// a chart hides the buttons.
bool CVKIntensityWidget::zoom(bool isIn)
{
    const CVKIntensityMdiWidget* const host = m_door->imageHost();
    if (!host || host->displayType() != 0) {
        return false;
    }
    const ChangeReporter::Call call(&m_door->changes);
    const double before = zoomFactor();
    if (isIn) {
        host->imageItem()->zoomIn();
    } else {
        host->imageItem()->zoomOut();
    }
    return zoomFactor() != before;
}

bool CVKIntensityWidget::fit()
{
    CVKIntensityMdiWidget* const host = m_door->imageHost();
    if (!host) {
        return false;
    }
    const ChangeReporter::Call call(&m_door->changes);
    host->imageItem()->fit();
    return true;
}

QRect CVKIntensityWidget::visiblePixels() const
{
    const CVKIntensityMdiWidget* const host = m_door->imageHost();
    return host ? roundedRect(host->imageItem()->drawRect) : QRect();
}

std::optional<QPoint> CVKIntensityWidget::pixelAt(const QPoint& position) const
{
    const CVKIntensityMdiWidget* const host = m_door->imageHost();
    return host ? host->pixelAt(host->mapFrom(this, position)) : std::nullopt;
}

QImage CVKIntensityWidget::picture() const
{
    const CVKIntensityMdiWidget* const host = m_door->imageHost();
    const QImage* const image = host ? host->imageItem()->image : nullptr;
    return image ? image->copy() : QImage();
}

double CVKIntensityWidget::zoomFactor() const
{
    const CVKIntensityMdiWidget* const host = m_door->imageHost();
    return host ? host->imageItem()->scale : 0.0;
}

// --- cross-hair and values

std::optional<QPoint> CVKIntensityWidget::crossHair() const
{
    const CVKIntensityMdiWidget* const host = m_door->imageHost();
    return host ? std::optional<QPoint>(roundedPoint(host->imageItem()->anchor)) : std::nullopt;
}

bool CVKIntensityWidget::setCrossHair(const QPoint& pixel)
{
    const QPointer<CVKIntensityMdiWidget> host = m_door->imageHost();
    if (!host || !isInsideImage(QRect(pixel, pixel), host->image())) {
        return false;
    }
    const ChangeReporter::Call call(&m_door->changes);
    host->imageItem()->placeAnchor(pixel);
    if (host && host->displayType() != 0) {
        host->updateReadoutOfView(); // a chart's read-out stays at its own pick
    }
    return true;
}

std::optional<quint32> CVKIntensityWidget::value(const QPoint& pixel) const
{
    const CVKIntensityMdiWidget* const host = m_door->imageHost();
    if (!host || !isInsideImage(QRect(pixel, pixel), host->image())) {
        return std::nullopt;
    }
    return quint32(host->image().pixelValue(pixel.x(), pixel.y()));
}

// --- settings of the panel

QStringList CVKIntensityWidget::colorPalettes()
{
    QStringList names;
    for (const char* const name : paletteNames) {
        names.append(QString::fromLatin1(name));
    }
    return names;
}

QString CVKIntensityWidget::colorPalette() const
{
    const CVKDisplayPreferences* const preferences = m_door->preferences();
    if (!m_door->imageHost() || !preferences) {
        return QString();
    }
    return QString::fromLatin1(paletteNames[preferences->announcedPalette()]);
}

bool CVKIntensityWidget::setColorPalette(const QString& name)
{
    CVKDisplayPreferences* const preferences = m_door->preferences();
    const int index = int(colorPalettes().indexOf(name));
    if (!m_door->imageHost() || !preferences || index < 0) {
        return false;
    }
    const ChangeReporter::Call call(&m_door->changes);
    return preferences->choosePaletteIfReadable(index);
}

std::optional<CVKIntensityWidget::Calibration> CVKIntensityWidget::calibration() const
{
    const CVKDisplayPreferences* const preferences = m_door->preferences();
    if (!m_door->imageHost() || !preferences) {
        return std::nullopt;
    }
    const auto wavelength = preferences->announcedWavelength();
    if (!wavelength) {
        return std::nullopt;
    }
    const Unit unit = wavelength->unit == 1 ? Unit::Nanometers : Unit::Micrometers;
    return Calibration { wavelength->start, wavelength->pixelWidth, unit };
}

bool CVKIntensityWidget::setCalibration(const std::optional<Calibration>& calibration)
{
    CVKDisplayPreferences* const preferences = m_door->preferences();
    if (!m_door->imageHost() || !preferences) {
        return false;
    }
    if (calibration && !isTaken(*calibration)) {
        return false;
    }
    const ChangeReporter::Call call(&m_door->changes);
    if (calibration) {
        const int unit = calibration->unit == Unit::Nanometers ? 1 : 0;
        preferences->chooseWavelength({ calibration->start, calibration->pixelWidth, unit });
    } else {
        preferences->choosePixelNumbers();
    }
    return true;
}

CVKIntensityWidget::PeakLabels CVKIntensityWidget::peakLabels() const
{
    const CVKIntensityMdiWidget* const host = m_door->imageHost();
    if (!host) {
        return PeakLabels();
    }
    const IntensityCurveAxisItem* const curve = host->rowChart().curve;
    return PeakLabels { curve->arePeaksShown(), curve->shownPeaks() };
}

bool CVKIntensityWidget::setPeakLabels(const PeakLabels& labels)
{
    CVKDisplayPreferences* const preferences = m_door->preferences();
    if (!m_door->imageHost() || !preferences
        || !CVKDisplayPreferences::takesPeakCount(labels.count)) {
        return false;
    }
    const ChangeReporter::Call call(&m_door->changes);
    preferences->choosePeakLabels(labels.areShown, labels.count);
    return true;
}

// --- regions of interest

QVector<QRect> CVKIntensityWidget::regions() const
try {
    QVector<QRect> pixels;
    if (const CVKIntensityMdiWidget* const host = m_door->imageHost()) {
        for (const QRectF& rect : host->imageItem()->rectangles.rects) {
            pixels.append(roundedRect(rect));
        }
    }
    return pixels;
} catch (const std::bad_alloc&) {
    return {};
}

bool CVKIntensityWidget::addRegion(const QRect& pixels)
try {
    CVKIntensityMdiWidget* const host = m_door->imageHost();
    if (!host || !isInsideImage(pixels, host->image())) {
        return false;
    }
    const ChangeReporter::Call call(&m_door->changes);
    host->imageItem()->rectangles.addPixels(pixels);
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

bool CVKIntensityWidget::setRegion(int index, const QRect& pixels)
{
    CVKIntensityMdiWidget* const host = m_door->imageHost();
    if (!host || !isInsideImage(pixels, host->image()) || index < 0
        || index >= host->imageItem()->rectangles.items.size()) {
        return false;
    }
    const ChangeReporter::Call call(&m_door->changes);
    host->imageItem()->rectangles.setPixels(index, pixels);
    return true;
}

bool CVKIntensityWidget::setRegions(const QVector<QRect>& pixels)
try {
    CVKIntensityMdiWidget* const host = m_door->imageHost();
    const auto isInside = [host](const QRect& rect) { return isInsideImage(rect, host->image()); };
    if (!host || !std::all_of(pixels.begin(), pixels.end(), isInside)) {
        return false;
    }
    const ChangeReporter::Call call(&m_door->changes);
    host->imageItem()->rectangles.replaceAll(pixels);
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

bool CVKIntensityWidget::removeRegion(int index)
{
    CVKIntensityMdiWidget* const host = m_door->imageHost();
    if (!host || index < 0 || index >= host->imageItem()->rectangles.items.size()) {
        return false;
    }
    const ChangeReporter::Call call(&m_door->changes);
    host->imageItem()->rectangles.deleteItem(index);
    return true;
}

bool CVKIntensityWidget::selectRegion(int index)
{
    CVKIntensityMdiWidget* const host = m_door->imageHost();
    CVKDataHistogram* const list = m_door->dataHistogram();
    if (!host || !list || index < -1 || index >= host->imageItem()->rectangles.items.size()) {
        return false;
    }
    const ChangeReporter::Call call(&m_door->changes);
    return list->chooseRegion(index);
}

int CVKIntensityWidget::selectedRegion() const
{
    const CVKDataHistogram* const list = m_door->dataHistogram();
    return m_door->imageHost() && list ? list->chosenRegion() : -1;
}

int CVKIntensityWidget::markedRegion() const
{
    const CVKIntensityMdiWidget* const host = m_door->imageHost();
    return host ? host->imageItem()->rectangles.markedIndex() : -1;
}

/// Everything that a listener is told about.
WidgetState CVKIntensityWidget::state() const
{
    WidgetState state;
    state.imageNumber = m_door->imageNumber;
    state.view = view();
    state.chartAxis = chartAxis();
    state.visiblePixels = visiblePixels();
    state.zoomFactor = zoomFactor();
    state.crossHair = crossHair();
    state.regions = regions();
    state.selectedRegion = selectedRegion();
    state.markedRegion = markedRegion();
    state.colorPalette = colorPalette();
    state.calibration = calibration();
    state.peakLabels = peakLabels();
    return state;
}
