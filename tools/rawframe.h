#pragma once

#include <QByteArray>
#include <QString>

/// The camera's raw format: a header of 1024 bytes, then the samples. Header numbers are
/// little-endian and unsigned: width (2 bytes at offset 12), height (2 at 14), channels (1 at 22),
/// bytes per channel (1 at 23), bytes of pixel data (4 at 32). The text before the header's first
/// zero byte holds the signature. Rows stand top first, channels interleaved, nothing padded.

/// What the header of a raw file says; nothing in it has been compared with the file's length.
struct RawHeader
{
    int width = 0; ///< 0 to 65535, as the height
    int height = 0;
    int channels = 0; ///< 0 to 255
    int bytesPerChannel = 0; ///< 0 to 255
    quint32 dataSize = 0; ///< bytes of pixel data the writer put into the file
};

/// One image as plain data, laid out as in the file; samples of 2 and 4 bytes are little-endian.
struct RawFrame
{
    int width = 0;
    int height = 0;
    int channels = 1;
    int bytesPerChannel = 1;
    QByteArray bytes; ///< width x height x channels x bytesPerChannel of them
};

enum class RawFileError {
    None,
    Unreadable, ///< missing, a folder, a pipe, or it cannot be opened
    NoSignature, ///< some other kind of file under the raw suffix
    NoPixels, ///< width, height, channels or bytes per channel are 0
    TooLarge ///< the header promises more than rawFrameByteLimit, or more than memory holds
};

constexpr int rawHeaderSize = 1024;

/// Longest pixel data that is read into a RawFrame: 1 GiB.
constexpr quint64 rawFrameByteLimit = quint64(1) << 30;

/// Bytes that the pixels of such a frame take; 0 if any of the four numbers is 0.
quint64 pixelByteCount(const RawHeader& header);

/// The 1024 header bytes, with the signature in front.
QByteArray encodedRawHeader(const RawHeader& header);

/// Reads the fields out of the first bytes of a file; what is missing at the end counts as zero.
/// False, with nothing stored, without the signature.
bool decodeRawHeader(const QByteArray& bytes, RawHeader* header);

/// Reads the header of the file `path`. A header whose numbers are 0 is read without an error.
RawFileError readRawHeader(const QString& path, RawHeader* header);

/// Reads header and pixels. Pixels that a short file lacks, or that lie behind the data size its
/// header names, stay 0. On an error `frame` stays as it was.
RawFileError readRawFrame(const QString& path, RawFrame* frame);

/// Writes `frame`, replacing the file only when all of it could be written. False, with one line
/// in `problem`, when the frame holds no pixels, does not fit the header's fields, has a different
/// number of bytes than its numbers say, or cannot be written.
bool writeRawFrame(const QString& path, const RawFrame& frame, QString* problem);
