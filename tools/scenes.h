#pragma once

#include "rawframe.h"

#include <QString>
#include <QVector>

/// Synthetic camera frames. Every scene is drawn from a fixed seed: the same frame each time.

/// Wavelength of column 0 of the lamp spectrum in nanometres; each column further is 1 nm more.
/// The panel's calibration starts out with the same two numbers.
constexpr int lampStartWavelength = 100;

struct SpectralLine
{
    double wavelength; ///< in air, nanometres
    double strength; ///< relative to the strongest line, which is 1000
};

/// The emission lines of a mercury-argon calibration lamp, by rising wavelength.
QVector<SpectralLine> mercuryArgonLines();

/// Where the lamp frame's one hot pixel is.
constexpr int lampHotPixelColumn = 512;
constexpr int lampHotPixelRow = 84;

RawFrame lampSpectrum(); ///< 1024 x 256, 16 bit
RawFrame starField(); ///< 2048 x 2048, 16 bit
RawFrame dimCells(); ///< 1280 x 960, 12 bit in 16, the upper three quarters of the range unused
RawFrame ringCounts(); ///< 640 x 480, 32 bit, an accumulation of some million counts a pixel
RawFrame colourChart(); ///< 960 x 640, 8 bit, channels blue, green, red
RawFrame greyTarget(); ///< 501 x 377, 8 bit: rows of a width that is no multiple of 4

struct Scene
{
    QString name; ///< as the command line names it
    QString fileName; ///< of the sample frame; its suffix is the format it is written in
    RawFrame (*draw)();
};

/// All scenes, in the order in which they are listed and written.
QVector<Scene> allScenes();
