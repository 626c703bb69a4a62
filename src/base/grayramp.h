#pragma once

#include <QColor>
#include <QVector>

/// The 256 gray levels from black to white.
inline QVector<QColor> grayRamp()
{
    QVector<QColor> colors;
    colors.reserve(256);
    for (int level = 0; level < 256; ++level) {
        colors.append(QColor(level, level, level));
    }
    return colors;
}
