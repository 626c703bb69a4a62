#pragma once

#include <QLineF>
#include <QPoint>
#include <QRect>
#include <QSizeF>
#include <QVector>

/// How a histogram stands in its frame, in pixels of the panel.

/// Smallest and largest count. Deliberate: compared as signed numbers, so a count from 2^31 on is a
/// negative one.
struct CountRange
{
    int smallest = 0;
    int largest = 0;
};

/// Of `size` counts; without any, both are 0.
CountRange countRange(const uint* counts, qint64 size);

/// The frame's rectangle inside the place of the histogram, `area`.
QRect histogramFrame(const QRect& area);

/// The counts as consecutive segments, one point a pixel of the frame's inside. `size` is at least
/// 1. A frame with fewer than four pixels inside gets the first segment alone; equal counts lie on
/// the bottom edge.
QVector<QLineF> histogramPolyline(
    const uint* counts, int size, const CountRange& range, const QRect& frame);

/// Baseline origin of the text of `textSize` under the left end of the frame, which stays right of
/// `groupLeft`.
QPoint minimumTextOrigin(const QRect& frame, int groupLeft, const QSizeF& textSize);

/// Baseline origin of the text under the right end of the frame, which stays left of `groupRight`.
QPoint maximumTextOrigin(const QRect& frame, int groupRight, const QSizeF& textSize);
