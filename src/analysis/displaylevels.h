#pragma once

#include "base/saturate.h"

#include <QtGlobal>

/// Display levels: 0..255, the whole-image range stretched over the grey levels of a screen.

/// Levels per bin that spread min..max over low..high. Infinite or not a number for a single value.
double displayScale(uchar low, uchar high, uint min, uint max);

/// Level of bin `bin`, counted from the smallest value and perhaps between two whole ones: bin x
/// scale truncated toward zero, and 255 for everything that is not below 255.
inline uchar displayLevel(double bin, double scale)
{
    const double level = bin * scale;
    // Deliberate: a single value has 0 x infinity here, which is not below 255 either.
    return level < 255.0 ? uchar(truncated(level)) : uchar(255);
}

/// Writes the levels of the first `binCount` bins.
void buildDisplayLevels(double scale, uchar* levels, uint binCount);

/// Whether `levels` still holds what buildDisplayLevels() writes. Costs little more than reading
/// it.
bool holdsDisplayLevels(double scale, const uchar* levels, uint binCount);

/// How sample values become display levels: by a map, or by the formula where the range is too
/// wide for one. Lent by the histogram buffer for one call.
struct DisplayLevels
{
    uint min = 0; ///< value of the first bin
    uint binCount = 0;
    double scale = 0.0; ///< levels per bin
    const uchar* map = nullptr; ///< binCount levels; null: computed from the scale

    /// Level of `value`; 0 for a value outside the bins.
    uchar level(uint value) const
    {
        const uint bin = value - min;
        if (bin >= binCount) {
            return 0;
        }
        return map ? map[bin] : displayLevel(bin, scale);
    }
};
