#include "image/imageloadvk.h"

#include "image/faithfulsamples.h"
#include "image/imagedata.h"
#include "image/rawheader.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>

namespace {

constexpr quint64 hugeByteCount = quint64(256) << 20;

std::optional<RawHeader> readHeader(QFile& file)
{
    RawHeaderBytes bytes {}; // a short file leaves zeros
    file.read(reinterpret_cast<char*>(bytes.data()), rawHeaderBytes);
    return parseRawHeader(bytes);
}

/// Bytes of pixels that the file holds and its header promises.
qint64 promisedBytes(const QFile& file, const RawHeader& header)
{
    const qint64 present = std::max<qint64>(file.size() - rawHeaderBytes, 0);
    return std::min<qint64>(header.dataSize, present);
}

/// Reads the first `byteCount` bytes of `pixels` from the file; what the file lacks becomes zero.
void readPixels(QFile& file, uchar* pixels, qint64 byteCount)
{
    const bool found = file.seek(rawHeaderBytes);
    const qint64 got = found ? file.read(reinterpret_cast<char*>(pixels), byteCount) : qint64(0);
    const qint64 filled = std::max<qint64>(got, 0);
    if (filled < byteCount) {
        std::memset(pixels + filled, 0, size_t(byteCount - filled));
    }
}

LoadProblem takeAsStored(QFile& file, const RawHeader& header, ImageData& image)
{
    const qint64 promised = promisedBytes(file, header);
    if (!image.allocateForFill(header.width, header.height, header.bytesPerChannel * 8,
            header.channels, size_t(promised))) {
        return LoadProblem::TooLarge;
    }
    readPixels(file, image.data, std::min(promised, qint64(image.allocatedBytes())));
    return LoadProblem::None;
}

/// What the numbers of the header exclude from faithful reading.
LoadProblem headerProblem(const RawHeader& header)
{
    if (header.width == 0 || header.height == 0 || header.channels == 0
        || header.bytesPerChannel == 0) {
        return LoadProblem::NoPixels;
    }
    if (header.bytesPerChannel != 1 && header.bytesPerChannel != 2 && header.bytesPerChannel != 4) {
        return LoadProblem::UnfaithfulDepth;
    }
    return header.channels > 4 ? LoadProblem::UnfaithfulChannels : LoadProblem::None;
}

bool isHugeAndCutShort(const QFile& file, const RawHeader& header)
{
    const auto held = quint64(std::max<qint64>(file.size() - rawHeaderBytes, 0));
    return rawPixelBytes(header) > hugeByteCount && held < rawPixelBytes(header);
}

/// Reads pixels that cannot be taken as they stand.
LoadProblem takeConverted(
    QFile& file, const RawHeader& header, ImageData& image, ReadReport& report)
{
    PixelMemory pixels;
    if (!pixels.acquire(size_t(rawPixelBytes(header)))) {
        return LoadProblem::TooLarge;
    }
    const auto held = qint64(pixels.size());
    readPixels(file, pixels.data(), std::min(promisedBytes(file, header), held));
    DecodedSamples samples;
    samples.bytes = pixels.data();
    samples.bytesPerLine = qint64(header.width) * header.channels * header.bytesPerChannel;
    samples.width = header.width;
    samples.height = header.height;
    samples.channels = header.channels;
    samples.bytesPerSample = header.bytesPerChannel;
    return takeFaithfully(samples, image, report);
}

LoadProblem takeFaithfulPixels(
    QFile& file, const RawHeader& header, ImageData& image, ReadReport& report)
{
    const LoadProblem problem = headerProblem(header);
    if (problem != LoadProblem::None) {
        return problem;
    }
    if (isHugeAndCutShort(file, header)) {
        return LoadProblem::NotReadable;
    }
    const bool standsAsNeeded
        = header.channels == 1 || (header.channels == 3 && header.bytesPerChannel < 4);
    return standsAsNeeded ? takeAsStored(file, header, image)
                          : takeConverted(file, header, image, report);
}

LoadProblem loadProblem(
    const QString& path, const ReadOptions& options, ImageData* image, ReadReport& report)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return LoadProblem::Missing;
    }
    if (!info.isFile()) {
        return LoadProblem::NotAFile;
    }
    QFile file(path);
    if (!image || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return LoadProblem::NotReadable;
    }
    const auto header = readHeader(file);
    if (!header) {
        return LoadProblem::NotReadable;
    }
    if (options.page != 0) {
        return LoadProblem::NoSuchPage;
    }
    if (options.pixelLimit > 0 && qint64(header->width) * header->height > options.pixelLimit) {
        return LoadProblem::OverPixelLimit;
    }
    report.channels = header->channels;
    return options.reading == Reading::Faithful ? takeFaithfulPixels(file, *header, *image, report)
                                                : takeAsStored(file, *header, *image);
}

} // namespace

bool ImageLoadVk::load(ImageData* image)
{
    report = ReadReport();
    report.problem = loadProblem(filePath, options, image, report);
    return report.problem == LoadProblem::None;
}
