#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "image/grayconversion.cpp" // compiled once for each processor type
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "image/grayconversion.h"
#include "base/prefetch.h"

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

constexpr size_t cacheLineBytes = 64;

template <class Sample>
Sample grayValue(const Sample* pixel)
{
    // Deliberate: the products of 32-bit samples wrap modulo 2^32 before the shift.
    const uint sum = 15u * pixel[0] + 75u * pixel[1] + 38u * pixel[2];
    return Sample(sum >> 7);
}

/// The weighted sums, divided, of three vectors of one channel each.
template <class Lanes, class Vector>
Vector grayLanes(Lanes lanes, Vector c0, Vector c1, Vector c2)
{
    using Value = hn::TFromD<Lanes>;
    const Vector sum = hn::Add(hn::Mul(c0, hn::Set(lanes, Value(15))),
        hn::Add(hn::Mul(c1, hn::Set(lanes, Value(75))), hn::Mul(c2, hn::Set(lanes, Value(38)))));
    return hn::ShiftRight<7>(sum);
}

/// Loads, converts and stores as many pixels as fit into one vector of the wider type in which the
/// sums are made. All reads come before the write, which never reaches pixels still to be read.
template <class Sample, class Wide>
struct GrayStep
{
    using WideLanes = hn::ScalableTag<Wide>;
    using SampleLanes = hn::Rebind<Sample, WideLanes>;
    using Signed = hn::RebindToSigned<WideLanes>;

    static qint64 pixels() { return qint64(hn::Lanes(WideLanes())); }

    static void convert(const Sample* from, Sample* to)
    {
        const WideLanes wide;
        const SampleLanes narrow;
        hn::Vec<SampleLanes> c0, c1, c2;
        hn::LoadInterleaved3(narrow, from, c0, c1, c2);
        const auto gray = grayLanes(
            wide, hn::PromoteTo(wide, c0), hn::PromoteTo(wide, c1), hn::PromoteTo(wide, c2));
        // No larger than a sample of the narrow type can be: the saturation changes nothing.
        hn::StoreU(hn::DemoteTo(narrow, hn::BitCast(Signed(), gray)), narrow, to);
    }
};

/// 32-bit samples have no wider type: their sums wrap.
template <>
struct GrayStep<uint, uint>
{
    using Lanes = hn::ScalableTag<uint>;

    static qint64 pixels() { return qint64(hn::Lanes(Lanes())); }

    static void convert(const uint* from, uint* to)
    {
        const Lanes lanes;
        hn::Vec<Lanes> c0, c1, c2;
        hn::LoadInterleaved3(lanes, from, c0, c1, c2);
        hn::StoreU(grayLanes(lanes, c0, c1, c2), lanes, to);
    }
};

template <class Sample, class Wide>
void grayPixels(Sample* samples, qint64 pixelCount)
{
    using Step = GrayStep<Sample, Wide>;
    const qint64 step = Step::pixels();
    const auto lineSamples = qint64(cacheLineBytes / sizeof(Sample));
    qint64 pixel = 0;
    for (; pixel + step <= pixelCount; pixel += step) {
        for (qint64 sample = 3 * pixel; sample < 3 * (pixel + step); sample += lineSamples) {
            prefetchAhead(samples + sample);
        }
        Step::convert(samples + 3 * pixel, samples + pixel);
    }
    for (; pixel < pixelCount; ++pixel) {
        samples[pixel] = grayValue(samples + 3 * pixel);
    }
}

void gray8(uchar* samples, qint64 pixelCount)
{
    grayPixels<uchar, ushort>(samples, pixelCount);
}

void gray16(ushort* samples, qint64 pixelCount)
{
    grayPixels<ushort, uint>(samples, pixelCount);
}

void gray32(uint* samples, qint64 pixelCount)
{
    grayPixels<uint, uint>(samples, pixelCount);
}

} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace {

HWY_EXPORT(gray8);
HWY_EXPORT(gray16);
HWY_EXPORT(gray32);

} // namespace

template <>
void grayInPlace(uchar* samples, qint64 pixelCount)
{
    HWY_DYNAMIC_DISPATCH(gray8)(samples, pixelCount);
}

template <>
void grayInPlace(ushort* samples, qint64 pixelCount)
{
    HWY_DYNAMIC_DISPATCH(gray16)(samples, pixelCount);
}

template <>
void grayInPlace(uint* samples, qint64 pixelCount)
{
    HWY_DYNAMIC_DISPATCH(gray32)(samples, pixelCount);
}

#endif
