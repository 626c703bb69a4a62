#pragma once

#include "image/rawheader.h"

#include <QByteArray>
#include <QString>

/// One image in the camera's raw format, laid out as in the file; samples of 2 and 4 bytes are
/// little-endian.
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

/// Longest pixel data that is read into a RawFrame: 1 GiB.
constexpr quint64 rawFrameByteLimit = quint64(1) << 30;

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
