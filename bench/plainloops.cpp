#include "plainloops.h"

#include <QFile>

#include <cstring>
#include <limits>

namespace plain {

template <class Sample>
Range range(const Sample* samples, qint64 count)
{
    uint min = std::numeric_limits<Sample>::max();
    uint max = 0;
    for (qint64 i = 0; i < count; ++i) {
        if (samples[i] < min) {
            min = samples[i];
        }
        if (samples[i] > max) {
            max = samples[i];
        }
    }
    return { min, max };
}

template <class Sample>
void histogram(const Sample* samples, qint64 count, uint min, uint* bins, uint binCount)
{
    std::memset(bins, 0, binCount * sizeof(uint));
    for (qint64 i = 0; i < count; ++i) {
        ++bins[samples[i] - min];
    }
}

void displayMap(uint min, uint max, uchar* map, uint binCount)
{
    const double scale = 255 / double(max - min);
    for (uint k = 0; k < binCount; ++k) {
        const double level = k * scale;
        map[k] = level < 255.0 ? uchar(int(level)) : uchar(255);
    }
}

template <class Sample>
void convertToRgb(const Sample* samples, qint64 count, uint min, const uchar* map,
    const uchar* colorIndex, const Color* palette, uchar* rgb)
{
    for (qint64 i = 0; i < count; ++i) {
        const Color& color = palette[colorIndex[map[samples[i] - min]]];
        rgb[3 * i] = color[0];
        rgb[3 * i + 1] = color[1];
        rgb[3 * i + 2] = color[2];
    }
}

template <class Sample>
void grayInPlace(Sample* samples, qint64 pixelCount)
{
    for (qint64 p = 0; p < pixelCount; ++p) {
        const uint c0 = samples[3 * p];
        const uint c1 = samples[3 * p + 1];
        const uint c2 = samples[3 * p + 2];
        samples[p] = Sample((15 * c0 + 75 * c1 + 38 * c2) >> 7);
    }
}

template <class Sample>
quint64 distanceSum(const Sample* samples, qint64 count, uint min)
{
    quint64 sum = 0;
    for (qint64 i = 0; i < count; ++i) {
        sum += uint(samples[i]) - min;
    }
    return sum;
}

template <class Sample>
double addSquares(const Sample* samples, qint64 count, double mean, double sum)
{
    for (qint64 i = 0; i < count; ++i) {
        const double distance = samples[i] - mean;
        sum += distance * distance;
    }
    return sum;
}

std::unique_ptr<uchar[]> rawPixels(const QString& path, qint64 byteCount)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return nullptr;
    }
    std::unique_ptr<uchar[]> pixels(new uchar[size_t(byteCount)]);
    std::memset(pixels.get(), 0, size_t(byteCount));
    file.seek(1024);
    file.read(reinterpret_cast<char*>(pixels.get()), byteCount);
    return pixels;
}

template Range range(const uchar*, qint64);
template Range range(const ushort*, qint64);
template Range range(const uint*, qint64);
template quint64 distanceSum(const uchar*, qint64, uint);
template quint64 distanceSum(const ushort*, qint64, uint);
template quint64 distanceSum(const uint*, qint64, uint);
template double addSquares(const uchar*, qint64, double, double);
template double addSquares(const ushort*, qint64, double, double);
template double addSquares(const uint*, qint64, double, double);
template void histogram(const uchar*, qint64, uint, uint*, uint);
template void histogram(const ushort*, qint64, uint, uint*, uint);
template void histogram(const uint*, qint64, uint, uint*, uint);
template void convertToRgb(
    const uchar*, qint64, uint, const uchar*, const uchar*, const Color*, uchar*);
template void convertToRgb(
    const ushort*, qint64, uint, const uchar*, const uchar*, const Color*, uchar*);
template void convertToRgb(
    const uint*, qint64, uint, const uchar*, const uchar*, const Color*, uchar*);
template void grayInPlace(uchar*, qint64);
template void grayInPlace(ushort*, qint64);
template void grayInPlace(uint*, qint64);

} // namespace plain
