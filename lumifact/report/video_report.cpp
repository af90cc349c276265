// SPDX-License-Identifier: MIT
#include "lumifact/report/video_report.h"

#include <string_view>
#include <vector>

#include "lumifact/report/iso6709.h"
#include "lumifact/report/section_text.h"
#include "lumifact/report/track_block.h"
#include "model/description.h"

namespace lumifact {

namespace {

void appendMetadataLine(std::string& text, std::string_view key, std::string_view value) {
  text.append(key).append(" = ").append(value).append("\n");
}

// The lines of one item of the asset's metadata; a location with altitude becomes three.
std::string metadataLines(std::string_view key, const model::Value& value,
                          std::optional<std::string>& coordinates) {
  std::string lines;
  const std::string text = model::valueText(value);
  const auto location = key == "location" ? findIso6709Location(text) : std::nullopt;
  if (location) {
    coordinates = std::string(location->latitude).append(",").append(location->longitude);
    appendMetadataLine(lines, "latitude", location->latitude);
    appendMetadataLine(lines, "longitude", location->longitude);
    appendMetadataLine(lines, "altitude", location->altitude);
  } else {
    appendMetadataLine(lines, key, text);
  }
  return lines;
}

}  // namespace

std::string videoReport(const model::MediaAsset& asset, std::optional<std::string>& coordinates,
                        const model::KeyComparison& keyOrder) {
  std::vector<std::string> metadata;
  for (const model::MetadataItem& item : asset.commonMetadata) {
    if (!isShown(item)) continue;
    metadata.push_back(metadataLines(*item.commonKey, *item.value, coordinates));
  }
  // Each item is put in front of the ones before it.
  std::string text;
  for (auto lines = metadata.rbegin(); lines != metadata.rend(); ++lines) text += *lines;
  for (const model::Track& track : asset.tracks) {
    text += '\n';
    appendTrackBlock(text, track, keyOrder);
    text += '\n';
  }
  return text;
}

}  // namespace lumifact
