#pragma once

#include "canvas/componentwithbordersitem.h"

#include <QColor>
#include <QGraphicsLayoutItem>
#include <QVector>

/// Bar of flat cells showing the palette, display level 0 on the left.
/// Owns a copy of the palette; announces every palette it is handed, also an unchanged one.
class GradientColorLayoutItem : public ComponentWithBordersItem, public QGraphicsLayoutItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsLayoutItem)

public:
    explicit GradientColorLayoutItem(QGraphicsItem* parent);
    ~GradientColorLayoutItem() override;

    /// Cell rectangles, left to right; empty until the first size is set.
    const QVector<QRectF>& cells() const { return m_cells; }
    /// The palette; 256 greys at construction.
    const QVector<QColor>& colors() const { return m_colors; }

    /// Moves the item only: the cells follow its size, not the layout rectangle.
    void setGeometry(const QRectF& rect) override;
    QSizeF sizeHint(Qt::SizeHint which, const QSizeF& constraint = QSizeF()) const override;

Q_SIGNALS:
    /// The palette just stored.
    void changeColors(QVector<QColor> color);

public Q_SLOTS:
    /// Stores and announces a palette of any length; the cells stay unfilled with an empty one.
    void changedPalette(QVector<QColor> color);

protected:
    void sizeChanged() override;
    void drawContents(QPainter* painter) override;

private:
    QVector<QRectF> m_cells;
    QVector<QColor> m_colors;
};
