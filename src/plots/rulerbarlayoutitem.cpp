#include "plots/rulerbarlayoutitem.h"

#include "base/saturate.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int tickPenWidth = 1;
constexpr int labelPixelSize = 13;
constexpr int titlePixelSize = 14;

QFont usePixelSize(QPainter* painter, int pixelSize)
{
    QFont font = painter->font();
    font.setPixelSize(pixelSize);
    painter->setFont(font);
    return font;
}

} // namespace

RulerBarLayoutItem::RulerBarLayoutItem(const QString& title, QGraphicsItem* parent)
    : ComponentItem(parent)
    , m_title(title)
{
    setGraphicsItem(this);
}

RulerBarLayoutItem::~RulerBarLayoutItem()
{
    setGraphicsItem(nullptr);
}

void RulerBarLayoutItem::setLabelPrecision(int precision)
{
    m_labelPrecision = std::clamp(precision, 0, 2);
}

void RulerBarLayoutItem::setZoom(double zoom)
{
    m_span.zoom = zoom >= 1.0 ? zoom : 1.0;
    rebuildTicks();
    update();
}

void RulerBarLayoutItem::getValueRange(int* start, int* end) const
{
    if (start) {
        *start = wholeValue(m_range.start);
    }
    if (end) {
        *end = wholeValue(m_range.end);
    }
}

void RulerBarLayoutItem::setGeometry(const QRectF& rect)
{
    placeInLayout(*this, rect);
    computeSteps();
    rebuildTicks();
}

QSizeF RulerBarLayoutItem::sizeHint(Qt::SizeHint which, const QSizeF& constraint) const
{
    return layoutSizeHint(which, constraint);
}

void RulerBarLayoutItem::changedActualSize(QSize imageSize)
{
    m_imageSize = imageSize;
    updateCount();
}

void RulerBarLayoutItem::changedActualRect(QRectF rect)
{
    const QSizeF previousSize = m_visibleRect.size();
    m_visibleRect = roundedRect(rect);
    updateVisibleSpan();
    if (!qFuzzyCompare(previousSize.width(), rect.width())
        || !qFuzzyCompare(previousSize.height(), rect.height())) {
        computeSteps();
    }
    rebuildTicks();
    update();
}

void RulerBarLayoutItem::changedTitleName(QString title)
{
    m_title = title;
    update();
}

void RulerBarLayoutItem::changedShowValueRange(qreal start, qreal end)
{
    m_range = storedValueRange(start, end);
    rebuildTicks();
    update();
}

void RulerBarLayoutItem::storeTicks(const RulerTicks& built)
{
    m_ticks = built.all;
    m_labelledTicks = built.labelled;
    m_labels = tickLabels(built.labelledNumbers, m_steps.minor, m_range, m_count, m_labelPrecision);
}

void RulerBarLayoutItem::drawContents(QPainter* painter)
{
    QPen pen(Qt::white);
    pen.setWidth(tickPenWidth);
    painter->setPen(pen);
    painter->drawLines(m_ticks);
    drawLabels(painter);
    drawTitle(painter);
}

void RulerBarLayoutItem::drawLabelsAt(QPainter* painter, LabelOrigin origin) const
{
    const QFont font = usePixelSize(painter, labelPixelSize);
    for (int i = 0; i < m_labels.size(); ++i) {
        const QString& text = m_labels.at(i);
        painter->drawText(origin(m_labelledTicks.at(i).p2(), textSize(font, text)), text);
    }
}

QFont RulerBarLayoutItem::useTitleFont(QPainter* painter)
{
    return usePixelSize(painter, titlePixelSize);
}

QSizeF RulerBarLayoutItem::textSize(const QFont& font, const QString& text)
{
    const QFontMetricsF metrics(font);
    return QSizeF(metrics.horizontalAdvance(text), metrics.height());
}
