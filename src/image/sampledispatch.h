#pragma once

#include "image/imagedata.h"

#include <type_traits>

/// Pointer to the samples of an image that may be const.
template <class Image, class Sample>
using SamplePointer = std::conditional_t<std::is_const_v<Image>, const Sample*, Sample*>;

/// Calls `loop` with the image's pixels as uchar, ushort or uint samples, as the bit depth says;
/// const samples for a const image. False when there is no such depth: nothing runs then.
/// The pointer is null for an image without pixels.
template <class Image, class Loop>
bool forSampleWidth(Image& image, Loop loop)
{
    static_assert(std::is_same_v<std::remove_const_t<Image>, ImageData>);
    switch (image.bitDepth) {
    case 8: loop(reinterpret_cast<SamplePointer<Image, uchar>>(image.data)); return true;
    case 16: loop(reinterpret_cast<SamplePointer<Image, ushort>>(image.data)); return true;
    case 32: loop(reinterpret_cast<SamplePointer<Image, uint>>(image.data)); return true;
    }
    return false; // any other depth: nothing runs
}
