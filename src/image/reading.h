#pragma once

#include <QtGlobal>

/// How a file is to be read, and what came of it: plain data of the loaders.

enum class Reading {
    AsStored, ///< samples as they stand in the file, whatever they mean
    Faithful ///< the picture that the file holds, or a refusal with its reason
};

/// Why a file or a frame is refused.
enum class LoadProblem {
    None,
    Missing, ///< no file of this name
    NotAFile, ///< a folder, a pipe, a device
    UnknownSuffix,
    NotReadable, ///< no permission, damaged, or of another format than its suffix says
    UnsupportedKind, ///< sound, but of a kind that is not read, such as 6 bits a sample
    NoPixels, ///< faithful reading: an image without width or height
    TooLarge, ///< exceeds what an image record can hold, or the memory
    OverPixelLimit, ///< more pixels than ReadOptions::pixelLimit
    NoSuchPage,
    UnfaithfulValues, ///< faithful reading: a sample is not a whole number from 0 to 2^32 - 1
    UnfaithfulDepth, ///< faithful reading: samples of other than 8, 16 or 32 bits
    UnfaithfulChannels, ///< faithful reading: neither 1 nor 3 channels with or without alpha
    BadFrame ///< a frame whose description makes no sense
};

enum class SampleKind { Unsigned, Signed, Floating };

struct ReadOptions
{
    Reading reading = Reading::AsStored;
    int page = 0; ///< of a file with several pages, from 0; other than 0 with faithful reading only
    qint64 pixelLimit = 0; ///< most pixels of an image; 0 or less: no limit
};

/// What a load found. Of a file that was refused only `problem` counts.
struct ReadReport
{
    LoadProblem problem = LoadProblem::None;
    int channels = 0; ///< values a pixel in the file
    SampleKind sampleKind = SampleKind::Unsigned; ///< in the file
    int page = 0;
    int pageCount = 1;
    bool isAlphaDropped = false;
    bool isTypeConverted = false; ///< signed or floating-point samples became whole numbers
};
