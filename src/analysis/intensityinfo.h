#pragma once

#include <QRect>
#include <QtGlobal>

/// Statistics of one region of interest.
struct IntensityInfo
{
    QRect rect; ///< the region in image pixels, inclusive corners
    int imageWidth = 0; ///< pixels of the whole image
    int imageHeight = 0;
    uint min = 0; ///< smallest value inside
    uint max = 0; ///< largest value inside
    double mean = 0.0;
    double signalToNoise = 0.0; ///< mean / standardDeviation
    double standardDeviation = 0.0; ///< of the population: divided by N, not by N - 1
};
