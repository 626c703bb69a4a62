#pragma once

#include <QColor>
#include <QString>
#include <QVector>

/// Reads the palette file `path`: plain text, a colour a line, as three decimal numbers with one
/// space between them; line 1 is display level 0.
///
/// Both kinds of path separators are understood on every platform. A field that is no number, is
/// missing, or stands empty between two spaces counts as 0; fields after the third are ignored;
/// numbers outside 0..255 give an invalid colour. Reading stops after a million lines or 64 MiB.
/// `palette` stays as it was when there is no regular file that can be read, and is empty after an
/// empty one.
void readPaletteFile(const QString& path, QVector<QColor>* palette);
