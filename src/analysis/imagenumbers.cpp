#include "analysis/imagenumbers.h"

#include "base/limits.h"
#include "image/sampledispatch.h"

#include <algorithm>

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

QVector<uchar> levelsOf(const QVector<uint>& values, const DisplayLevels& levels)
{
    QVector<uchar> result(values.size());
    std::transform(values.begin(), values.end(), result.begin(),
        [&levels](uint value) { return levels.level(value); });
    return result;
}
