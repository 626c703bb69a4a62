#include "formats/imagefolder.h"

#include <QDir>
#include <QLocale>

#include <algorithm>

QStringList imageSuffixes()
{
    QStringList suffixes;
    for (const char* suffix : { "jpg", "jpeg", "tif", "tiff", "bmp", "png", "raw" }) {
        suffixes << QString::fromLatin1(suffix);
    }
    return suffixes;
}

NameOrder::NameOrder()
    : m_collator(QLocale(QLocale::English)) // the C locale compares bytes
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
}

bool NameOrder::operator()(const QFileInfo& a, const QFileInfo& b) const
{
    const int order = m_collator.compare(a.fileName(), b.fileName());
    return order != 0 ? order < 0 : a.fileName() < b.fileName();
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
