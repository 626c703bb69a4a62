#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// Legibility of one colour on another, after the definitions of WCAG 2.1.

/// Relative luminance of an sRGB colour: 0 for black, 1 for white. The opacity does not count.
inline double relativeLuminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double value = channel / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour))
        + 0.0722 * linear(qBlue(colour));
}

/// Contrast ratio of two colours in any order: 1 for equal ones, 21 for black and white.
inline double contrastRatio(QRgb a, QRgb b)
{
    const double luminanceA = relativeLuminance(a);
    const double luminanceB = relativeLuminance(b);
    const double lighter = std::max(luminanceA, luminanceB);
    const double darker = std::min(luminanceA, luminanceB);
    return (lighter + 0.05) / (darker + 0.05);
}
