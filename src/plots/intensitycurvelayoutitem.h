#pragma once

#include "canvas/componentwithbordersitem.h"

#include <QCursor>
#include <QGraphicsLayoutItem>
#include <QLineF>
#include <QPen>
#include <QVector>

#include <memory>

/// Plot of one profile of display levels 0..255 as a polyline that fills the item. Owns a copy of
/// the samples; shows an open hand while the pointer is over it and turns a left-button drag into
/// scroll requests. Subclasses say how samples become lines and in which direction a drag counts.
class IntensityCurveLayoutItem : public ComponentWithBordersItem, public QGraphicsLayoutItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsLayoutItem)

public:
    explicit IntensityCurveLayoutItem(QGraphicsItem* parent);
    ~IntensityCurveLayoutItem() override;

    /// The polyline as consecutive segments, in item units.
    const QVector<QLineF>& curveLines() const { return m_curveLines; }

    /// When set, every profile received from now on is stored back to front.
    void setReversed(bool reversed) { m_reversed = reversed; }
    bool isReversed() const { return m_reversed; }

    /// Full scale is `scale` x 255 levels where a subclass reads it. Stored as given, also 0 and
    /// NaN; the curve follows at the next rebuild.
    void setValueScale(qreal scale) { m_valueScale = scale; }
    qreal valueScale() const { return m_valueScale; }

    /// Also moves the item and rebuilds the curve.
    void setGeometry(const QRectF& rect) override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF& constraint = QSizeF()) const override;

Q_SIGNALS:
    /// Screen pixels that the pointer went back during a step of a drag: to the right or downward
    /// is negative.
    void scrollDistance(int distance);

public Q_SLOTS:
    /// Copies the `size` samples at `data` and redraws. Null data or a size below 1: ignored.
    void updateCurve(uchar* data, int size);
    /// The same for `counts` samples from `offset` on. A part that does not lie within the `size`
    /// samples is ignored; an empty one is accepted and redraws the profile held before.
    void updateCurve(uchar* data, int size, int offset, int counts);

protected:
    virtual void rebuildCurve() = 0;
    /// Announces the step of a drag from dragPosition() to `current`, both on the screen.
    virtual void emitDragScroll(const QPointF& current) = 0;
    /// Draws what marks the anchor over the polyline, whose pen is still set.
    virtual void drawAnchor(QPainter* painter);
    /// Holds `current` to the drag's direction, seen from `pressed`.
    virtual void constrainDrag(const QPointF& pressed, QPointF& current);
    /// Makes room for `count` samples, which are 0 until they are filled. A count of 0 or less,
    /// the count held already, or no memory: the old samples stay.
    virtual void resizeSamples(int count);

    void drawContents(QPainter* painter) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;

    /// Null as long as no profile has been accepted.
    const uchar* samples() const { return m_samples.get(); }
    int sampleCount() const { return m_sampleCount; }
    QPen curvePen() const; ///< of the polyline, and of what belongs to it
    QPen borderPen() const; ///< of the frame and the anchor

    /// Hands the item size to the layout at (0, 0): moves the item there and rebuilds the curve.
    void passSizeToLayout();

    /// From `current` to where the drag stood before, in whole screen pixels.
    QPoint draggedBack(const QPointF& current) const;

    QVector<QLineF> m_curveLines;

private:
    void showCursorOnView(const QCursor& cursor);

    int m_sampleCount = 0; ///< length of m_samples
    bool m_reversed = false;
    std::unique_ptr<uchar[]> m_samples;
    qreal m_valueScale = 1.0;
    QPointF m_dragPosition; ///< last pointer position of a left-button drag, on the screen
    QCursor m_hoverCursor { Qt::OpenHandCursor };
};
