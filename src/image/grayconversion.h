#pragma once

#include <QtGlobal>

/// Replaces `pixelCount` pixels of three channels by one grey value each, in place:
/// g = (15 c0 + 75 c1 + 38 c2) >> 7 in unsigned 32-bit arithmetic, written from the start of
/// `samples`; what lies behind the last grey value stays. With channels in the order blue, green,
/// red the weights are 15/128, 75/128 and 38/128.
/// Exists for uchar, ushort and uint samples.
template <class Sample>
void grayInPlace(Sample* samples, qint64 pixelCount);

/// Gray value of one pixel of blue, green and red numbers from 0 to 2^32 - 1, without any wrap.
template <class Sample>
uint exactGray(const Sample* pixel)
{
    return uint((quint64(pixel[0]) * 15 + quint64(pixel[1]) * 75 + quint64(pixel[2]) * 38) >> 7);
}

/// The same as grayInPlace() for samples of 32 bits, without its wrap modulo 2^32.
inline void exactGrayInPlace(uint* samples, qint64 pixelCount)
{
    for (qint64 i = 0; i < pixelCount; ++i) {
        samples[i] = exactGray(samples + 3 * i);
    }
}
