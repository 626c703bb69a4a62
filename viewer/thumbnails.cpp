#include "thumbnails.h"

#include "imagefile.h"
#include "qtcompat.h"
#include "rawframe.h"
#include "samplethumbnail.h"
#include "tiffheader.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <exception>

namespace {

constexpr quint64 leastPixelBytes = 4;

/// Blue, green and red stand in this order in the camera's frames and in what OpenCV reads.
QVector<int> shownChannels(int channels)
{
    return channels == 3 || channels == 4 ? QVector<int> { 2, 1, 0 } : QVector<int> { 0 };
}

SampleFrame sampleFrame(const RawFrame& frame)
{
    SampleFrame samples;
    samples.bytes = reinterpret_cast<const uchar*>(frame.bytes.constData());
    samples.width = frame.width;
    samples.height = frame.height;
    samples.bytesPerLine = qint64(frame.width) * frame.channels * frame.bytesPerChannel;
    samples.channels = frame.channels;
    samples.bytesPerChannel = frame.bytesPerChannel;
    samples.shown = shownChannels(frame.channels);
    return samples;
}

QImage frameThumbnail(const RawFrame& frame, const QSize& bounds)
{
    const QSize size(frame.width, frame.height);
    return stretchedThumbnail(sampleFrame(frame), thumbnailSize(size, bounds));
}

QImage rawThumbnail(const QString& path, const QSize& bounds)
{
    RawHeader header;
    RawFrame frame;
    const bool read = readRawHeader(path, &header) == RawFileError::None
        && pixelByteCount(header) <= thumbnailDecodeLimit
        && readRawFrame(path, &frame) == RawFileError::None;
    return read ? frameThumbnail(frame, bounds) : QImage();
}

/// Thousands of these are kept: no more bytes a pixel than needed.
QImage compact(const QImage& image)
{
    if (image.hasAlphaChannel()) {
        return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    return image.convertToFormat(
        image.isGrayscale() ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
}

/// An 8-bit colour or grey frame as it is, without stretching.
QImage plainThumbnail(const RawFrame& frame, const QSize& bounds)
{
    const auto* bytes = reinterpret_cast<const uchar*>(frame.bytes.constData());
    const QImage::Format format
        = frame.channels == 1 ? QImage::Format_Grayscale8 : QImage::Format_BGR888;
    const QImage image(bytes, frame.width, frame.height, frame.width * frame.channels, format);
    const QSize size = thumbnailSize(image.size(), bounds);
    const QImage scaled = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return compact(scaled).copy(); // the pixels may still be those of the frame
}

bool fitsDecodeLimit(quint64 width, quint64 height, quint64 pixelBytes)
{
    const quint64 counted = std::max(pixelBytes, leastPixelBytes);
    return width * height <= thumbnailDecodeLimit / counted; // sides of 32 bits: no overflow
}

bool tiffFitsDecodeLimit(QFile* file)
{
    TiffHeader header;
    if (!readTiffHeader(file, &header)) {
        return false;
    }
    const quint64 sampleBytes = (quint64(header.bitsPerSample) + 7) / 8;
    return fitsDecodeLimit(header.width, header.height, sampleBytes * header.samplesPerPixel);
}

/// Through OpenCV, as the widget reads it: Qt knows TIFF only where a plugin is installed.
QImage tiffThumbnail(QFile* file, const QSize& bounds)
{
    RawFrame frame;
    QString problem;
    if (!tiffFitsDecodeLimit(file) || !readImageFile(file->fileName(), &frame, &problem)) {
        return QImage();
    }
    const bool plain = frame.bytesPerChannel == 1 && (frame.channels == 1 || frame.channels == 3);
    return plain ? plainThumbnail(frame, bounds) : frameThumbnail(frame, bounds);
}

bool isDeep(QImage::Format format)
{
    return format == QImage::Format_Grayscale16 || format == QImage::Format_RGBX64
        || format == QImage::Format_RGBA64;
}

/// An image of 16 bits a sample: reduced from its own samples, since Qt's scaling leaves 8 bits.
QImage deepThumbnail(const QImage& image, const QSize& bounds)
{
    if (!isDeep(image.format())) {
        return QImage(); // could not be read
    }
    const bool gray = image.format() == QImage::Format_Grayscale16;
    SampleFrame samples;
    samples.bytes = image.constBits();
    samples.width = image.width();
    samples.height = image.height();
    samples.bytesPerLine = image.bytesPerLine();
    samples.channels = gray ? 1 : 4;
    samples.bytesPerChannel = 2;
    samples.shown = gray ? QVector<int> { 0 } : QVector<int> { 0, 1, 2 };
    return stretchedThumbnail(samples, thumbnailSize(image.size(), bounds));
}

/// The limit here is the one that counts, not Qt's own. It is one number for the whole process.
void raiseReaderLimit()
{
    static const bool raised = [] { // by the first of the threads, and once
        QtCompat::setAllocationLimit<QImageReader>(int(thumbnailDecodeLimit >> 20));
        return true;
    }();
    Q_UNUSED(raised);
}

QImage commonThumbnail(QFile* file, const QSize& bounds)
{
    raiseReaderLimit();
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    // Whatever else is installed beside these does not belong to the program.
    const QList<QByteArray> formats { "jpeg", "jpg", "png", "bmp" };
    const QSize size = reader.size();
    const QImage::Format format = reader.imageFormat();
    const int pixelBits = QImage::toPixelFormat(format).bitsPerPixel();
    if (!formats.contains(reader.format()) || size.isEmpty()
        || !fitsDecodeLimit(
            quint64(size.width()), quint64(size.height()), quint64(pixelBits + 7) / 8)) {
        return QImage();
    }
    if (isDeep(format)) {
        return deepThumbnail(reader.read(), bounds);
    }
    reader.setScaledSize(thumbnailSize(size, bounds));
    return compact(reader.read());
}

QImage regularFileThumbnail(const QString& path, const QSize& bounds)
{
    if (QFileInfo(path).suffix().toLower() == "raw") {
        return rawThumbnail(path, bounds);
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return QImage();
    }
    if (isTiff(&file)) {
        return tiffThumbnail(&file, bounds);
    }
    file.seek(0);
    return commonThumbnail(&file, bounds);
}

} // namespace

QImage thumbnail(const QString& path, const QSize& bounds)
{
    if (bounds.isEmpty() || !QFileInfo(path).isFile()) { // a pipe would block for ever
        return QImage();
    }
    try {
        return regularFileThumbnail(path, bounds);
    } catch (const std::exception&) {
        return QImage(); // out of memory: a worker thread has nobody to throw at
    }
}
