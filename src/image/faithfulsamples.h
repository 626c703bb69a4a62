#pragma once

#include "image/reading.h"

#include <QtGlobal>

class ImageData;

/// Samples as a decoder hands them out or a raw file holds them, not owned: rows top first, the
/// values of a pixel side by side (blue, green, red, alpha, or gray, alpha), in host byte order.
struct DecodedSamples
{
    const uchar* bytes = nullptr; ///< aligned to a sample
    qint64 bytesPerLine = 0;
    int width = 0; ///< pixels
    int height = 0;
    int channels = 1;
    int bytesPerSample = 1;
    SampleKind kind = SampleKind::Unsigned;
    /// Bits below the value in unsigned samples of 16 bits, where some decoders leave zeros.
    /// Samples in which they are not all zero are taken as they stand.
    int unusedLowBits = 0;
};

/// Makes `image` the picture that the samples hold, with one or three channels of unsigned numbers
/// of 8, 16 or 32 bits, and notes in `report` what was changed. A refusal, with its reason as the
/// answer, leaves both as they were.
///
/// The last of two or four values is alpha and is dropped. Floating-point samples become whole
/// numbers of 32 bits. Three channels of 32 bits are reduced to gray here, as the record would do
/// it, but without its wrap modulo 2^32.
LoadProblem takeFaithfully(const DecodedSamples& samples, ImageData& image, ReadReport& report);
