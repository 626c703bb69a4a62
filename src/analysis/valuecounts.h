#pragma once

#include "analysis/roirows.h"
#include "analysis/samplecounts.h"
#include "base/pixelmemory.h"

/// Counts of every value that a sample of 8 or 16 bits can have, made in one pass over many
/// samples: smallest and largest value need no pass of their own. Exists for uchar and ushort.
template <class Sample>
class ValueCounts
{
public:
    /// Counts `count` samples.
    ValueCounts(const Sample* samples, qint64 count);

    /// Counts the samples of a region.
    ValueCounts(const Sample* samples, const RoiRows& rows);

    /// False, with nothing counted, for so few samples that the tables would cost more than they
    /// save, and without memory for the tables.
    bool isComplete() const { return m_tables.data(); }

    /// Smallest and largest value counted.
    SampleRange range() const;

    /// How many values a sample can have, and so how many counts there are.
    static constexpr uint valueCount = 1U << 8 * sizeof(Sample);

    /// Counts of the values from `value` on; `value` is at most valueCount.
    const uint* from(uint value) const { return counts() + value; }

private:
    bool takeTables(qint64 sampleCount);
    void add(const Sample* samples, qint64 count);
    void finish();
    uint* counts() const { return reinterpret_cast<uint*>(m_tables.data()); }

    PixelMemory m_tables;
    uint m_singles[256] = {}; ///< bytes left over at the ends of runs of an odd length
};
