// SPDX-License-Identifier: MIT
//
// The size of an asset's file through the file size cache.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

namespace lumifact {

// Where sizes are kept. A cache entry holds the low 32 bits of a size, signed.
struct FileSizeCacheAccess {
  // The entry of an asset's uuid, none on a miss.
  std::function<std::optional<std::int32_t>(std::string_view uuid)> lookUp;
  std::function<void(std::string_view uuid, std::int32_t lowBits)> store;
};

// A cached size is the entry widened with its sign, so files of 2 GiB and more show wrong, even
// negative sizes once cached. On a miss `read` is asked: its size is stored (low 32 bits) and
// returned in full; when it has none, nothing is cached and none is returned.
std::optional<std::int64_t> cachedFileSize(
    std::string_view uuid, const FileSizeCacheAccess& cache,
    const std::function<std::optional<std::uint64_t>()>& read);

}  // namespace lumifact
