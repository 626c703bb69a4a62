#pragma once

#include "image/reading.h"

#include <QtGlobal>

class QIODevice;

/// What the header of an image file says about one image in it, before anything is decoded.
struct ImageHeader
{
    qint64 width = 0; ///< pixels, at least 1 when the header is sound
    qint64 height = 0;
    int bitsPerSample = 0; ///< as stored; 8 for every bitmap and palette
    int channels = 0; ///< values a pixel, alpha included; a palette's index is one
    SampleKind sampleKind = SampleKind::Unsigned;
    int pageCount = 1; ///< pages of the file; more than one in TIFF files only
    bool isSound = false; ///< false: damaged, cut short, or none of the known formats
    bool isUnsupportedKind = false; ///< sound, but of a kind that decoders may refuse
    bool isMisread = false; ///< of a kind that decoders accept, but show as another picture
    bool isCutShort = false; ///< some of a TIFF file's pixels stand beyond its end
    bool hasUnassociatedAlpha = false; ///< decoders may multiply it into the colors
    qint64 jpegPixels = -1; ///< where the pixels of a JPEG file start; -1: not found, or no JPEG
};

/// Reads the header of a PNG, BMP, JPEG, TIFF or BigTIFF file; the content decides, not the name.
/// `page` counts from 0 and is looked at in TIFF files only; a page that is not there is not sound,
/// pageCount tells all the same. Reads little whatever the file claims; `file` is open and may be
/// read from any place.
ImageHeader readImageHeader(QIODevice* file, int page);

/// Whether the end marker of a JPEG file stands behind its pixels; decoders make up the part that
/// is missing. True for every other format. Reads the file from its end on until the marker is
/// found.
bool holdsJpegEnd(QIODevice* file, const ImageHeader& header);
