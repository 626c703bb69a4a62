#include "canvas/roigeometry.h"

#include "canvas/viewport.h"
#include "base/saturate.h"

#include <algorithm>
#include <cmath>

namespace {

/// The rectangle with these inclusive corners. In doubles: the extent may exceed an int.
QRectF betweenCorners(double left, double top, double right, double bottom)
{
    return QRectF(left, top, right - left + 1.0, bottom - top + 1.0);
}

/// First and last pixel along one axis.
struct Span
{
    qint64 first;
    qint64 last;
};

/// Cuts and moves a span into `count` pixels; the last one comes no further than `limit`.
Span spanInImage(Span span, qint64 count, qint64 limit)
{
    span.first = std::min(span.first, count - 2);
    span.last = std::max<qint64>(std::min(span.last, limit), 1);
    qint64 length = span.last - span.first + 1;
    if (length < 1 || span.last == span.first) {
        length = 1;
        span.last = span.first + 1;
    }
    if (length > count) {
        span.last = count + span.first; // Deliberate: the length stays what it was
    }
    if (span.first + length > count) {
        span.last = count - 1;
        span.first = count - length;
    }
    return span;
}

/// Edges of a span on the middles of cells of `cell` units, at least one cell apart.
void snapEdges(double& start, double& end, double cell)
{
    start = truncated(start / cell) * cell + cell / 2.0;
    end = truncated(end / cell) * cell + cell / 2.0;
    if (end - start < cell) {
        end = start + cell;
    }
}

void pushBack(double& start, double& end, double limit)
{
    if (end > limit) {
        const double excess = end - limit;
        start -= excess;
        end -= excess;
    }
}

} // namespace

QRectF imageExtentInItem(const QRectF& visible, const QSize& imageSize, const QSizeF& content)
{
    if (visible.width() == 0.0 || visible.height() == 0.0) {
        return QRectF();
    }
    const double sx = content.width() / visible.width();
    const double sy = content.height() / visible.height();
    return QRectF(-truncated(visible.x() * sx), -truncated(visible.y() * sy),
        truncated(imageSize.width() * sx), truncated(imageSize.height() * sy));
}

QRectF roiToItem(const QRectF& rect, const QRectF& visible, const QSizeF& content)
{
    if (visible.width() == 0.0 || visible.height() == 0.0) {
        return QRectF();
    }
    const double sx = content.width() / visible.width();
    const double sy = content.height() / visible.height();
    const int left = truncated(std::ceil((rect.x() - visible.x()) * sx));
    const int top = truncated(std::ceil((rect.y() - visible.y()) * sy));
    const int right = truncated(std::ceil((rect.x() + rect.width() - 1.0 - visible.x()) * sx));
    const int bottom = truncated(std::ceil((rect.y() + rect.height() - 1.0 - visible.y()) * sy));
    return betweenCorners(left, top, right, bottom);
}

QRectF roiFromPixels(const QPoint& topLeft, const QPoint& bottomRight, const QSize& imageSize)
{
    const qint64 lastColumn = qint64(imageSize.width()) - 1;
    const Span x = spanInImage({ topLeft.x(), bottomRight.x() }, imageSize.width(), lastColumn);
    // Deliberate: the lower edge is limited by the image width, not by its height.
    const Span y = spanInImage({ topLeft.y(), bottomRight.y() }, imageSize.height(), lastColumn);
    return betweenCorners(double(x.first), double(y.first), double(x.last), double(y.last));
}

QRectF roiOnPixelMiddles(
    const QRectF& rect, double scale, const QSizeF& content, const QRectF& extent)
{
    if (!(scale >= snappingScale)) {
        return rect;
    }
    const QSizeF cell = pixelCell(content, scale);
    double left = rect.x();
    double right = rect.x() + rect.width();
    double top = rect.y();
    double bottom = rect.y() + rect.height();
    snapEdges(left, right, cell.width());
    snapEdges(top, bottom, cell.height());
    const double half = cell.width() / 2.0;
    pushBack(left, right, extent.x() + extent.width() - half);
    // Deliberate: half the width of a cell bounds the vertical direction, too.
    pushBack(top, bottom, extent.y() + extent.height() - half);
    return QRectF(QPointF(left, top), QPointF(right, bottom));
}

QRectF roiInside(const QRectF& parent, const QRectF& rect)
{
    const double width = std::max(std::min(parent.width(), rect.width()), 1.0);
    const double height = std::max(std::min(parent.height(), rect.height()), 1.0);
    double x = std::max(rect.x(), parent.x());
    double y = std::max(rect.y(), parent.y());
    if (rect.x() + rect.width() > parent.x() + parent.width()) {
        x = parent.x() + parent.width() - width;
    }
    if (rect.y() + rect.height() > parent.y() + parent.height()) {
        y = parent.y() + parent.height() - height;
    }
    return QRectF(x, y, width, height);
}

QVector<QPointF> roiHandles(const QRectF& rect)
{
    const double right = rect.x() + rect.width();
    const double bottom = rect.y() + rect.height();
    return { rect.topLeft(), QPointF(right, rect.y()), QPointF(rect.x(), bottom),
        QPointF(right, bottom) };
}

RoiZone nearestCorner(const QRectF& rect, const QPointF& position)
{
    const bool isLeft = rect.x() + rect.width() * 0.5 > position.x();
    const bool isTop = rect.y() + rect.height() * 0.5 > position.y();
    if (isTop) {
        return isLeft ? TopLeftZone : TopRightZone;
    }
    return isLeft ? BottomLeftZone : BottomRightZone;
}

RoiZone cornerUnderPointer(const QPointF& bottomRight, const QPointF& position)
{
    const bool isTop = bottomRight.y() > position.y();
    const bool isLeft = bottomRight.x() > position.x();
    if (isTop) {
        return isLeft ? TopLeftZone : TopRightZone;
    }
    return isLeft ? BottomLeftZone : BottomRightZone;
}

int handleReach(const QSizeF& handleSize)
{
    return roundedSize(handleSize).width() / 2; // Deliberate: the width, for both directions
}

QRectF roiResized(QVector<QPointF> handles, RoiZone corner, const QPointF& position)
{
    Q_ASSERT(handles.size() >= 2);
    const int dragged = int(corner) - 1;
    const int beside = dragged ^ 1; // shares the dragged corner's edge at the top or the bottom
    const int across = dragged ^ 2; // shares its left or right edge
    if (dragged < handles.size()) {
        handles[dragged] = position;
        // The rectangle runs from the top left to the bottom right corner: these two need nobody.
        const bool isBetween = corner == TopRightZone || corner == BottomLeftZone;
        if (isBetween && beside < handles.size()) {
            handles[beside].setY(position.y());
        }
        if (isBetween && across < handles.size()) {
            handles[across].setX(position.x());
        }
    }
    const QPointF first = handles.first();
    const QPointF last = handles.at(handles.size() >= 4 ? 3 : 1);
    return QRectF(truncated(std::min(first.x(), last.x())),
        truncated(std::min(first.y(), last.y())), truncated(std::abs(last.x() - first.x())),
        truncated(std::abs(last.y() - first.y())));
}
