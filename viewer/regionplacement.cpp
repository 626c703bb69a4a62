#include "regionplacement.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

int pixelOfUnit(int unit, int pixelCount, int contentLength)
{
    return int(double(pixelCount) / contentLength * unit);
}

} // namespace

int unitOfPixel(int pixel, int pixelCount, int contentLength)
{
    const double middle = (pixel + 0.5) * contentLength / pixelCount;
    const int last = std::max(contentLength - 1, 1);
    const int below = std::clamp(int(std::floor(middle)), 1, last);
    const int above = std::clamp(int(std::ceil(middle)), 1, last);
    const int missedBelow = std::abs(pixelOfUnit(below, pixelCount, contentLength) - pixel);
    const int missedAbove = std::abs(pixelOfUnit(above, pixelCount, contentLength) - pixel);
    if (missedBelow != missedAbove) {
        return missedBelow < missedAbove ? below : above;
    }
    return middle - below <= above - middle ? below : above;
}

RegionCorners regionCorners(const QRect& pixels, const QSize& imageSize, const QSize& content)
{
    const auto corner = [&](const QPoint& pixel) {
        return QPoint(unitOfPixel(pixel.x(), imageSize.width(), content.width()),
            unitOfPixel(pixel.y(), imageSize.height(), content.height()));
    };
    return { corner(pixels.topLeft()), corner(pixels.bottomRight()) };
}

QPoint cornerAcross(const QRectF& region, const QPoint& corner)
{
    const QPointF middle = region.center();
    const qreal x = corner.x() < middle.x() ? region.right() : region.left();
    const qreal y = corner.y() < middle.y() ? region.bottom() : region.top();
    return QPointF(x, y).toPoint();
}
