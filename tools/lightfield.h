#pragma once

#include "rawframe.h"

#include <vector>

/// What falls onto a synthetic sensor: the mean signal of every pixel in counts, rows top first.
struct LightField
{
    LightField(int columns, int rows, double background);

    double& at(int x, int y)
    {
        return counts[std::size_t(y) * std::size_t(width) + std::size_t(x)];
    }

    /// Adds a round spot with a Gaussian profile; `sigma` in pixels. Parts outside are cut off.
    void addSpot(double x, double y, double peak, double sigma);

    int width;
    int height;
    std::vector<double> counts;
};

/// How a synthetic sensor turns light into numbers.
struct Sensor
{
    double darkOffset = 0.0; ///< counts without light
    double readNoise = 0.0; ///< standard deviation without light, in counts
    double noisePerCount = 0.0; ///< variance that each count of signal adds
    quint32 fullScale = 255; ///< largest value the converter gives
    int bytesPerChannel = 1; ///< 1, 2 or 4
    quint32 seed = 1; ///< the same seed gives the same frame
};

/// The frame that the sensor reads: noise added, rounded, limited to 0 .. fullScale.
RawFrame exposed(const LightField& light, const Sensor& sensor);

/// Writes sample number `index` of a frame of grey or interleaved samples.
void setSample(RawFrame* frame, int index, quint32 value);

/// Sample number `index` of a frame whose samples have 1, 2 or 4 bytes.
quint32 sampleAt(const RawFrame& frame, int index);
