#pragma once

#include "image/reading.h"

class ImageData;

/// A frame in memory, not owned: rows top first, samples of 16 and 32 bits in host byte
/// order, three channels as blue, green, red.
struct FrameView
{
    const void* samples = nullptr;
    int width = 0; ///< pixels
    int height = 0;
    int channels = 1; ///< 1 or 3
    int bytesPerSample = 1; ///< 1, 2 or 4
    qint64 bytesPerLine = 0; ///< from row to row; 0: rows without padding
};

/// Replaces the image by a copy of the frame, with its channels; with faithful reading three
/// channels of 32 bits become one, since the record's own reduction to gray wraps modulo 2^32.
/// The options' page is ignored. Refused, with the image as it was, are a frame that
/// makes no sense (BadFrame), one over the pixel limit, and one that no record can hold (TooLarge).
LoadProblem copyFrame(const FrameView& frame, const ReadOptions& options, ImageData* image);

/// Overwrites the pixels of a one-channel image with those of a frame of its size and depth, three
/// channels reduced to gray values. Refuses the same frames as copyFrame(), and, as BadFrame, any
/// other size or depth.
LoadProblem overwriteWithFrame(
    const FrameView& frame, const ReadOptions& options, ImageData* image);
