#pragma once

#include <QRect>
#include <QSize>
#include <QVector>

/// Where the tiles of a module panel's background lie, in the order in which they are drawn. All
/// sizes are in pixels; `panel` is the size of the whole panel. There are no rectangles for a tile
/// or a panel without area, for an extent above 2^20, nor where they would be more than 2^20.

/// Rows of centre tiles, which leave one tile width free on the left. The last row is cut one tile
/// height above the lower edge. A panel no wider than two tiles gets one tile a row, but none in
/// the first row.
QVector<QRect> centreTiles(const QSize& tile, const QSize& panel);

/// Tiles of a side edge, downward from the top at column `x`. The last one is cut where a corner of
/// `cornerHeight` begins; without a corner it runs over the lower edge.
QVector<QRect> sideTiles(int x, const QSize& tile, int cornerHeight, const QSize& panel);

/// Tiles of the bottom edge, rightward from the left corner. The last one is cut where the right
/// corner begins; without a right corner it runs over the right edge.
QVector<QRect> bottomTiles(
    const QSize& tile, int leftCornerWidth, int rightCornerWidth, const QSize& panel);
