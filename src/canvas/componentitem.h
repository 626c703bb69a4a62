#pragma once

#include <QGraphicsItem>
#include <QObject>
#include <QSizeF>

class QGraphicsLayoutItem;

/// Base of every drawn element of the canvas: holds the content size and turns paint() into the
/// fixed sequence frame, contents, foreground. Sizes and positions are in item units, one to a
/// screen pixel.
class ComponentItem : public QObject, public QGraphicsItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsItem)

public:
    explicit ComponentItem(QGraphicsItem* parent);

    /// Content size without any border; whole numbers, 400 x 400 at construction.
    QSizeF size;

    /// Stores both extents truncated toward zero, then calls sizeChanged(). Negative values are
    /// stored as they are; NaN counts as 0, and anything beyond +-2^30 as that bound.
    void setSize(qreal width, qreal height);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

protected:
    /// Called by setSize() after the new size is stored.
    virtual void sizeChanged();
    virtual void drawContents(QPainter* painter);
    virtual void drawForeground(QPainter* painter);
    virtual void drawBorders(QPainter* painter);

    // What every canvas item that is also a layout item answers in its own overrides.

    /// Minimum (0, 0), preferred the bounding rectangle's size, maximum (1000, 1000), any other
    /// hint the constraint itself.
    QSizeF layoutSizeHint(Qt::SizeHint which, const QSizeF& constraint) const;

    /// Hands `rect` to the layout part `self` of this object and moves the item to its top-left
    /// corner. The size stays: the host sets it with setSize().
    void placeInLayout(QGraphicsLayoutItem& self, const QRectF& rect);
};
