// SPDX-License-Identifier: MIT
#include "media/image/blocks/shortfall.h"

#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"

namespace media::image {

namespace {

static_assert(limits.textBytes == 64 << 10);  // as the sentence says

// No property has an empty name.
constexpr std::string_view key;

}  // namespace

void noteShortfall(model::Dictionary& properties, std::string_view what) {
  setIfAbsent(properties, key, what);
}

std::string takeShortfall(model::Dictionary& properties) {
  const auto note = properties.find(key);
  if (note == properties.end()) return {};
  std::string what = *note->second.asString();
  properties.erase(note);
  return what;
}

}  // namespace media::image
