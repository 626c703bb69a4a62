#pragma once

#include <QRect>
#include <QRectF>

/// Resizes a canvas item and hands it its place: the rectangle is size and place in one.
template <class Item>
void placeItem(Item* item, const QRect& rect)
{
    item->setSize(rect.width(), rect.height());
    item->setGeometry(QRectF(rect));
}
