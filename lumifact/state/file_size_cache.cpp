// SPDX-License-Identifier: MIT
#include "lumifact/state/file_size_cache.h"

namespace lumifact {
namespace {

Owned<NSCache>& slot() {
  static auto& kept = *new Owned<NSCache>;
  return kept;
}

std::int32_t lowBits(std::uint64_t size) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(size));
}

}  // namespace

void createFileSizeCache() {
  slot() = makeNew<NSCache>();
}

std::optional<std::int64_t> cachedFileSize(
    NSString uuid, const std::function<std::optional<std::uint64_t>()>& read) {
  const NSCache cache = uuid ? slot().get() : NSCache();
  if (const NSNumber entry{cache.at(uuid).get()}) return entry.intValue();
  const std::optional<std::uint64_t> size = read();
  if (!size) return std::nullopt;
  cache.set(NSNumber::withInt(lowBits(*size)), uuid);
  return static_cast<std::int64_t>(*size);
}

}  // namespace lumifact
