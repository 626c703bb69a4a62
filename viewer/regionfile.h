#pragma once

#include <QCoreApplication>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>

/// What was read from a region file.
struct RegionFile
{
    Q_DECLARE_TR_FUNCTIONS(RegionFile)

public:
    QVector<QRect> regions; ///< image pixels; all lie inside the image
    QString skipped; ///< how many shapes of which kind are left out; empty when none is
    QString problem; ///< why there are no regions, as one line that names the file
};

/// Reads a file in the text format of DS9 for an image of `imageSize` pixels. Files of more than
/// 16 MiB are refused.
RegionFile readRegionFile(const QString& path, const QSize& imageSize);

/// Writes the regions in that format, whole or not at all. Returns what went wrong as one line that
/// names the file; empty on success.
QString saveRegionFile(const QString& path, const QVector<QRect>& regions, int imageHeight);

/// Whether the name is one of a region file.
bool hasRegionSuffix(const QString& path);
