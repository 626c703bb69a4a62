#include "canvas/rectangleitem.h"

#include "canvas/roigeometry.h"
#include "base/saturate.h"

#include <QFontMetricsF>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>

RectangleItem::RectangleItem(QGraphicsItem* parent, int number)
    : QGraphicsItem(parent)
    , id(number)
{
    qRegisterMetaType<RectangleItem*>("RectangleItem*");
    setAcceptHoverEvents(true);
    setFlags(ItemIsSelectable | ItemIsFocusable);
    const QSizeF area = parentRect().size();
    setRect(QRectF(area.width() / 2.0, area.height() / 2.0, 60.0, 60.0));
}

/// The area to stay in; a null rectangle without a parent.
QRectF RectangleItem::parentRect() const
{
    const QGraphicsItem* const parent = parentItem();
    if (!parent) {
        return QRectF();
    }
    const bool isBounded = parentBounding.width() > 0.0 && parentBounding.height() > 0.0;
    const QRectF area = isBounded ? parentBounding : parent->boundingRect();
    return QRectF(area.x() + margin, area.y() + margin, area.width() - 2.0 * margin,
        area.height() - 2.0 * margin);
}

void RectangleItem::setRect(QRectF r)
{
    prepareGeometryChange();
    rect = parentItem() ? roiInside(parentRect(), r) : r;
    handles = roiHandles(r); // Deliberate: of the rectangle as given, even where it was cut
}

void RectangleItem::changedParentBoundingRect(QRectF bounding)
{
    parentBounding = bounding;
}

QRectF RectangleItem::boundingRect() const
{
    const double reachX = handleSize.width() / 2.0;
    const double reachY = handleSize.height() / 2.0;
    return QRectF(rect.x() - reachX, rect.y() - reachY, rect.width() + handleSize.width(),
        rect.height() + handleSize.height());
}

void RectangleItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    QPen pen(color);
    pen.setWidth(penWidth);
    painter->setPen(pen);
    painter->drawRects(&rect, 1);
    drawHandles(painter);
    drawLabel(painter);
}

void RectangleItem::drawHandles(QPainter* painter)
{
    if (!isSelected()) {
        return;
    }
    const QBrush brush(color, Qt::SolidPattern);
    const int reach = handleReach(handleSize);
    const QSize size(truncated(handleSize.width()), truncated(handleSize.height()));
    for (const QPointF& handle : qAsConst(handles)) {
        const QPoint corner(truncated(handle.x() - reach), truncated(handle.y() - reach));
        painter->fillRect(QRect(corner, size), brush);
    }
}

void RectangleItem::drawLabel(QPainter* painter)
{
    QFont font = painter->font();
    font.setPixelSize(16);
    font.setWeight(QFont::Bold);
    painter->setFont(font);
    const double lineHeight = QFontMetricsF(font).height();
    painter->drawText(
        QPoint(truncated(rect.x() + 4.0), truncated(lineHeight / 2.0 + rect.y() + 6.0)),
        QString::number(id));
}

void RectangleItem::updateHoverZone(const QPointF& position)
{
    const int corner = nearestCorner(rect, position);
    if (handles.size() < corner) {
        return;
    }
    const QPointF handle = handles.at(corner - 1);
    const int reach = handleReach(handleSize);
    const QRectF square(QPointF(handle.x() - reach, handle.y() - reach), handleSize);
    hoverZone = square.contains(position) ? corner : int(MoveZone);
}

void RectangleItem::hoverEnterEvent(QGraphicsSceneHoverEvent* event)
{
    updateHoverZone(event->pos());
}

void RectangleItem::hoverMoveEvent(QGraphicsSceneHoverEvent* event)
{
    updateHoverZone(event->pos());
}

void RectangleItem::hoverLeaveEvent(QGraphicsSceneHoverEvent*)
{
    hoverZone = NoZone;
}

void RectangleItem::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->buttons() == Qt::LeftButton) {
        pressPosition = event->pos();
    }
    QGraphicsItem::mousePressEvent(event);
}

void RectangleItem::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->buttons() == Qt::LeftButton) {
        if (hoverZone == MoveZone) {
            setRect(rect.translated(event->pos() - pressPosition));
        } else if (hoverZone >= TopLeftZone && hoverZone <= BottomRightZone) {
            resizeTo(event->pos());
        }
        pressPosition = event->pos();
        modified = true;
        if (parentItem()) {
            parentItem()->update();
        }
    }
    QGraphicsItem::mouseMoveEvent(event);
}

void RectangleItem::resizeTo(const QPointF& position)
{
    if (!parentItem() || handles.size() < 2) {
        return;
    }
    const QRectF area = parentRect();
    const QPointF inside(std::min(std::max(position.x(), area.x()), area.x() + area.width()),
        std::min(std::max(position.y(), area.y()), area.y() + area.height()));
    setRect(roiResized(handles, RoiZone(hoverZone), inside));
    // Deliberate: seen from the bottom right handle as it is now, whichever corner was dragged.
    hoverZone = cornerUnderPointer(handles.last(), inside);
}

void RectangleItem::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    if (modified) {
        modified = false;
        const QPointer<RectangleItem> self(this);
        Q_EMIT changeRect(this, rect);
        if (!self) {
            return;
        }
    }
    QGraphicsItem::mouseReleaseEvent(event);
}
