#include "plots/peaklabels.h"

#include "base/saturate.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double tickLength = 20.0;
constexpr double tickGap = 2.0; // between a tick and the curve
constexpr double labelGap = 1.0; // between a label and its tick, and around a label
}

void buildPeakTicks(QVector<QLineF>& ticks, const QVector<Peak>& peaks, int shown,
    const uchar* samples, int count, double width, const LevelAxis& axis)
{
    const int ticked = std::min(int(peaks.size()), shown);
    if (ticked < 1) {
        return;
    }
    ticks.resize(0);
    for (int i = 0; i < ticked; ++i) {
        const int index = peaks.at(i).index;
        const double x = truncated(index * width / count);
        const double end = axis.y(nearestSample(samples, count, index)) - tickGap;
        ticks.append(QLineF(x, end - tickLength, x, end));
    }
}

QString PeakLabelNumbers::text(int index) const
{
    return QString::number(index * step + offset, 'f', decimals);
}

PeakLabelNumbers peakLabelNumbers(const ValueRange& range, int count, int decimals)
{
    if (!range.isCalibrated()) {
        return PeakLabelNumbers();
    }
    return PeakLabelNumbers { range.start, (range.end - range.start) / count, decimals };
}

void layOutPeakLabels(QVector<Peak>& peaks, const QVector<QLineF>& ticks,
    const QVector<double>& widths, double lineHeight)
{
    const int labelled = int(std::min({ peaks.size(), ticks.size(), widths.size() }));
    for (int j = 0; j < labelled; ++j) {
        Peak& peak = peaks[j];
        const double width = widths.at(j);
        peak.label = QPointF(ticks.at(j).x1() - width * 0.5, ticks.at(j).y1() - labelGap);
        for (int i = j - 1; i >= 0; --i) {
            // Deliberate: both labels are taken to be as wide as this one.
            const double across = std::abs(ticks.at(i).x1() - width * 0.5 - peak.label.x());
            const double down = std::abs(ticks.at(i).y1() - labelGap - peak.label.y());
            if (across < width + labelGap && down < lineHeight + labelGap) {
                peak.link = i;
                peak.label.setY(peaks.at(i).label.y() - lineHeight);
                break;
            }
        }
    }
}
