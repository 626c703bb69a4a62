#include "plots/rulerbarvertical.h"

#include <QPainter>

RulerBarVertical::RulerBarVertical(const QString& title, QGraphicsItem* parent)
    : RulerBarLayoutItem(title, parent)
{
}

void RulerBarVertical::updateCount()
{
    m_count = m_crossAxis ? m_imageSize.width() : m_imageSize.height();
}

void RulerBarVertical::updateVisibleSpan()
{
    if (m_crossAxis) {
        m_span.showUnits(m_visibleRect.left(), m_visibleRect.right());
    } else {
        m_span.showUnits(m_visibleRect.top(), m_visibleRect.bottom());
    }
}

void RulerBarVertical::rebuildTicks()
{
    // Deliberate: the offset counts from the image's height, also on the cross axis.
    storeTicks(verticalTicks(m_steps, m_span, m_imageSize.height(), size));
}

void RulerBarVertical::computeSteps()
{
    m_steps = rulerSteps(m_span.visibleCount, m_count, size.height());
}

void RulerBarVertical::drawLabels(QPainter* painter)
{
    drawLabelsAt(painter, verticalLabelOrigin);
}

void RulerBarVertical::drawTitle(QPainter* painter)
{
    if (m_title.isEmpty()) {
        return;
    }
    const QFont font = useTitleFont(painter);
    painter->save();
    painter->rotate(270.0);
    painter->drawText(verticalTitleOrigin(size, textSize(font, m_title)), m_title);
    painter->restore();
}
