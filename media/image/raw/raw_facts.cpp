// SPDX-License-Identifier: MIT
#include "media/image/raw/raw_facts.h"

#include <algorithm>
#include <string_view>

#include "media/image/blocks/metadata_blocks.h"
#include "media/image/jpeg/jpeg_container.h"

namespace media::image {

namespace {

constexpr std::string_view ownFactsOfJpegs[] = {"ColorModel",  "DPIHeight",   "DPIWidth",
                                                "Depth",       "PixelHeight", "PixelWidth",
                                                "ProfileName", "{JFIF}"};

// Adds what is not there yet, section by section.
void addMissing(model::Dictionary& from, model::Dictionary& properties) {
  for (auto& [key, value] : from) {
    const auto known = properties.find(key);
    if (known == properties.end()) {
      properties.emplace(key, std::move(value));
    } else if (known->second.asDictionary() && value.asDictionary()) {
      known->second.asDictionary()->merge(*value.asDictionary());
    }
  }
}

}  // namespace

void setRawPixels(PixelSize size, std::int64_t depth, model::Dictionary& properties) {
  properties.insert_or_assign("PixelWidth", size.width);
  properties.insert_or_assign("PixelHeight", size.height);
  properties.insert_or_assign("ColorModel", "RGB");
  constexpr std::int64_t deepest = 32;
  if (depth > 0 && depth <= deepest) properties.insert_or_assign("Depth", depth);
}

void setRotation(std::int64_t degrees, model::Dictionary& properties) {
  constexpr std::int64_t orientations[] = {1, 6, 3, 8};  // by quarters
  if (degrees % 90 != 0 || properties.contains("Orientation")) return;
  const std::int64_t orientation = orientations[(degrees / 90 % 4 + 4) % 4];
  properties.insert_or_assign("Orientation", orientation);
  section(properties, "{TIFF}").insert_or_assign("Orientation", orientation);
}

void readInnerJpeg(io::SourceReader& file, io::ByteRange jpeg, model::Dictionary& properties) {
  jpeg.end = std::min(jpeg.end, file.size());
  constexpr std::uint64_t markSize = 3;
  if (jpeg.begin > jpeg.end || jpeg.size() < markSize) return;
  if (!isJpegFile(file.upTo(jpeg.begin, markSize))) return;
  model::Dictionary found;
  if (readJpeg(file, jpeg, found)) return;
  for (const std::string_view key : ownFactsOfJpegs) {
    if (const auto fact = found.find(key); fact != found.end()) found.erase(fact);
  }
  addMissing(found, properties);
}

}  // namespace media::image
