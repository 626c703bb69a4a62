#include "image/imageloadvk.h"

#include "image/imagedata.h"
#include "image/rawheader.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>

namespace {

std::optional<RawHeader> readHeader(QFile& file)
{
    std::array<uchar, rawHeaderBytes> bytes {}; // a short file leaves zeros
    file.read(reinterpret_cast<char*>(bytes.data()), rawHeaderBytes);
    return parseRawHeader(bytes);
}

/// Reads the first `byteCount` bytes of `image` from the file; what the file lacks becomes zero.
void readPixels(QFile& file, ImageData& image, qint64 byteCount)
{
    const bool found = file.seek(rawHeaderBytes);
    const qint64 got
        = found ? file.read(reinterpret_cast<char*>(image.data), byteCount) : qint64(0);
    const qint64 filled = std::max<qint64>(got, 0);
    if (filled < byteCount) {
        std::memset(image.data + filled, 0, size_t(byteCount - filled));
    }
}

} // namespace

bool ImageLoadVk::load(ImageData* image)
{
    if (!image || !QFileInfo(filePath).isFile()) {
        return false;
    }
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return false;
    }
    const auto header = readHeader(file);
    if (!header) {
        return false;
    }
    const qint64 present = std::max<qint64>(file.size() - rawHeaderBytes, 0);
    const qint64 promised = std::min<qint64>(header->dataSize, present);
    if (!image->allocateForFill(header->width, header->height, header->bytesPerChannel * 8,
            header->channels, size_t(promised))) {
        return false;
    }
    readPixels(file, *image, std::min(promised, qint64(image->allocatedBytes())));
    return true;
}
