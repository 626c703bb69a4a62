#include "imagefiles.h"

#include "rawframe.h"
#include "tiffheader.h"

#include <QCollator>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace {

QString text(const char* source)
{
    return QCoreApplication::translate("ImageFiles", source);
}

QString suffixOf(const QString& path)
{
    return QFileInfo(path).suffix().toLower();
}

QString formatName(const QString& suffix)
{
    if (suffix.startsWith("jp")) {
        return "JPEG";
    }
    return suffix.startsWith("tif") ? QString("TIFF") : suffix.toUpper();
}

/// What is wrong with the name or the kind of the file; empty when nothing is.
QString outerProblem(const QFileInfo& file)
{
    if (!file.exists()) {
        return text("There is no file of this name.");
    }
    if (file.isDir()) {
        return text("This is a folder, not an image file.");
    }
    if (!file.isFile()) {
        return text("This is not a regular file.");
    }
    const QString suffix = file.suffix().toLower();
    if (suffix.isEmpty()) {
        return text("The file name has no suffix. Images end in %1.")
            .arg(imageSuffixes().join(", "));
    }
    if (!imageSuffixes().contains(suffix)) {
        return text("Files of the kind \"%1\" are not known. Images end in %2.")
            .arg(suffix.left(20), imageSuffixes().join(", "));
    }
    if (!file.isReadable()) {
        return text("You have no permission to read this file.");
    }
    return file.size() == 0 ? text("The file is empty.") : QString();
}

QString rawProblem(const QString& path)
{
    RawHeader header;
    switch (readRawHeader(path, &header)) {
    case RawFileError::Unreadable: return text("The file cannot be opened.");
    case RawFileError::NoSignature:
        return text("This is no raw camera file: it does not carry the camera's signature.");
    default: break;
    }
    if (pixelByteCount(header) == 0) {
        return text("This raw camera file holds no pixels.");
    }
    if (isHugeRawFileCutShort(path)) {
        return text("This raw camera file claims %1 x %2 pixels but does not hold them.")
            .arg(header.width)
            .arg(header.height);
    }
    return text("This raw camera file claims %1 x %2 pixels with %3 channels of %4 bytes, which is "
                "more than can be loaded.")
        .arg(header.width)
        .arg(header.height)
        .arg(header.channels)
        .arg(header.bytesPerChannel);
}

QSize rawSize(const QString& path)
{
    RawHeader header;
    const bool read = readRawHeader(path, &header) == RawFileError::None;
    return read ? QSize(header.width, header.height) : QSize();
}

/// Depth of a raw frame, behind its size.
QString rawDepth(const QString& path)
{
    RawHeader header;
    const bool read = readRawHeader(path, &header) == RawFileError::None;
    return read ? "   " + text("%1 bit").arg(header.bytesPerChannel * 8) : QString();
}

/// Qt knows TIFF only where a plugin is installed.
QSize commonSize(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return QSize();
    }
    TiffHeader header;
    if (readTiffHeader(&file, &header)) {
        return QSize(int(header.width), int(header.height));
    }
    file.seek(0);
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    return reader.size();
}

/// Sorts by name as a person would, the same in every language.
void sortByName(QFileInfoList* files)
{
    QCollator collator { QLocale(QLocale::English) }; // the C locale compares bytes
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    const auto before = [&collator](const QFileInfo& a, const QFileInfo& b) {
        const int order = collator.compare(a.fileName(), b.fileName());
        return order != 0 ? order < 0 : a.fileName() < b.fileName();
    };
    std::sort(files->begin(), files->end(), before);
}

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
    return text("Images (%1)").arg(patterns.join(' ')) + ";;" + text("All files (*)");
}

QFileInfoList imagesInFolder(const QString& folder)
{
    const QStringList suffixes = imageSuffixes();
    QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Unsorted);
    const auto unwanted = [&suffixes](const QFileInfo& file) {
        return !file.isFile() || !suffixes.contains(file.suffix().toLower());
    };
    files.erase(std::remove_if(files.begin(), files.end(), unwanted), files.end());
    sortByName(&files);
    return files;
}

QString loadProblem(const QString& path)
{
    const QFileInfo file(path);
    const QString outer = outerProblem(file);
    if (!outer.isEmpty()) {
        return outer;
    }
    if (suffixOf(path) == "raw") {
        return rawProblem(path);
    }
    return text("The file cannot be read as a %1 image: it is damaged, or of another kind than its "
                "suffix says.")
        .arg(formatName(suffixOf(path)));
}

bool isRawFileWithoutPixels(const QString& path)
{
    RawHeader header;
    return suffixOf(path) == "raw" && readRawHeader(path, &header) == RawFileError::None
        && pixelByteCount(header) == 0;
}

bool isHugeRawFileCutShort(const QString& path)
{
    constexpr quint64 hugeByteCount = quint64(256) << 20;
    RawHeader header;
    if (suffixOf(path) != "raw" || readRawHeader(path, &header) != RawFileError::None) {
        return false;
    }
    const quint64 held = quint64(std::max(QFileInfo(path).size() - rawHeaderSize, qint64(0)));
    return pixelByteCount(header) > hugeByteCount && held < pixelByteCount(header);
}

QSize imageSize(const QString& path)
{
    const QSize size = suffixOf(path) == "raw" ? rawSize(path) : commonSize(path);
    return size.isEmpty() ? QSize() : size;
}

QString imageSummary(const QString& path)
{
    const QSize size = imageSize(path);
    if (size.isEmpty()) {
        return QString();
    }
    const QString extent = text("%1 × %2 pixels").arg(size.width()).arg(size.height());
    return suffixOf(path) == "raw" ? extent + rawDepth(path) : extent;
}
