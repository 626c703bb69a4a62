#pragma once

#include "recentfiles.h"

#include <QByteArray>

#include <memory>

class QSettings;

/// What the next start of the program finds again: the place of the window, the folder, the recent
/// files, and whether settings are kept. Until settings are opened, nothing is read or stored, and
/// recent files are kept for the run only.
class SessionStore
{
public:
    SessionStore();
    ~SessionStore();

    /// Reads from `settings` and writes to them from now on.
    void open(std::unique_ptr<QSettings> settings);

    /// As QWidget::saveGeometry() gives it; empty when none was stored.
    QByteArray geometry() const;

    /// Shown last; empty when none was stored.
    QString folder() const;

    void store(const QByteArray& geometry, const QString& folder);

    /// Whether the next image is shown as the one before; true when nothing was stored.
    bool areSettingsKept() const;
    void storeSettingsKept(bool kept);

    const RecentFiles& recentFiles() const { return m_recent; }

    /// Each of these is stored at once. The first two take over what other windows of the program
    /// have stored meanwhile.
    void addRecentFile(const QString& path);
    void removeRecentFile(const QString& path);
    void clearRecentFiles();

private:
    void readRecentFiles();
    void storeRecentFiles();

    std::unique_ptr<QSettings> m_settings; // null before open()
    RecentFiles m_recent;
};
