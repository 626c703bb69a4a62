#include "image/imageheader.h"

#include "image/tiffheader.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <limits>

namespace {

constexpr int jpegEnd = 0xD9;
constexpr int jpegScan = 0xDA;

QByteArray bytesAt(QIODevice* file, qint64 offset, qint64 count)
{
    return file->seek(offset) ? file->read(count) : QByteArray();
}

/// Number of channels of the PNG color type; 0 when there is no such type.
int pngChannels(int colorType)
{
    switch (colorType) {
    case 0: // gray
    case 3: return 1; // palette
    case 2: return 3;
    case 4: return 2;
    case 6: return 4;
    }
    return 0;
}

ImageHeader pngHeader(QIODevice* file)
{
    constexpr quint32 largestSide = 0x7FFFFFFF;
    ImageHeader header;
    const QByteArray bytes = bytesAt(file, 0, 29);
    if (bytes.size() < 29 || bytes.mid(12, 4) != "IHDR") {
        return header;
    }
    const auto width = qFromBigEndian<quint32>(bytes.constData() + 16);
    const auto height = qFromBigEndian<quint32>(bytes.constData() + 20);
    header.width = width;
    header.height = height;
    header.bitsPerSample = uchar(bytes[24]);
    header.channels = pngChannels(uchar(bytes[25]));
    const int depth = header.bitsPerSample;
    const bool isDepth = depth == 1 || depth == 2 || depth == 4 || depth == 8 || depth == 16;
    header.isSound = width > 0 && height > 0 && width <= largestSide && height <= largestSide
        && header.channels > 0 && isDepth;
    return header;
}

/// Bitmaps start with a header of 14 bytes; the one behind it tells its own size: 12 bytes in OS/2.
ImageHeader bmpHeader(QIODevice* file)
{
    constexpr quint32 jpegInside = 4;
    constexpr quint32 pngInside = 5;
    ImageHeader header;
    const QByteArray bytes = bytesAt(file, 0, 34);
    if (bytes.size() < 26) {
        return header;
    }
    const char* const start = bytes.constData();
    const auto infoBytes = qFromLittleEndian<quint32>(start + 14);
    int pixelBits = 0;
    quint32 compression = 0;
    if (infoBytes == 12) {
        header.width = qFromLittleEndian<quint16>(start + 18);
        header.height = qFromLittleEndian<quint16>(start + 20);
        pixelBits = qFromLittleEndian<quint16>(start + 24);
    } else if (infoBytes >= 16 && bytes.size() == 34) {
        header.width = qFromLittleEndian<qint32>(start + 18);
        header.height = qAbs(qint64(qFromLittleEndian<qint32>(start + 22))); // negative: top down
        pixelBits = qFromLittleEndian<quint16>(start + 28);
        compression = infoBytes > 16 ? qFromLittleEndian<quint32>(start + 30) : 0;
    }
    header.bitsPerSample = 8;
    header.channels = pixelBits <= 8 ? 1 : pixelBits == 32 ? 4 : 3;
    header.isSound = header.width > 0 && header.height > 0;
    const bool isKnown = pixelBits == 1 || pixelBits == 4 || pixelBits == 8 || pixelBits == 16
        || pixelBits == 24 || pixelBits == 32;
    header.isUnsupportedKind = !isKnown || compression == jpegInside || compression == pngInside;
    return header;
}

/// Whether the JPEG marker starts a frame and thus tells the size; the three exceptions in the
/// range hold tables.
bool startsJpegFrame(int marker)
{
    constexpr int losslessSof55 = 0xF7; // JPEG-LS
    const bool isTable = marker == 0xC4 || marker == 0xC8 || marker == 0xCC;
    return (marker >= 0xC0 && marker <= 0xCF && !isTable) || marker == losslessSof55;
}

bool standsAloneInJpeg(int marker)
{
    return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

/// Reads the next marker, which fill bytes may precede; -1 when there is none.
int nextJpegMarker(QIODevice* file)
{
    constexpr int mostFillBytes = 1024;
    char byte = 0;
    if (!file->getChar(&byte) || uchar(byte) != 0xFF) {
        return -1;
    }
    for (int i = 0; i < mostFillBytes && file->getChar(&byte); ++i) {
        if (uchar(byte) != 0xFF) {
            return uchar(byte);
        }
    }
    return -1;
}

/// Baseline, extended and progressive frames of 8 bits are what every decoder reads.
ImageHeader jpegFrame(int marker, const QByteArray& frame)
{
    ImageHeader header;
    header.bitsPerSample = uchar(frame[0]);
    header.height = qFromBigEndian<quint16>(frame.constData() + 1);
    header.width = qFromBigEndian<quint16>(frame.constData() + 3);
    header.channels = uchar(frame[5]);
    header.isSound = header.width > 0 && header.height > 0 && header.channels > 0;
    header.isUnsupportedKind = marker > 0xC2 || header.bitsPerSample != 8;
    return header;
}

/// Length of the segment's content, which follows; -1 when it has none.
int jpegContentBytes(QIODevice* file)
{
    const QByteArray length = file->read(2);
    return length.size() == 2 ? std::max(qFromBigEndian<quint16>(length.constData()) - 2, -1) : -1;
}

ImageHeader jpegHeader(QIODevice* file)
{
    constexpr int mostSegments = 4096;
    constexpr int frameBytes = 6;
    ImageHeader header;
    bool more = file->seek(2);
    for (int i = 0; more && i < mostSegments; ++i) {
        const int marker = nextJpegMarker(file);
        if (marker < 0 || marker == jpegEnd) {
            return header;
        }
        if (standsAloneInJpeg(marker)) {
            continue;
        }
        const int bytes = jpegContentBytes(file);
        if (marker == jpegScan || bytes < 0) {
            header.jpegPixels = header.isSound && bytes >= 0 ? file->pos() : -1;
            return header;
        }
        const QByteArray frame = startsJpegFrame(marker) ? file->peek(frameBytes) : QByteArray();
        if (frame.size() == frameBytes && !header.isSound) {
            header = jpegFrame(marker, frame);
        }
        more = file->seek(file->pos() + bytes);
    }
    return header;
}

bool isLogEncoded(const TiffPage& page)
{
    return page.photometric == tiffLogL || page.photometric == tiffLogLuv;
}

/// What every build of the TIFF library unpacks: none, CCITT, LZW, JPEG, deflate, PackBits.
bool isCommonTiffCompression(quint64 compression)
{
    return (compression >= 1 && compression <= 8) || compression == 32773 || compression == 32946;
}

/// Samples of 8 bits and less are turned into colors by the TIFF library; it knows palettes,
/// separate planes and the like, but hands out black pixels for what it cannot unpack.
bool isShownRight8(const TiffPage& page)
{
    if (!isCommonTiffCompression(page.compression)) {
        return false;
    }
    if (page.bitsPerSample == 1) {
        return page.samplesPerPixel == 1;
    }
    if (page.bitsPerSample == 4) {
        return page.samplesPerPixel == 1 && page.photometric == tiffPalette;
    }
    const bool isPlain = page.photometric == tiffMinIsBlack || page.photometric == tiffRgb;
    return page.bitsPerSample == 8 && (page.sampleFormat != tiffSignedFormat || isPlain);
}

/// Wider samples are taken as they stand, whatever they mean.
bool isShownRight(const TiffPage& page)
{
    if (page.bitsPerSample <= 8) {
        return page.sampleFormat <= tiffSignedFormat && isShownRight8(page);
    }
    const bool isPlain = page.photometric == tiffMinIsBlack || page.photometric == tiffRgb;
    const bool isPacked = page.planarConfiguration == tiffContiguous || page.samplesPerPixel == 1;
    if (page.samplesPerPixel == 2 || !isPlain || !isPacked) {
        return false;
    }
    switch (page.bitsPerSample) {
    case 10:
    case 12:
    case 14: return page.sampleFormat == 1;
    case 16: return page.sampleFormat <= tiffSignedFormat;
    case 32:
        return page.sampleFormat == tiffFloatFormat
            || (page.sampleFormat == tiffSignedFormat && page.samplesPerPixel == 1);
    case 64: return page.sampleFormat == tiffFloatFormat && page.samplesPerPixel == 1;
    }
    return false;
}

int boundedInt(quint64 value)
{
    return int(std::min<quint64>(value, std::numeric_limits<int>::max()));
}

qint64 boundedSide(quint64 value)
{
    return qint64(std::min<quint64>(value, std::numeric_limits<int>::max()));
}

ImageHeader tiffHeader(QIODevice* file, int pageNumber, int pageCount)
{
    ImageHeader header;
    header.pageCount = std::max(pageCount, 1);
    const auto page = readTiffPage(file, pageNumber);
    if (!page) {
        return header;
    }
    header.width = boundedSide(page->width);
    header.height = boundedSide(page->height);
    header.bitsPerSample = boundedInt(page->bitsPerSample);
    header.channels = boundedInt(page->samplesPerPixel);
    if (page->sampleFormat == tiffSignedFormat) {
        header.sampleKind = SampleKind::Signed;
    } else if (page->sampleFormat == tiffFloatFormat) {
        header.sampleKind = SampleKind::Floating;
    }
    header.isSound = !page->isCutShort;
    header.isCutShort = page->isCutShort;
    header.isMisread = !isLogEncoded(*page) && !isShownRight(*page);
    header.isUnsupportedKind
        = header.isMisread || !isCommonTiffCompression(page->compression) || header.channels > 4;
    header.hasUnassociatedAlpha
        = page->samplesPerPixel == 4 && page->extraSamples == tiffUnassociatedAlpha;
    return header;
}

} // namespace

ImageHeader readImageHeader(QIODevice* file, int page)
{
    const QByteArray start = bytesAt(file, 0, 8);
    if (start == QByteArray("\x89PNG\r\n\x1A\n", 8)) {
        return pngHeader(file);
    }
    if (start.startsWith("BM")) {
        return bmpHeader(file);
    }
    if (start.startsWith("\xFF\xD8")) {
        return jpegHeader(file);
    }
    const int pageCount = tiffPageCount(file);
    return pageCount > 0 ? tiffHeader(file, page, pageCount) : ImageHeader();
}

bool holdsJpegEnd(QIODevice* file, const ImageHeader& header)
{
    constexpr qint64 chunkBytes = 65536;
    if (header.jpegPixels < 0) {
        return true;
    }
    const QByteArray marker("\xFF\xD9", 2);
    for (qint64 end = file->size(); end > header.jpegPixels; end -= chunkBytes) {
        const qint64 start = std::max(end - chunkBytes, header.jpegPixels);
        if (bytesAt(file, start, end - start + 1).contains(marker)) { // and the next chunk's first
            return true;
        }
    }
    return false;
}
