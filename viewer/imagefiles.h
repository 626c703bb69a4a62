#pragma once

#include <QFileInfo>
#include <QString>
#include <QStringList>

/// What the viewer knows about image files by their names.

/// The suffixes that can be opened, in lower case.
QStringList imageSuffixes();

/// Name filters of the open dialog.
QString openDialogFilter();

/// The regular files in `folder` whose suffix can be opened, by name, numbers in names by value: 2
/// before 10. Empty for a folder that is missing or cannot be read.
QFileInfoList imagesInFolder(const QString& folder);

/// The image `step` places after `path` (before it when negative) in its folder, in that order; of
/// a file that is gone, its place counts. Empty beyond either end.
QString neighbourInFolder(const QString& path, int step);

/// Whether the file is of a kind that can be opened, by its suffix.
bool hasImageSuffix(const QString& path);
