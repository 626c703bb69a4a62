#pragma once

#include <QByteArray>
#include <QRect>
#include <QSize>
#include <QVector>

/// Regions of interest in the text format of SAOImage DS9, version 4.1, in image coordinates:
/// 1 is the middle of the first pixel, and y counts from the bottom row up. Rectangles here are
/// image pixels with the origin at the top left.

/// The regions as boxes without rotation, named "ROI 1" and so on. `imageHeight` is in pixels.
QByteArray ds9Text(const QVector<QRect>& regions, int imageHeight);

/// What is found in a region file.
struct Ds9Regions
{
    QVector<QRect> regions; ///< boxes that lie inside the image, in the order of the file
    int otherShapes = 0; ///< shapes that are no boxes, boxes turned by other than multiples of 90
                         ///< degrees, and excluded ones ("-box")
    int otherCoordinates = 0; ///< shapes in sky or detector coordinates
    int outside = 0; ///< boxes that do not lie inside the image, or hold no pixel of it
    int brokenLines = 0; ///< lines, or parts of one between semicolons, that cannot be read

    int skipped() const { return otherShapes + otherCoordinates + outside + brokenLines; }
};

/// Reads what can be read and counts the rest; edges between two pixels go to the nearest border
/// of pixels. Shapes before any coordinate system is named are in image coordinates. Input is read
/// up to 16 MiB and 65,536 regions; what follows counts as one broken line.
Ds9Regions readDs9(const QByteArray& text, const QSize& imageSize);
