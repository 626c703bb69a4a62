#pragma once

#include "plots/intensitycurvelayoutitem.h"

/// Strip beside the image: the profile of the column through the anchor, with a horizontal line at
/// the anchor. Dragging scrolls the image up and down.
class IntensityCurveVertical : public IntensityCurveLayoutItem
{
    Q_OBJECT

public:
    explicit IntensityCurveVertical(QGraphicsItem* parent);

    /// y of the anchor line, in item units; the middle of the strip at construction.
    int anchorPosition() const { return m_anchorY; }

public Q_SLOTS:
    /// Moves the anchor line to the rounded y of `anchor`, in item units.
    void changedAnchorPosition(QPointF anchor);

protected:
    void sizeChanged() override;
    void rebuildCurve() override;
    void emitDragScroll(const QPointF& current) override;
    void drawAnchor(QPainter* painter) override;
    void constrainDrag(const QPointF& pressed, QPointF& current) override;

private:
    int m_anchorY = 0;
};
