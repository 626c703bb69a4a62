#include "analysis/profilenumbers.h"

#include "analysis/peakdetection.h"

#include <algorithm>

ValueRange wavelengthRange(double start, double pixelWidth, int pixels)
{
    return { start, start + pixels * pixelWidth };
}

ProfileScale profileScale(const ValueRange& range, int pixels, bool isColumn)
{
    ProfileScale scale;
    scale.pixels = pixels;
    scale.isColumn = isColumn;
    if (range.isCalibrated() && pixels > 0) {
        scale.isCalibrated = true;
        scale.start = range.start;
        scale.step = (range.end - range.start) / double(pixels);
    }
    return scale;
}

QVector<int> rankedPeaks(QVector<uchar> levels, bool isColumn, int count)
{
    if (levels.isEmpty() || count < 1) {
        return {};
    }
    if (isColumn) {
        std::reverse(levels.begin(), levels.end()); // equal peaks rank as in the chart
    }
    const int length = int(levels.size());
    const DetectedPeaks detected = detectPeaks(levels.constData(), length);
    QVector<int> pixels;
    for (int i = 0; i < std::min({ count, peakCapacity, int(detected.peaks.size()) }); ++i) {
        const int index = detected.peaks.at(i).index;
        pixels.append(isColumn ? length - 1 - index : index);
    }
    return pixels;
}
