#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "analysis/peakdetection.cpp" // compiled once for each processor type
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "analysis/peakdetection.h"

#include <algorithm>
#include <array>
#include <memory>
#include <new>

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// Both passes take whole vectors from sample k on. Behind the samples stand bytes of 255: nothing
// is larger than they are, so what a vector reads beyond the last sample with a right neighbour is
// never a maximum.

/// Number of samples larger than both samples `k` away.
qint64 countMaxima(const uchar* samples, qint64 count, qint64 k)
{
    const qint64 end = count - k;
    qint64 i = k;
#if HWY_TARGET == HWY_SCALAR
    qint64 maxima = 0;
    for (; i < end; ++i) {
        maxima += samples[i] > std::max(samples[i - k], samples[i + k]);
    }
    return maxima;
#else
    const hn::ScalableTag<uint8_t> bytes;
    const hn::Repartition<uint64_t, decltype(bytes)> words;
    const auto step = qint64(hn::Lanes(bytes));
    auto total = hn::Zero(words);
    while (i < end) {
        auto maxima = hn::Zero(bytes); // minus their number, in each lane
        const qint64 stop = std::min(end, i + 255 * step); // before a lane overflows
        for (; i < stop; i += step) {
            const auto neighbours
                = hn::Max(hn::LoadU(bytes, samples + i - k), hn::LoadU(bytes, samples + i + k));
            const auto isMaximum = hn::Gt(hn::LoadU(bytes, samples + i), neighbours);
            maxima = hn::Sub(maxima, hn::VecFromMask(bytes, isMaximum));
        }
        total = hn::Add(total, hn::SumsOf8(maxima));
    }
    return qint64(hn::GetLane(hn::SumOfLanes(words, total)));
#endif
}

/// Adds 1 to counts[i] for each of the scales `first` to `last`, at most 255 of them, at which
/// sample i is a maximum. `counts` is as long as the samples with the bytes behind them.
void addMaxima(const uchar* samples, qint64 count, qint64 first, qint64 last, uchar* counts)
{
#if HWY_TARGET == HWY_SCALAR
    for (qint64 k = first; k <= last; ++k) {
        for (qint64 i = k; i < count - k; ++i) {
            counts[i] = uchar(counts[i] + (samples[i] > std::max(samples[i - k], samples[i + k])));
        }
    }
#else
    const hn::ScalableTag<uint8_t> bytes;
    const auto step = qint64(hn::Lanes(bytes));
    for (qint64 k = first; k <= last; ++k) {
        for (qint64 i = k; i < count - k; i += step) {
            const auto neighbours
                = hn::Max(hn::LoadU(bytes, samples + i - k), hn::LoadU(bytes, samples + i + k));
            const auto isMaximum = hn::Gt(hn::LoadU(bytes, samples + i), neighbours);
            const auto before = hn::LoadU(bytes, counts + i);
            hn::StoreU(hn::Sub(before, hn::VecFromMask(bytes, isMaximum)), bytes, counts + i);
        }
    }
#endif
}

} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace {

HWY_EXPORT(countMaxima);
HWY_EXPORT(addMaxima);

constexpr int scalesAtOnce = 255; // as many as a byte can count
constexpr size_t longestVector = 256; // bytes, of any processor type

/// Room for `size` entries as they start out, or null.
template <class Entry>
std::unique_ptr<Entry[]> workArray(size_t size)
{
    return std::unique_ptr<Entry[]>(new (std::nothrow) Entry[size]());
}

/// Whether any sample has a smaller one somewhere on both sides; without one there is no maximum
/// at any scale.
bool hasMaximum(const uchar* samples, int count)
{
    int i = 0;
    while (i + 1 < count && samples[i + 1] <= samples[i]) {
        ++i; // falling or flat: nothing smaller on the left yet
    }
    while (i + 1 < count && samples[i + 1] >= samples[i]) {
        ++i;
    }
    return i + 1 < count; // rises somewhere, and falls after that
}

/// The most maxima that scale `k` can hold: samples k apart are never both maxima, so of each chain
/// of samples k apart at most every other one is.
qint64 mostMaxima(qint64 count, qint64 k)
{
    const qint64 candidates = count - 2 * k; // those with a neighbour on both sides
    const qint64 length = candidates / k;
    const qint64 longerChains = candidates % k;
    return longerChains * (length / 2 + 1) + (k - longerChains) * ((length + 1) / 2);
}

/// The smallest scale with most maxima, and their number.
void findScale(const uchar* padded, int count, DetectedPeaks& detected)
{
    const int scales = int(count * 0.5 + 0.5);
    qint64 most = 0;
    for (int k = 1; k < scales; ++k) {
        if (mostMaxima(count, k) <= most) {
            continue;
        }
        const qint64 maxima = HWY_DYNAMIC_DISPATCH(countMaxima)(padded, count, k);
        if (maxima > most) {
            most = maxima;
            detected.scale = k;
        }
    }
    detected.rowSum = int(-most);
}

/// Adds to counts[i] the number of scales 1 to `scale` at which sample i is a maximum. False,
/// without memory, when nothing has been added.
bool addMaximumCounts(const uchar* padded, size_t paddedSize, int count, int scale, int* counts)
{
    const int last = std::min(scale, count - 1);
    const auto part = workArray<uchar>(paddedSize);
    if (!part) {
        return false;
    }
    for (int first = 1; first <= last; first += scalesAtOnce) {
        std::fill_n(part.get(), paddedSize, uchar(0));
        const int end = std::min(last, first + scalesAtOnce - 1);
        HWY_DYNAMIC_DISPATCH(addMaxima)(padded, count, first, end, part.get());
        for (int i = 0; i < count; ++i) {
            counts[i] += part[size_t(i)];
        }
    }
    return true;
}

/// Sorts by value, largest first, equal ones in their order; counted rather than compared. `spare`
/// has room for as many.
void sortByValue(Peak* first, Peak* last, Peak* spare)
{
    if (last - first < 2) {
        return;
    }
    std::array<int, 257> places {}; // of value v, at 255 - v + 1
    for (const Peak* peak = first; peak != last; ++peak) {
        ++places[size_t(256 - peak->value)];
    }
    for (size_t i = 1; i < places.size(); ++i) {
        places[i] += places[i - 1];
    }
    const Peak* const end = std::copy(first, last, spare);
    for (const Peak* peak = spare; peak != end; ++peak) {
        first[places[size_t(255 - peak->value)]++] = *peak;
    }
}

/// The lowest level that is collected: whole levels from `scale` down until there are enough peaks.
int lowestLevel(const int* levelSizes, int scale)
{
    int held = 0;
    int level = scale;
    for (; level > 1; --level) {
        held += levelSizes[level];
        if (held >= peakCapacity) {
            break;
        }
    }
    return level;
}

/// False without memory.
bool resizeList(QVector<Peak>& peaks, int size)
{
    try {
        peaks.resize(size);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

/// Lists the peaks by level, the highest first, and each level by value. False without memory.
bool listPeaks(const uchar* samples, const int* counts, int count, int scale, QVector<Peak>& peaks)
{
    const auto levelSizes = workArray<int>(size_t(scale) + 1);
    const auto starts = workArray<int>(size_t(scale) + 1); // of a level in the list
    if (!levelSizes || !starts) {
        return false;
    }
    for (int i = 0; i < count; ++i) {
        ++levelSizes[size_t(counts[i])];
    }
    const int lowest = lowestLevel(levelSizes.get(), scale);
    int held = 0;
    for (int level = scale; level >= lowest; --level) {
        starts[size_t(level)] = held;
        held += levelSizes[size_t(level)];
    }
    const auto spare = workArray<Peak>(size_t(held));
    if (!spare || !resizeList(peaks, held)) {
        return false;
    }
    Peak* const list = peaks.data();
    for (int i = 0; i < count; ++i) {
        if (counts[i] >= lowest) {
            Peak& peak = list[starts[size_t(counts[i])]++];
            peak.index = i;
            peak.value = samples[i];
        }
    }
    for (int level = scale; level >= lowest; --level) {
        const int end = starts[size_t(level)];
        sortByValue(list + end - levelSizes[size_t(level)], list + end, spare.get());
    }
    return true;
}

} // namespace

DetectedPeaks detectPeaks(const uchar* samples, int count)
{
    Q_ASSERT(samples && count >= 1);
    const size_t paddedSize = size_t(count) + longestVector;
    const auto padded = workArray<uchar>(paddedSize);
    const auto counts = workArray<int>(size_t(count));
    if (!padded || !counts) {
        return DetectedPeaks();
    }
    std::fill_n(std::copy_n(samples, count, padded.get()), longestVector, uchar(255));
    DetectedPeaks detected;
    if (hasMaximum(samples, count)) {
        findScale(padded.get(), count, detected);
    }
    const bool isListed
        = addMaximumCounts(padded.get(), paddedSize, count, detected.scale, counts.get())
        && listPeaks(samples, counts.get(), count, detected.scale, detected.peaks);
    return isListed ? detected : DetectedPeaks();
}

#endif
