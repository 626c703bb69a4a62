#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "canvas/rgbwords.cpp" // compiled once for each processor type
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "canvas/rgbwords.h"

#include <QColor>

#include <cstring>

HWY_BEFORE_NAMESPACE();
namespace {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// Widens pixels as long as whole vectors are left, and returns how many are done.
int widenVectors(const uchar* rgb, int count, uchar* words)
{
    int done = 0;
#if HWY_TARGET != HWY_SCALAR && Q_BYTE_ORDER == Q_LITTLE_ENDIAN
    const hn::ScalableTag<uchar> bytes;
    const int step = int(hn::Lanes(bytes));
    const auto opaque = hn::Set(bytes, 0xff);
    for (; done + step <= count; done += step) {
        hn::Vec<decltype(bytes)> red;
        hn::Vec<decltype(bytes)> green;
        hn::Vec<decltype(bytes)> blue;
        hn::LoadInterleaved3(bytes, rgb + qint64(3) * done, red, green, blue);
        hn::StoreInterleaved4(blue, green, red, opaque, bytes, words + qint64(4) * done);
    }
#else
    Q_UNUSED(rgb)
    Q_UNUSED(count)
    Q_UNUSED(words)
#endif
    return done;
}

} // namespace HWY_NAMESPACE
} // namespace
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace {

HWY_EXPORT(widenVectors);

} // namespace

void widenToRgbWords(const uchar* rgb, int count, uchar* words)
{
    for (int i = HWY_DYNAMIC_DISPATCH(widenVectors)(rgb, count, words); i < count; ++i) {
        const uchar* const pixel = rgb + qint64(3) * i;
        const QRgb word = qRgb(pixel[0], pixel[1], pixel[2]);
        std::memcpy(words + qint64(4) * i, &word, sizeof(word));
    }
}

#endif // HWY_ONCE
