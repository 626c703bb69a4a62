#include "canvas/displaypixmap.h"

#include "canvas/rgbwords.h"
#include "base/pixelmemory.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <memory>
#include <new>

namespace {

/// Longest side that the raster painter draws on and, counted in source pixels, scales rightly.
constexpr int longestPaintedSide = 32767;

bool isPaintable(const QSize& size)
{
    return size.width() <= longestPaintedSide && size.height() <= longestPaintedSide;
}

/// A pixmap of `size` whose memory comes in large pages where the platform has them; null without
/// memory.
QPixmap pixmapOfSize(const QSize& size)
{
    std::unique_ptr<PixelMemory> memory(new (std::nothrow) PixelMemory);
    const int bytesPerPixel = 4;
    const qint64 bytesPerLine = qint64(size.width()) * bytesPerPixel;
    if (!memory || bytesPerLine > 0x7FFFFFFF
        || !memory->acquire(size_t(bytesPerLine) * size_t(size.height()))) {
        return QPixmap();
    }
    QImage image(
        memory->data(), size.width(), size.height(), int(bytesPerLine), QImage::Format_RGB32,
        [](void* owned) { delete static_cast<PixelMemory*>(owned); }, memory.get());
    if (image.isNull()) {
        return QPixmap();
    }
    memory.release(); // the image frees it
    return QPixmap::fromImage(std::move(image));
}

/// Draws what `source` has in the paintable piece of `image` that starts at `origin`.
void drawPiece(QPainter& painter, const QRectF& target, const QImage& image, const QRectF& source,
    const QPoint& origin)
{
    const int columns = std::min(longestPaintedSide, image.width() - origin.x());
    const int rows = std::min(longestPaintedSide, image.height() - origin.y());
    const QRectF part = source.intersected(QRectF(origin, QSizeF(columns, rows)));
    if (part.isEmpty()) {
        return;
    }
    const double across = target.width() / source.width();
    const double down = target.height() / source.height();
    const QRectF place(target.x() + (part.x() - source.x()) * across,
        target.y() + (part.y() - source.y()) * down, part.width() * across, part.height() * down);
    const uchar* const pixels
        = image.constScanLine(origin.y()) + qint64(origin.x()) * (image.depth() / 8);
    const QImage piece(pixels, columns, rows, image.bytesPerLine(), image.format());
    painter.drawImage(place, piece, part.translated(-origin));
}

/// Writes the pixels of `image` into those of `pixmap`, which has its size, without a painter,
/// which converts them in small pieces and copies each a second time. False, with nothing written,
/// where the platform does not keep the pixels of a pixmap as an image.
bool overwritePixels(const QImage& image, QPixmap& pixmap)
{
    if (image.format() != QImage::Format_RGB888) {
        return false;
    }
    {
        // Gives the pixmap a new cache key, and pixels that no copy of it and no image taken from
        // it shares.
        const QPainter detaching(&pixmap);
    }
    const QImage pixels = pixmap.toImage(); // the same memory
    if (pixels.format() != QImage::Format_RGB32
        || pixels.constBits() != pixmap.toImage().constBits()) {
        return false;
    }
    for (int y = 0; y < image.height(); ++y) {
        widenToRgbWords(
            image.constScanLine(y), image.width(), const_cast<uchar*>(pixels.constScanLine(y)));
    }
    return true;
}

} // namespace

void copyToPixmap(const QImage& image, QPixmap& pixmap)
{
    if (image.hasAlphaChannel() || !isPaintable(image.size())) {
        pixmap = QPixmap::fromImage(image);
        return;
    }
    if (pixmap.size() != image.size() || pixmap.hasAlpha()) {
        pixmap = pixmapOfSize(image.size());
        if (pixmap.isNull()) {
            return;
        }
    }
    if (overwritePixels(image, pixmap)) {
        return;
    }
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(0, 0, image);
}

void drawPixmapPart(
    QPainter& painter, const QRectF& target, const QPixmap& pixmap, const QRectF& source)
{
    if (isPaintable(pixmap.size()) || source.isEmpty()) {
        painter.drawPixmap(target, pixmap, source);
        return;
    }
    const QImage image = pixmap.toImage(); // shares the pixels
    for (qint64 top = 0; top < image.height(); top += longestPaintedSide) {
        for (qint64 left = 0; left < image.width(); left += longestPaintedSide) {
            drawPiece(painter, target, image, source, QPoint(int(left), int(top)));
        }
    }
}
