#pragma once

#include "base/valuerange.h"

#include <QVector>
#include <QtGlobal>

/// Numbers of one row or column as the charts have them.

/// Where the pixels of a row or column lie on its axis.
struct ProfileScale
{
    int pixels = 0; ///< of the row or column
    bool isColumn = false; ///< pixel 0 is then the top one, and the axis begins at the bottom
    bool isCalibrated = false;
    double start = 0.0; ///< wavelength where the axis begins
    double step = 1.0; ///< wavelength from one pixel to the next

    /// The wavelength of a pixel; without a calibration the pixel itself.
    double position(int pixel) const
    {
        if (!isCalibrated) {
            return pixel;
        }
        return (isColumn ? pixels - 1 - pixel : pixel) * step + start;
    }
};

/// The wavelengths along an axis of `pixels` pixels, before the axis takes or widens them.
ValueRange wavelengthRange(double start, double pixelWidth, int pixels);

/// `range` is one that an axis has taken.
ProfileScale profileScale(const ValueRange& range, int pixels, bool isColumn);

/// The pixels of the strongest peaks, at most `count` and peakCapacity, in the order of their
/// ranks. `levels` are the display levels of a row from left to right or of a column from top to
/// bottom.
QVector<int> rankedPeaks(QVector<uchar> levels, bool isColumn, int count);
