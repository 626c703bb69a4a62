#pragma once

#include <QImage>
#include <QSize>
#include <QVector>

/// Small pictures of frames whose samples need not fill their range: plain arithmetic.

/// Samples in memory, interleaved, rows top first, in the byte order of the machine.
struct SampleFrame
{
    const uchar* bytes = nullptr; ///< aligned to a sample; not owned
    int width = 0; ///< pixels, as the height
    int height = 0;
    qint64 bytesPerLine = 0;
    int channels = 1;
    int bytesPerChannel = 1; ///< 1, 2 or 4; nothing is made of others
    QVector<int> shown { 0 }; ///< the one channel shown as grey, or those of red, green and blue
};

/// Size of a small picture of an image of `image` pixels: the same aspect, inside `bounds`, never
/// larger than the image, at least 1 x 1. Both sizes are at least 1 x 1.
QSize thumbnailSize(const QSize& image, const QSize& bounds);

/// Each pixel is the mean of the samples under it. The smallest of these means is shown black and
/// the largest white, the same for all channels; a frame without any difference is middle grey.
/// `size` is at most that of the frame. Null where the frame holds nothing or nothing known.
QImage stretchedThumbnail(const SampleFrame& frame, const QSize& size);
