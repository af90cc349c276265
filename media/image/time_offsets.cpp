// SPDX-License-Identifier: MIT
#include "media/image/time_offsets.h"

namespace media::image {

std::optional<std::string> takeTimeOffsets(model::Dictionary& properties) {
  const auto section = properties.find("{Exif}");
  model::Dictionary* exif = section == properties.end() ? nullptr : section->second.asDictionary();
  if (!exif) return std::nullopt;
  std::optional<std::string> offset;
  if (const model::Value* original = model::find(*exif, "OffsetTimeOriginal")) {
    if (const std::string* text = original->asString()) offset = *text;
  }
  std::size_t taken = 0;
  for (const char* key : {"OffsetTime", "OffsetTimeOriginal", "OffsetTimeDigitized"}) {
    taken += exif->erase(key);
  }
  if (taken > 0 && exif->empty()) properties.erase(section);
  return offset;
}

}  // namespace media::image
