#include "recentfiles.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr int longestName = 60; // characters; a menu must stay on the screen

QString shortened(const QString& name)
{
    constexpr int half = longestName / 2;
    return name.size() <= longestName ? name : name.left(half) + "..." + name.right(half);
}

} // namespace

RecentFiles::RecentFiles(const QStringList& paths)
{
    for (auto path = paths.crbegin(); path != paths.crend(); ++path) {
        add(*path);
    }
}

void RecentFiles::add(const QString& path)
{
    if (path.isEmpty()) {
        return;
    }
    m_paths.removeAll(path);
    m_paths.prepend(path);
    m_paths = m_paths.mid(0, most);
}

void RecentFiles::remove(const QString& path)
{
    m_paths.removeAll(path);
}

void RecentFiles::clear()
{
    m_paths.clear();
}

QString RecentFiles::menuText(int index) const
{
    const QFileInfo file(m_paths.value(index));
    const QString name = file.fileName();
    const auto sameName
        = [&name](const QString& path) { return QFileInfo(path).fileName() == name; };
    QString text = shortened(name);
    if (std::count_if(m_paths.begin(), m_paths.end(), sameName) > 1) {
        text += " - " + shortened(QDir::toNativeSeparators(file.absolutePath()));
    }
    text = text.simplified().replace('&', "&&"); // a single one would underline what follows
    return index < 9 ? QString("&%1  %2").arg(index + 1).arg(text) : text;
}
