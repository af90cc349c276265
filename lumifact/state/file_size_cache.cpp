// SPDX-License-Identifier: MIT
#include "lumifact/state/file_size_cache.h"

#include "bridge/foundation.h"
#include "lumifact/platform.h"

namespace lumifact {
namespace {

Owned<NSCache>& slot() {
  static auto& kept = *new Owned<NSCache>;
  return kept;
}

std::optional<std::int32_t> lookUp(std::string_view uuid) {
  const NSNumber entry(slot()->at(NSString::make(uuid)).get());
  return entry ? std::optional(entry.intValue()) : std::nullopt;
}

void store(std::string_view uuid, std::int32_t lowBits) {
  slot()->set(NSNumber::withInt(lowBits), NSString::make(uuid));
}

}  // namespace

void createFileSizeCache() {
  slot() = makeNew<NSCache>();
}

FileSizeCacheAccess fileSizeCache() {
  return {.lookUp = &lookUp, .store = &store};
}

}  // namespace lumifact
