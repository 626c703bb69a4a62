#pragma once

#include <QtGlobal>

/// Range and histogram counts of samples; each exists for uchar, ushort and uint.

/// Smallest and largest value. Without a sample they stand turned round: the largest value of the
/// sample type and 0.
struct SampleRange
{
    uint min = 0;
    uint max = 0;
};

/// Range of `count` samples; a count below 1 has none.
template <class Sample>
SampleRange sampleRange(const Sample* samples, qint64 count);

/// Adds 1 to bins[v - min] for each of `count` samples v. A value without a bin is not counted.
template <class Sample>
void addSampleCounts(const Sample* samples, qint64 count, uint min, uint* bins, uint binCount);

/// Same without the test, for samples of which sampleRange() has just given `min` and whose largest
/// value has a bin.
void addCountsFromMin(const uint* samples, qint64 count, uint min, uint* bins);
