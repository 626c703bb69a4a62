#pragma once

#include "image/imageloadbase.h"

/// Reads the common image formats through OpenCV, with the depth and the channels of the file.
/// Signed and floating-point samples arrive as their bit patterns; an image of 64-bit samples
/// loads as zeros.
class ImageLoadCv : public ImageLoadBase
{
public:
    bool load(ImageData* image) override;
};
