#include "support/memorylimit.h"

#include "support/addresssanitizer.h"

#if defined(VKINTENSITY_ADDRESS_SANITIZER)

#include <QByteArray>

bool limitLargeAllocations()
{
    return qgetenv("ASAN_OPTIONS").contains("max_allocation_size_mb=");
}

#elif defined(__linux__)

#include <fstream>
#include <sys/resource.h>
#include <unistd.h>

bool limitLargeAllocations()
{
    unsigned long pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    if (pages == 0) {
        return false;
    }
    const rlim_t used = rlim_t(pages) * rlim_t(sysconf(_SC_PAGESIZE));
    // Less than the 256 MiB that must fail: what is used now may shrink a little later on.
    const rlim_t limit = used + (rlim_t(224) << 20);
    const rlimit both { limit, RLIM_INFINITY };
    return setrlimit(RLIMIT_AS, &both) == 0;
}

#else

bool limitLargeAllocations()
{
    return false;
}

#endif
