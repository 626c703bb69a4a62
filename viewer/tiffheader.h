#pragma once

#include <QtGlobal>

class QIODevice;

/// What the first directory of a TIFF file says about its image, before anything is decoded.
struct TiffHeader
{
    quint32 width = 0; ///< at least 1, as the height
    quint32 height = 0;
    quint32 samplesPerPixel = 1;
    quint32 bitsPerSample = 1;
};

/// Whether the content is a TIFF file, by its first bytes.
bool isTiff(QIODevice* file);

/// Reads the first directory. Of a field that is there twice the larger value counts, whichever
/// the decoder takes. False, with nothing stored, where the directory is cut short, names no
/// size, or gives it in a type that is no unsigned number; files beyond 4 GiB are not read either.
bool readTiffHeader(QIODevice* file, TiffHeader* header);
