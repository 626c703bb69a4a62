#include "analysis/previewlevels.h"

#include "analysis/displaylevels.h"
#include "analysis/samplecounts.h"
#include "image/imagedata.h"
#include "base/pixelmemory.h"
#include "image/sampledispatch.h"

#include <QRect>

#include <algorithm>

namespace {

constexpr uchar whiteLevel = 255;

/// First of the `from` pixels that belong to cell `i` when they are shared out among `to` cells.
int cellStart(int i, int from, int to)
{
    return int(qint64(i) * from / to);
}

/// The whole part is exact, so that equal values have equal means whatever the number of pixels.
template <class Sample>
double cellMean(const Sample* samples, int width, const QRect& cell)
{
    quint64 sum = 0; // at most 2^31 pixels of 32 bits
    for (int y = cell.top(); y <= cell.bottom(); ++y) {
        const Sample* const line = samples + qint64(y) * width;
        for (int x = cell.left(); x <= cell.right(); ++x) {
            sum += line[x];
        }
    }
    const quint64 pixels = quint64(cell.width()) * quint64(cell.height());
    return double(sum / pixels) + double(sum % pixels) / double(pixels);
}

template <class Sample>
void cellMeans(const Sample* samples, const QSize& image, const QSize& size, double* means)
{
    for (int row = 0; row < size.height(); ++row) {
        const int top = cellStart(row, image.height(), size.height());
        const int below = cellStart(row + 1, image.height(), size.height());
        for (int column = 0; column < size.width(); ++column) {
            const int left = cellStart(column, image.width(), size.width());
            const int behind = cellStart(column + 1, image.width(), size.width());
            const QRect cell(left, top, behind - left, below - top);
            *means++ = cellMean(samples, image.width(), cell);
        }
    }
}

/// Writes the levels of `size` values, the first row first, that lie between `low` and `high`.
template <class Value>
void writeLevels(const Value* values, const QSize& size, double low, double high, uchar* levels,
    qint64 bytesPerLine)
{
    const double scale = double(whiteLevel) / (high - low);
    for (int row = 0; row < size.height(); ++row) {
        uchar* const line = levels + row * bytesPerLine;
        for (int column = 0; column < size.width(); ++column) {
            line[column] = displayLevel(double(*values++) - low, scale);
        }
    }
}

template <class Sample>
bool fillReduced(const Sample* samples, const QSize& image, const QSize& size, uchar* levels,
    qint64 bytesPerLine)
{
    const size_t count = size_t(size.width()) * size_t(size.height());
    PixelMemory memory;
    if (!memory.acquire(count * sizeof(double))) {
        return false;
    }
    auto* const means = reinterpret_cast<double*>(memory.data());
    cellMeans(samples, image, size, means);
    const auto [low, high] = std::minmax_element(means, means + count);
    writeLevels(means, size, *low, *high, levels, bytesPerLine);
    return true;
}

template <class Sample>
void fillWhole(const Sample* samples, const QSize& size, uchar* levels, qint64 bytesPerLine)
{
    const SampleRange range = sampleRange(samples, qint64(size.width()) * size.height());
    writeLevels(samples, size, range.min, range.max, levels, bytesPerLine);
}

/// Whether there is a sample for each pixel.
bool hasSamples(const ImageData& image)
{
    return image.isLoaded() && image.channels == 1 && image.bytesPerChannel > 0
        && image.allocatedBytes() / size_t(image.bytesPerChannel) >= size_t(image.pixelCount);
}

} // namespace

QSize previewSize(const QSize& image, const QSize& bounds)
{
    if (image.width() <= bounds.width() && image.height() <= bounds.height()) {
        return image;
    }
    return image.scaled(bounds, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

bool fillPreview(const ImageData& image, const QSize& size, uchar* levels, qint64 bytesPerLine)
{
    const QSize whole(image.width, image.height);
    if (!hasSamples(image) || size.isEmpty() || size.width() > whole.width()
        || size.height() > whole.height()) {
        return false;
    }
    bool filled = false;
    const bool known = forSampleWidth(image, [&](const auto* samples) {
        if (size == whole) {
            fillWhole(samples, size, levels, bytesPerLine);
            filled = true;
        } else {
            filled = fillReduced(samples, whole, size, levels, bytesPerLine);
        }
    });
    return known && filled;
}
