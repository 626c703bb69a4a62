#pragma once

#include <QtGlobal>

#include <hwy/cache_control.h>

/// Asks the processor for the memory `distance` bytes behind `address`, which may lie outside the
/// samples: nothing is read. Loops whose own work hides the sample stream from the processor's
/// guesses wait for memory without it.
inline void prefetchAhead(const void* address, quintptr distance)
{
    hwy::Prefetch(reinterpret_cast<const char*>(quintptr(address) + distance));
}
