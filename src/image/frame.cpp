#include "image/frame.h"

#include "image/grayconversion.h"
#include "image/imagedata.h"
#include "image/sampledispatch.h"

#include <cstring>
#include <limits>
#include <memory>
#include <new>

namespace {

qint64 packedLineBytes(const FrameView& frame)
{
    return qint64(frame.width) * frame.channels * frame.bytesPerSample;
}

qint64 lineStep(const FrameView& frame)
{
    return frame.bytesPerLine == 0 ? packedLineBytes(frame) : frame.bytesPerLine;
}

bool makesSense(const FrameView& frame)
{
    const bool isKnownSample
        = frame.bytesPerSample == 1 || frame.bytesPerSample == 2 || frame.bytesPerSample == 4;
    return frame.samples && frame.width >= 1 && frame.height >= 1
        && (frame.channels == 1 || frame.channels == 3) && isKnownSample
        && lineStep(frame) >= packedLineBytes(frame)
        && lineStep(frame) <= std::numeric_limits<qint64>::max() / frame.height;
}

LoadProblem frameProblem(const FrameView& frame, qint64 pixelLimit)
{
    if (!makesSense(frame)) {
        return LoadProblem::BadFrame;
    }
    const bool isOver = pixelLimit > 0 && qint64(frame.width) * frame.height > pixelLimit;
    return isOver ? LoadProblem::OverPixelLimit : LoadProblem::None;
}

const uchar* line(const FrameView& frame, int row)
{
    return static_cast<const uchar*>(frame.samples) + row * lineStep(frame);
}

/// Copies rows of the frame to rows of the same length.
void copyRows(const FrameView& frame, uchar* to)
{
    const auto lineBytes = size_t(packedLineBytes(frame));
    if (lineStep(frame) == packedLineBytes(frame)) {
        std::memcpy(to, frame.samples, lineBytes * size_t(frame.height));
        return;
    }
    for (int row = 0; row < frame.height; ++row) {
        std::memcpy(to + size_t(row) * lineBytes, line(frame, row), lineBytes);
    }
}

bool isReducedExactly(const FrameView& frame, const ReadOptions& options)
{
    return options.reading == Reading::Faithful && frame.bytesPerSample == 4;
}

using RowMemory = std::unique_ptr<uchar[]>;

/// Room for one row of the frame; null without memory.
RowMemory rowMemory(const FrameView& frame)
{
    return RowMemory(new (std::nothrow) uchar[size_t(packedLineBytes(frame))]);
}

/// Writes the gray values of each row to the pixels of the image, through one row of memory.
void reduceRows(const FrameView& frame, bool isExact, uchar* row, ImageData& image)
{
    const auto lineBytes = size_t(packedLineBytes(frame));
    const size_t grayBytes = lineBytes / 3;
    for (int y = 0; y < frame.height; ++y) {
        std::memcpy(row, line(frame, y), lineBytes);
        if (isExact) {
            exactGrayInPlace(reinterpret_cast<uint*>(row), frame.width);
        } else {
            forSampleWidth(image, [&](auto* samples) {
                using Sample = std::decay_t<decltype(*samples)>;
                grayInPlace(reinterpret_cast<Sample*>(row), frame.width);
            });
        }
        std::memcpy(image.data + size_t(y) * grayBytes, row, grayBytes);
    }
}

/// Copies a frame of three channels as one of gray values.
LoadProblem copyReduced(const FrameView& frame, ImageData* image)
{
    const RowMemory row = rowMemory(frame);
    const size_t grayBytes = size_t(packedLineBytes(frame)) / 3 * size_t(frame.height);
    if (!row
        || !image->allocateForFill(
            frame.width, frame.height, frame.bytesPerSample * 8, 1, grayBytes)) {
        return LoadProblem::TooLarge;
    }
    reduceRows(frame, true, row.get(), *image);
    return LoadProblem::None;
}

} // namespace

LoadProblem copyFrame(const FrameView& frame, const ReadOptions& options, ImageData* image)
{
    const LoadProblem problem = frameProblem(frame, options.pixelLimit);
    if (problem != LoadProblem::None) {
        return problem;
    }
    if (frame.channels == 3 && isReducedExactly(frame, options)) {
        return copyReduced(frame, image);
    }
    const quint64 frameBytes = quint64(packedLineBytes(frame)) * quint64(frame.height);
    if (!image->allocateForFill(frame.width, frame.height, frame.bytesPerSample * 8, frame.channels,
            size_t(frameBytes))) {
        return LoadProblem::TooLarge;
    }
    copyRows(frame, image->data);
    return LoadProblem::None;
}

LoadProblem overwriteWithFrame(const FrameView& frame, const ReadOptions& options, ImageData* image)
{
    const LoadProblem problem = frameProblem(frame, options.pixelLimit);
    if (problem != LoadProblem::None) {
        return problem;
    }
    const bool isSameKind = image->isLoaded() && image->channels == 1 && frame.width == image->width
        && frame.height == image->height && frame.bytesPerSample * qint64(8) == image->bitDepth;
    if (!isSameKind) {
        return LoadProblem::BadFrame;
    }
    if (frame.channels == 1) {
        copyRows(frame, image->data);
        return LoadProblem::None;
    }
    const RowMemory row = rowMemory(frame);
    if (!row) {
        return LoadProblem::TooLarge;
    }
    reduceRows(frame, isReducedExactly(frame, options), row.get(), *image);
    return LoadProblem::None;
}
