#include "plots/intensitycurvehorizontal.h"

#include "base/saturate.h"
#include "plots/profilepolyline.h"

#include <QPainter>

IntensityCurveHorizontal::IntensityCurveHorizontal(QGraphicsItem* parent)
    : IntensityCurveLayoutItem(parent)
{
    setSize(400.0, 50.0); // reaches the layout through sizeChanged()
    m_anchorX = truncated(size.width() * 0.5);
}

void IntensityCurveHorizontal::changedAnchorPosition(QPointF anchor)
{
    m_anchorX = roundedPoint(anchor).x();
    update();
}

void IntensityCurveHorizontal::sizeChanged()
{
    passSizeToLayout();
}

void IntensityCurveHorizontal::rebuildCurve()
{
    if (sampleCount() < 1) {
        return;
    }
    buildHorizontalPolyline(m_curveLines, samples(), sampleCount(), size, borderWidth);
}

void IntensityCurveHorizontal::emitDragScroll(const QPointF& current)
{
    Q_EMIT scrollDistance(draggedBack(current).x());
}

void IntensityCurveHorizontal::constrainDrag(const QPointF& pressed, QPointF& current)
{
    current.setY(pressed.y()); // the pointer is held on its row
}

void IntensityCurveHorizontal::drawAnchor(QPainter* painter)
{
    painter->setPen(borderPen());
    painter->drawLine(QLineF(m_anchorX, borderWidth, m_anchorX, borderWidth + size.height()));
}
