#include "measuredimage.h"

#include "image/imageloadregistry.h"
#include "pictureloader.h"
#include "problemtexts.h"

QString MeasuredImage::load(const QString& path, int page)
{
    ImageLoadRegistry loaders(std::make_unique<PictureLoader>());
    ReadOptions options;
    options.reading = Reading::Faithful;
    options.page = page;
    ReadReport report;
    loaders.load(path, &m_image, options, &report);
    if (report.problem != LoadProblem::None) {
        const bool isRefusedByLoader = report.problem == LoadProblem::NotReadable;
        const QString moduleProblem
            = isRefusedByLoader && !path.endsWith(".raw", Qt::CaseInsensitive)
            ? PictureLoader::moduleProblem()
            : QString();
        return moduleProblem.isEmpty() ? problemText(path, report.problem) : moduleProblem;
    }
    m_image.convertToGray();
    m_source = { path, report.page, QSize(m_image.width, m_image.height), m_image.bitDepth };
    m_range.reset();
    return holds(rect()) ? QString() : problemText(path, LoadProblem::NoPixels);
}

RegionStatistics MeasuredImage::statistics(const QRect& rect)
{
    const RoiStatistics found = rectStatistics(m_image, rect).value_or(RoiStatistics());
    if (rect == this->rect()) {
        m_range = found.range;
    }
    RegionStatistics statistics;
    statistics.rect = rect;
    statistics.pixels = qint64(rect.width()) * rect.height();
    statistics.mean = found.mean;
    statistics.minimum = found.range.min;
    statistics.maximum = found.range.max;
    statistics.deviation = found.deviation;
    statistics.signalToNoise = signalToNoise(found);
    return statistics;
}

SampleRange MeasuredImage::imageRange()
{
    if (!m_range) {
        m_range = rectRange(m_image, rect()).value_or(SampleRange());
    }
    return *m_range;
}

bool MeasuredImage::histogram(
    const QRect& rect, const std::function<void(quint32)>& begin, const CountVisitor& visit)
{
    const SampleRange range
        = rect == this->rect() ? imageRange() : rectRange(m_image, rect).value_or(SampleRange());
    bool hasBegun = false;
    return forEachCountBlock(m_image, rect, range, [&](const uint* counts, qint64 valueCount) {
        if (!hasBegun) {
            begin(range.min);
            hasBegun = true;
        }
        visit(counts, valueCount);
    });
}

ProfileScale MeasuredImage::scale(
    MeasuredProfile::Axis axis, const std::optional<MeasuredCalibration>& calibration) const
{
    const bool isColumn = axis == MeasuredProfile::Axis::Column;
    const int pixels = isColumn ? m_image.height : m_image.width;
    ValueRange range;
    if (calibration) {
        const ValueRange wanted = wavelengthRange(calibration->start, calibration->width, pixels);
        range = storedValueRange(wanted.start, wanted.end);
    }
    return profileScale(range, pixels, isColumn);
}

MeasuredProfile MeasuredImage::profile(MeasuredProfile::Axis axis, int index, int peakCount,
    const std::optional<MeasuredCalibration>& calibration)
{
    MeasuredProfile profile;
    profile.axis = axis;
    profile.index = index;
    profile.values = axis == MeasuredProfile::Axis::Row ? rowValues(m_image, index)
                                                        : columnValues(m_image, index);
    if (peakCount > 0) {
        profile.peaks = peaks(profile, peakCount, scale(axis, calibration));
    }
    return profile;
}

QVector<MeasuredPeak> MeasuredImage::peaks(
    const MeasuredProfile& profile, int count, const ProfileScale& scale)
{
    QVector<MeasuredPeak> peaks;
    const auto levels = displayLevels(imageRange());
    if (!levels) {
        return peaks;
    }
    const QVector<int> pixels
        = rankedPeaks(levelsOf(profile.values, *levels), scale.isColumn, count);
    for (const int pixel : pixels) {
        peaks.append(
            { int(peaks.size()) + 1, pixel, scale.position(pixel), profile.values.at(pixel) });
    }
    return peaks;
}
