#pragma once

class QPainter;
class QPixmap;

/// Paints the skin of a title bar into (0, 0, width, height): the left and right ends in their own
/// widths, the middle repeated between them, all stretched to the height. A null pixmap leaves its
/// part unpainted; without a right end there is no middle either.
void paintTitleBarSkin(QPainter& painter, const QPixmap& left, const QPixmap& middle,
    const QPixmap& right, int width, int height);
