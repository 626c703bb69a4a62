#include "plots/intensitycurveaxisitem.h"

#include "base/saturate.h"
#include "plots/peaklabels.h"

#include <QDebug>
#include <QFontMetricsF>
#include <QGraphicsSceneMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <cstring>
#include <new>

namespace {
constexpr int defaultShownPeaks = 10;
constexpr int labelPixelSize = 9;
constexpr int calibratedDecimals = 1;

void logDetection(const DetectedPeaks& detected)
{
    qDebug("doAutomaticMultisaclePeakDetection:index [%d, %d]", detected.scale, detected.rowSum);
}

}

IntensityCurveAxisItem::IntensityCurveAxisItem(QGraphicsItem* parent)
    : IntensityCurveLayoutItem(parent)
    , m_cross(this)
{
    setAcceptHoverEvents(false); // no open hand: the chart is not dragged
    setSize(400.0, 50.0);
}

void IntensityCurveAxisItem::sizeChanged()
{
    const int columns = roundedSize(size).width();
    if (columns > maxChartColumns) {
        m_columnMap.clear();
        m_curveLines.clear();
    } else if (columns > 0 && columns != m_columnMap.size()) {
        m_columnMap = QVector<int>(columns, -1);
    }
    passSizeToLayout();
}

LevelAxis IntensityCurveAxisItem::levelAxis() const
{
    return chartLevelAxis(size, borderWidth, valueScale());
}

uchar IntensityCurveAxisItem::sampleAt(int index) const
{
    return nearestSample(samples(), sampleCount(), index);
}

void IntensityCurveAxisItem::rebuildCurve()
{
    if (!samples() || !isVisible()) {
        return;
    }
    detect();
    rebuildTicks();
    if (roundedSize(size).width() >= 1 && !m_columnMap.isEmpty()) {
        mapColumns(m_columnMap, m_detected.peaks, sampleCount(), size.width());
        buildChartPolyline(
            m_curveLines, samples(), sampleCount(), m_columnMap, borderWidth, levelAxis());
    }
    placeCross();
}

/// Finds the peaks. The result depends on the samples alone: the same ones again, as a new size
/// brings them, only start the labels afresh. Without memory the old peaks stay.
void IntensityCurveAxisItem::detect()
{
    const auto* const bytes = reinterpret_cast<const char*>(samples());
    if (m_detectedSamples.size() == sampleCount()
        && std::memcmp(m_detectedSamples.constData(), bytes, size_t(sampleCount())) == 0) {
        logDetection(m_detected);
        for (Peak& peak : m_detected.peaks) {
            peak = Peak { peak.index, -1, peak.value, QPointF(-1.0, -1.0) };
        }
        return;
    }
    const DetectedPeaks found = detectPeaks(samples(), sampleCount());
    QByteArray detectedSamples;
    if (found.peaks.isEmpty() || !makeRoom(found, detectedSamples)) {
        return;
    }
    logDetection(found);
    m_detectedSamples = detectedSamples;
    m_detected.scale = found.scale;
    m_detected.rowSum = found.rowSum;
    m_detected.peaks.resize(found.peaks.size());
    std::copy(found.peaks.begin(), found.peaks.end(), m_detected.peaks.begin());
}

/// Copies the samples and gives the list room for `found`, so that nothing fails once it changes.
bool IntensityCurveAxisItem::makeRoom(const DetectedPeaks& found, QByteArray& detectedSamples)
{
    try {
        detectedSamples = QByteArray(reinterpret_cast<const char*>(samples()), sampleCount());
        m_detected.peaks.reserve(found.peaks.size());
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

void IntensityCurveAxisItem::rebuildTicks()
{
    if (samples()) {
        buildPeakTicks(m_peakTicks, m_detected.peaks, m_shownPeaks, samples(), sampleCount(),
            size.width(), levelAxis());
    }
}

void IntensityCurveAxisItem::resetPeaks()
{
    m_shownPeaks = defaultShownPeaks;
    m_showPeaks = false;
    setValueScale(1.0);
}

void IntensityCurveAxisItem::centerAnchor()
{
    pick(std::max(truncated(size.width() * 0.5), 0));
}

void IntensityCurveAxisItem::changedMaxPeaksCount(int count)
{
    m_shownPeaks = std::clamp(count, 1, peakCapacity);
    rebuildTicks();
    if (isVisible()) {
        update();
    }
}

void IntensityCurveAxisItem::changedShowPeaksState(bool isShow)
{
    m_showPeaks = isShow;
    if (isVisible()) {
        update();
    }
}

void IntensityCurveAxisItem::changedShowValueRange(qreal start, qreal end)
{
    m_range = storedValueRange(start, end);
    if (isVisible()) {
        update();
    }
}

void IntensityCurveAxisItem::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->buttons() == Qt::LeftButton) {
        const QPointer<IntensityCurveAxisItem> self(this);
        pick(event->pos().x());
        if (!self) {
            return;
        }
    }
    ComponentWithBordersItem::mousePressEvent(event);
}

void IntensityCurveAxisItem::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    ComponentWithBordersItem::mouseMoveEvent(event);
}

void IntensityCurveAxisItem::pick(double x)
{
    if (!samples() || m_columnMap.isEmpty()) {
        return;
    }
    const int column
        = std::clamp(truncated(std::min(x, size.width() - 1.0)), 0, int(m_columnMap.size()) - 1);
    m_anchorIndex = m_columnMap.at(column);
    if (m_anchorIndex < 0) {
        m_anchorIndex = truncated(sampleCount() / size.width() * x);
    }
    moveCross(column, levelAxis().y(sampleAt(m_anchorIndex)));
    const QPointer<IntensityCurveAxisItem> self(this);
    Q_EMIT changeAnchorPosition(isReversed(), m_anchorIndex);
    if (self) {
        update();
    }
}

/// Puts the cross back on the picked sample after the curve has changed.
void IntensityCurveAxisItem::placeCross()
{
    moveCross(bounded(size.width() / sampleCount() * m_anchorIndex),
        levelAxis().y(sampleAt(m_anchorIndex)));
    update();
}

void IntensityCurveAxisItem::moveCross(double x, double y)
{
    m_cross.previousPosition = m_cross.position;
    m_cross.position = QPointF(x, y);
}

void IntensityCurveAxisItem::emitDragScroll(const QPointF&) { }

void IntensityCurveAxisItem::constrainDrag(const QPointF&, QPointF&) { }

/// Draws ticks and labels with the pen of the curve.
void IntensityCurveAxisItem::drawAnchor(QPainter* painter)
{
    if (!m_showPeaks) {
        return;
    }
    painter->drawLines(m_peakTicks);
    QFont font = painter->font();
    font.setPixelSize(labelPixelSize);
    painter->setFont(font);
    layOutLabels(font);
    drawLabels(painter, QFontMetricsF(font).height());
    painter->setPen(borderPen());
}

void IntensityCurveAxisItem::layOutLabels(const QFont& font)
{
    const PeakLabelNumbers numbers = peakLabelNumbers(m_range, sampleCount(), calibratedDecimals);
    const QFontMetricsF metrics(font);
    const int labelled
        = std::min({ m_shownPeaks, int(m_detected.peaks.size()), int(m_peakTicks.size()) });
    QVector<double> widths;
    m_labels.clear();
    for (int i = 0; i < labelled; ++i) {
        m_labels.append(numbers.text(m_detected.peaks.at(i).index));
        widths.append(metrics.horizontalAdvance(m_labels.last()));
    }
    layOutPeakLabels(m_detected.peaks, m_peakTicks, widths, metrics.height());
}

/// Draws each label whose top left corner lies inside the item.
void IntensityCurveAxisItem::drawLabels(QPainter* painter, double lineHeight)
{
    const QRect inside = roundedRect(boundingRect());
    for (int i = 0; i < m_labels.size(); ++i) {
        const QPointF label = m_detected.peaks.at(i).label;
        const int x = truncated(label.x());
        if (inside.contains(QPoint(x, truncated(label.y() - lineHeight)))) {
            painter->drawText(QPoint(x, truncated(label.y())), m_labels.at(i));
        }
    }
}
