#include "rawframe.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <limits>
#include <new>

namespace {

/// Opens a regular file for reading: a pipe under the raw suffix would block for ever.
bool openRegularFile(QFile* file)
{
    return QFileInfo(file->fileName()).isFile() && file->open(QIODevice::ReadOnly);
}

RawFileError readHeader(QFile* file, RawHeader* header)
{
    if (!openRegularFile(file)) {
        return RawFileError::Unreadable;
    }
    const bool known = decodeRawHeader(file->read(rawHeaderBytes), header);
    return known ? RawFileError::None : RawFileError::NoSignature;
}

/// Fills `bytes` from behind the header on; what cannot be read stays zero.
bool readPixels(QFile* file, const RawHeader& header, QByteArray* bytes)
{
    try {
        bytes->fill('\0', int(rawPixelBytes(header)));
    } catch (const std::bad_alloc&) {
        return false;
    }
    const qint64 wanted = std::min(qint64(bytes->size()), qint64(header.dataSize));
    if (file->seek(rawHeaderBytes)) {
        file->read(bytes->data(), wanted);
    }
    return true;
}

RawHeader headerOf(const RawFrame& frame)
{
    RawHeader header;
    header.width = frame.width;
    header.height = frame.height;
    header.channels = frame.channels;
    header.bytesPerChannel = frame.bytesPerChannel;
    header.dataSize = quint32(frame.bytes.size());
    return header;
}

/// One line that says why the frame has no place in the format; empty when it fits.
QString misfit(const RawFrame& frame)
{
    constexpr int maxExtent = std::numeric_limits<quint16>::max();
    constexpr int maxCount = std::numeric_limits<quint8>::max();
    if (frame.width < 1 || frame.height < 1 || frame.channels < 1 || frame.bytesPerChannel < 1) {
        return QStringLiteral("the image holds no pixels");
    }
    if (frame.width > maxExtent || frame.height > maxExtent) {
        return QStringLiteral("the image is larger than %1 x %1 pixels").arg(maxExtent);
    }
    if (frame.channels > maxCount || frame.bytesPerChannel > maxCount) {
        return QStringLiteral("the image has too many channels or too deep samples");
    }
    if (rawPixelBytes(headerOf(frame)) != quint64(frame.bytes.size())) {
        return QStringLiteral("the pixel data do not match the size of the image");
    }
    return QString();
}

} // namespace

QByteArray encodedRawHeader(const RawHeader& header)
{
    const RawHeaderBytes bytes = packedRawHeader(header);
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), rawHeaderBytes);
}

bool decodeRawHeader(const QByteArray& bytes, RawHeader* header)
{
    RawHeaderBytes padded {};
    std::copy_n(bytes.begin(), std::min(int(bytes.size()), rawHeaderBytes), padded.begin());
    const std::optional<RawHeader> parsed = parseRawHeader(padded);
    if (parsed) {
        *header = *parsed;
    }
    return parsed.has_value();
}

RawFileError readRawHeader(const QString& path, RawHeader* header)
{
    QFile file(path);
    return readHeader(&file, header);
}

RawFileError readRawFrame(const QString& path, RawFrame* frame)
{
    QFile file(path);
    RawHeader header;
    const RawFileError error = readHeader(&file, &header);
    if (error != RawFileError::None) {
        return error;
    }
    if (rawPixelBytes(header) == 0) {
        return RawFileError::NoPixels;
    }
    QByteArray bytes;
    if (rawPixelBytes(header) > rawFrameByteLimit || !readPixels(&file, header, &bytes)) {
        return RawFileError::TooLarge;
    }
    frame->width = header.width;
    frame->height = header.height;
    frame->channels = header.channels;
    frame->bytesPerChannel = header.bytesPerChannel;
    frame->bytes = bytes;
    return RawFileError::None;
}

bool writeRawFrame(const QString& path, const RawFrame& frame, QString* problem)
{
    *problem = misfit(frame);
    if (!problem->isEmpty()) {
        return false;
    }
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(encodedRawHeader(headerOf(frame)));
        file.write(frame.bytes);
        if (file.commit()) {
            return true;
        }
    }
    *problem = file.errorString();
    return false;
}
