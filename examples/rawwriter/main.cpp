#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

/// Writes a grey image with 16 bits a pixel; `pixels` holds width x height values, top row first.
static bool writeRaw(const char* path, std::uint16_t width, std::uint16_t height,
    const std::vector<std::uint16_t>& pixels)
{
    std::vector<char> bytes(1024 + 2 * pixels.size()); // zeros
    const auto put = [&bytes](std::size_t offset, std::uint32_t value, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i, value >>= 8) {
            bytes[offset + i] = static_cast<char>(value & 0xff); // lowest byte first
        }
    };
    std::string("VORLAK").copy(bytes.data(), 6);
    put(12, width, 2);
    put(14, height, 2);
    put(22, 1, 1); // values per pixel
    put(23, 2, 1); // bytes per value
    put(32, static_cast<std::uint32_t>(2 * pixels.size()), 4);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        put(1024 + 2 * i, pixels[i], 2);
    }
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
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
