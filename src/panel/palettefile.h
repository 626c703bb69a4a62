#pragma once

#include <QColor>
#include <QString>
#include <QVector>

/// A palette file is plain text with one colour a line: red, green and blue as decimal numbers, one
/// space between them; line 1 belongs to display level 0.

/// The file `name` in or below `directory`; `name` begins with a separator and may separate with
/// slashes or backslashes on every platform.
QString paletteFilePath(const QString& directory, const QString& name);

/// Reads a palette file into `palette`, opaque colours, one for each line however many there are.
/// What is no number, and what a short line lacks, counts as 0; fields behind the third are
/// ignored; a line with a number outside 0..255 gives an invalid colour. Reading stops after a
/// million lines or 64 Mi characters. False, and `palette` stays, when the file cannot be opened or
/// is not a regular one; an empty file leaves it empty, and so does, with false, a lack of memory.
bool readPaletteFile(const QString& path, QVector<QColor>& palette);
