// The members of the exported widget that answer with numbers of any part of the image, and the
// listener.

#include "widget/cvkintensitywidget.h"

#include "analysis/imagenumbers.h"
#include "plots/intensitycurveaxisitem.h"
#include "analysis/peakdetection.h"
#include "widget/cvkintensitymdiwidget.h"
#include "widget/intensitydoor.h"

#include <algorithm>
#include <limits>
#include <new>

namespace {

using Profile = CVKIntensityWidget::Profile;

/// Pixel number as the chart of the profile counts it: a column from the bottom row upward.
int chartIndex(const Profile& profile, int pixel)
{
    const bool isRow = profile.axis == CVKIntensityWidget::Axis::Row;
    return isRow ? pixel : int(profile.levels.size()) - 1 - pixel;
}

/// Adds the levels and the calibration that the chart of this axis has.
void addChartScale(Profile& profile, const CVKIntensityMdiWidget& host)
{
    const HistogramData& histogram = host.analysis()->histogram;
    if (histogram.hasLevels()) {
        profile.levels = levelsOf(profile.values, histogram.levels());
    }
    const bool isRow = profile.axis == CVKIntensityWidget::Axis::Row;
    const IntensityCurveAxisItem& curve
        = isRow ? *host.rowChart().curve : *host.columnChart().curve;
    const ValueRange range { curve.rangeStart(), curve.rangeEnd() };
    if (range.isCalibrated() && !profile.values.isEmpty()) {
        profile.isCalibrated = true;
        profile.start = range.start;
        profile.step = (range.end - range.start) / double(profile.values.size());
    }
}

} // namespace

CVKIntensityWidget::Statistics CVKIntensityWidget::statistics(const QRect& pixels) const
{
    const CVKIntensityMdiWidget* const host = m_door->imageHost();
    const auto found = host ? rectStatistics(host->image(), pixels) : std::nullopt;
    if (!found) {
        return Statistics();
    }
    Statistics statistics;
    statistics.rect = pixels;
    statistics.pixels = qint64(pixels.width()) * pixels.height();
    statistics.mean = found->mean;
    statistics.minimum = found->range.min;
    statistics.maximum = found->range.max;
    statistics.deviation = found->deviation;
    statistics.signalToNoise = found->deviation > 0.0 ? found->mean / found->deviation
                                                      : std::numeric_limits<double>::quiet_NaN();
    return statistics;
}

CVKIntensityWidget::Histogram CVKIntensityWidget::histogram(const QRect& pixels) const
{
    try {
        const CVKIntensityMdiWidget* const host = m_door->imageHost();
        const auto found = host ? rectHistogram(host->image(), pixels) : std::nullopt;
        return found ? Histogram { found->first, found->counts } : Histogram();
    } catch (const std::bad_alloc&) {
        return Histogram();
    }
}

CVKIntensityWidget::Profile CVKIntensityWidget::rowProfile(int y) const
{
    try {
        Profile profile;
        if (const CVKIntensityMdiWidget* const host = m_door->imageHost()) {
            profile.index = y;
            profile.values = rowValues(host->image(), y);
            addChartScale(profile, *host);
        }
        return profile.isValid() ? profile : Profile();
    } catch (const std::bad_alloc&) {
        return Profile();
    }
}

CVKIntensityWidget::Profile CVKIntensityWidget::columnProfile(int x) const
{
    try {
        Profile profile;
        if (const CVKIntensityMdiWidget* const host = m_door->imageHost()) {
            profile.axis = Axis::Column;
            profile.index = x;
            profile.values = columnValues(host->image(), x);
            addChartScale(profile, *host);
        }
        return profile.isValid() ? profile : Profile();
    } catch (const std::bad_alloc&) {
        return Profile();
    }
}

QVector<CVKIntensityWidget::Peak> CVKIntensityWidget::peaks(const Profile& profile, int count) const
{
    if (!m_door->imageHost() || count < 1 || profile.levels.isEmpty()
        || profile.levels.size() != profile.values.size()) {
        return {};
    }
    try {
        QVector<uchar> levels = profile.levels;
        if (profile.axis == Axis::Column) {
            std::reverse(levels.begin(), levels.end()); // equal peaks rank as in the chart
        }
        const DetectedPeaks detected = detectPeaks(levels.constData(), int(levels.size()));
        QVector<Peak> peaks;
        const int found = std::min({ count, peakCapacity, int(detected.peaks.size()) });
        for (int i = 0; i < found; ++i) {
            const int pixel = chartIndex(profile, detected.peaks.at(i).index);
            peaks.append({ i + 1, pixel, profile.position(pixel), profile.values.at(pixel) });
        }
        return peaks;
    } catch (const std::bad_alloc&) {
        return {};
    }
}

void CVKIntensityWidget::setListener(Listener* listener)
{
    m_door->changes.setListener(listener ? listener->m_self : nullptr);
}
