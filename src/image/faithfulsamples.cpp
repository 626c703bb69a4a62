#include "image/faithfulsamples.h"

#include "image/grayconversion.h"
#include "image/imagedata.h"

#include <cmath>
#include <cstring>
#include <type_traits>

namespace {

/// Channels without alpha.
int keptChannels(int channels)
{
    return channels <= 2 ? 1 : 3;
}

template <class Sample>
const Sample* lineOf(const DecodedSamples& samples, int row)
{
    return reinterpret_cast<const Sample*>(samples.bytes + samples.bytesPerLine * row);
}

/// Whether `value` is a whole number from 0 to 2^32 - 1; -0 is 0.
template <class Sample>
bool isWholeNumber(Sample value)
{
    if constexpr (std::is_floating_point_v<Sample>) {
        return value >= Sample(0) && value < Sample(4294967296.0) && std::floor(value) == value;
    } else {
        return value >= Sample(0);
    }
}

template <class Sample>
bool areWholeNumbers(const DecodedSamples& samples)
{
    const int kept = keptChannels(samples.channels);
    for (int row = 0; row < samples.height; ++row) {
        const auto* line = lineOf<Sample>(samples, row);
        for (int pixel = 0; pixel < samples.width; ++pixel) {
            for (int channel = 0; channel < kept; ++channel) {
                if (!isWholeNumber(line[qint64(pixel) * samples.channels + channel])) {
                    return false;
                }
            }
        }
    }
    return true;
}

/// One line of checked samples as unsigned numbers.
template <class Sample, class Target>
void writeLine(const Sample* from, const DecodedSamples& samples, Target* to)
{
    const int kept = keptChannels(samples.channels);
    for (int pixel = 0; pixel < samples.width; ++pixel, from += samples.channels) {
        if (sizeof(Target) == 4 && kept == 3) {
            *to++ = Target(exactGray(from));
            continue;
        }
        for (int channel = 0; channel < kept; ++channel) {
            *to++ = Target(Target(from[channel]) >> samples.unusedLowBits);
        }
    }
}

bool isCopy(const DecodedSamples& samples)
{
    const bool isReduced = samples.bytesPerSample == 4 && samples.channels == 3;
    return samples.kind != SampleKind::Floating && !isReduced && samples.unusedLowBits == 0
        && samples.channels == keptChannels(samples.channels);
}

template <class Sample, class Target>
LoadProblem take(const DecodedSamples& samples, ImageData& image)
{
    if (!std::is_unsigned_v<Sample> && !areWholeNumbers<Sample>(samples)) {
        return LoadProblem::UnfaithfulValues;
    }
    const int kept = keptChannels(samples.channels);
    const int channels = sizeof(Target) == 4 ? 1 : kept;
    const size_t lineBytes = size_t(samples.width) * size_t(channels) * sizeof(Target);
    if (!image.allocateForFill(samples.width, samples.height, int(sizeof(Target)) * 8, channels,
            lineBytes * size_t(samples.height))) {
        return LoadProblem::TooLarge;
    }
    for (int row = 0; row < samples.height; ++row) {
        uchar* const to = image.data + size_t(row) * lineBytes;
        if (isCopy(samples)) {
            std::memcpy(to, lineOf<uchar>(samples, row), lineBytes);
        } else {
            writeLine(lineOf<Sample>(samples, row), samples, reinterpret_cast<Target*>(to));
        }
    }
    return LoadProblem::None;
}

bool areLowBitsZero(const DecodedSamples& samples)
{
    const uint lowBits = (1u << samples.unusedLowBits) - 1;
    uint found = 0;
    for (int row = 0; row < samples.height; ++row) {
        const auto* line = lineOf<quint16>(samples, row);
        for (qint64 i = 0; i < qint64(samples.width) * samples.channels; ++i) {
            found |= line[i];
        }
    }
    return (found & lowBits) == 0;
}

/// The samples with the number of low bits that really are to be taken away.
DecodedSamples withKnownLowBits(DecodedSamples samples)
{
    const bool isKnown = samples.bytesPerSample == 2 && samples.kind == SampleKind::Unsigned
        && samples.unusedLowBits > 0 && areLowBitsZero(samples);
    samples.unusedLowBits = isKnown ? samples.unusedLowBits : 0;
    return samples;
}

LoadProblem takeByType(const DecodedSamples& samples, ImageData& image)
{
    const bool isSigned = samples.kind == SampleKind::Signed;
    switch (samples.bytesPerSample) {
    case 1:
        return isSigned ? take<qint8, quint8>(samples, image)
                        : take<quint8, quint8>(samples, image);
    case 2:
        return isSigned ? take<qint16, quint16>(samples, image)
                        : take<quint16, quint16>(samples, image);
    case 4: break;
    default: return LoadProblem::UnfaithfulDepth;
    }
    if (samples.kind == SampleKind::Floating) {
        return take<float, quint32>(samples, image);
    }
    return isSigned ? take<qint32, quint32>(samples, image)
                    : take<quint32, quint32>(samples, image);
}

} // namespace

LoadProblem takeFaithfully(const DecodedSamples& samples, ImageData& image, ReadReport& report)
{
    if (samples.channels < 1 || samples.channels > 4) {
        return LoadProblem::UnfaithfulChannels;
    }
    const bool isHalfFloat = samples.kind == SampleKind::Floating && samples.bytesPerSample < 4;
    const LoadProblem problem
        = isHalfFloat ? LoadProblem::UnfaithfulDepth : takeByType(withKnownLowBits(samples), image);
    if (problem == LoadProblem::None) {
        report.isAlphaDropped
            = report.isAlphaDropped || samples.channels == 2 || samples.channels == 4;
        report.isTypeConverted = samples.kind != SampleKind::Unsigned;
    }
    return problem;
}
