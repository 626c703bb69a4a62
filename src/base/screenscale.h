#pragma once

#include <QGuiApplication>
#include <QScreen>

/// Logical dots per inch of the primary screen. 96 while there is none, as on a remote desktop that
/// is reconnecting.
inline double primaryDotsPerInch()
{
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInch() : 96.0;
}

/// The screen scale, in single precision.
inline float dpiMultiple(double dotsPerInch)
{
    return float(dotsPerInch / 96.0);
}

/// Pixels for `pixels` drawn at 96 dots per inch, truncated toward zero: 290 at 120 dpi gives 362.
inline int scaledPixels(float pixels, double dotsPerInch)
{
    return int(dpiMultiple(dotsPerInch) * pixels); // Deliberate: narrowed before the product
}
