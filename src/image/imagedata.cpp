#include "image/imagedata.h"

#include "image/grayconversion.h"
#include "image/sampledispatch.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace {

struct PixelLayout
{
    int pixelCount;
    int bytesPerChannel;
    int bytesPerLine;
    int dataSize;
};

/// a x b for two numbers from 0 on; -1 when either is -1 or the product exceeds an int.
qint64 checkedProduct(qint64 a, qint64 b)
{
    if (a < 0 || b < 0) {
        return -1;
    }
    const qint64 product = a * b; // both at most an int
    return product <= std::numeric_limits<int>::max() ? product : -1;
}

/// a x b x c modulo 2^32 as an int.
int wrappedProduct(int a, int b, int c)
{
    return int(quint32(a) * quint32(b) * quint32(c));
}

std::optional<PixelLayout> pixelLayout(int width, int height, int bitDepth, int channels)
{
    if (width < 0 || height < 0 || bitDepth < 0 || channels < 0) {
        return std::nullopt;
    }
    const int bytesPerChannel = bitDepth / 8;
    if (width == 0 || height == 0) {
        return PixelLayout { 0, bytesPerChannel, wrappedProduct(bytesPerChannel, width, channels),
            0 };
    }
    const qint64 pixelCount = checkedProduct(width, height);
    const qint64 bytesPerLine = checkedProduct(checkedProduct(bytesPerChannel, width), channels);
    const qint64 dataSize = checkedProduct(bytesPerLine, height);
    if (pixelCount < 0 || dataSize < 0) {
        return std::nullopt;
    }
    return PixelLayout { int(pixelCount), bytesPerChannel, int(bytesPerLine), int(dataSize) };
}

} // namespace

ImageData::~ImageData() = default;

bool ImageData::allocate(int newWidth, int newHeight, int newBitDepth, int newChannels)
{
    return allocateForFill(newWidth, newHeight, newBitDepth, newChannels, 0);
}

bool ImageData::allocateForFill(
    int newWidth, int newHeight, int newBitDepth, int newChannels, size_t fillBytes)
{
    const auto layout = pixelLayout(newWidth, newHeight, newBitDepth, newChannels);
    if (!layout || !m_memory.acquire(size_t(layout->dataSize))) {
        return false;
    }
    m_memory.zeroFrom(fillBytes);
    m_memory.markWritten(m_memory.size()); // `data` is open to everybody
    width = newWidth;
    height = newHeight;
    bitDepth = newBitDepth;
    pixelCount = layout->pixelCount;
    dataSize = layout->dataSize;
    channels = newChannels;
    bytesPerLine = layout->bytesPerLine;
    bytesPerChannel = layout->bytesPerChannel;
    data = m_memory.data();
    return true;
}

void ImageData::release()
{
    if (!data) {
        return;
    }
    m_memory.release();
    data = nullptr;
    width = 0;
    height = 0;
    pixelCount = 0;
    dataSize = 0;
}

int ImageData::pixelValue(int x, int y) const
{
    if (!data || channels != 1) {
        return 0;
    }
    const qint64 index = qint64(width) * y + x;
    int value = 0;
    forSampleWidth(*this, [&](const auto* samples) {
        if (index >= 0 && index < qint64(allocatedBytes() / sizeof(*samples))) {
            value = int(samples[index]);
        }
    });
    return value;
}

void ImageData::convertToGray()
{
    if (!data || channels != 3) {
        return;
    }
    forSampleWidth(*this, [this](auto* samples) {
        const auto whole = qint64(allocatedBytes() / (3 * sizeof(*samples)));
        grayInPlace(samples, std::min<qint64>(pixelCount, whole));
    });
    channels = 1;
    bytesPerLine = wrappedProduct(bytesPerChannel, width, 1);
    dataSize = wrappedProduct(height, bytesPerLine, 1);
}
