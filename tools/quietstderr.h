#pragma once

#include <string>

/// While one lives, nothing reaches the process's standard error. The codecs of image libraries
/// write their own complaints about damaged files there, past every logging category; programs
/// that promise one line on failure read files under this guard. Several may live at once, in any
/// threads: the first one silences, the last one to go restores.
class QuietStandardError
{
public:
    QuietStandardError();
    ~QuietStandardError();
    QuietStandardError(const QuietStandardError&) = delete;
    QuietStandardError& operator=(const QuietStandardError&) = delete;

    /// Writes to the real standard error all the same.
    void write(const std::string& text) const;
};
