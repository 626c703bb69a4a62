#pragma once

#include "analysis/roirows.h"
#include "analysis/samplecounts.h"

/// Statistics over the samples of a region; each exists for uchar, ushort and uint samples.
/// Samples outside the allocation are left out of the sums, while the division is by rows x columns
/// as the corners give them: a region without pixels has a mean and a deviation that are no number.

/// Smallest and largest value; turned round (the largest value of the sample type and 0) when there
/// is no sample.
template <class Sample>
SampleRange roiRange(const Sample* samples, const RoiRows& rows);

/// Mean value. `min` is a value no larger than any sample: it is subtracted before summing.
template <class Sample>
double roiMean(const Sample* samples, const RoiRows& rows, uint min);

/// Square root of the mean squared distance from `mean`, summed row by row.
template <class Sample>
double roiDeviation(const Sample* samples, const RoiRows& rows, double mean);
