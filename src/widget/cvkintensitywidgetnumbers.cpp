// The members of the exported widget that answer with numbers of any part of the image, and the
// listener.

#include "widget/cvkintensitywidget.h"

#include "analysis/imagenumbers.h"
#include "analysis/profilenumbers.h"
#include "plots/intensitycurveaxisitem.h"
#include "widget/cvkintensitymdiwidget.h"
#include "widget/intensitydoor.h"

#include <new>

namespace {

using Profile = CVKIntensityWidget::Profile;

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
    const ProfileScale scale = profileScale(
        { curve.rangeStart(), curve.rangeEnd() }, int(profile.values.size()), !isRow);
    profile.isCalibrated = scale.isCalibrated;
    profile.start = scale.start;
    profile.step = scale.step;
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
    statistics.signalToNoise = signalToNoise(*found);
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
        QVector<Peak> peaks;
        for (const int pixel : rankedPeaks(profile.levels, profile.axis == Axis::Column, count)) {
            peaks.append({ int(peaks.size()) + 1, pixel, profile.position(pixel),
                profile.values.at(pixel) });
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
