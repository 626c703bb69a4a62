#include "frames.h"
#include "plainloops.h"
#include "ratioreporter.h"

#include "analysis/displayconversion.h"
#include "analysis/histogramdata.h"
#include "analysis/roistatistics.h"

#include <cmath>

namespace {

/// Bytes of the frame's histogram and display map.
size_t countBytes(const Frame& frame)
{
    return (size_t(frame.largest) + 1) * (sizeof(uint) + sizeof(uchar));
}

template <class Sample>
void addHistogramPair(const std::string& name, const Frame& frame, double limit)
{
    const auto plainLoop = [frame](benchmark::State& state) {
        const ImageData& image = frameRecord<Sample>(frame);
        const auto* samples = samplesOf<Sample>(image);
        warmMemory(countBytes(frame));
        for (auto _ : state) {
            const plain::Range range = plain::range(samples, image.pixelCount);
            const uint size = range.max - range.min + 1;
            const std::unique_ptr<uint[]> bins(new uint[size]);
            plain::histogram(samples, image.pixelCount, range.min, bins.get(), size);
            benchmark::DoNotOptimize(bins.get());
        }
    };
    const auto fastLoop = [frame](benchmark::State& state) {
        ImageData& image = frameRecord<Sample>(frame);
        warmMemory(countBytes(frame));
        for (auto _ : state) {
            HistogramData data(nullptr);
            data.image = &image;
            data.calcHistogram(); // with the display map, which the plain loop does without
            benchmark::DoNotOptimize(data.histogram);
        }
    };
    addPair("histogram " + name, limit, plainLoop, fastLoop);
}

/// A palette without order and a level for every bin, as the conversion finds them.
struct DisplaySetup
{
    explicit DisplaySetup(const ImageData& image, uint min, uint max)
        : map(max - min + 1)
        , rgb(size_t(image.pixelCount) * 3)
    {
        plain::displayMap(min, max, map.data(), uint(map.size()));
        for (size_t i = 0; i < 256; ++i) {
            colorIndex[i] = uchar(i);
            palette[i] = { uchar(i * 7), uchar(i * 11), uchar(i * 13) };
            colors[i] = { palette[i][0], palette[i][1], palette[i][2] };
        }
        levels = { min, uint(map.size()), displayScale(0, 255, min, max), map.data() };
    }

    std::vector<uchar> map;
    std::vector<uchar> rgb;
    std::array<uchar, 256> colorIndex;
    std::array<plain::Color, 256> palette;
    LevelColors colors;
    DisplayLevels levels;
};

template <class Sample>
void addDisplayPair(const std::string& name, const Frame& frame, double limit)
{
    const auto plainLoop = [frame](benchmark::State& state) {
        const ImageData& image = frameRecord<Sample>(frame);
        const auto* samples = samplesOf<Sample>(image);
        const plain::Range range = plain::range(samples, image.pixelCount);
        DisplaySetup setup(image, range.min, range.max);
        for (auto _ : state) {
            plain::convertToRgb(samples, image.pixelCount, range.min, setup.map.data(),
                setup.colorIndex.data(), setup.palette.data(), setup.rgb.data());
            benchmark::ClobberMemory();
        }
    };
    const auto fastLoop = [frame](benchmark::State& state) {
        const ImageData& image = frameRecord<Sample>(frame);
        const auto* samples = samplesOf<Sample>(image);
        const plain::Range range = plain::range(samples, image.pixelCount);
        DisplaySetup setup(image, range.min, range.max);
        for (auto _ : state) {
            convertToRgb(
                samples, qint64(image.pixelCount), setup.levels, setup.colors, setup.rgb.data());
            benchmark::ClobberMemory();
        }
    };
    addPair("display " + name, limit, plainLoop, fastLoop);
}

/// Statistics of the whole frame as a region: range, mean and deviation in a pass each, against the
/// library's two.
template <class Sample>
void addRoiPair(const std::string& name, const Frame& frame, double limit)
{
    const auto plainLoop = [frame](benchmark::State& state) {
        const ImageData& image = frameRecord<Sample>(frame);
        const auto* samples = samplesOf<Sample>(image);
        const qint64 count = image.pixelCount;
        for (auto _ : state) {
            const plain::Range range = plain::range(samples, count);
            const quint64 distances = plain::distanceSum(samples, count, range.min);
            const double mean = double(qint64(distances)) / double(count) + range.min;
            const double squares = plain::addSquares(samples, count, mean, 0.0);
            benchmark::DoNotOptimize(std::sqrt(squares / double(count)));
        }
    };
    const auto fastLoop = [frame](benchmark::State& state) {
        const ImageData& image = frameRecord<Sample>(frame);
        const auto* samples = samplesOf<Sample>(image);
        const RoiRows rows { QRect(0, 0, image.width, image.height), image.width,
            image.pixelCount };
        for (auto _ : state) {
            const RoiTotals totals = roiTotals(samples, rows);
            const double mean = roiMean(totals, rows);
            benchmark::DoNotOptimize(roiDeviation(samples, rows, totals.range, mean));
        }
    };
    addPair("roi " + name, limit, plainLoop, fastLoop);
}

const bool pairsAdded = [] {
    addRoiPair<uchar>("1000x1000, 8 bit", { FrameKind::Camera, 1000, 1000, 255 }, 0.25);
    addRoiPair<ushort>("1000x1000, 16 bit", { FrameKind::Camera, 1000, 1000, 65535 }, 0.25);
    addRoiPair<uint>("1000x1000, 32 bit", { FrameKind::Camera, 1000, 1000, (1U << 20) - 1 }, 0.30);
    addRoiPair<uchar>("8192x8192, 8 bit", { FrameKind::Camera, 8192, 8192, 255 }, 0.25);
    addRoiPair<ushort>("8192x8192, 16 bit", { FrameKind::Camera, 8192, 8192, 65535 }, 0.25);
    addRoiPair<uint>("8192x8192, 32 bit", { FrameKind::Camera, 8192, 8192, (1U << 20) - 1 }, 0.30);
    addRoiPair<ushort>("1000x1000, 16 bit, random", { FrameKind::Random, 1000, 1000, 65535 }, 0.0);
    addRoiPair<uint>(
        "1000x1000, 32 bit, random", { FrameKind::Random, 1000, 1000, 4294967295U }, 0.0);
    const Frame camera8 { FrameKind::Camera, 8192, 8192, 255 };
    const Frame camera16 { FrameKind::Camera, 8192, 8192, 65535 };
    const Frame camera32 { FrameKind::Camera, 4096, 4096, (1 << 20) - 1 };
    const Frame random8 { FrameKind::Random, 8192, 8192, 255 };
    const Frame random16 { FrameKind::Random, 8192, 8192, 65535 };
    const Frame dim12 { FrameKind::Camera, 8192, 8192, 4095 };
    const Frame narrow32 { FrameKind::Camera, 4096, 4096, (1 << 16) - 1 };
    const Frame wide32 { FrameKind::Camera, 4096, 4096, (1 << 26) - 1 };
    const Frame random32 { FrameKind::Random, 4096, 4096, (1 << 20) - 1 };
    const Frame wideRandom32 { FrameKind::Random, 4096, 4096, (1 << 26) - 1 };

    addHistogramPair<uchar>("8192x8192, 8 bit", camera8, 0.15);
    addHistogramPair<ushort>("8192x8192, 16 bit", camera16, 0.25);
    addHistogramPair<uint>("4096x4096, 32 bit", camera32, 0.45);
    addHistogramPair<uchar>("8192x8192, 8 bit, random", random8, 0.0);
    addHistogramPair<ushort>("8192x8192, 12 in 16 bit", dim12, 0.0);
    addHistogramPair<ushort>("8192x8192, 16 bit, random", random16, 0.0);
    addHistogramPair<uint>("4096x4096, 16 in 32 bit", narrow32, 0.0);
    addHistogramPair<uint>("4096x4096, 26 in 32 bit", wide32, 0.0);
    addHistogramPair<uint>("4096x4096, 20 in 32 bit, random", random32, 0.0);
    addHistogramPair<uint>("4096x4096, 26 in 32 bit, random", wideRandom32, 0.0);

    addDisplayPair<uchar>("8192x8192, 8 bit", camera8, 0.25);
    addDisplayPair<ushort>("8192x8192, 16 bit", camera16, 0.30);
    addDisplayPair<uint>("4096x4096, 32 bit", camera32, 0.35);
    addDisplayPair<uchar>("8192x8192, 8 bit, random", random8, 0.0);
    addDisplayPair<ushort>("8192x8192, 12 in 16 bit", dim12, 0.0);
    addDisplayPair<ushort>("8192x8192, 16 bit, random", random16, 0.0);
    addDisplayPair<uint>("4096x4096, 16 in 32 bit", narrow32, 0.0);
    addDisplayPair<uint>("4096x4096, 26 in 32 bit", wide32, 0.0);
    addDisplayPair<uint>("4096x4096, 20 in 32 bit, random", random32, 0.0);
    addDisplayPair<uint>("4096x4096, 26 in 32 bit, random", wideRandom32, 0.0);
    return true;
}();

} // namespace
