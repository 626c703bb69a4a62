#include "quietstderr.h"

#include <cstdio>
#include <mutex>

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
int written(int descriptor, const char* bytes, size_t count)
{
    return _write(descriptor, bytes, unsigned(count));
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
ssize_t written(int descriptor, const char* bytes, size_t count)
{
    return ::write(descriptor, bytes, count);
}
#endif

/// Sends standard error to nowhere; a descriptor of the real one, negative when it could not be
/// kept.
int silenced()
{
    std::fflush(stderr);
    const int null = openedNull();
    if (null < 0) {
        return -1;
    }
    const int saved = duplicated(standardError);
    if (saved >= 0) {
        replace(standardError, null);
    }
    closeDescriptor(null);
    return saved;
}

void restore(int saved)
{
    if (saved >= 0) {
        std::fflush(stderr);
        replace(standardError, saved);
        closeDescriptor(saved);
    }
}

// Standard error belongs to the whole process, and so does what is known about it.
std::mutex guardMutex;
int guardCount = 0;
int savedDescriptor = -1;

} // namespace

QuietStandardError::QuietStandardError()
{
    const std::lock_guard<std::mutex> lock(guardMutex);
    if (guardCount++ == 0) {
        savedDescriptor = silenced();
    }
}

QuietStandardError::~QuietStandardError()
{
    const std::lock_guard<std::mutex> lock(guardMutex);
    if (--guardCount == 0) {
        restore(savedDescriptor);
    }
}

void QuietStandardError::write(const std::string& text) const
{
    const std::lock_guard<std::mutex> lock(guardMutex);
    const int descriptor = savedDescriptor >= 0 ? savedDescriptor : standardError;
    size_t done = 0;
    while (done < text.size()) {
        const auto step = written(descriptor, text.data() + done, text.size() - done);
        if (step <= 0) {
            return; // there is no place left to complain to
        }
        done += size_t(step);
    }
}
