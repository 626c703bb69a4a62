#pragma once

#include <QString>

class QPixmap;
class QWidget;

/// Asks where to save a picture: in `folder`, or among the user's pictures when it is empty, under
/// the name `baseName`. Empty when the user cancels.
QString choosePictureFile(QWidget* parent, const QString& folder, const QString& baseName);

/// Writes the picture as PNG, whole or not at all. Returns what went wrong as one line that names
/// the file; empty on success.
QString savePicture(const QPixmap& picture, const QString& path);
