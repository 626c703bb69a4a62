#pragma once

/// VKINTENSITY_ADDRESS_SANITIZER is defined in builds with the address sanitizer, whose allocator
/// has limits and hooks of its own.
#if defined(__SANITIZE_ADDRESS__)
#define VKINTENSITY_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VKINTENSITY_ADDRESS_SANITIZER
#endif
#endif
