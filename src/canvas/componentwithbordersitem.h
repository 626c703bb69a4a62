#pragma once

#include "canvas/componentitem.h"

#include <QColor>

/// A component with a one-colour frame around its content. The frame lies outside the content
/// size: the bounding rectangle is the content plus twice the border on each axis.
class ComponentWithBordersItem : public ComponentItem
{
    Q_OBJECT

public:
    explicit ComponentWithBordersItem(QGraphicsItem* parent);

    int borderWidth = 1; ///< item units
    QColor borderColor; ///< white at construction

    QRectF boundingRect() const override;

protected:
    void drawBorders(QPainter* painter) override;

    /// Free for later use; keeps its place in the order of virtual operations.
    virtual void reservedHook();
};
