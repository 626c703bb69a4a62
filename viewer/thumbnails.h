#pragma once

#include <QImage>
#include <QSize>
#include <QString>

/// Longest decoded image that is read for a small picture: 256 MiB. A pixel counts as four bytes
/// at least, since decoders make as many of one.
constexpr quint64 thumbnailDecodeLimit = quint64(256) << 20;

/// A small picture of the image file at `path` that fits `bounds`, both in pixels; smaller images
/// keep their size. Raw frames and those of 16 bits a sample or more are stretched from their
/// smallest to their largest value. Null for everything that cannot be read or is larger than
/// thumbnailDecodeLimit. Reads regular files only; throws nothing; may be called in any thread.
QImage thumbnail(const QString& path, const QSize& bounds);
