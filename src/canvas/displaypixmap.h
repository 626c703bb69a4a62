#pragma once

class QImage;
class QPixmap;

/// Makes `pixmap` a copy of `image`, with the pixels of QPixmap::fromImage. Opaque images are
/// painted into the pixmap's own memory, which is used again when the size is the same: for a large
/// image providing fresh memory page by page costs several times the copy. Without memory the
/// pixmap becomes null.
void copyToPixmap(const QImage& image, QPixmap& pixmap);
