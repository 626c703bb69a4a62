#pragma once

#include "image/imagedata.h"

#include <QString>

/// What the pixels of a measured image look like.
enum class FrameKind {
    Camera, ///< dark offset with Gaussian noise, and spectral lines over the whole range
    Random ///< every value of the range alike, in no order
};

struct Frame
{
    FrameKind kind;
    int width;
    int height;
    uint largest; ///< largest sample value
    int channels = 1;
};

/// A record with the pixels of `frame`, the same ones each time; made at its first use and kept.
template <class Sample>
ImageData& frameRecord(const Frame& frame);

template <class Sample>
Sample* samplesOf(const ImageData& image)
{
    return reinterpret_cast<Sample*>(image.data);
}

/// Takes `byteCount` bytes, touches them and gives them back. A virtual machine returns memory that
/// is free for a while to its host, and whoever gets it next pays for that; called before a loop
/// that takes new memory, this keeps the host out of both sides of a pair.
void warmMemory(size_t byteCount);

/// The raw file of the one frame of 16 bits a sample that is measured from file on, in a folder
/// that goes with the program; written at the first call.
QString rawFilePath(const Frame& frame);
