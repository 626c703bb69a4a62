#pragma once

#include "image/imageloadbase.h"

/// Reads the common image formats through OpenCV.
///
/// As stored: with the depth and the channels of the file. Signed and floating-point samples arrive
/// as their bit patterns; an image of 64-bit samples loads as zeros.
///
/// Faithful: with the numbers that the file holds, or not at all. Samples of 10, 12 and 14 bits,
/// which OpenCV moves to the upper end of 16 bits, get their own values back. TIFF kinds that
/// OpenCV takes for others (separate planes, 16-bit gray with alpha and more) are refused, as are
/// TIFF files that do not hold all of their pixels.
class ImageLoadCv : public ImageLoadBase
{
public:
    bool load(ImageData* image) override;
};
