#include "plots/intensitycurvevertical.h"

#include "base/saturate.h"
#include "plots/profilepolyline.h"

#include <QPainter>

IntensityCurveVertical::IntensityCurveVertical(QGraphicsItem* parent)
    : IntensityCurveLayoutItem(parent)
{
    setSize(50.0, 400.0); // reaches the layout through sizeChanged()
    m_anchorY = truncated(size.height() * 0.5);
}

void IntensityCurveVertical::changedAnchorPosition(QPointF anchor)
{
    m_anchorY = roundedPoint(anchor).y();
    update();
}

void IntensityCurveVertical::sizeChanged()
{
    passSizeToLayout();
}

void IntensityCurveVertical::rebuildCurve()
{
    if (sampleCount() < 1) {
        return;
    }
    buildVerticalPolyline(m_curveLines, samples(), sampleCount(), size, borderWidth);
}

void IntensityCurveVertical::emitDragScroll(const QPointF& current)
{
    Q_EMIT scrollDistance(draggedBack(current).y());
}

void IntensityCurveVertical::constrainDrag(const QPointF& pressed, QPointF& current)
{
    current.setX(pressed.x()); // the pointer is held on its column
}

void IntensityCurveVertical::drawAnchor(QPainter* painter)
{
    painter->setPen(borderPen());
    painter->drawLine(QLineF(borderWidth, m_anchorY, borderWidth + size.width(), m_anchorY));
}
