#include "plots/columnmap.h"

#include "base/saturate.h"

#include <algorithm>

void mapColumns(QVector<int>& map, const QVector<Peak>& peaks, int count, double width)
{
    if (peaks.isEmpty() || map.isEmpty()) {
        return;
    }
    const double columnsPerSample = width / count;
    const double samplesPerColumn = 1.0 / columnsPerSample;
    map.fill(-1);
    for (const Peak& peak : peaks) {
        const int column = truncated(peak.index * columnsPerSample);
        if (column >= 0 && column < map.size() && map.at(column) == -1) {
            map[column] = peak.index;
        }
    }
    for (int column = 0; column < map.size(); ++column) {
        if (map.at(column) == -1) {
            map[column] = truncated(column * samplesPerColumn);
        }
    }
}

double LevelAxis::y(uchar level) const
{
    return bounded(baseline - level * unitsPerLevel);
}

LevelAxis chartLevelAxis(const QSizeF& size, int border, double valueScale)
{
    return LevelAxis { double(roundedSize(size).height()) + border,
        size.height() / (valueScale * 255.0) };
}

void buildChartPolyline(QVector<QLineF>& lines, const uchar* samples, int count,
    const QVector<int>& map, int border, const LevelAxis& axis)
{
    Q_ASSERT(samples && count >= 1 && !map.isEmpty());
    const auto columnY = [&](int column) {
        const int shown = map.at(std::min(column, int(map.size()) - 1));
        return axis.y(nearestSample(samples, count, shown));
    };
    lines.resize(0); // keeps the capacity in every Qt
    lines.reserve(map.size());
    QPointF end(border + 1.0, columnY(1));
    lines.append(QLineF(QPointF(border, columnY(0)), end));
    // Deliberate: from here on the border is not added, so the first of these has no length.
    for (int column = 1; column < map.size(); ++column) {
        const QPointF next(column + 1.0, columnY(column));
        lines.append(QLineF(end, next));
        end = next;
    }
}

uchar nearestSample(const uchar* samples, int count, int index)
{
    return samples[std::clamp(index, 0, count - 1)];
}
