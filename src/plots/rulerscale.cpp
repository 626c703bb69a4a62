#include "plots/rulerscale.h"

#include "base/saturate.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int majorDivisions = 5; // the visible units are split into about so many major steps
constexpr int minorDivisions = 5; // and a major step into about so many minor ones
constexpr double majorTickLength = 6.0;
constexpr double minorTickLength = 3.0;
constexpr double maxTicks = 100000.0;

int roundedUp(double value)
{
    return truncated(std::ceil(value));
}

bool isDrawable(const RulerSteps& steps, const RulerSpan& span, double length)
{
    return span.visibleCount >= 1 && length > 0.0 && steps.minorPerMajor >= 1
        && std::isfinite(steps.pixelsPerMinor) && steps.pixelsPerMinor > 0.0;
}

/// Whether a tick every `step` fits into `room` at most so often that drawing it makes sense;
/// this also makes sure that each step moves on.
bool isCountable(double room, double step)
{
    return std::ceil(room / step) <= maxTicks;
}

bool isMajor(const RulerSteps& steps, int number)
{
    return number % steps.minorPerMajor == 0;
}

double tickLength(bool major)
{
    return major ? majorTickLength : minorTickLength;
}

void appendTick(RulerTicks& ticks, int number, const QLineF& line, bool labelled)
{
    ticks.all.append(line);
    if (labelled) {
        ticks.labelled.append(line);
        ticks.labelledNumbers.append(number);
    }
}

} // namespace

int niceNumber(double value)
{
    const qint64 whole = roundedUp(value);
    if (whole < 1) {
        return 0;
    }
    qint64 power = 1;
    while (power * 10 <= whole) {
        power *= 10;
    }
    return int((whole + power - 1) / power * power); // at most 2 * 10^9
}

RulerSteps rulerSteps(int visibleCount, int count, double length)
{
    if (visibleCount < 1) {
        return RulerSteps { 0, 0, 0, 0, 0.0, 0.0 };
    }
    RulerSteps steps;
    steps.major = niceNumber(visibleCount / double(majorDivisions));
    steps.majorCount = roundedUp(count / double(steps.major));
    steps.minor = niceNumber(roundedUp(steps.major / double(minorDivisions)));
    steps.minorPerMajor = roundedUp(steps.major / double(steps.minor));
    steps.pixelsPerUnit = length / visibleCount;
    steps.pixelsPerMinor = steps.minor * steps.pixelsPerUnit;
    return steps;
}

// The two rulers differ in direction, in where the first tick comes from and in which early ticks
// lose their label, so each has a loop of its own.

RulerTicks horizontalTicks(const RulerSteps& steps, const RulerSpan& span, double width)
{
    RulerTicks ticks;
    if (!isDrawable(steps, span, width)) {
        return ticks;
    }
    // Deliberate: visible units and ruler pixels are added as they stand.
    const int start = std::max(0, truncated(span.visibleStart + (1.0 - 1.0 / span.zoom) * width));
    const double offset = start * steps.pixelsPerUnit;
    const int first = roundedUp(offset / steps.pixelsPerMinor);
    double x = first * steps.pixelsPerMinor - offset;
    if (!isCountable(width - x, steps.pixelsPerMinor)) {
        return ticks;
    }
    for (int number = first; x < width; ++number, x += steps.pixelsPerMinor) {
        const bool major = isMajor(steps, number);
        // Deliberate: majors within one minor step of the left edge carry no label.
        appendTick(
            ticks, number, QLineF(x, 0.0, x, tickLength(major)), major && x > steps.pixelsPerMinor);
    }
    return ticks;
}

RulerTicks verticalTicks(
    const RulerSteps& steps, const RulerSpan& span, int imageHeight, const QSizeF& size)
{
    RulerTicks ticks;
    if (!isDrawable(steps, span, size.height())) {
        return ticks;
    }
    const double below = double(imageHeight) - span.visibleStart - span.visibleCount;
    const double offset = below * steps.pixelsPerUnit + (1.0 - 1.0 / span.zoom) * size.height();
    const int first = roundedUp(offset / steps.pixelsPerMinor);
    const double firstY = size.height() + 1.0 - (first * steps.pixelsPerMinor - offset);
    if (!isCountable(firstY, steps.pixelsPerMinor)) {
        return ticks;
    }
    double y = firstY;
    for (int number = first; y > 0.0; ++number, y -= steps.pixelsPerMinor) {
        const bool major = isMajor(steps, number);
        // Deliberate: only the very first tick goes without a label, wherever it stands.
        appendTick(ticks, number, QLineF(size.width(), y, size.width() - tickLength(major), y),
            major && y < firstY);
    }
    return ticks;
}

QStringList tickLabels(
    const QVector<int>& numbers, int minorStep, const ValueRange& range, int count, int precision)
{
    QStringList labels;
    for (const int number : numbers) {
        const double unit = double(number) * minorStep;
        labels << (range.isCalibrated()
                ? QString::number(range.valueAt(unit, count), 'f', precision)
                : QString::number(unit, 'f', 0));
    }
    return labels;
}

QPoint horizontalLabelOrigin(const QPointF& tickEnd, const QSizeF& textSize)
{
    return QPoint(truncated(tickEnd.x() - textSize.width() * 0.5),
        truncated(tickEnd.y() + textSize.height() * 0.5 + 6.0));
}

QPoint verticalLabelOrigin(const QPointF& tickEnd, const QSizeF& textSize)
{
    return QPoint(truncated(tickEnd.x() - textSize.width() - 4.0),
        truncated(tickEnd.y() + textSize.height() * 0.5 - 1.0));
}

QPoint horizontalTitleOrigin(const QSizeF& size, const QSizeF& textSize)
{
    return QPoint(truncated((size.width() - textSize.width()) * 0.5),
        truncated(size.height() - textSize.height()));
}

QPoint verticalTitleOrigin(const QSizeF& size, const QSizeF& textSize)
{
    return QPoint(
        truncated(-(size.height() + textSize.width()) * 0.5), truncated(textSize.height() + 4.0));
}
