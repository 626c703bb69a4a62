#pragma once

#include <QFileInfo>
#include <QSize>
#include <QString>
#include <QStringList>

/// What the viewer knows about image files without loading them.

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

/// The likely reason why the file cannot be shown, as one sentence for the user. To be asked after
/// a load has failed: when nothing else is wrong, the content is.
QString loadProblem(const QString& path);

/// Whether it is worth reading the file: one of a known suffix that can be read and is not empty,
/// and no raw camera file that is cut short.
bool mayBeImage(const QString& path);

/// Whether the file is a raw camera file whose header says that it holds no pixels.
bool isRawFileWithoutPixels(const QString& path);

/// Whether a raw camera file is cut so short that loading it would only fill memory: its header
/// claims more than 256 MiB of pixels, and the file does not hold them. A few bytes could else ask
/// for many gigabytes. Smaller files load however short they are.
bool isHugeRawFileCutShort(const QString& path);

/// Size in pixels as the file's header says it; empty when it cannot be told.
QSize imageSize(const QString& path);

/// Bits a sample as the library loads them: 8, 16, 32 or 64; 0 when the header does not tell.
int imageDepth(const QString& path);

/// Size and depth as one text, as far as they are known; empty when neither is.
QString imageSummary(const QString& path);
