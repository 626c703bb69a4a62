#pragma once

#include "image/reading.h"

#include <QImage>
#include <QSize>
#include <QString>

/// A small gray picture of what faithful reading shows of the file: its values stretched over black
/// to white, of at most `bounds` pixels, with the file's proportions; smaller images keep their
/// size. Null, with the reason in `problem`, for everything that is not read and for more than
/// `pixelLimit` pixels (0 or less: no limit); `problem` may be null. Empty bounds give a null
/// picture without a problem. May be called in any thread; throws nothing.
QImage previewOf(const QString& path, const QSize& bounds, qint64 pixelLimit, LoadProblem* problem);
