#include "panel/moduletiles.h"

#include "base/limits.h"

#include <algorithm>

namespace {

constexpr qint64 maxTiles = 1 << 20;

/// Whether both sizes have an area, sums of them fit an int, and a row or a column of tiles fits
/// the memory.
bool canBeTiled(const QSize& tile, const QSize& panel)
{
    return !tile.isEmpty() && !panel.isEmpty()
        && std::max({ tile.width(), tile.height(), panel.width(), panel.height() })
        <= surfaceSideLimit;
}

/// Whether a whole area of tiles fits the memory, too.
bool areaCanBeTiled(const QSize& tile, const QSize& panel)
{
    return canBeTiled(tile, panel)
        && qint64(panel.width() / tile.width()) * (panel.height() / tile.height()) <= maxTiles;
}

} // namespace

QVector<QRect> centreTiles(const QSize& tile, const QSize& panel)
{
    QVector<QRect> tiles;
    if (!areaCanBeTiled(tile, panel)) {
        return tiles;
    }
    const int rightLimit = panel.width() - tile.width();
    const int bottomLimit = panel.height() - tile.height();
    // Deliberate: the left margin is as wide as the centre tile, not as the left edge.
    int x = tile.width();
    for (int y = 0; y < bottomLimit;) {
        if (x >= rightLimit) {
            x = tile.width();
            y += tile.height();
            if (y >= bottomLimit) {
                break;
            }
        }
        tiles.append(QRect(x, y, tile.width(), std::min(tile.height(), bottomLimit - y)));
        x += tile.width();
    }
    return tiles;
}

QVector<QRect> sideTiles(int x, const QSize& tile, int cornerHeight, const QSize& panel)
{
    QVector<QRect> tiles;
    if (!canBeTiled(tile, panel)) {
        return tiles;
    }
    const int bottomLimit = panel.height() - cornerHeight;
    for (int y = 0; y < bottomLimit; y += tile.height()) {
        const bool isCut = cornerHeight > 0 && y + tile.height() > bottomLimit;
        tiles.append(QRect(x, y, tile.width(), isCut ? bottomLimit - y : tile.height()));
    }
    return tiles;
}

QVector<QRect> bottomTiles(
    const QSize& tile, int leftCornerWidth, int rightCornerWidth, const QSize& panel)
{
    QVector<QRect> tiles;
    if (!canBeTiled(tile, panel)) {
        return tiles;
    }
    const int y = panel.height() - tile.height();
    const int rightLimit = panel.width() - rightCornerWidth;
    for (int x = leftCornerWidth; x < rightLimit; x += tile.width()) {
        const bool isCut = rightCornerWidth > 0 && x + tile.width() > rightLimit;
        tiles.append(QRect(x, y, isCut ? rightLimit - x : tile.width(), tile.height()));
    }
    return tiles;
}
