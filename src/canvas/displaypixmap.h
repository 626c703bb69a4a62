#pragma once

class QImage;
class QPainter;
class QPixmap;
class QRectF;

/// Makes `pixmap` a copy of `image`, with the pixels of QPixmap::fromImage. Opaque images that a
/// painter can hold (32767 pixels a side) are painted into the pixmap's own memory, which is used
/// again when the size is the same: for a large image providing fresh memory page by page costs
/// several times the copy. Without memory the pixmap becomes null.
void copyToPixmap(const QImage& image, QPixmap& pixmap);

/// Draws the part `source` of `pixmap`, in its pixels, scaled into `target`. Same as
/// QPainter::drawPixmap, but also right for pixmaps longer than the 65535 pixels that the painter
/// counts to when it scales.
void drawPixmapPart(
    QPainter& painter, const QRectF& target, const QPixmap& pixmap, const QRectF& source);
