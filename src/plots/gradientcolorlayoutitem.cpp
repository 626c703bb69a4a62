#include "plots/gradientcolorlayoutitem.h"

#include "base/grayramp.h"
#include "plots/gradientcells.h"

#include <QPainter>
#include <QPointer>

GradientColorLayoutItem::GradientColorLayoutItem(QGraphicsItem* parent)
    : ComponentWithBordersItem(parent)
    , m_colors(grayRamp())
{
    setGraphicsItem(this);
}

GradientColorLayoutItem::~GradientColorLayoutItem()
{
    setGraphicsItem(nullptr);
}

void GradientColorLayoutItem::setGeometry(const QRectF& rect)
{
    placeInLayout(*this, rect);
}

QSizeF GradientColorLayoutItem::sizeHint(Qt::SizeHint which, const QSizeF& constraint) const
{
    return layoutSizeHint(which, constraint);
}

void GradientColorLayoutItem::changedPalette(QVector<QColor> color)
{
    m_colors = color;
    const QPointer<GradientColorLayoutItem> self(this);
    Q_EMIT changeColors(color);
    if (self) { // a receiver may have deleted the item
        update();
    }
}

void GradientColorLayoutItem::sizeChanged()
{
    m_cells = gradientCells(size, borderWidth);
}

void GradientColorLayoutItem::drawContents(QPainter* painter)
{
    if (m_colors.isEmpty()) {
        return;
    }
    const int step = colorStep(int(m_colors.size()), int(m_cells.size()));
    for (int i = 0; i < m_cells.size(); ++i) {
        painter->fillRect(m_cells.at(i), QBrush(m_colors.at(i * step), Qt::SolidPattern));
    }
}
