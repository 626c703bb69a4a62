#pragma once

#include <QRect>
#include <QSize>

/// Places of the canvas elements around the image, as whole item units. The image stands clear of
/// 140 units for the left ruler and profile and of 220 units for what stands above and below it.

/// Area offered to the image in a canvas of `canvas` units: the largest with the image's aspect,
/// at least 4 x 1. The image has at least one pixel.
QSize imageAreaSize(const QSize& canvas, const QSize& imageSize);

/// Layout rectangles of the image view.
struct ImageViewLayout
{
    QRect image;
    QRect bottomRuler;
    QRect leftRuler;
    QRect bottomCurve;
    QRect leftCurve;
    QRect colorBar; ///< the rectangle given to the layout; the bar itself is drawn as wide as the
                    ///< image
    QRect grayRuler;
};

/// Places everything around an image drawn with `content` units in a canvas of `canvas` units.
/// Values stay meaningful, if out of sight, for canvases down to 0 x 0.
ImageViewLayout imageViewLayout(const QSize& canvas, const QSize& content);

/// Layout rectangles of a 2D chart, which takes the place of the image view.
struct ProfileChartLayout
{
    QRect curve;
    QRect pixelRuler;
    QRect valueRuler;
};

/// Places a 2D chart in a canvas of `canvas` units. Below 170 x 370 extents come out negative and
/// stay so: there is nothing to draw then.
ProfileChartLayout profileChartLayout(const QSize& canvas);
