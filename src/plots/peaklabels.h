#pragma once

#include "plots/columnmap.h"
#include "base/valuerange.h"

#include <QString>

/// Ticks and labels of the strongest peaks of a chart.

/// Builds vertical ticks, 20 units long, that end 2 units above the curve; one for each of the
/// first `shown` peaks. Without one the old ticks stay.
void buildPeakTicks(QVector<QLineF>& ticks, const QVector<Peak>& peaks, int shown,
    const uchar* samples, int count, double width, const LevelAxis& axis);

/// How a label is made of a sample index: index x step + offset, with `decimals` decimals.
struct PeakLabelNumbers
{
    double offset = 0.0;
    double step = 1.0;
    int decimals = 0;

    QString text(int index) const;
};

/// The calibrated value where there is a range over `count` samples, else the plain index.
PeakLabelNumbers peakLabelNumbers(const ValueRange& range, int count, int decimals);

/// Places a label over the tick of each of the first peaks, as many as there are text `widths`, and
/// no more than there are peaks and ticks. One that would lie close to an earlier tick's label is
/// stacked a line above that one and linked to it; a link that is there already stays where nothing
/// is close any more, until the peaks are detected anew.
void layOutPeakLabels(QVector<Peak>& peaks, const QVector<QLineF>& ticks,
    const QVector<double>& widths, double lineHeight);
