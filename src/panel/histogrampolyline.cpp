#include "panel/histogrampolyline.h"

#include "base/limits.h"
#include "base/saturate.h"

#include <algorithm>

namespace {

constexpr double textInset = 2.0; // pixels between the group box's edge and a text kept inside it

int textBaseline(const QRect& frame, double lineHeight)
{
    return truncated(frame.bottom() + lineHeight);
}

} // namespace

CountRange countRange(const uint* counts, int size)
{
    Q_ASSERT(counts && size >= 1);
    CountRange range { int(counts[0]), int(counts[0]) };
    for (int i = 1; i < size; ++i) {
        range.smallest = std::min(range.smallest, int(counts[i]));
        range.largest = std::max(range.largest, int(counts[i]));
    }
    return range;
}

void buildHistogramPolyline(QVector<QLineF>& lines, const uint* counts, int size,
    const CountRange& range, const QRect& frame)
{
    Q_ASSERT(counts && size >= 1);
    lines.resize(0);
    if (frame.width() > surfaceSideLimit) {
        return;
    }
    const double left = frame.left();
    const int steps = frame.width() - 2;
    const double samplesPerStep = double(size - 1) / steps; // not finite in a frame without room
    const double heightOfCounts = double(range.largest) - range.smallest;
    const double pixelsPerCount
        = heightOfCounts > 0.0 ? (frame.height() - 2) / heightOfCounts : 0.0;
    const auto pointAt = [&](double x, double position) {
        const int sample = std::clamp(truncated(position), 0, size - 1);
        const double count = int(counts[sample]);
        return QPointF(x, frame.bottom() - (count - range.smallest) * pixelsPerCount);
    };
    // Deliberate: samples 0 and 1 stand at columns 2 and 3, sample 2 is left out, and from 3 on
    // sample i stands at column i + 1.
    QPointF end = pointAt(left + 3.0, samplesPerStep);
    lines.append(QLineF(pointAt(left + 2.0, 0.0), end));
    for (int i = 3; i <= steps; ++i) {
        const QPointF next = pointAt(left + 1.0 + i, i * samplesPerStep);
        lines.append(QLineF(end, next));
        end = next;
    }
}

QPoint minimumTextPlace(const QRect& frame, int groupLeft, double textWidth, double lineHeight)
{
    const double centred = frame.left() - textWidth / 2.0;
    const double x = groupLeft > centred ? groupLeft + textInset : centred;
    return QPoint(truncated(x), textBaseline(frame, lineHeight));
}

QPoint maximumTextPlace(const QRect& frame, int groupRight, double textWidth, double lineHeight)
{
    const bool isCut = frame.right() + textWidth / 2.0 > groupRight;
    const double x = isCut ? groupRight - textWidth - textInset : frame.right() - textWidth / 2.0;
    return QPoint(truncated(x), textBaseline(frame, lineHeight));
}
