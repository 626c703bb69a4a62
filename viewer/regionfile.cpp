#include "regionfile.h"

#include "formats/ds9regions.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringList>

namespace {

constexpr qint64 mostBytes = 16 * 1024 * 1024;

/// All of the file, or the reason why it is not read.
QByteArray contents(const QString& path, QString* reason)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) { // reading a pipe might never end
        *reason = RegionFile::tr("it is not a file");
        return QByteArray();
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *reason = file.errorString();
        return QByteArray();
    }
    const bool isLarge = file.size() > mostBytes;
    const QByteArray text = isLarge ? QByteArray() : file.read(mostBytes + 1);
    if (isLarge || text.size() > mostBytes) {
        *reason = RegionFile::tr("it is larger than 16 MiB");
    } else if (file.error() != QFileDevice::NoError) {
        *reason = file.errorString();
    }
    return text;
}

/// How many shapes are left out, one kind after the other.
QString skippedShapes(const Ds9Regions& read)
{
    QStringList kinds;
    const auto add = [&kinds](int count, const QString& kind) {
        if (count > 0) {
            kinds << kind.arg(count);
        }
    };
    add(read.otherShapes, RegionFile::tr("shapes other than upright boxes (%1)"));
    add(read.otherCoordinates, RegionFile::tr("shapes in other than image coordinates (%1)"));
    add(read.outside, RegionFile::tr("boxes not inside the image (%1)"));
    add(read.brokenLines, RegionFile::tr("lines that cannot be read (%1)"));
    return kinds.join(", ");
}

} // namespace

RegionFile readRegionFile(const QString& path, const QSize& imageSize)
{
    RegionFile file;
    QString reason;
    const QByteArray text = contents(path, &reason);
    if (!reason.isEmpty()) {
        file.problem = RegionFile::tr("%1: cannot be read: %2").arg(path, reason);
        return file;
    }
    const Ds9Regions read = readDs9(text, imageSize);
    file.regions = read.regions;
    file.skipped = skippedShapes(read);
    if (read.regions.isEmpty()) {
        file.problem = read.skipped() == 0
            ? RegionFile::tr("%1: there is no region in it").arg(path)
            : RegionFile::tr("%1: there is no region in it that can be used: %2")
                  .arg(path, file.skipped);
    }
    return file;
}

QString saveRegionFile(const QString& path, const QVector<QRect>& regions, int imageHeight)
{
    QSaveFile file(path);
    const QByteArray text = ds9Text(regions, imageHeight);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit()) {
        return QString();
    }
    return RegionFile::tr("%1: cannot be written: %2").arg(path, file.errorString());
}

bool hasRegionSuffix(const QString& path)
{
    return QFileInfo(path).suffix().compare("reg", Qt::CaseInsensitive) == 0;
}
