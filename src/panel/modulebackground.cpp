#include "panel/modulebackground.h"

#include "panel/moduletiles.h"

#include <QPainter>
#include <QPixmap>

namespace {

void drawTiles(QPainter* painter, const QVector<QRect>& tiles, const QPixmap& pixmap)
{
    for (const QRect& tile : tiles) {
        painter->drawPixmap(tile, pixmap);
    }
}

void drawCorner(QPainter* painter, int x, int panelHeight, const QPixmap& corner)
{
    const int y = panelHeight - corner.height();
    painter->drawPixmap(QRect(QPoint(x, y), corner.size()), corner); // nothing when it is null
}

} // namespace

void paintModuleBackground(QPainter* painter, int W, int H)
{
    if (W < 1 || H < 1) {
        return;
    }
    // Loaded anew for every paint: the application may exchange its resources.
    const QPixmap bottomLeft(QStringLiteral(":/ui/res/icon/module_bl.png"));
    const QPixmap bottomRight(QStringLiteral(":/ui/res/icon/module_br.png"));
    const QPixmap centre(QStringLiteral(":/ui/res/icon/moduel_m.png")); // the file's real name
    const QPixmap left(QStringLiteral(":/ui/res/icon/module_ml.png"));
    const QPixmap right(QStringLiteral(":/ui/res/icon/module_mr.png"));
    const QPixmap bottom(QStringLiteral(":/ui/res/icon/module_bm.png"));

    const QSize panel(W, H);
    drawTiles(painter, centreTiles(centre.size(), panel), centre);
    drawTiles(painter, sideTiles(0, left.size(), bottomLeft.height(), panel), left);
    drawTiles(
        painter, sideTiles(W - right.width(), right.size(), bottomRight.height(), panel), right);
    drawTiles(painter, bottomTiles(bottom.size(), bottomLeft.width(), bottomRight.width(), panel),
        bottom);
    drawCorner(painter, 0, H, bottomLeft);
    drawCorner(painter, W - bottomRight.width(), H, bottomRight);
}
