#pragma once

#include <QColor>
#include <QGraphicsItem>
#include <QObject>
#include <QPointF>

/// The cross that marks the anchor. Its owner writes the positions directly and repaints itself
/// whole, since the cross may be drawn outside its own bounding rectangle.
class CrossItem : public QObject, public QGraphicsItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsItem)

public:
    explicit CrossItem(QGraphicsItem* parent);

    int halfLength = 20; ///< length of each arm from the centre, in item units
    int penWidth = 1;
    QColor color; ///< white at construction
    QPointF position; ///< centre, in the parent's item units
    QPointF previousPosition; ///< the centre before the last move; kept by the owner

    /// Deliberate: twice the arm length in each direction from the origin, wherever the cross is.
    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;
};
