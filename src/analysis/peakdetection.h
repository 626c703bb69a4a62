#pragma once

#include <QPointF>
#include <QVector>
#include <QtGlobal>

/// A peak of a profile, and where its label stands.
struct Peak
{
    int index = 0; ///< of the sample
    int link = -1; ///< place in the list of the peak whose label this one is stacked upon; -1: none
    int value = 0; ///< of the sample, 0..255
    QPointF label { -1.0, -1.0 }; ///< left end of the label's baseline, once it is laid out
};

/// Once this many peaks are held, no further level of the ranking is collected.
constexpr int peakCapacity = 200;

struct DetectedPeaks
{
    int scale = 0; ///< the scale that shows most local maxima; 0 when none shows any
    int rowSum = 0; ///< minus their number
    QVector<Peak> peaks; ///< best first; empty: there was no memory to find them
};

/// Finds and ranks the peaks of `count` >= 1 samples.
///
/// Automatic multiscale peak detection after F. Scholkmann, J. Boss and M. Wolf, "An Efficient
/// Algorithm for Automatic Peak Detection in Noisy Physiological and Quasi-Periodic Signals",
/// Algorithms 5 (4), 588-603, 2012: sample i is a local maximum at scale k when it is larger than
/// both samples k away, and the scale with most of them, the smallest of several, is the one up to
/// which scales count. This system differs in three points: the profile is not detrended; maxima
/// are counted as they are, without the method's random numbers; and a peak need not be a maximum
/// at every scale. Peaks are ranked by the number of scales, 1 to the chosen one, at which they are
/// maxima, and among equals by value, largest first. The list holds whole ranks, so it may end
/// beyond peakCapacity. Deliberate: a profile without any local maximum, flat or monotonic, has
/// scale 0, and every sample counts as a peak.
DetectedPeaks detectPeaks(const uchar* samples, int count);
