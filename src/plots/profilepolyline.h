#pragma once

#include <QLineF>
#include <QSizeF>
#include <QVector>

/// Turns a profile of display levels 0..255 into the consecutive segments that a strip draws, in
/// `lines`, whose capacity is kept.
///
/// `samples` holds `count` >= 1 levels; `size` is the strip's content size and `border` its frame,
/// both in item units. There is one point per unit of length. A strip too short for a second
/// segment, also one of no or negative length, gets the first one alone; one longer than 2^20
/// units gets none.

/// Profile of an image row: runs to the right; level 0 lies on y = height + border, 255 on border.
void buildHorizontalPolyline(
    QVector<QLineF>& lines, const uchar* samples, int count, const QSizeF& size, int border);

/// Profile of an image column: runs downward; level 0 lies on x = -border, growing to the right.
void buildVerticalPolyline(
    QVector<QLineF>& lines, const uchar* samples, int count, const QSizeF& size, int border);

/// The sample at trunc(`position`), the position limited to 0 .. count - 1; the first for NaN.
uchar clampedSample(const uchar* samples, int count, double position);
