#pragma once

#include <QString>

class QPixmap;

/// Writes the picture as PNG, whole or not at all. Returns what went wrong as one line that names
/// the file; empty on success.
QString savePicture(const QPixmap& picture, const QString& path);
