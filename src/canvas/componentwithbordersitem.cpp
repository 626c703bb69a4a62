#include "canvas/componentwithbordersitem.h"

#include <QPainter>

ComponentWithBordersItem::ComponentWithBordersItem(QGraphicsItem* parent)
    : ComponentItem(parent)
    , borderColor(Qt::white)
{
}

QRectF ComponentWithBordersItem::boundingRect() const
{
    return QRectF(0.0, 0.0, size.width() + 2.0 * borderWidth, size.height() + 2.0 * borderWidth);
}

void ComponentWithBordersItem::drawBorders(QPainter* painter)
{
    QPen pen(borderColor);
    pen.setWidth(borderWidth);
    painter->setPen(pen);
    const QRectF bounds = boundingRect();
    const QRectF frame(
        bounds.topLeft(), bounds.size() - QSizeF(double(borderWidth), double(borderWidth)));
    painter->drawRects(&frame, 1);
}

void ComponentWithBordersItem::reservedHook() { }
