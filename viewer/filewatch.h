#pragma once

#include <QDateTime>
#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

/// Tells when a file has been written anew, once it has come to rest: a camera program may write a
/// large frame in many pieces, and an editor puts a new file in place of the old one.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    static constexpr int restMilliseconds = 400; ///< without a change until changed() is sent
    static constexpr int longestMilliseconds = 3000; ///< that changes one after the other delay it

    explicit FileWatch(QObject* parent = nullptr);

    /// Watches this file in place of the one before; an empty path: none. What the file is now
    /// counts as known. A file that is missing is waited for.
    void watch(const QString& path);

Q_SIGNALS:
    /// The file exists and differs in size or time from what it was.
    void changed();

private:
    struct State
    {
        bool exists = false;
        qint64 size = 0;
        QDateTime time;
        bool operator==(const State& other) const
        {
            return exists == other.exists && size == other.size && time == other.time;
        }
    };

    void look();
    void waitForRest();
    void settle();
    void addPaths();
    State currentState() const;

    QFileSystemWatcher m_watcher;
    QTimer m_rest;
    QElapsedTimer m_waiting; // since the first of the changes that are not announced
    QString m_path;
    State m_known; // what was announced or there at the start
    State m_seen; // at the last look
};
