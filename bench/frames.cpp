#include "frames.h"

#include "image/rawheader.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <map>
#include <random>
#include <tuple>
#include <vector>

namespace {

constexpr int noiseCount = 1 << 16;

/// Signal above the dark offset in each column, 0..1: lines of falling strength, 3 pixels wide.
std::vector<double> lineProfile(int width)
{
    std::vector<double> profile(size_t(width), 0.0);
    for (int line = 0; line < 20; ++line) {
        const double center = width * (0.03 + 0.049 * line);
        const double strength = std::pow(0.8, line);
        for (int x = 0; x < width; ++x) {
            const double distance = (x - center) / 3.0;
            profile[size_t(x)] += strength * std::exp(-0.5 * distance * distance);
        }
    }
    return profile;
}

/// A table of Gaussian noise, as long as it takes to be drawn from at random.
std::vector<double> noiseTable(double deviation, std::mt19937& random)
{
    std::normal_distribution<double> gaussian(0.0, deviation);
    std::vector<double> noise(noiseCount);
    std::generate(noise.begin(), noise.end(), [&] { return gaussian(random); });
    return noise;
}

template <class Sample>
void fillCameraFrame(ImageData& image, uint largest, std::mt19937& random)
{
    const double dark = largest * 0.03 + 4.0;
    const std::vector<double> noise = noiseTable(1.0 + largest * 0.0005, random);
    const int rowSamples = image.width * image.channels;
    const std::vector<double> profile = lineProfile(rowSamples);
    Sample* sample = samplesOf<Sample>(image);
    for (int row = 0; row < image.height; ++row) {
        for (int x = 0; x < rowSamples; ++x) {
            const double signal = dark + (largest - dark) * profile[size_t(x)];
            const double value = signal + noise[random() % noiseCount];
            *sample++ = Sample(std::clamp(value, 0.0, double(largest)));
        }
    }
}

template <class Sample>
void fillRandomFrame(ImageData& image, uint largest, std::mt19937& random)
{
    const quint64 values = quint64(largest) + 1;
    Sample* first = samplesOf<Sample>(image);
    std::generate(first, first + image.allocatedBytes() / sizeof(Sample),
        [&] { return Sample(random() % values); });
}

} // namespace

template <class Sample>
ImageData& frameRecord(const Frame& frame)
{
    using Key = std::tuple<FrameKind, int, int, uint, int>;
    static std::map<Key, ImageData> records;
    ImageData& image
        = records[{ frame.kind, frame.width, frame.height, frame.largest, frame.channels }];
    const int bitDepth = int(sizeof(Sample)) * 8;
    if (image.data || !image.allocate(frame.width, frame.height, bitDepth, frame.channels)) {
        return image;
    }
    std::mt19937 random(12345);
    if (frame.kind == FrameKind::Camera) {
        fillCameraFrame<Sample>(image, frame.largest, random);
    } else {
        fillRandomFrame<Sample>(image, frame.largest, random);
    }
    return image;
}

template ImageData& frameRecord<uchar>(const Frame&);
template ImageData& frameRecord<ushort>(const Frame&);
template ImageData& frameRecord<uint>(const Frame&);

void warmMemory(size_t byteCount)
{
    PixelMemory memory;
    if (memory.acquire(byteCount)) {
        std::memset(memory.data(), 1, byteCount);
    }
}

QString rawFilePath(const Frame& frame)
{
    static QTemporaryDir folder;
    const QString path = folder.filePath("frame.raw");
    if (QFile::exists(path)) {
        return path;
    }
    const ImageData& image = frameRecord<ushort>(frame);
    const RawHeaderBytes header
        = packedRawHeader({ image.width, image.height, 1, 2, quint32(image.dataSize) });
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(reinterpret_cast<const char*>(header.data()), rawHeaderBytes);
        file.write(reinterpret_cast<const char*>(image.data), image.dataSize);
    }
    return path;
}
