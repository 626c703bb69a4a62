#pragma once

#include <QByteArray>
#include <QRgb>
#include <QString>
#include <QVector>

/// The false-colour palettes that the display preferences read from files beside the program.

/// 256 opaque colours, display level 0 first.
using PaletteColors = QVector<QRgb>;

PaletteColors redPalette(); ///< level i is (i, 0, 0)
PaletteColors greenPalette();
PaletteColors bluePalette();

/// Black, blue, green, red, yellow and white at equal distances, mixed linearly in between.
PaletteColors colorPalette();

/// One line "R G B" a colour, in decimal with single spaces, each ended by a line feed.
QByteArray paletteFileText(const PaletteColors& palette);

struct PaletteFile
{
    QString fileName;
    PaletteColors (*colors)();
};

QVector<PaletteFile> allPaletteFiles();
