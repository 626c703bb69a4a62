#include "base/pixelmemory.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace {

constexpr size_t hugePageBytes = size_t(2) << 20;

/// From here on a block starts at a huge page's boundary.
constexpr size_t largeBlockBytes = 2 * hugePageBytes;

constexpr size_t largestBlockBytes = size_t(PTRDIFF_MAX) - hugePageBytes;

void adviseHugePages(uchar* bytes, size_t byteCount)
{
#if defined(__linux__)
    madvise(bytes, byteCount, MADV_HUGEPAGE); // advice only: a refusal costs time, nothing else
#else
    Q_UNUSED(bytes);
    Q_UNUSED(byteCount);
#endif
}

/// The first byte at a huge page's boundary in an allocation with room for `byteCount` behind it.
uchar* alignedForHugePages(uchar* allocation, size_t byteCount)
{
    void* bytes = allocation;
    size_t space = byteCount + hugePageBytes;
    return static_cast<uchar*>(std::align(hugePageBytes, byteCount, bytes, space));
}

} // namespace

PixelMemory::~PixelMemory()
{
    std::free(m_allocation);
}

bool PixelMemory::acquire(size_t byteCount)
{
    if (m_allocation && m_byteCount == byteCount) {
        m_inUse = true;
        return true;
    }
    if (!m_inUse) {
        discard(); // a spare of another size only stands in the way
    }
    if (byteCount > largestBlockBytes) {
        return false;
    }
    const bool large = byteCount >= largeBlockBytes;
    const size_t asked = large ? byteCount + hugePageBytes : std::max<size_t>(byteCount, 1);
    auto* allocation = static_cast<uchar*>(std::calloc(asked, 1));
    if (!allocation) {
        return false;
    }
    discard();
    m_allocation = allocation;
    m_bytes = large ? alignedForHugePages(allocation, byteCount) : allocation;
    m_byteCount = byteCount;
    m_inUse = true;
    if (large) {
        adviseHugePages(m_bytes, byteCount);
    }
    return true;
}

void PixelMemory::release()
{
    m_inUse = false;
}

void PixelMemory::discard()
{
    std::free(m_allocation);
    m_allocation = nullptr;
    m_bytes = nullptr;
    m_byteCount = 0;
    m_writtenEnd = 0;
    m_inUse = false;
}

void PixelMemory::zeroFrom(size_t first)
{
    if (first < m_writtenEnd) {
        std::memset(m_bytes + first, 0, m_writtenEnd - first);
        m_writtenEnd = first;
    }
}

void PixelMemory::markWritten(size_t end)
{
    m_writtenEnd = std::max(m_writtenEnd, std::min(end, m_byteCount));
}
