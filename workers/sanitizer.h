// SPDX-License-Identifier: MIT
//
// Whether this build runs under a sanitizer. It takes terabytes of address space for itself, so
// that no limit on a process's addresses can be set, and makes calls of its own.
#pragma once

namespace workers {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool isSanitized = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
inline constexpr bool isSanitized = true;
#else
inline constexpr bool isSanitized = false;
#endif
#else
inline constexpr bool isSanitized = false;
#endif

}  // namespace workers
