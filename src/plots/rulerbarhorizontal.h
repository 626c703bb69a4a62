#pragma once

#include "plots/rulerbarlayoutitem.h"

/// Ruler under a plot: ticks hang from its top edge, labels stand under them, numbers grow to the
/// right. Measures the image's columns, or its rows when it is set to the cross axis.
class RulerBarHorizontal : public RulerBarLayoutItem
{
    Q_OBJECT

public:
    RulerBarHorizontal(const QString& title, QGraphicsItem* parent);

protected:
    void updateCount() override;
    void updateVisibleSpan() override;
    void rebuildTicks() override;
    void computeSteps() override;
    void drawTitle(QPainter* painter) override;
    void drawLabels(QPainter* painter) override;
};
