#include "analysis/imagenumbers.h"

#include "analysis/valuecounts.h"
#include "base/limits.h"
#include "image/sampledispatch.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace {

RoiRows rowsOf(const ImageData& image, const QRect& rect, size_t sampleBytes)
{
    return { rect, image.width, qint64(image.allocatedBytes() / sampleBytes) };
}

/// `count` samples, `step` samples apart; the caller has found that they lie in the image.
QVector<uint> valuesAlong(const ImageData& image, qint64 first, qint64 step, int count)
{
    QVector<uint> values;
    forSampleWidth(image, [&](const auto* samples) {
        const qint64 last = first + step * (count - 1);
        if (last >= qint64(image.allocatedBytes() / sizeof(*samples))) {
            return;
        }
        values.resize(count);
        uint* const written = values.data();
        for (int i = 0; i < count; ++i) {
            written[i] = samples[first + i * step];
        }
    });
    return values;
}

/// Bins of a block: an eighth of the memory of the samples, within 256 KiB and 16 MiB.
qint64 blockBinCount(qint64 samples, qint64 bins)
{
    return std::min(std::clamp<qint64>(samples / 8, 1 << 16, 1 << 22), bins);
}

/// All counts of small samples at once; false for so few that there are none.
template <class Sample>
bool visitValueCounts(
    const Sample* samples, const RoiRows& rows, const SampleRange& range, const CountVisitor& visit)
{
    if constexpr (sizeof(Sample) < sizeof(uint)) {
        const ValueCounts<Sample> counts(samples, rows);
        if (counts.isComplete()) {
            visit(counts.from(range.min), qint64(range.max) - range.min + 1);
            return true;
        }
    }
    return false;
}

/// One pass over the samples for each block.
template <class Sample>
void visitBlocks(const Sample* samples, const RoiRows& rows, const SampleRange& range, qint64 bins,
    const CountVisitor& visit)
{
    const qint64 blockBins = blockBinCount(rows.pixelCount(), bins);
    std::vector<uint> counts(static_cast<size_t>(blockBins));
    for (qint64 bin = 0; bin < bins; bin += blockBins) {
        std::fill(counts.begin(), counts.end(), 0U);
        rows.forEach([&](qint64 first, qint64 count) {
            addSampleCounts(
                samples + first, count, uint(range.min + bin), counts.data(), uint(blockBins));
        });
        visit(counts.data(), std::min(blockBins, bins - bin));
    }
}

} // namespace

bool isInsideImage(const QRect& rect, const ImageData& image)
{
    return image.isLoaded() && rect.left() >= 0 && rect.top() >= 0 && rect.right() >= rect.left()
        && rect.bottom() >= rect.top() && rect.right() < image.width
        && rect.bottom() < image.height;
}

std::optional<RoiStatistics> rectStatistics(const ImageData& image, const QRect& rect)
{
    std::optional<RoiStatistics> statistics;
    if (isInsideImage(rect, image)) {
        forSampleWidth(image, [&](const auto* samples) {
            statistics = roiStatistics(samples, rowsOf(image, rect, sizeof(*samples)));
        });
    }
    return statistics;
}

double signalToNoise(const RoiStatistics& statistics)
{
    return statistics.deviation > 0.0 ? statistics.mean / statistics.deviation
                                      : std::numeric_limits<double>::quiet_NaN();
}

std::optional<SampleRange> rectRange(const ImageData& image, const QRect& rect)
{
    std::optional<SampleRange> range;
    if (isInsideImage(rect, image)) {
        forSampleWidth(image, [&](const auto* samples) {
            range = roiTotals(samples, rowsOf(image, rect, sizeof(*samples))).range;
        });
    }
    return range;
}

std::optional<ValueHistogram> rectHistogram(const ImageData& image, const QRect& rect)
{
    std::optional<ValueHistogram> histogram;
    if (!isInsideImage(rect, image)) {
        return histogram;
    }
    forSampleWidth(image, [&](const auto* samples) {
        const RoiRows rows = rowsOf(image, rect, sizeof(*samples));
        const SampleRange range = roiTotals(samples, rows).range;
        const qint64 bins = qint64(range.max) - range.min + 1;
        if (bins < 1 || bins > histogramBinLimit) {
            return;
        }
        histogram = ValueHistogram { range.min, QVector<uint>(int(bins), 0) };
        uint* const counts = histogram->counts.data();
        rows.forEach([&](qint64 first, qint64 count) {
            addSampleCounts(samples + first, count, range.min, counts, uint(bins));
        });
    });
    return histogram;
}

bool forEachCountBlock(
    const ImageData& image, const QRect& rect, const SampleRange& range, const CountVisitor& visit)
{
    const qint64 bins = qint64(range.max) - range.min + 1;
    if (!isInsideImage(rect, image) || bins < 1 || bins > histogramBinLimit) {
        return false;
    }
    return forSampleWidth(image, [&](const auto* samples) {
        const RoiRows rows = rowsOf(image, rect, sizeof(*samples));
        if (!visitValueCounts(samples, rows, range, visit)) {
            visitBlocks(samples, rows, range, bins, visit);
        }
    });
}

QVector<uint> rowValues(const ImageData& image, int y)
{
    if (!image.isLoaded() || y < 0 || y >= image.height) {
        return {};
    }
    return valuesAlong(image, qint64(y) * image.width, 1, image.width);
}

QVector<uint> columnValues(const ImageData& image, int x)
{
    if (!image.isLoaded() || x < 0 || x >= image.width) {
        return {};
    }
    return valuesAlong(image, x, image.width, image.height);
}

std::optional<DisplayLevels> displayLevels(const SampleRange& range)
{
    const uint bins = range.max - range.min + 1;
    if (range.max < range.min || bins == 0) {
        return std::nullopt;
    }
    return DisplayLevels { range.min, bins, displayScale(0, 255, range.min, range.max), nullptr };
}

QVector<uchar> levelsOf(const QVector<uint>& values, const DisplayLevels& levels)
{
    QVector<uchar> result(values.size());
    std::transform(values.begin(), values.end(), result.begin(),
        [&levels](uint value) { return levels.level(value); });
    return result;
}
