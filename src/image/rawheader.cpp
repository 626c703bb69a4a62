#include "image/rawheader.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::string_view signature = "VORLAK";

bool hasSignature(const std::array<uchar, rawHeaderBytes>& bytes)
{
    const auto textEnd = std::find(bytes.begin(), bytes.end(), uchar(0));
    return std::search(bytes.begin(), textEnd, signature.begin(), signature.end()) != textEnd;
}

quint32 littleEndian(const std::array<uchar, rawHeaderBytes>& bytes, size_t offset, size_t length)
{
    quint32 value = 0;
    for (size_t i = length; i > 0; --i) {
        value = value << 8 | bytes[offset + i - 1];
    }
    return value;
}

} // namespace

std::optional<RawHeader> parseRawHeader(const std::array<uchar, rawHeaderBytes>& bytes)
{
    if (!hasSignature(bytes)) {
        return std::nullopt;
    }
    RawHeader header;
    header.width = int(littleEndian(bytes, 12, 2));
    header.height = int(littleEndian(bytes, 14, 2));
    header.channels = bytes[22];
    header.bytesPerChannel = bytes[23];
    header.dataSize = littleEndian(bytes, 32, 4);
    return header;
}
