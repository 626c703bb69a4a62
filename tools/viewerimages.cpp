#include "skinimages.h"

#include "skinpainting.h"

#include <cmath>

namespace {

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
        { "logo.png", logo },
        { "problem.png", problemPicture },
    };
}
