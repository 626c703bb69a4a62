#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

/// Calibrated values at position 0 and at the position equal to the count of units, such as the
/// wavelengths at both ends of an image row. A negative end means there is no calibration.
struct ValueRange
{
    double start = -1.0;
    double end = -1.0;

    bool isCalibrated() const { return start >= 0.0 && end >= 0.0; }

    /// Value at `position` of `count` units. Infinite or not a number when `count` is 0.
    double valueAt(double position, int count) const
    {
        return position * (end - start) / count + start;
    }
};

/// The range that is kept for a given pair: none when either is negative, otherwise spanning at
/// least 5 units.
inline ValueRange storedValueRange(double start, double end)
{
    if (start < 0.0 || end < 0.0) {
        return ValueRange();
    }
    // Deliberate: a short span is widened downward, also below zero: (0, 3) is kept as (-2, 3) and
    // then counts as uncalibrated.
    return ValueRange { std::min(start, end - 5.0), end };
}

/// `value` truncated toward zero, limited to what an int holds; 0 for NaN. A calibrated value is no
/// coordinate: the whole range of an int counts, since no extent is added to it.
inline int wholeValue(double value)
{
    const double lowest = std::numeric_limits<int>::min();
    const double highest = std::numeric_limits<int>::max();
    return std::isnan(value) ? 0 : int(std::clamp(value, lowest, highest));
}
