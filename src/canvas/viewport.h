#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QSizeF>

/// Geometry of an image shown in part inside a content area: fitting, zooming, scrolling and the
/// mapping between the two. Content coordinates are item units from the content's top-left corner,
/// image coordinates are image pixels; a scale is item units per image pixel.
///
/// Any number may come in, NaN and infinity too: what does not fit an int is limited. Images have
/// at least one pixel.

/// Content size for an image of `imageSize` pixels in an area of `available` item units: the
/// image's aspect, but never longer than 4 : 1, at least 4 x 1 before both sides are rounded down
/// to a multiple of 4. A side may come out 0 where the area is smaller than 4.
QSize contentSizeFor(const QSizeF& available, const QSize& imageSize);

/// Largest scale at which the whole image fits the content.
double fittingScale(const QSizeF& content, const QSize& imageSize);

/// A view of the image: which part is visible, and at what scale.
struct ImageView
{
    double scale = 1.0;
    QRectF visible; ///< in image pixels
};

/// What stays put while the view changes.
struct ViewFrame
{
    QSizeF content; ///< item units
    QSize imageSize; ///< image pixels
    QPointF anchor; ///< image pixels
    double armLength = 0.0; ///< of the cross, item units
};

/// The view zoomed to `scale` around `crossPosition` (item units). `scale` is above 0 and the
/// content and the image are not empty. The anchor is kept an arm's length away from the far edges.
ImageView zoomedView(
    const ImageView& before, double scale, const ViewFrame& frame, const QPointF& crossPosition);

/// One scroll step along one axis of the image.
struct ScrollStep
{
    int origin = 0; ///< new first visible pixel
    double anchor = 0.0; ///< anchor coordinate, moved as far as needed to stay visible
};

/// Scrolls by a fixed step, of which `distance` gives the direction only: 10 image pixels above
/// scale 1.0, else 40. `visibleStart` and `visibleCount` are the rounded visible span along the
/// axis, `imageCount` the image's extent.
ScrollStep scrolledSpan(int distance, double scale, int visibleStart, int visibleCount,
    int imageCount, double anchor, double armLength);

/// `visible`, moved by the least whole pixels that bring `pixel` into it; both lie in the image.
QRectF movedToPixel(const QRectF& visible, const QPoint& pixel);

/// Image pixel to content coordinates, rounded up to whole units; the origin when nothing is
/// visible.
QPointF mapPointFromImage(const QPointF& pixel, const QRectF& visible, const QSizeF& content);

/// Content coordinates to the image pixel shown there. The content is not empty.
QPoint mapPointToImage(const QPointF& point, const QRectF& visible, const QSizeF& content);

/// From a scale of 10 on, the middle of the displayed pixel that `point` lies in; below it `point`
/// itself.
QPointF snappedToPixel(const QPointF& point, double scale, const QSizeF& content);

/// The scale from which on positions snap: a displayed pixel is large enough to aim at.
constexpr double snappingScale = 10.0;

/// Item units of one displayed pixel when whole pixels fill the content.
QSizeF pixelCell(const QSizeF& content, double scale);
