#pragma once

#include "base/pixelmemory.h"

#include <QtGlobal>

/// The image in memory: rows packed without padding, top row first, the channels of a pixel side by
/// side (blue, green, red for colour), samples of 16 and 32 bits in host byte order.
///
/// The fields describe the pixels and are written by the operations below. `data` belongs to the
/// record. Sizes never exceed a 32-bit int: what does not fit is refused.
class ImageData
{
public:
    ImageData() = default;
    virtual ~ImageData();
    ImageData(const ImageData&) = delete;
    ImageData& operator=(const ImageData&) = delete;

    int width = 0; ///< pixels per row
    int height = 0; ///< rows
    int bitDepth = 8; ///< bits per channel value; pixel operations exist for 8, 16 and 32
    int pixelCount = 0; ///< width x height
    int dataSize = 0; ///< bytes that hold the image: bytesPerLine x height
    int channels = 1; ///< values per pixel
    int bytesPerLine = 0;
    int bytesPerChannel = 1; ///< bitDepth / 8
    uchar* data = nullptr; ///< the pixels; set, though empty, for an image without width or height

    /// Pixels and a size of at least one byte are there; every reader asks exactly this.
    bool isLoaded() const { return data && dataSize >= 1; }

    /// Replaces the image by one of zeros. False with nothing changed when an argument is negative,
    /// when pixel count, line length or data size exceed an int, or without memory. An image
    /// without width or height is always accepted; a line length beyond an int then wraps.
    bool allocate(int width, int height, int bitDepth, int channels);

    /// Same as allocate() for a loader that writes the first `fillBytes` bytes itself: these hold
    /// anything until then, all bytes behind them are zero.
    bool allocateForFill(int width, int height, int bitDepth, int channels, size_t fillBytes);

    /// Back to no image: pixels gone, width, height, pixelCount and dataSize 0, the other fields as
    /// they were. The memory is kept for the next image of the same size.
    void release();

    /// Bytes asked for by the last allocation; 0 without pixels. Every sample index is tested
    /// against this, not against dataSize, which shrinks in the grey conversion.
    size_t allocatedBytes() const { return data ? m_memory.size() : 0; }

    /// Sample number width x y + x of a one-channel image of depth 8, 16 or 32 (this one as a
    /// signed number). There is no test against the row length: x = width is the next row's first
    /// pixel. Outside the allocation, and for any other image, 0.
    int pixelValue(int x, int y) const;

    /// Reduces a three-channel image to one channel in place; any other image stays as it is.
    /// The pixels of a depth other than 8, 16 and 32 stay, only the fields change.
    void convertToGray();

private:
    PixelMemory m_memory;
};
