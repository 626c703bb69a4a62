#pragma once

#include "image/imagedata.h"

#include <cstring>
#include <vector>

/// Makes `image` a grey image of the given samples, row by row; the sample type gives the depth.
/// False when the samples do not fill it.
template <class Sample>
bool setGrayImage(ImageData& image, int width, int height, const std::vector<Sample>& samples)
{
    const size_t bytes = samples.size() * sizeof(Sample);
    if (!image.allocate(width, height, int(sizeof(Sample)) * 8, 1)
        || image.allocatedBytes() != bytes) {
        return false;
    }
    std::memcpy(image.data, samples.data(), bytes);
    return true;
}
