#pragma once

#include "plots/intensitycurvelayoutitem.h"

/// Strip under the image: the profile of the row through the anchor, with a vertical line at the
/// anchor. Dragging scrolls the image sideways.
class IntensityCurveHorizontal : public IntensityCurveLayoutItem
{
    Q_OBJECT

public:
    explicit IntensityCurveHorizontal(QGraphicsItem* parent);

    /// x of the anchor line, in item units; the middle of the strip at construction.
    int anchorPosition() const { return m_anchorX; }

public Q_SLOTS:
    /// Moves the anchor line to the rounded x of `anchor`, in item units.
    void changedAnchorPosition(QPointF anchor);

protected:
    void sizeChanged() override;
    void rebuildCurve() override;
    void emitDragScroll(const QPointF& current) override;
    void drawAnchor(QPainter* painter) override;
    void constrainDrag(const QPointF& pressed, QPointF& current) override;

private:
    int m_anchorX = 0;
};
