#include "analysis/roistatistics.h"

#include <cmath>
#include <limits>

template <class Sample>
SampleRange roiRange(const Sample* samples, const RoiRows& rows)
{
    SampleRange range { std::numeric_limits<Sample>::max(), 0 };
    rows.forEach([&](qint64 first, qint64 count) {
        const SampleRange row = sampleRange(samples + first, count);
        range.min = std::min(range.min, row.min);
        range.max = std::max(range.max, row.max);
    });
    return range;
}

template <class Sample>
double roiMean(const Sample* samples, const RoiRows& rows, uint min)
{
    quint64 sum = 0;
    rows.forEach([&](qint64 first, qint64 count) {
        for (qint64 i = first; i < first + count; ++i) {
            sum += uint(samples[i]) - min;
        }
    });
    return double(qint64(sum)) / double(rows.pixelCount()) + min;
}

template <class Sample>
double roiDeviation(const Sample* samples, const RoiRows& rows, double mean)
{
    double sum = 0.0; // one sum in the order of the pixels: any other order changes its last bits
    rows.forEach([&](qint64 first, qint64 count) {
        for (qint64 i = first; i < first + count; ++i) {
            const double distance = samples[i] - mean;
            sum += distance * distance;
        }
    });
    return std::sqrt(sum / double(rows.pixelCount()));
}

template SampleRange roiRange(const uchar*, const RoiRows&);
template SampleRange roiRange(const ushort*, const RoiRows&);
template SampleRange roiRange(const uint*, const RoiRows&);
template double roiMean(const uchar*, const RoiRows&, uint);
template double roiMean(const ushort*, const RoiRows&, uint);
template double roiMean(const uint*, const RoiRows&, uint);
template double roiDeviation(const uchar*, const RoiRows&, double);
template double roiDeviation(const ushort*, const RoiRows&, double);
template double roiDeviation(const uint*, const RoiRows&, double);
