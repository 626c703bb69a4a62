#pragma once

#include "quietstderr.h"

#include <QString>

#include <mutex>

/// What the program says on standard error, from any thread: a line a message, and a line that
/// shows progress while standard error is a terminal. While one lives, nothing else reaches
/// standard error, so that the codecs' own complaints about damaged files stay out of it.
class Messages
{
public:
    Messages();
    ~Messages();

    /// One line: whatever ends a line inside the text becomes a space.
    void tell(const QString& text);

    /// Shows how many of `total` files are done.
    void showProgress(int done, int total);

private:
    void write(const QString& line);
    void clearProgress();

    const bool m_isTerminal; ///< comes first: afterwards standard error is quiet
    QuietStandardError m_quiet;
    std::mutex m_mutex;
    int m_progressLength = 0; ///< characters of the line that is shown
};
