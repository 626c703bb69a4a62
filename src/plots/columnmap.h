#pragma once

#include "analysis/peakdetection.h"

#include <QLineF>
#include <QSizeF>
#include <QVector>

/// How the samples of a profile stand in a chart that may have fewer columns of pixels than there
/// are samples. Extents are in item units; a read through any index is limited to the samples.

/// Longest chart, in columns, that gets a map and a polyline: 2^20.
constexpr int maxChartColumns = 1048576;

/// Fills `map` with the sample that each column shows: a peak where one falls into the column, the
/// first of several in the list, and otherwise the sample at the column's left end. So no peak is
/// lost however many samples share a column. Without peaks the map stays.
void mapColumns(QVector<int>& map, const QVector<Peak>& peaks, int count, double width);

/// Where levels stand in a chart: level 0 on `baseline`, each further one `unitsPerLevel` above.
struct LevelAxis
{
    double baseline = 0.0;
    double unitsPerLevel = 0.0;

    /// Within +-2^30 also where a level has no extent or an infinite one.
    double y(uchar level) const;
};

/// Of a chart with content `size` and frame `border` in which `valueScale` x 255 levels fill the
/// height.
LevelAxis chartLevelAxis(const QSizeF& size, int border, double valueScale);

/// Builds the polyline through the samples that the columns of `map`, one or more, show into
/// `lines`, whose capacity is kept.
void buildChartPolyline(QVector<QLineF>& lines, const uchar* samples, int count,
    const QVector<int>& map, int border, const LevelAxis& axis);

/// samples[index], the index limited to 0 .. count - 1.
uchar nearestSample(const uchar* samples, int count, int index);
