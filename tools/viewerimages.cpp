#include "skinimages.h"

#include "skinpainting.h"

#include <cmath>

namespace {

// Glyphs are drawn large; the style sheet scales them down to the size of their button.
constexpr int glyphSide = 96;

QImage glyph(const QVector<QPointF>& line, const QColor& color, qreal width)
{
    QImage image = skinCanvas(glyphSide, glyphSide);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF(line));
    return image;
}

QImage zoomOut()
{
    return glyph({ { 16.0, 48.0 }, { 80.0, 48.0 } }, glyphColor, 9.0);
}

QImage zoomIn()
{
    QImage image = zoomOut();
    QPainter painter(&image);
    painter.drawImage(0, 0, glyph({ { 48.0, 16.0 }, { 48.0, 80.0 } }, glyphColor, 9.0));
    return image;
}

QImage arrowDown()
{
    return glyph({ { 20.0, 34.0 }, { 48.0, 64.0 }, { 76.0, 34.0 } }, glyphColor, 11.0);
}

QImage arrowRight()
{
    return glyph({ { 36.0, 20.0 }, { 64.0, 48.0 }, { 36.0, 76.0 } }, glyphColor, 11.0);
}

QImage arrowDownDisabled()
{
    return glyph(
        { { { 20.0, 34.0 }, { 48.0, 64.0 }, { 76.0, 34.0 } } }, QColor(96, 105, 116), 11.0);
}

QImage checkMark()
{
    return glyph({ { 20.0, 50.0 }, { 40.0, 70.0 }, { 76.0, 26.0 } }, glyphColor, 14.0);
}

/// Profile of three peaks between 0 and 1, for the picture of the program.
double profile(double x)
{
    const auto peak = [x](double centre, double height) {
        const double distance = (x - centre) / 0.035;
        return height * std::exp(-0.5 * distance * distance);
    };
    return 0.06 + peak(0.24, 0.45) + peak(0.52, 0.86) + peak(0.74, 0.62);
}

/// A dark screen with a spectrum's profile and the cross-hair on its strongest line.
QImage logo()
{
    constexpr int side = 256;
    QImage image = skinCanvas(side, side);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(83, 96, 112), 4.0));
    painter.setBrush(vertical(side, QColor(33, 39, 47), canvasColor));
    painter.drawRoundedRect(QRectF(10.0, 10.0, 236.0, 236.0), 36.0, 36.0);

    QPolygonF curve;
    for (int x = 38; x <= 218; ++x) {
        curve << QPointF(x, 206.0 - 150.0 * profile((x - 38) / 180.0));
    }
    painter.setPen(QPen(accentColor, 8.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(curve);

    painter.setPen(QPen(QColor(250, 250, 250), 5.0, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(131.6, 36.0), QPointF(131.6, 96.0));
    painter.drawLine(QPointF(101.6, 66.0), QPointF(161.6, 66.0));
    return image;
}

/// A picture frame crossed out: the file that is not shown.
QImage problemPicture()
{
    constexpr int side = 256;
    QImage image = skinCanvas(side, side);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(QColor(120, 133, 149), 9.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.setPen(pen);
    painter.drawRoundedRect(QRectF(38.0, 58.0, 180.0, 140.0), 14.0, 14.0);
    painter.drawPolyline(QPolygonF({ { 48.0, 178.0 }, { 98.0, 124.0 }, { 132.0, 160.0 },
        { 164.0, 130.0 }, { 208.0, 176.0 } }));
    painter.drawEllipse(QPointF(166.0, 96.0), 13.0, 13.0);
    pen.setColor(QColor(214, 128, 84));
    pen.setWidthF(11.0);
    painter.setPen(pen);
    painter.drawLine(QPointF(32.0, 214.0), QPointF(224.0, 42.0));
    return image;
}

} // namespace

QVector<SkinImage> viewerImages()
{
    return {
        { "zoom_in.png", zoomIn },
        { "zoom_out.png", zoomOut },
        { "arrow_down.png", arrowDown },
        { "arrow_down_disabled.png", arrowDownDisabled },
        { "arrow_right.png", arrowRight },
        { "check_mark.png", checkMark },
        { "logo.png", logo },
        { "problem.png", problemPicture },
    };
}
