#include "measurements.h"

#include <limits>

namespace {

RegionStatistics withoutPixels(const QRect& rect)
{
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    RegionStatistics measured;
    measured.rect = rect;
    measured.mean = none;
    measured.deviation = none;
    measured.signalToNoise = none;
    return measured;
}

} // namespace

MeasurementSource measurementSource(const CVKIntensityWidget::ImageInfo& info)
{
    MeasurementSource source;
    source.file = info.file;
    source.page = info.page;
    source.size = info.size;
    source.bits = info.bitDepth;
    return source;
}

std::optional<MeasuredCalibration> measuredCalibration(
    const std::optional<CVKIntensityWidget::Calibration>& calibration)
{
    if (!calibration) {
        return std::nullopt;
    }
    return MeasuredCalibration { double(calibration->start), double(calibration->pixelWidth),
        positionUnit(calibration) };
}

QString positionUnit(const std::optional<CVKIntensityWidget::Calibration>& calibration)
{
    if (!calibration) {
        return QString();
    }
    return calibration->unit == CVKIntensityWidget::Unit::Nanometers ? "nm" : "um";
}

RegionStatistics regionStatistics(const CVKIntensityWidget::Statistics& statistics)
{
    RegionStatistics measured;
    measured.rect = statistics.rect;
    measured.pixels = statistics.pixels;
    measured.mean = statistics.mean;
    measured.minimum = statistics.minimum;
    measured.maximum = statistics.maximum;
    measured.deviation = statistics.deviation;
    measured.signalToNoise = statistics.signalToNoise;
    return measured;
}

QVector<RegionStatistics> regionStatistics(const CVKIntensityWidget& widget)
{
    const QRect image(QPoint(), widget.imageInfo().size);
    QVector<RegionStatistics> measured;
    for (const QRect& region : widget.regions()) {
        const CVKIntensityWidget::Statistics statistics = widget.statistics(region & image);
        measured << (statistics.isValid() ? regionStatistics(statistics) : withoutPixels(region));
    }
    return measured;
}

MeasuredHistogram measuredHistogram(const CVKIntensityWidget::Histogram& histogram)
{
    return { histogram.first, histogram.counts };
}

MeasuredProfile measuredProfile(const CVKIntensityWidget::Profile& profile)
{
    MeasuredProfile measured;
    measured.axis = profile.axis == CVKIntensityWidget::Axis::Row ? MeasuredProfile::Axis::Row
                                                                  : MeasuredProfile::Axis::Column;
    measured.index = profile.index;
    measured.values = profile.values;
    for (int pixel = 0; pixel < int(profile.values.size()); ++pixel) {
        measured.positions << profile.position(pixel);
    }
    return measured;
}

QVector<MeasuredPeak> measuredPeaks(const QVector<CVKIntensityWidget::Peak>& peaks)
{
    QVector<MeasuredPeak> measured;
    for (const CVKIntensityWidget::Peak& peak : peaks) {
        measured.append({ peak.rank, peak.pixel, peak.position, peak.value });
    }
    return measured;
}
