#include "plots/rulerbarhorizontal.h"

#include <QPainter>

RulerBarHorizontal::RulerBarHorizontal(const QString& title, QGraphicsItem* parent)
    : RulerBarLayoutItem(title, parent)
{
}

void RulerBarHorizontal::updateCount()
{
    m_count = m_crossAxis ? m_imageSize.height() : m_imageSize.width();
}

void RulerBarHorizontal::updateVisibleSpan()
{
    if (m_crossAxis) {
        m_span.showUnits(m_visibleRect.top(), m_visibleRect.bottom());
    } else {
        m_span.showUnits(m_visibleRect.left(), m_visibleRect.right());
    }
}

void RulerBarHorizontal::rebuildTicks()
{
    storeTicks(horizontalTicks(m_steps, m_span, size.width()));
}

void RulerBarHorizontal::computeSteps()
{
    m_steps = rulerSteps(m_span.visibleCount, m_count, size.width());
}

void RulerBarHorizontal::drawLabels(QPainter* painter)
{
    drawLabelsAt(painter, horizontalLabelOrigin);
}

void RulerBarHorizontal::drawTitle(QPainter* painter)
{
    if (m_title.isEmpty()) {
        return;
    }
    const QFont font = useTitleFont(painter);
    painter->drawText(horizontalTitleOrigin(size, textSize(font, m_title)), m_title);
}
