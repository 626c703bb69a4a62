#pragma once

#include <QtGlobal>

#include <hwy/cache_control.h>

/// How far loops over a whole image look ahead, in bytes: two small pages, since the processor's
/// own guesses end at each page.
constexpr quintptr prefetchBytes = 8192;

/// Asks the processor for the memory `prefetchBytes` behind `address`, which may lie outside the
/// samples: nothing is read.
inline void prefetchAhead(const void* address)
{
    hwy::Prefetch(reinterpret_cast<const char*>(quintptr(address) + prefetchBytes));
}
