#pragma once

#include "plots/rulerbarlayoutitem.h"

/// Ruler left of a plot: ticks stick out of its right edge, labels stand left of them, numbers
/// grow upward. Measures the image's rows, or its columns when it is set to the cross axis.
class RulerBarVertical : public RulerBarLayoutItem
{
    Q_OBJECT

public:
    RulerBarVertical(const QString& title, QGraphicsItem* parent);

protected:
    void updateCount() override;
    void updateVisibleSpan() override;
    void rebuildTicks() override;
    void computeSteps() override;
    void drawTitle(QPainter* painter) override;
    void drawLabels(QPainter* painter) override;
};
