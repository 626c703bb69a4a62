#include "panel/titlebarskin.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>

void paintTitleBarSkin(QPainter& painter, const QPixmap& left, const QPixmap& middle,
    const QPixmap& right, int width, int height)
{
    int x = 0;
    if (!left.isNull()) {
        painter.drawPixmap(QRect(0, 0, left.width(), height), left);
        x = left.width();
    }
    int rightStart = 0;
    if (!right.isNull()) {
        rightStart = width - right.width();
        painter.drawPixmap(QRect(rightStart, 0, right.width(), height), right);
    }
    if (!middle.isNull()) {
        for (; x < rightStart; x += middle.width()) {
            painter.drawPixmap(
                QRect(x, 0, std::min(rightStart - x, middle.width()), height), middle);
        }
    }
}
