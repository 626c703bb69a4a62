#pragma once

#include <QtGlobal>

#include <array>
#include <optional>

/// The camera's raw format: a header of 1024 bytes, then the pixels, rows packed and top first.
/// Numbers are little-endian; header bytes that are not listed here are free for the writer.
///
/// | offset | bytes | field                                                      |
/// |--------|-------|------------------------------------------------------------|
/// | 0      |       | text up to the first zero byte, holds "VORLAK" somewhere   |
/// | 12     | 2     | pixels per row                                             |
/// | 14     | 2     | rows                                                       |
/// | 22     | 1     | values per pixel                                           |
/// | 23     | 1     | bytes per value                                            |
/// | 32     | 4     | bytes of pixel data                                        |
constexpr int rawHeaderBytes = 1024;

struct RawHeader
{
    int width = 0; ///< 0..65535
    int height = 0; ///< 0..65535
    int channels = 0; ///< 0..255
    int bytesPerChannel = 0; ///< 0..255
    quint32 dataSize = 0; ///< what the writer claims; the file may hold less
};

/// The header in `bytes`, or nothing when the signature is missing from its text. The numbers are
/// taken as they stand.
std::optional<RawHeader> parseRawHeader(const std::array<uchar, rawHeaderBytes>& bytes);
