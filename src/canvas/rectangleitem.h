#pragma once

#include <QColor>
#include <QGraphicsItem>
#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QVector>

/// One region of interest on the image: a rectangle with its number, and handles at the corners
/// while it is selected. The left button moves it by its inside and resizes it by a handle.
/// Coordinates are those of the image item, its parent.
class RectangleItem : public QObject, public QGraphicsItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsItem)

public:
    RectangleItem(QGraphicsItem* parent, int id);

    int id; ///< the number that is shown, 1-based: its place in the collection + 1
    int penWidth = 1;
    int hoverZone = 0; ///< what a left drag does, a RoiZone
    int margin = 0; ///< inset of the area that the rectangle stays in
    QColor color { Qt::red };
    QRectF rect { 0.0, 0.0, 0.0, 0.0 };
    QSizeF handleSize { 6.0, 6.0 };
    /// Corners of the rectangle last given to setRect(): top left, top right, bottom left, bottom
    /// right.
    QVector<QPointF> handles;
    bool modified = false; ///< dragged since the button went down
    QPointF pressPosition; ///< last pointer position of the drag
    QRectF parentBounding { 0.0, 0.0, 0.0, 0.0 }; ///< the area to stay in; empty: the parent's

    /// Takes over `r` moved and cut into the area it has to stay in. Neither repaints nor signals.
    void setRect(QRectF r);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

Q_SIGNALS:
    /// A drag has ended. The receiver may delete the item.
    void changeRect(RectangleItem* item, QRectF rect);

public Q_SLOTS:
    /// The area to stay in from now on; the rectangle follows at the next setRect().
    void changedParentBoundingRect(QRectF bounding);

protected:
    virtual void drawHandles(QPainter* painter);
    virtual void drawLabel(QPainter* painter);

    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverMoveEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;

private:
    QRectF parentRect() const;
    void updateHoverZone(const QPointF& position);
    void resizeTo(const QPointF& position);
};
