// SPDX-License-Identifier: MIT
//
// Whether this build runs under a sanitizer that takes terabytes of address space for itself, so
// that no limit on a process's addresses can be set.
#pragma once

namespace workers {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool needsAllAddresses = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
inline constexpr bool needsAllAddresses = true;
#else
inline constexpr bool needsAllAddresses = false;
#endif
#else
inline constexpr bool needsAllAddresses = false;
#endif

}  // namespace workers
