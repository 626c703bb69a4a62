#pragma once

#include "image/imageloadbase.h"

/// Reads the camera's raw format; rawheader.h describes it. A file that is shorter than its header
/// promises loads, with zeros for what is missing.
///
/// As stored: also without width or height, and with numbers of channels and depths that nothing
/// processes. Faithful: one to four channels of 8, 16 or 32 bits, the last of two or four dropped
/// as alpha; a file whose header claims more than 256 MiB of pixels that it does not hold is
/// refused, since a few bytes could otherwise ask for gigabytes.
class ImageLoadVk : public ImageLoadBase
{
public:
    bool load(ImageData* image) override;
};
