#include "plots/intensitycurvelayoutitem.h"

#include "base/saturate.h"

#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <new>

namespace {

constexpr int curvePenWidth = 1;

} // namespace

IntensityCurveLayoutItem::IntensityCurveLayoutItem(QGraphicsItem* parent)
    : ComponentWithBordersItem(parent)
{
    setGraphicsItem(this);
    setAcceptHoverEvents(true);
    setFlags(ItemIsSelectable | ItemClipsChildrenToShape);
    setSize(400.0, 50.0); // nobody is told: the subclass does not exist yet
}

IntensityCurveLayoutItem::~IntensityCurveLayoutItem()
{
    setGraphicsItem(nullptr);
}

void IntensityCurveLayoutItem::updateCurve(uchar* data, int length)
{
    updateCurve(data, length, 0, length);
}

void IntensityCurveLayoutItem::updateCurve(uchar* data, int length, int offset, int counts)
{
    if (!data || length < 1 || offset < 0 || offset > length || counts < 0
        || counts > length - offset) {
        return;
    }
    resizeSamples(counts);
    if (counts > 0) {
        if (m_sampleCount != counts) {
            return; // out of memory
        }
        std::copy_n(data + offset, counts, m_samples.get());
    }
    if (m_reversed) {
        // Deliberate: an empty part leaves the old samples and turns them round once more.
        std::reverse(m_samples.get(), m_samples.get() + m_sampleCount);
    }
    rebuildCurve();
    update();
}

void IntensityCurveLayoutItem::resizeSamples(int count)
{
    if (count <= 0 || count == m_sampleCount) {
        return;
    }
    std::unique_ptr<uchar[]> fresh(new (std::nothrow) uchar[size_t(count)]());
    if (fresh) {
        m_samples = std::move(fresh);
        m_sampleCount = count;
    }
}

void IntensityCurveLayoutItem::setGeometry(const QRectF& rect)
{
    placeInLayout(*this, rect);
    rebuildCurve();
}

QSizeF IntensityCurveLayoutItem::sizeHint(Qt::SizeHint which, const QSizeF& constraint) const
{
    return layoutSizeHint(which, constraint);
}

void IntensityCurveLayoutItem::passSizeToLayout()
{
    setGeometry(QRectF(0.0, 0.0, size.width() + borderWidth, size.height() + borderWidth));
}

void IntensityCurveLayoutItem::drawContents(QPainter* painter)
{
    painter->setPen(curvePen());
    painter->drawLines(m_curveLines);
    drawAnchor(painter);
}

void IntensityCurveLayoutItem::drawAnchor(QPainter*) { }

QPen IntensityCurveLayoutItem::curvePen() const
{
    QPen pen(QColor(40, 128, 140));
    pen.setWidth(curvePenWidth);
    return pen;
}

QPen IntensityCurveLayoutItem::borderPen() const
{
    QPen pen(borderColor);
    pen.setWidth(borderWidth);
    return pen;
}

void IntensityCurveLayoutItem::hoverEnterEvent(QGraphicsSceneHoverEvent* event)
{
    showCursorOnView(m_hoverCursor);
    ComponentWithBordersItem::hoverEnterEvent(event);
}

void IntensityCurveLayoutItem::hoverLeaveEvent(QGraphicsSceneHoverEvent* event)
{
    showCursorOnView(Qt::ArrowCursor);
    ComponentWithBordersItem::hoverLeaveEvent(event);
}

/// Sets `cursor` on the first view of the scene that is under the pointer or has the focus.
void IntensityCurveLayoutItem::showCursorOnView(const QCursor& cursor)
{
    if (!scene()) {
        return;
    }
    const QList<QGraphicsView*> views = scene()->views();
    for (QGraphicsView* view : views) {
        if (view->underMouse() || view->hasFocus()) {
            view->setCursor(cursor);
            return;
        }
    }
}

void IntensityCurveLayoutItem::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->buttons() == Qt::LeftButton) {
        m_dragPosition = QCursor::pos();
    }
    ComponentWithBordersItem::mousePressEvent(event);
}

void IntensityCurveLayoutItem::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->buttons() == Qt::LeftButton) {
        QPointF current = QCursor::pos();
        constrainDrag(m_dragPosition, current);
        QCursor::setPos(roundedPoint(current));
        const QPointer<IntensityCurveLayoutItem> self(this);
        emitDragScroll(current);
        if (!self) {
            return; // a receiver deleted the item
        }
        m_dragPosition = current;
    }
    ComponentWithBordersItem::mouseMoveEvent(event);
}

void IntensityCurveLayoutItem::constrainDrag(const QPointF&, QPointF&) { }

QPoint IntensityCurveLayoutItem::draggedBack(const QPointF& current) const
{
    // Each end is rounded on its own; the outer rounding finds whole numbers and only keeps the
    // difference of two far ends inside an int.
    return roundedPoint(QPointF(roundedPoint(m_dragPosition)) - QPointF(roundedPoint(current)));
}
