#pragma once

#include <QColor>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

/// What the drawing of the skin images shares: an empty image, a gradient, the common colours.

const QColor canvasColor(14, 17, 21);
const QColor accentColor(72, 172, 186);
const QColor glyphColor(226, 231, 237);

inline QImage skinCanvas(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

inline QLinearGradient vertical(qreal height, const QColor& top, const QColor& bottom)
{
    QLinearGradient gradient(0.0, 0.0, 0.0, height);
    gradient.setColorAt(0.0, top);
    gradient.setColorAt(1.0, bottom);
    return gradient;
}
