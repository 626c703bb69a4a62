#include "canvas/displaypixmap.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>

void copyToPixmap(const QImage& image, QPixmap& pixmap)
{
    if (pixmap.isNull() || pixmap.size() != image.size() || pixmap.hasAlpha()
        || image.hasAlphaChannel()) {
        pixmap = QPixmap::fromImage(image);
        return;
    }
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(0, 0, image);
}
