#pragma once

/// Makes single allocations of more than about 256 MB fail from now on. With the address sanitizer
/// its own option does so (max_allocation_size_mb, set by the test's environment); elsewhere the
/// address space of the process is limited. False where neither is possible.
bool limitLargeAllocations();
