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

/// Context of the texts for translation.
struct ImageFiles
{
    Q_DECLARE_TR_FUNCTIONS(ImageFiles)
};

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
        return ImageFiles::tr("There is no file of this name.");
    }
    if (file.isDir()) {
        return ImageFiles::tr("This is a folder, not an image file.");
    }
    if (!file.isFile()) {
        return ImageFiles::tr("This is not a regular file.");
    }
    const QString suffix = file.suffix().toLower();
    if (suffix.isEmpty()) {
        return ImageFiles::tr("The file name has no suffix. Images end in %1.")
            .arg(imageSuffixes().join(", "));
    }
    if (!imageSuffixes().contains(suffix)) {
        return ImageFiles::tr("Files of the kind \"%1\" are not known. Images end in %2.")
            .arg(suffix.left(20), imageSuffixes().join(", "));
    }
    if (!file.isReadable()) {
        return ImageFiles::tr("You have no permission to read this file.");
    }
    return file.size() == 0 ? ImageFiles::tr("The file is empty.") : QString();
}

QString rawProblem(const QString& path)
{
    RawHeader header;
    switch (readRawHeader(path, &header)) {
    case RawFileError::Unreadable: return ImageFiles::tr("The file cannot be opened.");
    case RawFileError::NoSignature:
        return ImageFiles::tr(
            "This is no raw camera file: it does not carry the camera's signature.");
    default: break;
    }
    if (pixelByteCount(header) == 0) {
        return ImageFiles::tr("This raw camera file holds no pixels.");
    }
    if (isHugeRawFileCutShort(path)) {
        return ImageFiles::tr("This raw camera file claims %1 x %2 pixels but does not hold them.")
            .arg(header.width)
            .arg(header.height);
    }
    return ImageFiles::tr(
        "This raw camera file claims %1 x %2 pixels with %3 channels of %4 bytes, which is "
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

int rawDepth(const QString& path)
{
    RawHeader header;
    const bool read = readRawHeader(path, &header) == RawFileError::None;
    return read ? header.bytesPerChannel * 8 : 0;
}

/// Bits a sample that the header of a TIFF or PNG file gives; 8 for the other formats.
int storedDepth(QIODevice* file)
{
    constexpr int pngDepthOffset = 24; // behind signature, chunk head, width and height
    TiffHeader tiff;
    if (readTiffHeader(file, &tiff)) {
        return int(qMin(tiff.bitsPerSample, quint32(64)));
    }
    file->seek(0);
    const QByteArray head = file->read(pngDepthOffset + 1);
    const bool isPng = head.size() > pngDepthOffset && head.startsWith("\x89PNG");
    return isPng ? uchar(head[pngDepthOffset]) : 8;
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
    return ImageFiles::tr(
        "The file cannot be read as a %1 image: it is damaged, or of another kind than its "
        "suffix says.")
        .arg(formatName(suffixOf(path)));
}

bool mayBeImage(const QString& path)
{
    return outerProblem(QFileInfo(path)).isEmpty() && !isHugeRawFileCutShort(path);
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

int imageDepth(const QString& path)
{
    if (suffixOf(path) == "raw") {
        return rawDepth(path);
    }
    QFile file(path);
    if (imageSize(path).isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const int stored = storedDepth(&file);
    int loaded = 8;
    while (loaded < stored) {
        loaded *= 2; // 12 bits take two bytes
    }
    return loaded;
}

QString imageSummary(const QString& path)
{
    const QSize size = imageSize(path);
    if (size.isEmpty()) {
        return QString();
    }
    const QString extent = ImageFiles::tr("%1 × %2 pixels").arg(size.width()).arg(size.height());
    const int depth = imageDepth(path);
    return depth > 0 ? extent + "   " + ImageFiles::tr("%1 bit").arg(depth) : extent;
}
