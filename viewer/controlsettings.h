#pragma once

#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>

/// How the controls of the panel are to be set before a picture is taken. The limits are those of
/// the panel's fields.

constexpr int maxPeakCount = 200; ///< from 1 on
constexpr int maxWavelengthStart = 2000; ///< from 0 on
constexpr int maxPixelWidth = 100; ///< from 1 on

/// The palettes as the panel's buttons carry them, in their order: "pushButtonGray" and so on.
inline QStringList paletteNames()
{
    return { "Gray", "Red", "Green", "Blue", "Color" };
}

struct ControlSettings
{
    QString view; ///< "image", "x" or "y"; empty: as it is
    int peakCount = 0; ///< 0: no peaks are shown
    QString palette; ///< one of paletteNames() in small letters; empty: as it is
    QVector<QRect> regions; ///< image pixels, counted from the top left
    bool hasWavelength = false; ///< the horizontal axis is labelled in wavelengths
    int wavelengthStart = 0;
    int pixelWidth = 1;
    QString wavelengthUnit; ///< "um" or "nm"; empty: as it is

    bool isEmpty() const
    {
        return view.isEmpty() && peakCount == 0 && palette.isEmpty() && regions.isEmpty()
            && !hasWavelength;
    }
};
