#pragma once

#include "analysis/samplecounts.h"
#include "image/pixelmemory.h"

/// Counts of every value that a sample of 8 or 16 bits can have, made in one pass over many
/// samples: smallest and largest value need no pass of their own. Exists for uchar and ushort.
template <class Sample>
class ValueCounts
{
public:
    /// Counts `count` samples.
    ValueCounts(const Sample* samples, qint64 count);

    /// False, with nothing counted, for so few samples that the tables would cost more than they
    /// save, and without memory for the tables.
    bool isComplete() const { return m_tables.data(); }

    /// Smallest and largest value counted.
    SampleRange range() const;

    /// Counts of the values from `value` on.
    const uint* from(uint value) const { return counts() + value; }

private:
    uint* counts() const { return reinterpret_cast<uint*>(m_tables.data()); }

    PixelMemory m_tables;
};
