#pragma once

class QImage;
class QPixmap;

/// Makes `pixmap` a copy of the opaque image `image`. A pixmap that has the size already is
/// painted over: for a large image that costs a fraction of a new one, whose memory the system
/// would have to provide page by page.
void copyToPixmap(const QImage& image, QPixmap& pixmap);
