#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <QVector>

/// Geometry of regions of interest: between image pixels and item units, and under the mouse.
///
/// `visible` is the shown part of the image in image pixels, `content` the size in item units of
/// the area that shows it. Any number may come in; corners stay within +-2^30.

/// The whole image in item units: starts left of and above the content when it is zoomed in. Null
/// when nothing is visible.
QRectF imageExtentInItem(const QRectF& visible, const QSize& imageSize, const QSizeF& content);

/// The item rectangle whose inclusive corners show the corner pixels of `rect`, each rounded up to
/// whole units. Null when nothing is visible.
QRectF roiToItem(const QRectF& rect, const QRectF& visible, const QSizeF& content);

/// The image rectangle between two corner pixels, both inclusive, moved and cut into the image; at
/// least two pixels wide and high where the image is.
QRectF roiFromPixels(const QPoint& topLeft, const QPoint& bottomRight, const QSize& imageSize);

/// From a scale of 10 on, `rect` with each edge in the middle of the displayed pixel that it lies
/// in, at least one pixel wide and high, and pushed back inside `extent` at the right and the
/// bottom. Below that scale `rect` itself.
QRectF roiOnPixelMiddles(
    const QRectF& rect, double scale, const QSizeF& content, const QRectF& extent);

/// `rect` no larger than `parent`, at least 1 x 1, and moved inside it.
QRectF roiInside(const QRectF& parent, const QRectF& rect);

/// What a drag does with a region: nothing, move it, or resize it by a corner.
enum RoiZone { NoZone, TopLeftZone, TopRightZone, BottomLeftZone, BottomRightZone, MoveZone };

/// The corners of `rect`: top left, top right, bottom left, bottom right.
QVector<QPointF> roiHandles(const QRectF& rect);

/// The corner of `rect` that a pointer at `position` is nearest to, by the halves of the rectangle.
RoiZone nearestCorner(const QRectF& rect, const QPointF& position);

/// The corner at `position` after a drag brought `bottomRight` to where it is: the drag goes on
/// with it.
RoiZone cornerUnderPointer(const QPointF& bottomRight, const QPointF& position);

/// Half the width of a handle in whole units, in both directions.
int handleReach(const QSizeF& handleSize);

/// The rectangle between the corners after handle `corner` (TopLeftZone .. BottomRightZone) was
/// dragged to `position`, in whole units. `handles` are two or more; one that is missing is not
/// moved.
QRectF roiResized(QVector<QPointF> handles, RoiZone corner, const QPointF& position);
