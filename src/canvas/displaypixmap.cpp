#include "canvas/displaypixmap.h"

#include "image/pixelmemory.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <memory>
#include <new>

namespace {

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

} // namespace

void copyToPixmap(const QImage& image, QPixmap& pixmap)
{
    if (image.hasAlphaChannel()) {
        pixmap = QPixmap::fromImage(image);
        return;
    }
    if (pixmap.size() != image.size() || pixmap.hasAlpha()) {
        pixmap = pixmapOfSize(image.size());
        if (pixmap.isNull()) {
            return;
        }
    }
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(0, 0, image);
}
