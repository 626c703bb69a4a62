// The module of the codecs, which the program loads when it needs them.

#include "image/imageloadcv.h"

#include <QtGlobal>

extern "C" Q_DECL_EXPORT ImageLoadBase* vkmeasureCreateLoader();

/// The caller owns the loader.
ImageLoadBase* vkmeasureCreateLoader()
{
    return new ImageLoadCv;
}
