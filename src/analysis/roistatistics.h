#pragma once

#include "analysis/roirows.h"
#include "analysis/samplecounts.h"

/// Statistics over the samples of a region; each exists for uchar, ushort and uint samples.
/// Samples outside the allocation are left out of the sums, while the division is by rows x columns
/// as the corners give them: a region without pixels has a mean and a deviation that are no number.

/// What one pass over a region finds.
struct RoiTotals
{
    SampleRange range; ///< turned round (the type's largest value and 0) when there is no sample
    quint64 sum = 0; ///< of all samples
    qint64 sampleCount = 0; ///< those inside the allocation
};

template <class Sample>
RoiTotals roiTotals(const Sample* samples, const RoiRows& rows);

/// Mean value: that of the distances from the smallest sample, plus that sample.
double roiMean(const RoiTotals& totals, const RoiRows& rows);

/// Square root of the mean squared distance from `mean`, with the bits of one sum over all squares
/// from the first sample to the last, row by row. `range` is that of the samples.
template <class Sample>
double roiDeviation(
    const Sample* samples, const RoiRows& rows, const SampleRange& range, double mean);

/// All of the above.
struct RoiStatistics
{
    SampleRange range;
    double mean = 0.0;
    double deviation = 0.0;
};

template <class Sample>
RoiStatistics roiStatistics(const Sample* samples, const RoiRows& rows)
{
    const RoiTotals totals = roiTotals(samples, rows);
    const double mean = roiMean(totals, rows);
    return { totals.range, mean, roiDeviation(samples, rows, totals.range, mean) };
}
