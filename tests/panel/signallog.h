#pragma once

#include <QString>
#include <QStringList>

/// Writes down signals in the order in which they come: the name and what it carries.
class SignalLog
{
public:
    void add(const QString& entry) { m_entries.append(entry); }

    /// The entries so far; the log starts anew.
    QStringList taken()
    {
        const QStringList entries = m_entries;
        m_entries.clear();
        return entries;
    }

private:
    QStringList m_entries;
};
