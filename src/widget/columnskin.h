#pragma once

class QPainter;
class QPixmap;

/// Width of the panel column at 96 dots per inch.
constexpr float panelColumnPixels = 290.0F;

/// Paints the panel column from (0, 0) down to `height`: the header scaled into its width, body
/// tiles of natural height below it, and the border tiles, unscaled, along its right edge. A null
/// pixmap leaves its part unpainted.
void paintColumnSkin(QPainter& painter, const QPixmap& header, const QPixmap& body,
    const QPixmap& border, int height, double dotsPerInch);
