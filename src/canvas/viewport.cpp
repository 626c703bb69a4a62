#include "canvas/viewport.h"

#include "base/saturate.h"

#include <algorithm>
#include <cmath>

namespace {

/// First visible pixel after zooming one axis, before it is limited to the image.
int zoomedOrigin(
    int countBefore, int count, int originBefore, double crossPosition, double contentExtent)
{
    const int shift = truncated((double(countBefore) - count) * crossPosition / contentExtent);
    return truncated(double(shift) + originBefore);
}

/// `origin` moved on when the anchor stands less than `margin` pixels before the far edge, then
/// limited to the image.
/// Deliberate: the near edge is not looked at.
int keptInside(int origin, int count, int imageCount, double anchor, double margin)
{
    if (margin > double(origin) + count - anchor) {
        origin = truncated(double(origin) + truncated(margin + 0.5));
    }
    origin = std::max(origin, 0);
    if (origin > imageCount - count) {
        origin = imageCount - count;
    }
    return origin;
}

/// Pixels visible along one axis: at least one, at most the image.
int visibleCount(double contentExtent, double scale, int imageCount)
{
    return std::max(1, std::min(truncated(contentExtent / scale), imageCount));
}

double snappedCoordinate(double coordinate, double extent, double cell)
{
    const double middle = truncated(coordinate / cell) * cell + cell / 2.0;
    return std::max(std::min(middle, extent - cell / 2.0), cell / 2.0);
}

} // namespace

QSize contentSizeFor(const QSizeF& available, const QSize& imageSize)
{
    Q_ASSERT(!imageSize.isEmpty());
    const double scale = fittingScale(available, imageSize);
    int width = truncated(imageSize.width() * scale);
    int height = truncated(imageSize.height() * scale);
    width = width < 5 ? 4 : width;
    height = height < 2 ? 1 : height;

    // One rule for both orientations; the longer side is cut first, then decides the shorter one.
    int& longer = width <= height ? height : width;
    int& shorter = width <= height ? width : height;
    const double ratio = double(longer) / shorter;
    if (ratio > 1000.0) {
        longer = int(qint64(longer) * 4 / 5);
    }
    if (ratio > 10.0) {
        shorter = longer / 4;
    }
    return QSize(width / 4 * 4, height / 4 * 4);
}

double fittingScale(const QSizeF& content, const QSize& imageSize)
{
    const double across = content.width() / imageSize.width();
    const double down = content.height() / imageSize.height();
    return across < down ? across : down;
}

ImageView zoomedView(
    const ImageView& before, double scale, const ViewFrame& frame, const QPointF& crossPosition)
{
    Q_ASSERT(scale > 0.0 && !frame.content.isEmpty() && !frame.imageSize.isEmpty());
    const int columns = visibleCount(frame.content.width(), scale, frame.imageSize.width());
    const int rows = visibleCount(frame.content.height(), scale, frame.imageSize.height());
    const QSize sizeBefore = roundedSize(before.visible.size());
    const QPoint originBefore = roundedPoint(before.visible.topLeft());
    const double margin = frame.armLength / scale;

    const int top = zoomedOrigin(
        sizeBefore.height(), rows, originBefore.y(), crossPosition.y(), frame.content.height());
    const int left = zoomedOrigin(
        sizeBefore.width(), columns, originBefore.x(), crossPosition.x(), frame.content.width());
    ImageView after;
    after.scale = scale;
    after.visible = QRectF(
        keptInside(left, columns, frame.imageSize.width(), frame.anchor.x(), margin),
        keptInside(top, rows, frame.imageSize.height(), frame.anchor.y(), margin), columns, rows);
    return after;
}

ScrollStep scrolledSpan(int distance, double scale, int visibleStart, int visibleCount,
    int imageCount, double anchor, double armLength)
{
    const int step = scale > 1.0 ? 10 : 40;
    ScrollStep after;
    after.origin = std::max(0, visibleStart + (distance > 0 ? step : -step));
    if (after.origin > imageCount - visibleCount) {
        after.origin = imageCount - visibleCount;
    }
    after.anchor = anchor;
    const double margin = armLength / scale;
    if (margin > after.anchor - after.origin) {
        after.anchor = double(truncated(std::ceil(margin))) - 1 + after.origin;
    }
    if (margin > double(after.origin) + visibleCount - after.anchor) {
        after.anchor = double(after.origin) + visibleCount - truncated(std::ceil(margin));
    }
    return after;
}

QRectF movedToPixel(const QRectF& visible, const QPoint& pixel)
{
    const auto moved = [](double start, double count, int wanted) {
        const double last = start + std::max(count, 1.0) - 1.0;
        return wanted < start ? double(wanted) : start + std::max(wanted - last, 0.0);
    };
    return QRectF(QPointF(moved(visible.x(), visible.width(), pixel.x()),
                      moved(visible.y(), visible.height(), pixel.y())),
        visible.size());
}

QPointF mapPointFromImage(const QPointF& pixel, const QRectF& visible, const QSizeF& content)
{
    if (visible.width() == 0.0 || visible.height() == 0.0) {
        return QPointF(0.0, 0.0);
    }
    const double x = std::ceil((pixel.x() - visible.x()) * content.width() / visible.width());
    const double y = std::ceil((pixel.y() - visible.y()) * content.height() / visible.height());
    return QPointF(truncated(x), truncated(y));
}

QPoint mapPointToImage(const QPointF& point, const QRectF& visible, const QSizeF& content)
{
    Q_ASSERT(!content.isEmpty());
    const QPoint origin = roundedPoint(visible.topLeft());
    const int x = truncated(visible.width() / content.width() * point.x());
    const int y = truncated(visible.height() / content.height() * point.y());
    return QPoint(truncated(double(x) + origin.x()), truncated(double(y) + origin.y()));
}

QPointF snappedToPixel(const QPointF& point, double scale, const QSizeF& content)
{
    if (!(scale >= snappingScale)) {
        return point;
    }
    const QSizeF cell = pixelCell(content, scale);
    return QPointF(snappedCoordinate(point.x(), content.width(), cell.width()),
        snappedCoordinate(point.y(), content.height(), cell.height()));
}

QSizeF pixelCell(const QSizeF& content, double scale)
{
    return QSizeF(content.width() / std::max(1, truncated(content.width() / scale)),
        content.height() / std::max(1, truncated(content.height() / scale)));
}
