// SPDX-License-Identifier: MIT
#include "lumifact/assets/file_size.h"

namespace lumifact {

std::optional<std::int64_t> cachedFileSize(
    std::string_view uuid, const FileSizeCacheAccess& cache,
    const std::function<std::optional<std::uint64_t>()>& read) {
  if (const auto entry = cache.lookUp(uuid)) return *entry;
  const std::optional<std::uint64_t> size = read();
  if (!size) return std::nullopt;
  cache.store(uuid, static_cast<std::int32_t>(static_cast<std::uint32_t>(*size)));
  return static_cast<std::int64_t>(*size);
}

}  // namespace lumifact
