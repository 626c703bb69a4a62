#pragma once

#include "image/imageloadbase.h"

/// Loads pictures through the module of the codecs, which is loaded with the first picture: with
/// the libraries behind it, it takes longer to load than a raw file is measured. Any number of
/// them, in any threads, share the module.
class PictureLoader : public ImageLoadBase
{
public:
    bool load(ImageData* image) override;

    /// Why there is no module, as one sentence; empty unless loading it has failed.
    static QString moduleProblem();
};
