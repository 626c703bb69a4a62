#pragma once

#include <QByteArray>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>

/// The regions that are asked for, those of --roi first.
class RegionList
{
public:
    explicit RegionList(const QVector<QRect>& regions);

    /// Reads a region file. Returns why that failed; empty on success.
    QString readFile(const QString& path);

    /// What cannot be read in the region file, as one sentence; empty when there is nothing.
    QString skippedText() const;

    /// The regions in an image of this size, in which the region file counts from the bottom.
    /// `problem` tells about those that do not lie inside.
    QVector<QRect> inImage(const QSize& size, QString* problem) const;

private:
    QVector<QRect> m_regions;
    QByteArray m_fileText;
    QString m_path;
};
