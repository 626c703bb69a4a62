#pragma once

#include "qtcompat.h"

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QSizeF>

/// Every step from a double to a pixel number goes through this header, so that no value, however
/// large or not a number, can overflow an int. Values inside the bound come out exactly as the
/// plain conversion gives them.

/// Largest magnitude of a converted coordinate: it leaves room for an extent to be added.
constexpr double coordinateBound = 1073741824.0; // 2^30

/// `value` limited to -2^30 .. 2^30; 0 for NaN.
inline double bounded(double value)
{
    if (!(value >= -coordinateBound)) {
        return value < 0.0 ? -coordinateBound : 0.0; // below the bound, or NaN
    }
    return value > coordinateBound ? coordinateBound : value;
}

/// `value` truncated toward zero, limited to -2^30 .. 2^30; 0 for NaN.
inline int truncated(double value)
{
    return int(bounded(value));
}

/// The bounded point with each coordinate rounded to nearest.
inline QPoint roundedPoint(const QPointF& point)
{
    return QtCompat::toPoint(QPointF(bounded(point.x()), bounded(point.y())));
}

/// The bounded size with each extent rounded to nearest.
inline QSize roundedSize(const QSizeF& size)
{
    return QtCompat::toSize(QSizeF(bounded(size.width()), bounded(size.height())));
}

/// The rectangle whose corners are bounded and whose extents reach 2^30 at most, with each edge
/// rounded to nearest.
inline QRect roundedRect(const QRectF& rect)
{
    const double left = bounded(rect.x());
    const double top = bounded(rect.y());
    const bool fits = left == rect.x() && top == rect.y()
        && bounded(rect.x() + rect.width()) == rect.x() + rect.width()
        && bounded(rect.y() + rect.height()) == rect.y() + rect.height()
        && bounded(rect.width()) == rect.width() && bounded(rect.height()) == rect.height();
    if (fits) {
        return QtCompat::toRect(rect);
    }
    const double width = bounded(bounded(left + bounded(rect.width())) - left);
    const double height = bounded(bounded(top + bounded(rect.height())) - top);
    return QtCompat::toRect(QRectF(left, top, width, height));
}
