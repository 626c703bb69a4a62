#include "panel/histogrampolyline.h"

#include "image/saturate.h"

#include <algorithm>

CountRange countRange(const uint* counts, qint64 size)
{
    if (size < 1) {
        return CountRange();
    }
    CountRange range { int(counts[0]), int(counts[0]) };
    for (qint64 i = 1; i < size; ++i) {
        range.smallest = std::min(range.smallest, int(counts[i]));
        range.largest = std::max(range.largest, int(counts[i]));
    }
    return range;
}

QRect histogramFrame(const QRect& area)
{
    return QRect(area.x() + 12, area.y() + 8, area.width() - 24, area.height() - 23);
}

QVector<QLineF> histogramPolyline(
    const uint* counts, int size, const CountRange& range, const QRect& frame)
{
    Q_ASSERT(counts && size >= 1);
    const int inside = frame.right() - frame.left() - 1;
    const double spread = double(range.largest) - range.smallest;
    const double xStep = (size - 1.0) / inside;
    const double yScale = spread > 0.0 ? (frame.bottom() - frame.top() - 1.0) / spread : 0.0;
    const auto point = [&](int x, double position) {
        const int index = std::clamp(truncated(position), 0, size - 1);
        const double above = double(int(counts[index])) - range.smallest;
        return QPointF(frame.left() + x, frame.bottom() - above * yScale);
    };
    QVector<QLineF> lines;
    lines.reserve(std::max(inside, 1));
    QPointF end = point(3, xStep);
    lines.append(QLineF(point(2, 0.0), end));
    // Deliberate: sample 2 is skipped, and from sample 3 on each stands one pixel further right
    // than the first two.
    for (int i = 3; i <= inside; ++i) {
        const QPointF next = point(i + 1, i * xStep);
        lines.append(QLineF(end, next));
        end = next;
    }
    return lines;
}

QPoint minimumTextOrigin(const QRect& frame, int groupLeft, const QSizeF& textSize)
{
    const double centred = frame.left() - textSize.width() / 2.0;
    const double x = groupLeft > centred ? groupLeft + 2.0 : centred;
    return QPoint(truncated(x), truncated(frame.bottom() + textSize.height()));
}

QPoint maximumTextOrigin(const QRect& frame, int groupRight, const QSizeF& textSize)
{
    const double half = textSize.width() / 2.0;
    const double x = frame.right() + half > groupRight ? groupRight - textSize.width() - 2.0
                                                       : frame.right() - half;
    return QPoint(truncated(x), truncated(frame.bottom() + textSize.height()));
}
