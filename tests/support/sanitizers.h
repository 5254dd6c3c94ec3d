#pragma once

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ADDRESS_SANITIZED
#endif
#if __has_feature(thread_sanitizer)
#define THREAD_SANITIZED
#endif
#endif
#ifdef __SANITIZE_ADDRESS__
#define ADDRESS_SANITIZED
#endif
#ifdef __SANITIZE_THREAD__
#define THREAD_SANITIZED
#endif

#if defined(ADDRESS_SANITIZED) || defined(THREAD_SANITIZED)
#define SANITIZED
#endif

namespace test {

/// Whether a sanitizer slows the program down.
#ifdef SANITIZED
inline constexpr bool sanitized = true;
#else
inline constexpr bool sanitized = false;
#endif

} // namespace test
