#pragma once

#include <QCollator>
#include <QFileInfo>
#include <QString>
#include <QStringList>

/// What is known about image files by their names.

/// The suffixes that can be opened, in lower case.
QStringList imageSuffixes();

/// Orders files by name as a person would, numbers by value (2 before 10), the same in every
/// language.
class NameOrder
{
public:
    NameOrder();
    bool operator()(const QFileInfo& a, const QFileInfo& b) const;

private:
    QCollator m_collator;
};

/// The regular files in `folder` whose suffix can be opened, in the order of their names. Empty for
/// a folder that is missing or cannot be read.
QFileInfoList imagesInFolder(const QString& folder);
