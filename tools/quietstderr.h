#pragma once

/// While it lives, nothing reaches the process's standard error. The codecs of image libraries
/// write their own complaints about damaged files there, past every logging category; programs
/// that promise one line on failure read files under this guard. Not for several threads at once.
class QuietStandardError
{
public:
    QuietStandardError();
    ~QuietStandardError();
    QuietStandardError(const QuietStandardError&) = delete;
    QuietStandardError& operator=(const QuietStandardError&) = delete;

private:
    int m_saved; // descriptor of the real standard error; negative when it could not be kept
};
