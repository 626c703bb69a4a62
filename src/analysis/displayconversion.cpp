#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "analysis/displayconversion.cpp" // compiled once for each processor type
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "analysis/displayconversion.h"
#include "base/prefetch.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <new>

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

#if HWY_HAVE_FLOAT64 && HWY_TARGET != HWY_SCALAR
/// Levels 0..255 of as many bins as there are doubles in a vector.
template <class Integers, class Bins>
hn::Vec<Integers> levelLanes(Integers integers, Bins bins, double scale)
{
    const hn::ScalableTag<double> doubles;
    const auto scaled = hn::Mul(hn::PromoteTo(doubles, bins), hn::Set(doubles, scale));
    return hn::DemoteTo(integers, hn::Min(scaled, hn::Set(doubles, 255.0)));
}
#endif

/// Levels of `count` samples whose bins are below 2^31 and whose scale is a number from 0 on, by
/// the formula. Returns the highest bin: one without a level means that the levels do not hold.
uint formulaLevels(const uint* samples, qint64 count, uint min, double scale, uchar* out)
{
    uint highestBin = 0;
    qint64 i = 0;
#if HWY_HAVE_FLOAT64 && HWY_TARGET != HWY_SCALAR
    const hn::ScalableTag<uint> words;
    const hn::Rebind<int, decltype(words)> integers;
    const hn::Half<decltype(integers)> half;
    const hn::Rebind<uchar, decltype(words)> bytes;
    const auto step = qint64(hn::Lanes(words));
    auto highest = hn::Zero(words);
    for (; i + step <= count; i += step) {
        prefetchAhead(samples + i);
        const auto bins = hn::Sub(hn::LoadU(words, samples + i), hn::Set(words, min));
        highest = hn::Max(highest, bins);
        const auto signedBins = hn::BitCast(integers, bins);
        const auto lower = levelLanes(half, hn::LowerHalf(half, signedBins), scale);
        const auto upper = levelLanes(half, hn::UpperHalf(half, signedBins), scale);
        const auto levels = hn::BitCast(words, hn::Combine(integers, upper, lower));
        hn::StoreU(hn::TruncateTo(bytes, levels), bytes, out + i);
    }
    HWY_ALIGN uint highestBins[HWY_MAX_BYTES / sizeof(uint)];
    hn::Store(highest, words, highestBins);
    highestBin = *std::max_element(highestBins, highestBins + step);
#endif
    for (; i < count; ++i) {
        const uint bin = samples[i] - min;
        highestBin = std::max(highestBin, bin);
        out[i] = displayLevel(bin, scale);
    }
    return highestBin;
}

} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace {

HWY_EXPORT(formulaLevels);

/// With fewer samples than this a table with an entry for each pair of bytes, or for each value of
/// 16 bits, is not worth filling.
constexpr qint64 fewestSamplesForTables = 65536 * 4;

/// Samples converted at a time where their levels are found first; those stay in the cache.
constexpr qint64 chunkSamples = 4096;

/// Colours as numbers whose lowest byte is red.
using ColorWords = std::array<quint32, 256>;

ColorWords colorWords(const LevelColors& colors)
{
    ColorWords words;
    for (size_t i = 0; i < words.size(); ++i) {
        const PaletteEntry& color = colors[i];
        words[i] = color.red | quint32(color.green) << 8 | quint32(color.blue) << 16;
    }
    return words;
}

/// Room for a table, or null.
template <class Entry>
std::unique_ptr<Entry[]> tableOf(size_t entries)
{
    return std::unique_ptr<Entry[]>(new (std::nothrow) Entry[entries]);
}

void storeColor(quint32 word, uchar* rgb)
{
    rgb[0] = uchar(word);
    rgb[1] = uchar(word >> 8);
    rgb[2] = uchar(word >> 16);
}

/// Writes six bytes of colour and two more that the next colours overwrite.
void storeColorPair(quint32 first, quint32 second, uchar* rgb)
{
    qToLittleEndian(first | quint64(second) << 24, rgb);
}

/// Colours of `count` indices by a table of words. The wide stores end before the last colour.
template <class Index>
void storeColors(const Index* indices, qint64 count, const quint32* words, uchar* rgb)
{
    qint64 i = 0;
    for (; i + 8 < count; i += 8) {
        const Index* eight = indices + i;
        uchar* to = rgb + 3 * i;
        storeColorPair(words[eight[0]], words[eight[1]], to);
        storeColorPair(words[eight[2]], words[eight[3]], to + 6);
        storeColorPair(words[eight[4]], words[eight[5]], to + 12);
        storeColorPair(words[eight[6]], words[eight[7]], to + 18);
    }
    for (; i < count; ++i) {
        storeColor(words[indices[i]], rgb + 3 * i);
    }
}

/// Two colours for each pair of bytes as it stands in memory, in the lower six bytes.
void fillPairTable(const ColorWords& words, quint64* pairs)
{
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const uchar bytes[2] = { uchar(first), uchar(second) };
            quint16 pair;
            std::memcpy(&pair, bytes, sizeof(pair));
            pairs[pair] = words[size_t(first)] | quint64(words[size_t(second)]) << 24;
        }
    }
}

/// Colours of bytes. For many of them two bytes are looked up at a time.
class ByteColors
{
public:
    ByteColors(const ColorWords& words, qint64 count)
        : m_words(words)
    {
        if (count >= fewestSamplesForTables) {
            m_pairs = tableOf<quint64>(65536);
        }
        if (m_pairs) {
            fillPairTable(words, m_pairs.get());
        }
    }

    void store(const uchar* bytes, qint64 count, uchar* rgb) const
    {
        const qint64 paired = m_pairs ? storePairs(bytes, count, rgb) : 0;
        storeColors(bytes + paired, count - paired, m_words.data(), rgb + 3 * paired);
    }

private:
    /// Leaves some bytes at the end, and returns how many are done.
    qint64 storePairs(const uchar* bytes, qint64 count, uchar* rgb) const
    {
        const quint64* const pairs = m_pairs.get();
        qint64 i = 0;
        for (; i + 8 < count; i += 8) {
            for (int k = 0; k < 8; k += 2) {
                quint16 pair;
                std::memcpy(&pair, bytes + i + k, sizeof(pair));
                qToLittleEndian(pairs[pair], rgb + 3 * (i + k));
            }
        }
        return i;
    }

    ColorWords m_words;
    std::unique_ptr<quint64[]> m_pairs;
};

/// A check of the map reads this many bins in the time of one lookup that misses the cache.
constexpr qint64 binsCheckedPerLookup = 128;

/// Whether the levels of `count` samples may come from the formula: it must suit the vectors, and
/// the map, which anybody may have written into, must still hold what the formula gives. A map that
/// takes longer to check than its lookups do is not checked.
bool formulaApplies(qint64 count, const DisplayLevels& levels)
{
    if (!(levels.scale >= 0.0) || !std::isfinite(levels.scale) || levels.binCount > 0x80000000u) {
        return false;
    }
    return !levels.map
        || (levels.binCount / binsCheckedPerLookup <= count
            && holdsDisplayLevels(levels.scale, levels.map, levels.binCount));
}

/// Levels of `count` samples. The formula is faster than a map that fits into no cache, and gives
/// the same levels where it applies.
void storeLevels(
    const uint* samples, qint64 count, const DisplayLevels& levels, bool byFormula, uchar* out)
{
    if (byFormula) {
        const uint highest
            = HWY_DYNAMIC_DISPATCH(formulaLevels)(samples, count, levels.min, levels.scale, out);
        if (highest < levels.binCount) {
            return;
        }
    }
    for (qint64 i = 0; i < count; ++i) {
        out[i] = levels.level(samples[i]);
    }
}

} // namespace

template <>
void convertToRgb(const uchar* samples, qint64 count, const DisplayLevels& levels,
    const LevelColors& colors, uchar* rgb)
{
    const ColorWords byLevel = colorWords(colors);
    ColorWords words;
    for (size_t value = 0; value < words.size(); ++value) {
        words[value] = byLevel[levels.level(uint(value))];
    }
    ByteColors(words, count).store(samples, count, rgb);
}

template <>
void convertToRgb(const ushort* samples, qint64 count, const DisplayLevels& levels,
    const LevelColors& colors, uchar* rgb)
{
    const ColorWords byLevel = colorWords(colors);
    const auto words = count >= fewestSamplesForTables ? tableOf<quint32>(65536) : nullptr;
    if (words) {
        for (uint value = 0; value < 65536; ++value) {
            words[value] = byLevel[levels.level(value)];
        }
        storeColors(samples, count, words.get(), rgb);
        return;
    }
    for (qint64 i = 0; i < count; ++i) {
        storeColor(byLevel[levels.level(samples[i])], rgb + 3 * i);
    }
}

template <>
void convertToRgb(const uint* samples, qint64 count, const DisplayLevels& levels,
    const LevelColors& colors, uchar* rgb)
{
    const ByteColors byLevel(colorWords(colors), count);
    const bool byFormula = formulaApplies(count, levels);
    std::array<uchar, chunkSamples> chunk;
    for (qint64 first = 0; first < count; first += chunkSamples) {
        const qint64 length = std::min(chunkSamples, count - first);
        storeLevels(samples + first, length, levels, byFormula, chunk.data());
        byLevel.store(chunk.data(), length, rgb + 3 * first);
    }
}

#endif
