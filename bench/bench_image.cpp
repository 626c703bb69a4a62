#include "frames.h"
#include "plainloops.h"
#include "ratioreporter.h"

#include "image/grayconversion.h"
#include "image/imageloadvk.h"

namespace {

/// Gray values of gray values cost the same, so the pixels are not restored between runs.
template <class Sample>
void addGrayPair(const std::string& name, const Frame& frame, double limit)
{
    const auto plainLoop = [frame](benchmark::State& state) {
        ImageData& image = frameRecord<Sample>(frame);
        for (auto _ : state) {
            plain::grayInPlace(samplesOf<Sample>(image), image.pixelCount);
            benchmark::ClobberMemory();
        }
    };
    const auto fastLoop = [frame](benchmark::State& state) {
        ImageData& image = frameRecord<Sample>(frame);
        for (auto _ : state) {
            grayInPlace(samplesOf<Sample>(image), qint64(image.pixelCount));
            benchmark::ClobberMemory();
        }
    };
    addPair("gray " + name, limit, plainLoop, fastLoop);
}

void measurePlainLoad(benchmark::State& state, const Frame& frame)
{
    const QString path = rawFilePath(frame);
    const qint64 bytes = qint64(frame.width) * frame.height * 2;
    warmMemory(size_t(bytes));
    for (auto _ : state) {
        const auto pixels = plain::rawPixels(path, bytes);
        benchmark::DoNotOptimize(pixels.get());
    }
}

void loadFrame(benchmark::State& state, const Frame& frame, ImageData& image)
{
    ImageLoadVk loader;
    loader.filePath = rawFilePath(frame);
    if (!loader.load(&image)) {
        state.SkipWithError("the frame cannot be loaded");
    }
}

void measureFirstLoad(benchmark::State& state, const Frame& frame)
{
    warmMemory(size_t(frame.width) * size_t(frame.height) * 2);
    for (auto _ : state) {
        ImageData image;
        loadFrame(state, frame, image);
    }
}

/// A load after another one of the same size that was closed.
void measureNextLoad(benchmark::State& state, const Frame& frame)
{
    ImageData image;
    loadFrame(state, frame, image);
    image.release();
    for (auto _ : state) {
        loadFrame(state, frame, image);
    }
}

const bool pairsAdded = [] {
    const Frame camera16 { FrameKind::Camera, 8192, 8192, 65535 };
    addGrayPair<uchar>("8192x8192x3, 8 bit", { FrameKind::Camera, 8192, 8192, 255, 3 }, 0.25);
    addGrayPair<ushort>("8192x8192x3, 16 bit", { FrameKind::Camera, 8192, 8192, 65535, 3 }, 0.40);
    addGrayPair<uint>("4096x4096x3, 32 bit", { FrameKind::Camera, 4096, 4096, 1 << 24, 3 }, 0.0);

    const auto plainLoad = [=](benchmark::State& state) { measurePlainLoad(state, camera16); };
    addPair("raw load 8192x8192, 16 bit, first", 0.30, plainLoad,
        [=](benchmark::State& state) { measureFirstLoad(state, camera16); });
    addPair("raw load 8192x8192, 16 bit, next", 0.20, plainLoad,
        [=](benchmark::State& state) { measureNextLoad(state, camera16); });
    return true;
}();

} // namespace
