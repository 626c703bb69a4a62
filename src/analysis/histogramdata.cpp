#include "analysis/histogramdata.h"

#include "base/limits.h"
#include "analysis/roirows.h"
#include "analysis/valuecounts.h"
#include "image/sampledispatch.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

/// Values from min to max; 0 for a range that is turned round.
quint64 valueCount(uint min, uint max)
{
    return max < min ? 0 : quint64(max) - min + 1;
}

bool fitsIntoBins(uint min, uint max)
{
    const quint64 values = valueCount(min, max);
    return values >= 1 && values <= quint64(histogramBinLimit);
}

/// A block of `count` elements in `memory`; null when there is no memory for them. An old block of
/// another size is freed first, one of the same size is taken again with what it holds.
template <class Element>
Element* elements(PixelMemory& memory, quint64 count)
{
    memory.release();
    memory.acquire(size_t(count) * sizeof(Element));
    return reinterpret_cast<Element*>(memory.data());
}

/// To be called before a block is handed out in a public field: whatever is written there is zeroed
/// by the next count.
void handOut(PixelMemory& memory)
{
    memory.markWritten(memory.size());
}

/// A line buffer of zeros.
uchar* zeroedLine(PixelMemory& memory, int length)
{
    uchar* line = elements<uchar>(memory, quint64(std::max(length, 0)));
    memory.zeroFrom(0);
    handOut(memory);
    return line;
}

template <class Sample>
qint64 allocatedSamples(const ImageData& image)
{
    return qint64(image.allocatedBytes() / sizeof(Sample));
}

} // namespace

HistogramData::HistogramData(ImageData* firstImage)
{
    setImageData(firstImage);
}

HistogramData::~HistogramData() = default;

void HistogramData::setImageData(ImageData* newImage)
{
    if (!newImage || !newImage->isLoaded()) {
        return;
    }
    image = newImage;
    verticalLine = zeroedLine(m_verticalMemory, image->height);
    horizontalLine = zeroedLine(m_horizontalMemory, image->width);
    calcHistogram();
}

void HistogramData::calcHistogram()
{
    if (!hasImage()) {
        return;
    }
    forSampleWidth(std::as_const(*image), [this](const auto* samples) {
        using Sample = std::decay_t<decltype(*samples)>;
        const auto count
            = int(std::min<qint64>(image->pixelCount, allocatedSamples<Sample>(*image)));
        rebuildCounts(samples, count);
    });
    if (fitsIntoBins(min, max) && size != 0) {
        displayMap = elements<uchar>(m_mapMemory, size);
    }
    buildDisplayMap(0, 255);
}

/// Many small samples are counted first, and the range is read off the counts.
template <class Sample>
void HistogramData::rebuildCounts(const Sample* samples, int count)
{
    const ValueCounts<Sample> counts(samples, count);
    if (counts.isComplete()) {
        adoptRange(counts.range());
        takeCounts(counts.from(min));
    } else {
        createHistogramBuffer(samples, count);
        fillHistogram(samples, count);
    }
}

/// Nothing can change the samples between the two passes: the counts need no test.
void HistogramData::rebuildCounts(const uint* samples, int count)
{
    const SampleRange range = sampleRange(samples, count);
    adoptRange(range);
    if (histogram) {
        clearHistogram();
        addCountsFromMin(samples, count, range.min, histogram);
    }
}

void HistogramData::clearHistogram()
{
    m_histogramMemory.zeroFrom(0);
    handOut(m_histogramMemory);
}

void HistogramData::takeCounts(const uint* counts)
{
    if (histogram) {
        std::memcpy(histogram, counts, m_histogramMemory.size());
        handOut(m_histogramMemory);
    }
}

template <class Sample>
void HistogramData::createHistogramBuffer(const Sample* samples, int count)
{
    if (samples) {
        adoptRange(sampleRange(samples, count));
        handOut(m_histogramMemory);
    }
}

void HistogramData::adoptRange(const SampleRange& range)
{
    min = range.min;
    max = range.max;
    const uint bins = max - min + 1;
    qDebug("[createHistogramBuffer]min: %d, max: %d, size: %d\n", int(min), int(max), int(bins));
    const bool changed = bins != size;
    size = bins;
    if (!fitsIntoBins(min, max)) {
        m_histogramMemory.discard();
        m_mapMemory.discard();
        histogram = nullptr;
        displayMap = nullptr;
    } else if (changed || !histogram) {
        histogram = elements<uint>(m_histogramMemory, bins);
    }
}

template <class Sample>
void HistogramData::fillHistogram(const Sample* samples, int count)
{
    if (!samples || !histogram) {
        return;
    }
    clearHistogram();
    addSampleCounts(samples, count, min, histogram, uint(m_histogramMemory.size() / sizeof(uint)));
}

void HistogramData::buildDisplayMap(uchar low, uchar high)
{
    // Deliberate: the lower level enters through the scale alone, it is not added to the levels.
    m_levelScale = displayScale(low, high, min, max);
    if (displayMap) {
        buildDisplayLevels(m_levelScale, displayMap, std::min(size, uint(m_mapMemory.size())));
    }
}

void HistogramData::prepareRoiHistogram(uint newMin, uint newMax)
{
    adoptRoiRange(newMin, newMax);
    handOut(m_roiMemory);
}

void HistogramData::adoptRoiRange(uint newMin, uint newMax)
{
    roiMax = newMax;
    roiMin = newMin;
    const uint bins = newMax - newMin + 1;
    const bool changed = bins != roiSize;
    roiSize = bins;
    if (!fitsIntoBins(newMin, newMax)) {
        m_roiMemory.discard();
        roiHistogram = nullptr;
    } else if (changed || !roiHistogram) {
        roiHistogram = elements<uint>(m_roiMemory, bins);
    }
}

void HistogramData::calcRoiHistogram(uint newMin, uint newMax, const QRect& roi)
{
    // Deliberate: an edge equal to the width or the height passes, one pixel beyond the image.
    if (!hasImage() || roi.right() > image->width || roi.bottom() > image->height) {
        return;
    }
    adoptRoiRange(newMin, newMax);
    if (roiHistogram && (histogram || isTooWideForBins())) {
        countRoi(roi);
    }
    handOut(m_roiMemory);
}

void HistogramData::countRoi(const QRect& roi)
{
    forSampleWidth(std::as_const(*image), [this, &roi](const auto* samples) {
        using Sample = std::decay_t<decltype(*samples)>;
        m_roiMemory.zeroFrom(0);
        const RoiRows rows { roi, image->width, allocatedSamples<Sample>(*image) };
        fillRoiHistogram(samples, rows);
    });
}

/// Counts many small samples as whole values first; the region's bins start at 0.
template <class Sample>
void HistogramData::fillRoiHistogram(const Sample* samples, const RoiRows& rows)
{
    if constexpr (sizeof(Sample) < sizeof(uint)) {
        const ValueCounts<Sample> counts(samples, rows);
        if (counts.isComplete()) {
            // The range may come from another image, with values that these samples cannot have.
            const uint first = std::min(roiMin, counts.valueCount);
            std::copy_n(
                counts.from(first), std::min(roiSize, counts.valueCount - first), roiHistogram);
            return;
        }
    }
    rows.forEach([&](qint64 first, qint64 count) {
        addSampleCounts(samples + first, count, roiMin, roiHistogram, roiSize);
    });
}

void HistogramData::clearLines()
{
    for (PixelMemory* const memory : { &m_verticalMemory, &m_horizontalMemory }) {
        memory->markWritten(memory->size()); // `data` is open to every writer
        memory->zeroFrom(0);
    }
}

uint* HistogramData::roiBins(uint wantedMin, uint wantedMax) const
{
    return wantedMin == roiMin && wantedMax == roiMax ? roiHistogram : nullptr;
}

void HistogramData::extractHorizontalLine(int y, int offset, int count)
{
    if (!hasImage() || !horizontalLine || !hasLevels() || y < 0 || y >= image->height) {
        return;
    }
    const DisplayLevels levelOf = levels();
    const int length = std::min({ count, image->width, horizontalLineLength() });
    forSampleWidth(std::as_const(*image), [&](const auto* samples) {
        using Sample = std::decay_t<decltype(*samples)>;
        const qint64 available = allocatedSamples<Sample>(*image);
        const qint64 first = qint64(y) * image->width + offset;
        for (int i = 0; i < length; ++i) {
            const qint64 index = first + i;
            const bool inside = index >= 0 && index < available;
            horizontalLine[i] = inside ? levelOf.level(samples[index]) : uchar(0);
        }
    });
}

void HistogramData::extractHorizontalLine(int y)
{
    if (image) {
        extractHorizontalLine(y, 0, image->width);
    }
}

void HistogramData::extractVerticalLine(int x, int offset, int count)
{
    if (!hasImage() || !verticalLine || !hasLevels() || x < 0 || x >= image->width) {
        return;
    }
    const DisplayLevels levelOf = levels();
    const int length = std::min({ count, image->height, verticalLineLength() });
    forSampleWidth(std::as_const(*image), [&](const auto* samples) {
        using Sample = std::decay_t<decltype(*samples)>;
        const qint64 available = allocatedSamples<Sample>(*image);
        for (int i = 0; i < length; ++i) {
            const qint64 index = (qint64(offset) + i) * image->width + x;
            const bool inside = index >= 0 && index < available;
            verticalLine[i] = inside ? levelOf.level(samples[index]) : uchar(0);
        }
    });
}

void HistogramData::extractVerticalLine(int x)
{
    if (image) {
        extractVerticalLine(x, 0, image->height);
    }
}

bool HistogramData::hasLevels() const
{
    return (histogram && displayMap) || isTooWideForBins();
}

DisplayLevels HistogramData::levels() const
{
    const uint bins = displayMap ? std::min(size, uint(m_mapMemory.size())) : size;
    return { min, bins, m_levelScale, displayMap };
}

bool HistogramData::hasImage() const
{
    return image && image->isLoaded();
}

bool HistogramData::isTooWideForBins() const
{
    return size != 0 && valueCount(min, max) > quint64(histogramBinLimit);
}

template void HistogramData::createHistogramBuffer(const uchar*, int);
template void HistogramData::createHistogramBuffer(const ushort*, int);
template void HistogramData::createHistogramBuffer(const uint*, int);
template void HistogramData::fillHistogram(const uchar*, int);
template void HistogramData::fillHistogram(const ushort*, int);
template void HistogramData::fillHistogram(const uint*, int);
