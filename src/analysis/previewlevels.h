#pragma once

#include <QSize>
#include <QtGlobal>

class ImageData;

/// Small gray pictures of images whose values need not fill their range.

/// Size of a small picture of an image of `image` pixels: the same proportions, inside `bounds`,
/// never larger than the image, at least 1 x 1. Both sizes are at least 1 x 1.
QSize previewSize(const QSize& image, const QSize& bounds);

/// Writes the levels of a picture of `size` pixels, which is at most that of `image`, row by row
/// with `bytesPerLine` from one to the next. In the image's own size they are the display levels.
/// In a smaller one each level is made of the mean of the pixels under it, the smallest of these
/// means at 0 and the largest at 255. A picture without any difference is 255 throughout.
/// False, with nothing written, for an image without pixels, of several channels or of a depth
/// other than 8, 16 and 32, for an empty or a larger size, and without memory.
bool fillPreview(const ImageData& image, const QSize& size, uchar* levels, qint64 bytesPerLine);
