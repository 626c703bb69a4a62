#include "panel/modulebackground.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace {

QPixmap moduleImage(const char* name)
{
    return QPixmap(QStringLiteral(":/ui/res/icon/") + QLatin1String(name));
}

void drawAt(QPainter* painter, const QPixmap& image, int x, int y, int width, int height)
{
    painter->drawPixmap(QRect(x, y, width, height), image);
}

void tileCentre(QPainter* painter, const QPixmap& tile, int W, int H)
{
    if (tile.isNull()) {
        return;
    }
    const int mw = tile.width();
    const int mh = tile.height();
    int x = mw; // Deliberate: the left margin is the tile's width, whatever the left edge measures
    int y = 0;
    while (y < H - mh) {
        if (x >= W - mw) {
            x = mw;
            y += mh;
            if (y >= H - mh) {
                return;
            }
        }
        drawAt(painter, tile, x, y, mw, y > H - 2 * mh ? H - y - mh : mh);
        x = std::min(x + mw, W - mw);
    }
}

/// Tiles an edge downward at `x` to the corner at the bottom.
void tileDown(QPainter* painter, const QPixmap& edge, int x, int H, int cornerHeight)
{
    if (edge.isNull()) {
        return;
    }
    const int h = edge.height();
    for (int y = 0; y < H - cornerHeight; y += h) {
        const bool isCut = cornerHeight != 0 && y > H - cornerHeight - h;
        drawAt(painter, edge, x, y, edge.width(), isCut ? H - y - cornerHeight : h);
    }
}

/// Tiles the bottom edge from the left corner to the right one.
void tileAcross(QPainter* painter, const QPixmap& edge, int W, int H, int left, int right)
{
    if (edge.isNull()) {
        return;
    }
    const int w = edge.width();
    const int y = H - edge.height();
    for (int x = left; x < W - right; x += w) {
        const bool isCut = right != 0 && x > W - right - w;
        drawAt(painter, edge, x, y, isCut ? W - x - right : w, edge.height());
    }
}

void drawCorner(QPainter* painter, const QPixmap& corner, int x, int H)
{
    if (!corner.isNull()) {
        drawAt(painter, corner, x, H - corner.height(), corner.width(), corner.height());
    }
}

} // namespace

void paintModuleBackground(QPainter* painter, int W, int H)
{
    const QPixmap bottomLeft = moduleImage("module_bl.png");
    const QPixmap bottomRight = moduleImage("module_br.png");
    const QPixmap rightEdge = moduleImage("module_mr.png");
    tileCentre(painter, moduleImage("moduel_m.png"), W, H); // the file is spelled so
    tileDown(painter, moduleImage("module_ml.png"), 0, H, bottomLeft.height());
    tileDown(painter, rightEdge, W - rightEdge.width(), H, bottomRight.height());
    tileAcross(
        painter, moduleImage("module_bm.png"), W, H, bottomLeft.width(), bottomRight.width());
    drawCorner(painter, bottomLeft, 0, H);
    drawCorner(painter, bottomRight, W - bottomRight.width(), H);
}
