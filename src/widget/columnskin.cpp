#include "widget/columnskin.h"

#include "base/screenscale.h"

#include <QPainter>
#include <QPixmap>

void paintColumnSkin(QPainter& painter, const QPixmap& header, const QPixmap& body,
    const QPixmap& border, int height, double dotsPerInch)
{
    const int width = scaledPixels(panelColumnPixels, dotsPerInch);
    int headerHeight = 0;
    if (!header.isNull()) {
        headerHeight = scaledPixels(float(header.height()), dotsPerInch);
        painter.drawPixmap(QRect(0, 0, width, headerHeight), header);
    }
    if (!body.isNull()) {
        // Deliberate: the first tile covers the header's last row.
        for (int y = headerHeight - 1; y < height; y += body.height()) {
            painter.drawPixmap(QRect(0, y, width, body.height()), body);
        }
    }
    if (!border.isNull()) {
        for (int y = 0; y < height; y += border.height()) {
            painter.drawPixmap(
                QRect(width - border.width(), y, border.width(), border.height()), border);
        }
    }
}
