#include "image/rawheader.h"

#include <cstdint>
#include <fstream>
#include <vector>

/// Writes a gray image with 16 bits a pixel; `pixels` holds width x height values, top row first.
static bool writeRaw(
    const char* path, int width, int height, const std::vector<std::uint16_t>& pixels)
{
    RawHeader header;
    header.width = width;
    header.height = height;
    header.channels = 1; // values per pixel
    header.bytesPerChannel = 2; // bytes per value
    header.dataSize = static_cast<std::uint32_t>(rawPixelBytes(header));
    const RawHeaderBytes bytes = packedRawHeader(header);
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()), rawHeaderBytes);
    for (const std::uint16_t value : pixels) {
        file.put(static_cast<char>(value & 0xff)); // lowest byte first
        file.put(static_cast<char>(value >> 8));
    }
    return static_cast<bool>(file.flush());
}

int main(int argc, char* argv[])
{
    std::vector<std::uint16_t> ramp; // darker on the left, brighter further down
    for (int y = 0; y < 480; ++y) {
        for (int x = 0; x < 640; ++x) {
            ramp.push_back(static_cast<std::uint16_t>(1000 + 10 * x + y));
        }
    }
    return argc == 2 && writeRaw(argv[1], 640, 480, ramp) ? 0 : 1;
}
