#include "messages.h"

#include <cstdio>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

bool isStandardErrorATerminal()
{
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return ::isatty(STDERR_FILENO) == 1;
#endif
}

} // namespace

Messages::Messages()
    : m_isTerminal(isStandardErrorATerminal())
{
}

Messages::~Messages()
{
    clearProgress();
}

void Messages::tell(const QString& text)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    clearProgress();
    write("vkmeasure: " + text.simplified() + "\n");
}

void Messages::showProgress(int done, int total)
{
    if (!m_isTerminal) {
        return;
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    clearProgress();
    const QString line = QString("%1 of %2 files").arg(done).arg(total);
    m_progressLength = int(line.size());
    write(line);
}

void Messages::write(const QString& line)
{
    m_quiet.write(line.toLocal8Bit().toStdString());
}

void Messages::clearProgress()
{
    if (m_progressLength > 0) {
        write('\r' + QString(m_progressLength, ' ') + '\r');
        m_progressLength = 0;
    }
}
