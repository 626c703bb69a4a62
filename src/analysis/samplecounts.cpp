#include "analysis/samplecounts.h"

#include <limits>

template <class Sample>
SampleRange sampleRange(const Sample* samples, qint64 count)
{
    Sample min = std::numeric_limits<Sample>::max();
    Sample max = 0;
    for (qint64 i = 0; i < count; ++i) {
        const Sample value = samples[i];
        min = value < min ? value : min;
        max = value > max ? value : max;
    }
    return { min, max };
}

template <class Sample>
void addSampleCounts(const Sample* samples, qint64 count, uint min, uint* bins, uint binCount)
{
    for (qint64 i = 0; i < count; ++i) {
        const uint bin = uint(samples[i]) - min;
        if (bin < binCount) {
            ++bins[bin];
        }
    }
}

template SampleRange sampleRange(const uchar*, qint64);
template SampleRange sampleRange(const ushort*, qint64);
template SampleRange sampleRange(const uint*, qint64);
template void addSampleCounts(const uchar*, qint64, uint, uint*, uint);
template void addSampleCounts(const ushort*, qint64, uint, uint*, uint);
template void addSampleCounts(const uint*, qint64, uint, uint*, uint);
