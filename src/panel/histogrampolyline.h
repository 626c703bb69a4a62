#pragma once

#include <QLineF>
#include <QPoint>
#include <QRect>
#include <QVector>

/// The drawing of the histogram panel. `frame` is the drawn frame in pixels of the panel; its right
/// and bottom edges are those of QRect, the last pixel inside.

/// Smallest and largest of some counts, compared as signed numbers.
struct CountRange
{
    int smallest = 0;
    int largest = 0;
};

/// Range of `size` >= 1 counts.
CountRange countRange(const uint* counts, int size);

/// Builds the consecutive segments that draw `size` >= 1 counts into `lines`, whose capacity is
/// kept. The smallest count lies on the frame's bottom edge, the largest one below its top edge;
/// equal counts all lie on the bottom edge. A frame whose left and right edges are less than four
/// pixels apart gets the first segment alone, one wider than 2^20 pixels none.
void buildHistogramPolyline(QVector<QLineF>& lines, const uint* counts, int size,
    const CountRange& range, const QRect& frame);

/// Baseline point of the text under the left end of the frame, centred on it but kept inside
/// `groupLeft`, the left edge of the group box.
QPoint minimumTextPlace(const QRect& frame, int groupLeft, double textWidth, double lineHeight);

/// Baseline point of the text under the right end of the frame, centred on it but kept inside
/// `groupRight`, the right edge of the group box.
QPoint maximumTextPlace(const QRect& frame, int groupRight, double textWidth, double lineHeight);
