#pragma once

#include <QRect>
#include <QSize>

/// Where to drag the corners of a region on the canvas: plain arithmetic. Units are those of the
/// canvas, counted from the top left of the item that shows the whole image in `content` units.

/// The place, in whole units, that comes nearest to image pixel `pixel` along an axis with
/// `pixelCount` pixels in `contentLength` units; among several places the one nearest to the
/// pixel's middle. A region stays one unit clear of both ends. Both extents are at least 1.
int unitOfPixel(int pixel, int pixelCount, int contentLength);

/// Two opposite corners to drag a region to.
struct RegionCorners
{
    QPoint topLeft; ///< shows the first pixel of the region
    QPoint bottomRight; ///< shows its last one
};

/// The corners for the region `pixels` of an image of `imageSize` pixels, neither of them empty.
RegionCorners regionCorners(const QRect& pixels, const QSize& imageSize, const QSize& content);

/// The corner of `region` that lies diagonally across from the one nearest to `corner`.
QPoint cornerAcross(const QRectF& region, const QPoint& corner);
