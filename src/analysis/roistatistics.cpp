#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "analysis/roistatistics.cpp" // compiled once for each processor type
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "base/prefetch.h"
#include "analysis/roistatistics.h"

#include <algorithm>
#include <cmath>
#include <limits>

#ifndef ANALYSIS_ROISTATISTICS_ONCE
#define ANALYSIS_ROISTATISTICS_ONCE
namespace {

/// Squares of a block of samples, each rounded to the unit of the running sum.
struct BlockSum
{
    double sum; ///< of the rounded squares
    double worst; ///< largest distance between a square and its rounded one
};

} // namespace
#endif

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET != HWY_SCALAR && HWY_HAVE_FLOAT64

constexpr bool hasVectors = true;

// Sums of a vector's lanes in lanes wide enough to be added 2^15 times before they overflow.

template <class Bytes>
auto laneSums(Bytes, hn::Vec<Bytes> values, uchar)
{
    return hn::SumsOf8(values);
}

template <class Shorts>
auto laneSums(Shorts, hn::Vec<Shorts> values, ushort)
{
    const hn::RepartitionToWide<Shorts> words;
    const auto pairs = hn::BitCast(words, values);
    return hn::Add(hn::And(pairs, hn::Set(words, 0xffffU)), hn::ShiftRight<16>(pairs));
}

template <class Words>
auto laneSums(Words, hn::Vec<Words> values, uint)
{
    const hn::RepartitionToWide<Words> longs;
    const auto pairs = hn::BitCast(longs, values);
    return hn::Add(hn::And(pairs, hn::Set(longs, quint64(0xffffffffU))), hn::ShiftRight<32>(pairs));
}

/// Adds the lanes of a tag's vector.
template <class Lanes>
quint64 sumOfAll(Lanes lanes, hn::Vec<Lanes> values)
{
    HWY_ALIGN hn::TFromD<Lanes> stored[HWY_MAX_BYTES / sizeof(hn::TFromD<Lanes>)];
    hn::Store(values, lanes, stored);
    quint64 sum = 0;
    for (size_t i = 0; i < hn::Lanes(lanes); ++i) {
        sum += stored[i];
    }
    return sum;
}

/// Adds the whole vectors at the front of `count` samples to the totals; answers how many samples
/// those are.
template <class Sample>
qint64 addVectors(const Sample* samples, qint64 count, RoiTotals& totals)
{
    const hn::ScalableTag<Sample> lanes;
    const auto step = qint64(hn::Lanes(lanes));
    constexpr qint64 vectorsAtOnce = 16384;
    auto lowest = hn::Set(lanes, std::numeric_limits<Sample>::max());
    auto highest = hn::Zero(lanes);
    qint64 i = 0;
    while (i + step <= count) {
        auto sums = laneSums(lanes, hn::Zero(lanes), Sample());
        const qint64 stop = std::min(count - step, i + (vectorsAtOnce - 1) * step);
        for (; i <= stop; i += step) {
            prefetchAhead(samples + i);
            const auto values = hn::LoadU(lanes, samples + i);
            lowest = hn::Min(lowest, values);
            highest = hn::Max(highest, values);
            sums = hn::Add(sums, laneSums(lanes, values, Sample()));
        }
        totals.sum += sumOfAll(hn::DFromV<decltype(sums)>(), sums);
    }
    HWY_ALIGN Sample ends[2 * HWY_MAX_BYTES / sizeof(Sample)];
    hn::Store(lowest, lanes, ends);
    hn::Store(highest, lanes, ends + step);
    totals.range.min = std::min<uint>(totals.range.min, *std::min_element(ends, ends + step));
    totals.range.max
        = std::max<uint>(totals.range.max, *std::max_element(ends + step, ends + 2 * step));
    return i;
}

// Samples as doubles, as many as a vector of doubles holds.

template <class Doubles>
hn::Vec<Doubles> asDoubles(Doubles doubles, const uchar* samples)
{
    const hn::Rebind<int32_t, Doubles> integers;
    const hn::Rebind<uint8_t, Doubles> bytes;
    return hn::PromoteTo(doubles, hn::PromoteTo(integers, hn::LoadU(bytes, samples)));
}

template <class Doubles>
hn::Vec<Doubles> asDoubles(Doubles doubles, const ushort* samples)
{
    const hn::Rebind<int32_t, Doubles> integers;
    const hn::Rebind<uint16_t, Doubles> shorts;
    return hn::PromoteTo(doubles, hn::PromoteTo(integers, hn::LoadU(shorts, samples)));
}

template <class Doubles>
hn::Vec<Doubles> asDoubles(Doubles doubles, const uint* samples)
{
    // 2^52 + v has v in its last bits.
    const hn::Rebind<uint64_t, Doubles> longs;
    const hn::Rebind<uint32_t, Doubles> words;
    const auto base = hn::Set(doubles, 4503599627370496.0);
    const auto values = hn::PromoteTo(longs, hn::LoadU(words, samples));
    return hn::Sub(hn::BitCast(doubles, hn::Or(values, hn::BitCast(longs, base))), base);
}

template <class Sample>
BlockSum sumOfBlock(const Sample* samples, qint64 count, double mean, double rounder)
{
    const hn::ScalableTag<double> doubles;
    const auto step = qint64(hn::Lanes(doubles));
    const auto means = hn::Set(doubles, mean);
    const auto rounders = hn::Set(doubles, rounder);
    auto sums = hn::Zero(doubles);
    auto worst = hn::Zero(doubles);
    qint64 i = 0;
    for (; i + step <= count; i += step) {
        const auto distance = hn::Sub(asDoubles(doubles, samples + i), means);
        const auto square = hn::Mul(distance, distance);
        const auto rounded = hn::Sub(hn::Add(square, rounders), rounders);
        sums = hn::Add(sums, rounded);
        worst = hn::Max(worst, hn::Abs(hn::Sub(square, rounded)));
    }
    prefetchAhead(samples);
    HWY_ALIGN double stored[2 * HWY_MAX_BYTES / sizeof(double)];
    hn::Store(sums, doubles, stored);
    hn::Store(worst, doubles, stored + step);
    BlockSum block { 0.0, *std::max_element(stored + step, stored + 2 * step) };
    for (qint64 lane = 0; lane < step; ++lane) {
        block.sum += stored[lane];
    }
    for (; i < count; ++i) {
        const double distance = samples[i] - mean;
        const double square = distance * distance;
        const double rounded = (square + rounder) - rounder;
        block.sum += rounded;
        block.worst = std::max(block.worst, std::abs(square - rounded));
    }
    return block;
}

#else

constexpr bool hasVectors = false;

template <class Sample>
qint64 addVectors(const Sample*, qint64, RoiTotals&)
{
    return 0;
}

template <class Sample>
BlockSum sumOfBlock(const Sample*, qint64, double, double)
{
    return { 0.0, 0.0 }; // not called
}

#endif

bool canSumBlocks()
{
    return hasVectors;
}

qint64 addVectors8(const uchar* samples, qint64 count, RoiTotals& totals)
{
    return addVectors(samples, count, totals);
}

qint64 addVectors16(const ushort* samples, qint64 count, RoiTotals& totals)
{
    return addVectors(samples, count, totals);
}

qint64 addVectors32(const uint* samples, qint64 count, RoiTotals& totals)
{
    return addVectors(samples, count, totals);
}

BlockSum sumOfBlock8(const uchar* samples, qint64 count, double mean, double rounder)
{
    return sumOfBlock(samples, count, mean, rounder);
}

BlockSum sumOfBlock16(const ushort* samples, qint64 count, double mean, double rounder)
{
    return sumOfBlock(samples, count, mean, rounder);
}

BlockSum sumOfBlock32(const uint* samples, qint64 count, double mean, double rounder)
{
    return sumOfBlock(samples, count, mean, rounder);
}

} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace {

HWY_EXPORT(canSumBlocks);
HWY_EXPORT(addVectors8);
HWY_EXPORT(addVectors16);
HWY_EXPORT(addVectors32);
HWY_EXPORT(sumOfBlock8);
HWY_EXPORT(sumOfBlock16);
HWY_EXPORT(sumOfBlock32);

qint64 addVectorsOf(const uchar* samples, qint64 count, RoiTotals& totals)
{
    return HWY_DYNAMIC_DISPATCH(addVectors8)(samples, count, totals);
}

qint64 addVectorsOf(const ushort* samples, qint64 count, RoiTotals& totals)
{
    return HWY_DYNAMIC_DISPATCH(addVectors16)(samples, count, totals);
}

qint64 addVectorsOf(const uint* samples, qint64 count, RoiTotals& totals)
{
    return HWY_DYNAMIC_DISPATCH(addVectors32)(samples, count, totals);
}

BlockSum blockSumOf(const uchar* samples, qint64 count, double mean, double rounder)
{
    return HWY_DYNAMIC_DISPATCH(sumOfBlock8)(samples, count, mean, rounder);
}

BlockSum blockSumOf(const ushort* samples, qint64 count, double mean, double rounder)
{
    return HWY_DYNAMIC_DISPATCH(sumOfBlock16)(samples, count, mean, rounder);
}

BlockSum blockSumOf(const uint* samples, qint64 count, double mean, double rounder)
{
    return HWY_DYNAMIC_DISPATCH(sumOfBlock32)(samples, count, mean, rounder);
}

/// The sum of squares in the order of the samples, with every addition rounded as a plain loop
/// rounds it, a block at a time.
///
/// While the sum V stays below `top`, the next power of two, its unit u (of the last place) stays
/// the same and V is a multiple of it. V + q is then rounded to V plus q rounded to a multiple of
/// u; only where q lies exactly between two multiples does it depend on V which one is taken. With
/// q below top / 4, (q + 3/4 top) - 3/4 top rounds q to a multiple of u. Multiples of u below top
/// add without rounding, in any order; should any partial sum of a block reach top, so does
/// the block's, and it is not used. A block with a q between two multiples, or one that would carry
/// V to top, is added sample by sample.
class SquareSum
{
public:
    SquareSum(double mean, double largestSquare)
        : m_mean(mean)
        , m_largestSquare(largestSquare)
        , m_canSumBlocks(HWY_DYNAMIC_DISPATCH(canSumBlocks)())
    {
    }

    template <class Sample>
    void add(const Sample* samples, qint64 count)
    {
        for (qint64 i = 0; i < count; i += blockSize) {
            addBlock(samples + i, std::min(blockSize, count - i));
        }
    }

    double value() const { return m_value; }

private:
    static constexpr qint64 blockSize = 1024;
    static constexpr qint64 fewestSamples = 32; // fewer are added faster one by one

    template <class Sample>
    void addBlock(const Sample* samples, qint64 count)
    {
        if (m_canSumBlocks && count >= fewestSamples && m_largestSquare < m_top / 4.0) {
            const BlockSum block = blockSumOf(samples, count, m_mean, 0.75 * m_top);
            const double value = m_value + block.sum;
            if (block.worst < m_halfUnit && value < m_top) {
                m_value = value;
                return;
            }
        }
        for (qint64 i = 0; i < count; ++i) {
            const double distance = samples[i] - m_mean;
            m_value += distance * distance;
        }
        findBinade();
    }

    void findBinade()
    {
        int exponent = 0;
        std::frexp(m_value, &exponent);
        // Far below, halves of the unit are no normal numbers any more.
        const bool isUsable = m_value > 1e-200 && m_value < 1e200;
        m_top = isUsable ? std::ldexp(1.0, exponent) : 0.0;
        m_halfUnit = isUsable ? std::ldexp(1.0, exponent - 54) : 0.0;
    }

    double m_mean;
    double m_largestSquare; ///< no square is larger
    bool m_canSumBlocks;
    double m_value = 0.0;
    double m_top = 0.0; ///< the power of two above the value; 0 before there is one
    double m_halfUnit = 0.0;
};

double squareOf(double distance)
{
    return distance * distance;
}

} // namespace

template <class Sample>
RoiTotals roiTotals(const Sample* samples, const RoiRows& rows)
{
    RoiTotals totals;
    totals.range = { std::numeric_limits<Sample>::max(), 0 };
    rows.forEach([&](qint64 first, qint64 count) {
        const Sample* const row = samples + first;
        for (qint64 i = addVectorsOf(row, count, totals); i < count; ++i) {
            totals.range.min = std::min<uint>(totals.range.min, row[i]);
            totals.range.max = std::max<uint>(totals.range.max, row[i]);
            totals.sum += row[i];
        }
        totals.sampleCount += count;
    });
    return totals;
}

double roiMean(const RoiTotals& totals, const RoiRows& rows)
{
    const uint min = totals.range.min;
    // The same whole number as the sum of all distances from min.
    const quint64 distances = totals.sum - quint64(totals.sampleCount) * min;
    return double(qint64(distances)) / double(rows.pixelCount()) + min;
}

template <class Sample>
double roiDeviation(
    const Sample* samples, const RoiRows& rows, const SampleRange& range, double mean)
{
    // Rounding keeps the order: the largest square is that of an end of the range.
    const double largestSquare = std::max(squareOf(range.min - mean), squareOf(range.max - mean));
    SquareSum sum(mean, largestSquare);
    if (largestSquare != 0.0) {
        rows.forEach([&](qint64 first, qint64 count) { sum.add(samples + first, count); });
    }
    return std::sqrt(sum.value() / double(rows.pixelCount()));
}

template RoiTotals roiTotals(const uchar*, const RoiRows&);
template RoiTotals roiTotals(const ushort*, const RoiRows&);
template RoiTotals roiTotals(const uint*, const RoiRows&);
template double roiDeviation(const uchar*, const RoiRows&, const SampleRange&, double);
template double roiDeviation(const ushort*, const RoiRows&, const SampleRange&, double);
template double roiDeviation(const uint*, const RoiRows&, const SampleRange&, double);

#endif
