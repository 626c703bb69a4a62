#pragma once

#include "image/imageloadbase.h"

/// Reads the camera's raw format; rawheader.h describes it. A file that is shorter than its header
/// promises loads, with zeros for what is missing, and so does one without width or height.
class ImageLoadVk : public ImageLoadBase
{
public:
    bool load(ImageData* image) override;
};
