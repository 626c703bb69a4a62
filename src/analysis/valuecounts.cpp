#include "analysis/valuecounts.h"

#include "base/prefetch.h"

#include <algorithm>
#include <cstring>
#include <functional>

namespace {

/// Neighbours are counted in tables of their own, or the processor would wait for its last store
/// wherever they are alike. More than two tables crowd each other out of the cache where the values
/// spread over the whole type.
constexpr int tableCount = 2;

constexpr int wordValues = 65536;

/// Entries from one table to the next. Not a multiple of 4096 bytes: stores to addresses whose last
/// twelve bits agree are taken for one another.
constexpr int tableStride = wordValues + 256;

/// With fewer samples than this the tables are not worth clearing.
constexpr qint64 fewestSamples = wordValues * 4;

/// The word of 16 bits at `bytes`, as it stands in memory.
uint wordAt(const uchar* bytes)
{
    quint16 word;
    std::memcpy(&word, bytes, sizeof(word));
    return word;
}

void countFour(const uchar* bytes, uint* tables)
{
    ++tables[wordAt(bytes)];
    ++tables[tableStride + wordAt(bytes + 2)];
    ++tables[wordAt(bytes + 4)];
    ++tables[tableStride + wordAt(bytes + 6)];
}

/// Counts the words of 16 bits that `bytes` consists of, a cache line at a time.
void countWords(const uchar* bytes, qint64 wordCount, uint* tables)
{
    qint64 word = 0;
    for (; word + 32 <= wordCount; word += 32) {
        const uchar* line = bytes + 2 * word;
        prefetchAhead(line);
        countFour(line, tables);
        countFour(line + 8, tables);
        countFour(line + 16, tables);
        countFour(line + 24, tables);
        countFour(line + 32, tables);
        countFour(line + 40, tables);
        countFour(line + 48, tables);
        countFour(line + 56, tables);
    }
    for (; word < wordCount; ++word) {
        ++tables[wordAt(bytes + 2 * word)];
    }
}

/// Adds the second table to the first one.
void addTables(uint* tables)
{
    for (int value = 0; value < wordValues; ++value) {
        tables[value] += tables[value + tableStride];
    }
}

/// Turns counts of byte pairs into counts of bytes; which byte of a pair came first is all one.
void splitPairs(uint* counts)
{
    uint bytes[256] = {};
    for (int pair = 0; pair < wordValues; ++pair) {
        bytes[pair & 0xff] += counts[pair];
        bytes[pair >> 8] += counts[pair];
    }
    std::memcpy(counts, bytes, sizeof(bytes));
}

} // namespace

template <class Sample>
ValueCounts<Sample>::ValueCounts(const Sample* samples, qint64 count)
{
    if (takeTables(count)) {
        add(samples, count);
        finish();
    }
}

template <class Sample>
ValueCounts<Sample>::ValueCounts(const Sample* samples, const RoiRows& rows)
{
    qint64 sampleCount = 0;
    rows.forEach([&](qint64, qint64 count) { sampleCount += count; });
    if (takeTables(sampleCount)) {
        rows.forEach([&](qint64 first, qint64 count) { add(samples + first, count); });
        finish();
    }
}

template <class Sample>
bool ValueCounts<Sample>::takeTables(qint64 sampleCount)
{
    return sampleCount >= fewestSamples
        && m_tables.acquire(tableCount * tableStride * sizeof(uint));
}

template <class Sample>
void ValueCounts<Sample>::add(const Sample* samples, qint64 count)
{
    const auto* bytes = reinterpret_cast<const uchar*>(samples);
    countWords(bytes, count * qint64(sizeof(Sample)) / 2, counts());
    if constexpr (sizeof(Sample) == 1) {
        if (count % 2 != 0) {
            ++m_singles[samples[count - 1]];
        }
    }
}

template <class Sample>
void ValueCounts<Sample>::finish()
{
    addTables(counts());
    if constexpr (sizeof(Sample) == 1) {
        splitPairs(counts());
        std::transform(m_singles, m_singles + 256, counts(), counts(), std::plus<uint>());
    }
}

template <class Sample>
SampleRange ValueCounts<Sample>::range() const
{
    uint min = 0;
    while (counts()[min] == 0) {
        ++min;
    }
    uint max = valueCount - 1;
    while (counts()[max] == 0) {
        --max;
    }
    return { min, max };
}

template class ValueCounts<uchar>;
template class ValueCounts<ushort>;
