#pragma once

#include "formats/imagefolder.h"

#include <QString>

/// What the viewer knows about image files by their names, beyond the order of a folder.

/// Name filters of the open dialog.
QString openDialogFilter();

/// The image `step` places after `path` (before it when negative) in its folder, in that order; of
/// a file that is gone, its place counts. Empty beyond either end.
QString neighbourInFolder(const QString& path, int step);

/// Whether the file is of a kind that can be opened, by its suffix.
bool hasImageSuffix(const QString& path);
