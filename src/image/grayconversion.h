#pragma once

#include <QtGlobal>

/// Replaces `pixelCount` pixels of three channels by one grey value each, in place:
/// g = (15 c0 + 75 c1 + 38 c2) >> 7 in unsigned 32-bit arithmetic, written from the start of
/// `samples`; what lies behind the last grey value stays. With channels in the order blue, green,
/// red the weights are 15/128, 75/128 and 38/128.
/// Exists for uchar, ushort and uint samples.
template <class Sample>
void grayInPlace(Sample* samples, qint64 pixelCount);
