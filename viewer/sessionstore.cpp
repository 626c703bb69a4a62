#include "sessionstore.h"

#include <QSettings>

namespace {

constexpr char geometryKey[] = "window/geometry";
constexpr char folderKey[] = "files/folder";
constexpr char recentKey[] = "files/recent";
constexpr char settingsKeptKey[] = "view/keepSettings";

} // namespace

SessionStore::SessionStore() = default;
SessionStore::~SessionStore() = default;

void SessionStore::open(std::unique_ptr<QSettings> settings)
{
    m_settings = std::move(settings);
    readRecentFiles();
}

QByteArray SessionStore::geometry() const
{
    return m_settings ? m_settings->value(geometryKey).toByteArray() : QByteArray();
}

QString SessionStore::folder() const
{
    return m_settings ? m_settings->value(folderKey).toString() : QString();
}

void SessionStore::store(const QByteArray& geometry, const QString& folder)
{
    if (m_settings) {
        m_settings->setValue(geometryKey, geometry);
        m_settings->setValue(folderKey, folder);
    }
}

bool SessionStore::areSettingsKept() const
{
    return !m_settings || m_settings->value(settingsKeptKey, true).toBool();
}

void SessionStore::storeSettingsKept(bool kept)
{
    if (m_settings) {
        m_settings->setValue(settingsKeptKey, kept);
    }
}

void SessionStore::addRecentFile(const QString& path)
{
    readRecentFiles();
    m_recent.add(path);
    storeRecentFiles();
}

void SessionStore::removeRecentFile(const QString& path)
{
    readRecentFiles();
    m_recent.remove(path);
    storeRecentFiles();
}

void SessionStore::clearRecentFiles()
{
    m_recent.clear();
    storeRecentFiles();
}

void SessionStore::readRecentFiles()
{
    if (m_settings) {
        m_settings->sync();
        m_recent = RecentFiles(m_settings->value(recentKey).toStringList());
    }
}

void SessionStore::storeRecentFiles()
{
    if (m_settings) {
        m_settings->setValue(recentKey, m_recent.paths());
        m_settings->sync();
    }
}
