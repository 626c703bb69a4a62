#include "palettes.h"

#include <cmath>

namespace {

constexpr int levelCount = 256;

int mixed(int from, int to, double share)
{
    return int(std::lround(from + (to - from) * share));
}

PaletteColors ramp(QRgb fullColor)
{
    PaletteColors palette;
    for (int level = 0; level < levelCount; ++level) {
        const double share = level / 255.0;
        palette << qRgb(mixed(0, qRed(fullColor), share), mixed(0, qGreen(fullColor), share),
            mixed(0, qBlue(fullColor), share));
    }
    return palette;
}

} // namespace

PaletteColors redPalette()
{
    return ramp(qRgb(255, 0, 0));
}

PaletteColors greenPalette()
{
    return ramp(qRgb(0, 255, 0));
}

PaletteColors bluePalette()
{
    return ramp(qRgb(0, 0, 255));
}

PaletteColors colorPalette()
{
    const QVector<QRgb> stops { qRgb(0, 0, 0), qRgb(0, 0, 255), qRgb(0, 153, 0), qRgb(255, 0, 0),
        qRgb(255, 255, 0), qRgb(255, 255, 255) };
    constexpr int levelsPerStop = 51; // 255 / 5: every stop falls on a whole level
    PaletteColors palette;
    for (int level = 0; level < levelCount; ++level) {
        const QRgb from = stops.at(level / levelsPerStop);
        const QRgb to = stops.value(level / levelsPerStop + 1, from);
        const double share = double(level % levelsPerStop) / levelsPerStop;
        palette << qRgb(mixed(qRed(from), qRed(to), share), mixed(qGreen(from), qGreen(to), share),
            mixed(qBlue(from), qBlue(to), share));
    }
    return palette;
}

QByteArray paletteFileText(const PaletteColors& palette)
{
    QByteArray text;
    for (const QRgb color : palette) {
        text += QByteArray::number(qRed(color)) + ' ' + QByteArray::number(qGreen(color)) + ' '
            + QByteArray::number(qBlue(color)) + '\n';
    }
    return text;
}

QVector<PaletteFile> allPaletteFiles()
{
    return {
        { "red.pal", redPalette },
        { "green.pal", greenPalette },
        { "blue.pal", bluePalette },
        { "color.pal", colorPalette },
    };
}
