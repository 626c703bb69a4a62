#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "analysis/samplecounts.cpp" // compiled once for each processor type
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/prefetch.h"
#include "analysis/samplecounts.h"

#include <algorithm>
#include <cstring>
#include <limits>

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

template <class Sample>
SampleRange rangeOf(const Sample* samples, qint64 count)
{
    const hn::ScalableTag<Sample> lanes;
    const auto step = qint64(hn::Lanes(lanes));
    auto lowest = hn::Set(lanes, std::numeric_limits<Sample>::max());
    auto highest = hn::Zero(lanes);
    qint64 i = 0;
    for (; i + step <= count; i += step) {
        prefetchAhead(samples + i);
        const auto values = hn::LoadU(lanes, samples + i);
        lowest = hn::Min(lowest, values);
        highest = hn::Max(highest, values);
    }
    HWY_ALIGN Sample ends[2 * HWY_MAX_BYTES / sizeof(Sample)];
    hn::Store(lowest, lanes, ends);
    hn::Store(highest, lanes, ends + step);
    Sample min = *std::min_element(ends, ends + step);
    Sample max = *std::max_element(ends + step, ends + 2 * step);
    for (; i < count; ++i) {
        min = std::min(min, samples[i]);
        max = std::max(max, samples[i]);
    }
    return { min, max };
}

SampleRange range8(const uchar* samples, qint64 count)
{
    return rangeOf(samples, count);
}

SampleRange range16(const ushort* samples, qint64 count)
{
    return rangeOf(samples, count);
}

SampleRange range32(const uint* samples, qint64 count)
{
    return rangeOf(samples, count);
}

} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace {

HWY_EXPORT(range8);
HWY_EXPORT(range16);
HWY_EXPORT(range32);

} // namespace

template <>
SampleRange sampleRange(const uchar* samples, qint64 count)
{
    return HWY_DYNAMIC_DISPATCH(range8)(samples, count);
}

template <>
SampleRange sampleRange(const ushort* samples, qint64 count)
{
    return HWY_DYNAMIC_DISPATCH(range16)(samples, count);
}

template <>
SampleRange sampleRange(const uint* samples, qint64 count)
{
    return HWY_DYNAMIC_DISPATCH(range32)(samples, count);
}

template <class Sample>
void addSampleCounts(const Sample* samples, qint64 count, uint min, uint* bins, uint binCount)
{
    for (qint64 i = 0; i < count; ++i) {
        const uint bin = uint(samples[i]) - min;
        if (bin < binCount) {
            ++bins[bin];
        }
    }
}

template void addSampleCounts(const uchar*, qint64, uint, uint*, uint);
template void addSampleCounts(const ushort*, qint64, uint, uint*, uint);
template void addSampleCounts(const uint*, qint64, uint, uint*, uint);

void addCountsFromMin(const uint* samples, qint64 count, uint min, uint* bins)
{
    qint64 i = 0;
    for (; i + 4 <= count; i += 4) {
        prefetchAhead(samples + i);
        quint64 first; // two samples a load: the loads are what there are most of
        quint64 second;
        std::memcpy(&first, samples + i, sizeof(first));
        std::memcpy(&second, samples + i + 2, sizeof(second));
        ++bins[uint(first) - min];
        ++bins[uint(first >> 32) - min];
        ++bins[uint(second) - min];
        ++bins[uint(second >> 32) - min];
    }
    for (; i < count; ++i) {
        ++bins[samples[i] - min];
    }
}

#endif
