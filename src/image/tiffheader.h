#pragma once

#include <QtGlobal>

#include <optional>

class QIODevice;

/// What the directory of one page of a TIFF or BigTIFF file says, before anything is decoded.
/// Numbers are those of the format's fields of the same names.
struct TiffPage
{
    quint64 width = 0; ///< at least 1, as the height
    quint64 height = 0;
    quint64 bitsPerSample = 1;
    quint64 samplesPerPixel = 1;
    quint64 compression = 1;
    quint64 photometric = 0;
    quint64 planarConfiguration = 1;
    quint64 sampleFormat = 1;
    quint64 extraSamples = 0;
    bool isCutShort = false; ///< pixel data stands beyond the end of the file
};

constexpr quint64 tiffMinIsBlack = 1;
constexpr quint64 tiffRgb = 2;
constexpr quint64 tiffPalette = 3;
constexpr quint64 tiffLogL = 32844;
constexpr quint64 tiffLogLuv = 32845;
constexpr quint64 tiffContiguous = 1;
constexpr quint64 tiffSignedFormat = 2;
constexpr quint64 tiffFloatFormat = 3;
constexpr quint64 tiffUnassociatedAlpha = 2;

/// Pages of the file, 65535 at most; 0 when the content is no TIFF file. A chain of pages that
/// comes back to one of them ends there.
int tiffPageCount(QIODevice* file);

/// Reads the directory of page `page`, from 0. Of a field that is there twice the larger value
/// counts, whichever the decoder takes. Nothing where there is no such page or its directory is
/// cut short, has more than 65535 entries, names no size, or gives a number in another type than
/// an unsigned one.
std::optional<TiffPage> readTiffPage(QIODevice* file, int page);
