#include "canvas/componentitem.h"

#include "base/saturate.h"

#include <QGraphicsLayoutItem>
#include <QPainter>

ComponentItem::ComponentItem(QGraphicsItem* parent)
    : QGraphicsItem(parent)
    , size(400.0, 400.0)
{
}

void ComponentItem::setSize(qreal width, qreal height)
{
    prepareGeometryChange();
    size = QSizeF(truncated(width), truncated(height));
    sizeChanged();
}

QRectF ComponentItem::boundingRect() const
{
    return QRectF(0.0, 0.0, size.width(), size.height());
}

void ComponentItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    painter->save();
    drawBorders(painter);
    drawContents(painter);
    drawForeground(painter);
    painter->restore();
}

void ComponentItem::sizeChanged() { }

void ComponentItem::drawContents(QPainter*) { }

void ComponentItem::drawForeground(QPainter*) { }

void ComponentItem::drawBorders(QPainter*) { }

QSizeF ComponentItem::layoutSizeHint(Qt::SizeHint which, const QSizeF& constraint) const
{
    switch (which) {
    case Qt::MinimumSize: return QSizeF(0.0, 0.0);
    case Qt::PreferredSize: return boundingRect().size();
    case Qt::MaximumSize: return QSizeF(1000.0, 1000.0);
    default: return constraint;
    }
}

void ComponentItem::placeInLayout(QGraphicsLayoutItem& self, const QRectF& rect)
{
    prepareGeometryChange();
    self.QGraphicsLayoutItem::setGeometry(rect);
    setPos(rect.topLeft());
}
