#pragma once

#include "base/valuerange.h"

#include <QLineF>
#include <QPoint>
#include <QSizeF>
#include <QStringList>
#include <QVector>

/// Arithmetic of the rulers: round-numbered steps, tick lines, label texts and where they stand.
/// A unit is one image pixel along the measured axis; lengths and positions are in item units.

/// How the measured axis is divided.
struct RulerSteps
{
    int major = 1; ///< units per major tick
    int majorCount = 5; ///< major steps over the whole extent; kept, not drawn
    int minor = 1; ///< units per tick
    int minorPerMajor = 5; ///< every so many ticks one is major
    double pixelsPerUnit = 1.0;
    double pixelsPerMinor = 1.0;
};

/// The part of the measured axis that a ruler shows.
struct RulerSpan
{
    int visibleStart = 0; ///< first visible unit
    int visibleCount = 400; ///< visible units
    double zoom = 1.0; ///< at least 1

    /// Shows the units `first` to `last`, both included; none when `last` lies before `first`.
    void showUnits(int first, int last)
    {
        visibleStart = first;
        visibleCount = last - first + 1;
    }
};

/// Tick lines of a ruler, in build order.
struct RulerTicks
{
    QVector<QLineF> all;
    QVector<QLineF> labelled; ///< the major ticks that carry a label
    QVector<int> labelledNumbers; ///< tick number of each labelled tick: its value in minor steps
};

/// `value` rounded up to one leading digit followed by zeros: 37 gives 40, 123 gives 200. Values
/// up to 9 are rounded up to whole numbers; 0 and below give 0.
int niceNumber(double value);

/// Steps for `visibleCount` units on a ruler `length` long, out of `count` units in all. Without a
/// visible unit every step is 0, and no ticks come out of it.
RulerSteps rulerSteps(int visibleCount, int count, double length);

/// Ticks that hang from the top edge of a ruler `width` long, numbers growing to the right. None
/// when the steps or the width leave nothing to draw, or when there would be more than 100,000.
RulerTicks horizontalTicks(const RulerSteps& steps, const RulerSpan& span, double width);

/// Ticks that stick out of the right edge of a ruler of `size`, numbers growing upward;
/// `imageHeight` is in units. None under the same conditions, for the height.
RulerTicks verticalTicks(
    const RulerSteps& steps, const RulerSpan& span, int imageHeight, const QSizeF& size);

/// One text per tick number: the calibrated value with `precision` decimals when `range` is
/// calibrated over `count` units, otherwise the unit as a whole number.
QStringList tickLabels(
    const QVector<int>& numbers, int minorStep, const ValueRange& range, int count, int precision);

// Baseline origins of texts `textSize` large: the width is the text's, the height the font's.

/// Centred under a tick that ends at `tickEnd`.
QPoint horizontalLabelOrigin(const QPointF& tickEnd, const QSizeF& textSize);
/// Left of a tick that ends at `tickEnd`, centred on it.
QPoint verticalLabelOrigin(const QPointF& tickEnd, const QSizeF& textSize);
/// Centred along a horizontal ruler of `size`, one line above its bottom.
QPoint horizontalTitleOrigin(const QSizeF& size, const QSizeF& textSize);
/// Centred along a vertical ruler of `size`, in a frame turned by 270 degrees.
QPoint verticalTitleOrigin(const QSizeF& size, const QSizeF& textSize);
