#include "analysis/displayconversion.h"

template <class Sample>
void convertToRgb(const Sample* samples, qint64 count, const DisplayLevels& levels,
    const LevelColors& colors, uchar* rgb)
{
    for (qint64 i = 0; i < count; ++i) {
        const PaletteEntry& color = colors[levels.level(samples[i])];
        rgb[3 * i] = color.red;
        rgb[3 * i + 1] = color.green;
        rgb[3 * i + 2] = color.blue;
    }
}

template void convertToRgb(const uchar*, qint64, const DisplayLevels&, const LevelColors&, uchar*);
template void convertToRgb(const ushort*, qint64, const DisplayLevels&, const LevelColors&, uchar*);
template void convertToRgb(const uint*, qint64, const DisplayLevels&, const LevelColors&, uchar*);
