#pragma once

#include "rawframe.h"

#include <QString>

/// Reads any picture that OpenCV knows, keeping its depth and channels. False, with one line in
/// `problem` and `frame` as it was, for anything unreadable and for samples that are not 8, 16 or
/// 32-bit integers.
bool readImageFile(const QString& path, RawFrame* frame, QString* problem);

/// Writes `frame` in the format that the suffix of `path` names, "raw" included. False, with one
/// line in `problem`, when the format cannot hold the frame or the file cannot be written.
bool writeImageFile(const QString& path, const RawFrame& frame, QString* problem);
