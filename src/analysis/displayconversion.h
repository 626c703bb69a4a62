#pragma once

#include "analysis/displaylevels.h"

#include <QtGlobal>

#include <array>

/// One colour as it stands in the display image.
struct PaletteEntry
{
    uchar red = 0;
    uchar green = 0;
    uchar blue = 0;

    bool operator==(const PaletteEntry& other) const
    {
        return red == other.red && green == other.green && blue == other.blue;
    }
};

/// Colour of each display level.
using LevelColors = std::array<PaletteEntry, 256>;

/// Writes the colours of `count` samples to `rgb`, three bytes a sample without padding.
/// Exists for uchar, ushort and uint samples.
template <class Sample>
void convertToRgb(const Sample* samples, qint64 count, const DisplayLevels& levels,
    const LevelColors& colors, uchar* rgb);
