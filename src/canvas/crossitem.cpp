#include "canvas/crossitem.h"

#include "base/saturate.h"

#include <QPainter>

CrossItem::CrossItem(QGraphicsItem* parent)
    : QGraphicsItem(parent)
    , color(Qt::white)
{
}

QRectF CrossItem::boundingRect() const
{
    return QRectF(0.0, 0.0, 2.0 * halfLength, 2.0 * halfLength);
}

void CrossItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    QPen pen(color);
    pen.setWidth(penWidth);
    painter->setPen(pen);
    const QLine across(truncated(position.x() - halfLength), truncated(position.y()),
        truncated(position.x() + halfLength), truncated(position.y()));
    const QLine upright(truncated(position.x()), truncated(position.y() - halfLength),
        truncated(position.x()), truncated(position.y() + halfLength));
    painter->drawLines(&across, 1);
    painter->drawLines(&upright, 1);
}
