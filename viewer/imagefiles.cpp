#include "imagefiles.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace {

/// Context of the texts for translation.
struct ImageFiles
{
    Q_DECLARE_TR_FUNCTIONS(ImageFiles)
};

} // namespace

QString openDialogFilter()
{
    QStringList patterns;
    for (const QString& suffix : imageSuffixes()) {
        patterns << "*." + suffix;
    }
    return ImageFiles::tr("Images (%1)").arg(patterns.join(' ')) + ";;"
        + ImageFiles::tr("All files (*)");
}

QString neighbourInFolder(const QString& path, int step)
{
    const QFileInfo file(path);
    const QFileInfoList files = imagesInFolder(file.absolutePath());
    const auto place = std::lower_bound(files.begin(), files.end(), file, NameOrder());
    const bool isThere = place != files.end() && place->fileName() == file.fileName();
    const int passed = step > 0 && !isThere ? 1 : 0; // one that is gone has its successor here
    const int index = int(place - files.begin()) + step - passed;
    return files.value(index).filePath();
}

bool hasImageSuffix(const QString& path)
{
    return imageSuffixes().contains(QFileInfo(path).suffix().toLower());
}
