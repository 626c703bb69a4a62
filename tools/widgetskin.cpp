#include "skinimages.h"

#include "skinpainting.h"

namespace {

// --- the column behind the control panel ---

/// Stretched to the column; its last row lies under the first body tile.
QImage columnHeader()
{
    QImage image = skinCanvas(290, 57);
    QPainter painter(&image);
    painter.fillRect(image.rect(), vertical(57, QColor(48, 56, 66), QColor(37, 43, 52)));
    painter.fillRect(0, 0, 290, 1, QColor(66, 76, 89));
    painter.fillRect(0, 54, 290, 1, QColor(22, 26, 31));
    painter.fillRect(0, 55, 290, 2, QColor(58, 67, 79));
    return image;
}

/// Stretched sideways, repeated downwards. Plain: a gradient this wide would show its steps.
QImage columnBody()
{
    QImage image = skinCanvas(290, 64);
    image.fill(QColor(32, 37, 45));
    return image;
}

/// Right-hand edge of the column: a bevel towards the canvas.
QImage columnBorder()
{
    QImage image = skinCanvas(3, 64);
    QPainter painter(&image);
    painter.fillRect(0, 0, 1, 64, QColor(22, 26, 31));
    painter.fillRect(1, 0, 1, 64, QColor(63, 73, 86));
    painter.fillRect(2, 0, 1, 64, QColor(9, 11, 14));
    return image;
}

/// Fills the canvas from its origin on; the period of the dots divides the side of the tile, and
/// the side is a multiple of the codec's blocks.
QImage canvasBackground()
{
    constexpr int side = 96;
    constexpr int period = 24;
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(canvasColor);
    for (int y = period / 2; y < side; y += period) {
        for (int x = period / 2; x < side; x += period) {
            image.setPixelColor(x, y, QColor(38, 45, 54));
        }
    }
    return image;
}

// --- title bars: left and right parts as wide as they are, the middle repeated ---

constexpr int titleHeight = 28;
constexpr int titleEndWidth = 10;
constexpr qreal titleRadius = 5.0;

/// Paints the whole bar shifted left by `offset`, so that each part shows its own stretch of it.
QImage titlePart(int partWidth, int offset)
{
    constexpr int barWidth = 100;
    QImage image = skinCanvas(partWidth, titleHeight);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-offset, 0);
    QPainterPath outline;
    outline.addRoundedRect(
        QRectF(0.5, 0.5, barWidth - 1, titleHeight + 10), titleRadius, titleRadius);
    painter.setClipRect(0, 0, barWidth, titleHeight);
    painter.setPen(QPen(QColor(83, 96, 112), 1.0));
    painter.setBrush(vertical(titleHeight, QColor(68, 80, 94), QColor(48, 57, 68)));
    painter.drawPath(outline);
    painter.fillRect(QRectF(1.0, titleHeight - 1.0, barWidth - 2, 1.0), QColor(31, 36, 43));
    return image;
}

QImage titleLeft()
{
    return titlePart(titleEndWidth, 0);
}

QImage titleMiddle()
{
    return titlePart(16, 40);
}

QImage titleRight()
{
    return titlePart(titleEndWidth, 100 - titleEndWidth);
}

// --- module panels ---

// The first centre tile stands one tile in from the left and the last row of tiles ends one tile
// above the bottom, so all six images share one size; the last of each row is squeezed, so none
// carries a pattern.
constexpr int moduleTile = 16;
const QColor moduleColor(21, 25, 30);
const QColor moduleBorderColor(72, 84, 98);

QImage moduleCentre()
{
    QImage image = skinCanvas(moduleTile, moduleTile);
    image.fill(moduleColor);
    return image;
}

QImage moduleLeft()
{
    QImage image = moduleCentre();
    QPainter(&image).fillRect(0, 0, 1, moduleTile, moduleBorderColor);
    return image;
}

QImage moduleRight()
{
    return moduleLeft().mirrored(true, false);
}

QImage moduleBottom()
{
    QImage image = moduleCentre();
    QPainter(&image).fillRect(0, moduleTile - 1, moduleTile, 1, moduleBorderColor);
    return image;
}

QImage moduleBottomLeft()
{
    QImage image = skinCanvas(moduleTile, moduleTile);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(moduleBorderColor, 1.0));
    painter.setBrush(moduleColor);
    painter.drawRoundedRect(QRectF(0.5, -20.0, 60.0, 20.0 + moduleTile - 0.5), 5.0, 5.0);
    return image;
}

QImage moduleBottomRight()
{
    return moduleBottomLeft().mirrored(true, false);
}

// --- the Return button ---

QImage returnButton(
    const QColor& top, const QColor& bottom, const QColor& edge, const QColor& arrow)
{
    QImage image = skinCanvas(96, 44);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, 1.0));
    painter.setBrush(vertical(44, top, bottom));
    painter.drawRoundedRect(QRectF(2.5, 4.5, 91.0, 35.0), 6.0, 6.0);
    QPen pen(arrow, 3.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF({ { 43.0, 13.5 }, { 34.0, 22.0 }, { 43.0, 30.5 } }));
    painter.drawLine(QPointF(35.0, 22.0), QPointF(62.0, 22.0));
    return image;
}

QImage returnNormal()
{
    return returnButton(
        QColor(64, 75, 88), QColor(47, 55, 66), QColor(92, 106, 123), QColor(226, 231, 237));
}

QImage returnHover()
{
    return returnButton(
        QColor(58, 112, 122), QColor(38, 84, 93), accentColor, QColor(250, 250, 250));
}

} // namespace

QVector<SkinImage> widgetSkinImages()
{
    return {
        { "mdi_mod_header.png", columnHeader },
        { "mdi_mod_body.png", columnBody },
        { "mdi_mod_border.png", columnBorder },
        { "mdi_bk.jpg", canvasBackground },
        { "mod_title_left.png", titleLeft },
        { "mod_title_middle.png", titleMiddle },
        { "mod_title_right.png", titleRight },
        { "moduel_m.png", moduleCentre },
        { "module_ml.png", moduleLeft },
        { "module_mr.png", moduleRight },
        { "module_bm.png", moduleBottom },
        { "module_bl.png", moduleBottomLeft },
        { "module_br.png", moduleBottomRight },
        { "mod_cfg_close_p.png", returnNormal },
        { "mod_cfg_close_h.png", returnHover },
    };
}
