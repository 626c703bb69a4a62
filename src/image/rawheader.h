#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
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
///
/// This is the format's only definition. Plain C++17, so that programs without Qt can write it.
constexpr int rawHeaderBytes = 1024;

using RawHeaderBytes = std::array<std::uint8_t, rawHeaderBytes>;

struct RawHeader
{
    int width = 0; ///< 0..65535
    int height = 0; ///< 0..65535
    int channels = 0; ///< 0..255
    int bytesPerChannel = 0; ///< 0..255
    std::uint32_t dataSize = 0; ///< what the writer claims; the file may hold less
};

/// Bytes that the pixels take; 0 when any of the four numbers is 0.
inline std::uint64_t rawPixelBytes(const RawHeader& header)
{
    // At most 16 + 16 + 8 + 8 bits.
    return std::uint64_t(header.width) * std::uint64_t(header.height)
        * std::uint64_t(header.channels) * std::uint64_t(header.bytesPerChannel);
}

namespace rawheader {

constexpr char signature[] = { 'V', 'O', 'R', 'L', 'A', 'K' };

constexpr std::size_t widthOffset = 12;
constexpr std::size_t heightOffset = 14;
constexpr std::size_t channelsOffset = 22;
constexpr std::size_t bytesPerChannelOffset = 23;
constexpr std::size_t dataSizeOffset = 32;

inline std::uint32_t number(const RawHeaderBytes& bytes, std::size_t offset, std::size_t length)
{
    std::uint32_t value = 0;
    for (std::size_t i = length; i > 0; --i) {
        value = value << 8 | bytes[offset + i - 1];
    }
    return value;
}

inline void setNumber(
    RawHeaderBytes& bytes, std::size_t offset, std::size_t length, std::uint32_t value)
{
    for (std::size_t i = 0; i < length; ++i) {
        bytes[offset + i] = std::uint8_t(value >> 8 * i);
    }
}

} // namespace rawheader

/// The header in `bytes`, or nothing when the signature is missing from its text. The numbers are
/// taken as they stand.
inline std::optional<RawHeader> parseRawHeader(const RawHeaderBytes& bytes)
{
    using namespace rawheader;
    const auto textEnd = std::find(bytes.begin(), bytes.end(), std::uint8_t(0));
    if (std::search(bytes.begin(), textEnd, std::begin(signature), std::end(signature))
        == textEnd) {
        return std::nullopt;
    }
    RawHeader header;
    header.width = int(number(bytes, widthOffset, 2));
    header.height = int(number(bytes, heightOffset, 2));
    header.channels = bytes[channelsOffset];
    header.bytesPerChannel = bytes[bytesPerChannelOffset];
    header.dataSize = number(bytes, dataSizeOffset, 4);
    return header;
}

/// The bytes of a header, with the signature in front. Of a number that does not fit its field the
/// lower bits are written.
inline RawHeaderBytes packedRawHeader(const RawHeader& header)
{
    using namespace rawheader;
    RawHeaderBytes bytes {};
    std::copy(std::begin(signature), std::end(signature), bytes.begin());
    setNumber(bytes, widthOffset, 2, std::uint32_t(header.width));
    setNumber(bytes, heightOffset, 2, std::uint32_t(header.height));
    setNumber(bytes, channelsOffset, 1, std::uint32_t(header.channels));
    setNumber(bytes, bytesPerChannelOffset, 1, std::uint32_t(header.bytesPerChannel));
    setNumber(bytes, dataSizeOffset, 4, header.dataSize);
    return bytes;
}
