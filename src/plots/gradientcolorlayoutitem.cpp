#include "plots/gradientcolorlayoutitem.h"

#include "plots/gradientcells.h"

#include <QPainter>
#include <QPointer>

namespace {

QVector<QColor> greys()
{
    QVector<QColor> colors;
    for (int level = 0; level < 256; ++level) {
        colors.append(QColor(level, level, level));
    }
    return colors;
}

} // namespace

GradientColorLayoutItem::GradientColorLayoutItem(QGraphicsItem* parent)
    : ComponentWithBordersItem(parent)
    , m_colors(greys())
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
