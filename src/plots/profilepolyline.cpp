#include "plots/profilepolyline.h"

#include "base/saturate.h"

#include <algorithm>

namespace {

constexpr double maxUnits = 1048576.0; // 2^20

/// Walks along a strip whose exact length is `extent` and joins the points that
/// `pointAt(position along the strip, level)` makes. Which sample stands at which position is the
/// same in both strips; where a level lies across the strip is not, so that stays with the caller.
template <class PointAt>
void joinSamples(QVector<QLineF>& lines, const uchar* samples, int count, double extent,
    int integralLength, int border, PointAt pointAt)
{
    Q_ASSERT(samples && count >= 1);
    lines.resize(0); // keeps the capacity in every Qt
    const double start = border;
    const double last = integralLength - start;
    // The walk is shorter than the strip, but longer when the border is negative: neither the strip
    // nor the walk may pass the limit.
    if (std::max(double(integralLength), last - start) > maxUnits) {
        return;
    }
    const double samplesPerUnit = count / extent;
    // Deliberate: the second point stands at border + 1 but takes the sample of position 1, while
    // every later point takes the sample of its position with the border included.
    QPointF end = pointAt(start + 1.0, clampedSample(samples, count, samplesPerUnit));
    lines.append(QLineF(pointAt(start, samples[0]), end));
    for (double along = start + 2.0; along <= last; along += 1.0) {
        const QPointF next = pointAt(along, clampedSample(samples, count, along * samplesPerUnit));
        lines.append(QLineF(end, next));
        end = next;
    }
}

} // namespace

void buildHorizontalPolyline(
    QVector<QLineF>& lines, const uchar* samples, int count, const QSizeF& size, int border)
{
    const QSize integral = roundedSize(size);
    const double baseline = double(integral.height()) + border;
    const double unitsPerLevel = size.height() / 255.0;
    joinSamples(lines, samples, count, size.width(), integral.width(), border,
        [=](double x, uchar level) { return QPointF(x, baseline - level * unitsPerLevel); });
}

void buildVerticalPolyline(
    QVector<QLineF>& lines, const uchar* samples, int count, const QSizeF& size, int border)
{
    const double unitsPerLevel = size.width() / 255.0;
    // Deliberate: level 0 lies one border left of the origin, not inside the frame.
    joinSamples(lines, samples, count, size.height(), roundedSize(size).height(), border,
        [=](double y, uchar level) { return QPointF(level * unitsPerLevel - border, y); });
}

uchar clampedSample(const uchar* samples, int count, double position)
{
    return samples[std::clamp(truncated(position), 0, count - 1)];
}
