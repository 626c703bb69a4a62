#pragma once

#include <QString>
#include <QtGlobal>

#include <array>
#include <memory>

/// The library's formulas as plainly as they can be written: one scalar loop a pass, no tables
/// beyond those the formulas name. The benchmarks measure against them, and the tests take their
/// results as the truth for every bit.
///
/// Each loop over samples exists for uchar, ushort and uint.
namespace plain {

/// Red, green and blue.
using Color = std::array<uchar, 3>;

struct Range
{
    uint min;
    uint max;
};

/// Turned round (largest value of the sample type, 0) without samples.
template <class Sample>
Range range(const Sample* samples, qint64 count);

/// Zeroes `binCount` bins and counts every sample into bin v - min; each sample has a bin.
template <class Sample>
void histogram(const Sample* samples, qint64 count, uint min, uint* bins, uint binCount);

/// Levels of `binCount` bins between min and max, spread over 0..255.
void displayMap(uint min, uint max, uchar* map, uint binCount);

/// Colours of the samples through map, colorIndex (256 entries) and palette (256 entries).
template <class Sample>
void convertToRgb(const Sample* samples, qint64 count, uint min, const uchar* map,
    const uchar* colorIndex, const Color* palette, uchar* rgb);

/// Three channels to one, in place.
template <class Sample>
void grayInPlace(Sample* samples, qint64 pixelCount);

/// Sum of the distances from `min`, over `count` samples.
template <class Sample>
quint64 distanceSum(const Sample* samples, qint64 count, uint min);

/// Sum of the squared distances from `mean`, added to `sum` one after the other.
template <class Sample>
double addSquares(const Sample* samples, qint64 count, double mean, double sum);

/// New memory, zeroed, then `byteCount` bytes of the file from offset 1024 on; null when the file
/// cannot be opened.
std::unique_ptr<uchar[]> rawPixels(const QString& path, qint64 byteCount);

} // namespace plain
