#include "filewatch.h"

#include <QFileInfo>

FileWatch::FileWatch(QObject* parent)
    : QObject(parent)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(restMilliseconds);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FileWatch::look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatch::look);
    connect(&m_rest, &QTimer::timeout, this, &FileWatch::settle);
}

void FileWatch::watch(const QString& path)
{
    const QStringList before = m_watcher.files() + m_watcher.directories();
    if (!before.isEmpty()) {
        m_watcher.removePaths(before);
    }
    m_rest.stop();
    m_path = path;
    m_known = currentState();
    m_seen = m_known;
    addPaths();
}

/// The folder tells of a file that takes the place of the watched one; the watcher itself forgets a
/// file that was removed.
void FileWatch::addPaths()
{
    if (m_path.isEmpty()) {
        return;
    }
    const QString folder = QFileInfo(m_path).absolutePath();
    if (m_watcher.directories().isEmpty() && QFileInfo(folder).isDir()) {
        m_watcher.addPath(folder);
    }
    if (m_watcher.files().isEmpty() && currentState().exists) {
        m_watcher.addPath(m_path);
    }
}

void FileWatch::look()
{
    addPaths();
    const State now = currentState();
    if (now == m_seen) {
        return; // something else in the folder has changed
    }
    if (!m_rest.isActive()) {
        m_waiting.start();
    }
    m_seen = now;
    waitForRest();
}

/// Waits anew after each change, up to the limit: whoever writes without a pause is shown now and
/// then.
void FileWatch::waitForRest()
{
    if (!m_rest.isActive() || !m_waiting.hasExpired(longestMilliseconds)) {
        m_rest.start();
    }
}

void FileWatch::settle()
{
    const State now = currentState();
    if (!(now == m_seen) && !m_waiting.hasExpired(longestMilliseconds)) {
        m_seen = now;
        waitForRest(); // not every file system tells of each write
        return;
    }
    m_seen = now;
    if (now.exists && !(now == m_known)) {
        m_known = now;
        Q_EMIT changed();
    }
}

FileWatch::State FileWatch::currentState() const
{
    const QFileInfo file(m_path);
    if (m_path.isEmpty() || !file.isFile()) {
        return State();
    }
    return State { true, file.size(), file.lastModified() };
}
