#pragma once

#include <QtGlobal>

#include <vector>

namespace plain {

/// A peak found by the plain detection.
struct Peak
{
    int index;
    int value;
};

struct Peaks
{
    int scale;
    int rowSum;
    std::vector<Peak> peaks; ///< best first; equal values of a level by rising index
};

/// Automatic multiscale peak detection as plainly as it can be written: two nested loops over
/// scales and samples, and one pass over the samples for each level of the ranking.
Peaks detectPeaks(const uchar* samples, int count);

} // namespace plain
