#include "imagefiles.h"

#include <QCollator>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

/// Context of the texts for translation.
struct ImageFiles
{
    Q_DECLARE_TR_FUNCTIONS(ImageFiles)
};

/// Orders names as a person would, the same in every language.
class NameOrder
{
public:
    NameOrder()
    {
        m_collator.setNumericMode(true);
        m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    }

    bool operator()(const QFileInfo& a, const QFileInfo& b) const
    {
        const int order = m_collator.compare(a.fileName(), b.fileName());
        return order != 0 ? order < 0 : a.fileName() < b.fileName();
    }

private:
    QCollator m_collator { QLocale(QLocale::English) }; // the C locale compares bytes
};

} // namespace

QStringList imageSuffixes()
{
    return { "jpg", "jpeg", "tif", "tiff", "bmp", "png", "raw" };
}

QString openDialogFilter()
{
    QStringList patterns;
    for (const QString& suffix : imageSuffixes()) {
        patterns << "*." + suffix;
    }
    return ImageFiles::tr("Images (%1)").arg(patterns.join(' ')) + ";;"
        + ImageFiles::tr("All files (*)");
}

QFileInfoList imagesInFolder(const QString& folder)
{
    const QStringList suffixes = imageSuffixes();
    QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Unsorted);
    const auto unwanted = [&suffixes](const QFileInfo& file) {
        return !file.isFile() || !suffixes.contains(file.suffix().toLower());
    };
    files.erase(std::remove_if(files.begin(), files.end(), unwanted), files.end());
    std::sort(files.begin(), files.end(), NameOrder());
    return files;
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
