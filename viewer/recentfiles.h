#pragma once

#include <QString>
#include <QStringList>

/// The files opened last, the latest first. Plain data: who shows or stores them asks.
class RecentFiles
{
public:
    static constexpr int most = 10;

    /// Empty names and repetitions are left out, and so is what goes beyond `most`.
    explicit RecentFiles(const QStringList& paths = {});

    /// Moves or puts the file to the front.
    void add(const QString& path);

    void remove(const QString& path);
    void clear();

    const QStringList& paths() const { return m_paths; }

    /// What the menu says for the entry `index`: a number to type for the first nine, the name of
    /// the file, and its folder where two files have the same name.
    QString menuText(int index) const;

private:
    QStringList m_paths; // absolute
};
