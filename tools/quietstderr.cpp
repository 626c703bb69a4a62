#include "quietstderr.h"

#include <cstdio>

#include <fcntl.h>
#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

constexpr int standardError = 2;

#ifdef _WIN32
int duplicated(int descriptor)
{
    return _dup(descriptor);
}
void replace(int target, int source)
{
    _dup2(source, target);
}
int openedNull()
{
    return _open("NUL", _O_WRONLY);
}
void closeDescriptor(int descriptor)
{
    _close(descriptor);
}
#else
int duplicated(int descriptor)
{
    return ::fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
}
void replace(int target, int source)
{
    ::dup2(source, target);
}
int openedNull()
{
    return ::open("/dev/null", O_WRONLY | O_CLOEXEC);
}
void closeDescriptor(int descriptor)
{
    ::close(descriptor);
}
#endif

} // namespace

QuietStandardError::QuietStandardError()
    : m_saved(-1)
{
    std::fflush(stderr);
    const int null = openedNull();
    if (null < 0) {
        return;
    }
    m_saved = duplicated(standardError);
    if (m_saved >= 0) {
        replace(standardError, null);
    }
    closeDescriptor(null);
}

QuietStandardError::~QuietStandardError()
{
    if (m_saved >= 0) {
        std::fflush(stderr);
        replace(standardError, m_saved);
        closeDescriptor(m_saved);
    }
}
