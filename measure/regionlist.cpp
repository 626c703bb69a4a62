#include "regionlist.h"

#include "formats/ds9regions.h"

#include <QFile>
#include <QStringList>

#include <limits>

namespace {

/// More than is read of a region file in any case.
constexpr qint64 mostFileBytes = 32 << 20;

QString outsideText(const QRect& region, const QSize& size)
{
    return QString("the region %1,%2,%3,%4 (--roi) does not lie inside its %5 x %6 pixels")
        .arg(region.x())
        .arg(region.y())
        .arg(region.width())
        .arg(region.height())
        .arg(size.width())
        .arg(size.height());
}

} // namespace

RegionList::RegionList(const QVector<QRect>& regions)
    : m_regions(regions)
{
}

QString RegionList::readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    m_fileText = file.read(mostFileBytes);
    m_path = path;
    return file.error() == QFile::NoError ? QString() : file.errorString();
}

QString RegionList::skippedText() const
{
    constexpr int most = std::numeric_limits<int>::max();
    const Ds9Regions found = readDs9(m_fileText, QSize(most, most));
    QStringList kinds;
    const auto count = [&kinds](int number, const char* kind) {
        if (number > 0) {
            kinds << QString("%1 %2").arg(number).arg(kind);
        }
    };
    count(found.otherShapes, "other than upright boxes");
    count(found.otherCoordinates, "in other coordinates than those of the image");
    count(found.brokenLines, "that cannot be read");
    return kinds.isEmpty() ? QString() : m_path + ": left out are " + kinds.join(", ");
}

QVector<QRect> RegionList::inImage(const QSize& size, QString* problem) const
{
    QVector<QRect> regions = m_regions;
    for (const QRect& region : regions) {
        if (!QRect(QPoint(0, 0), size).contains(region)) {
            *problem = outsideText(region, size);
            return {};
        }
    }
    const Ds9Regions found = readDs9(m_fileText, size);
    if (found.outside > 0) {
        *problem = QString("%1 of the boxes in %2 (--regions) do not lie inside its %3 x %4 pixels")
                       .arg(found.outside)
                       .arg(m_path)
                       .arg(size.width())
                       .arg(size.height());
        return {};
    }
    return regions + found.regions;
}
