// SPDX-License-Identifier: MIT
#include "lumifact/report/data_parser.h"

#include "lumifact/report/exif_values.h"
#include "lumifact/report/gps_section.h"
#include "lumifact/report/orientation_names.h"
#include "lumifact/report/section_text.h"
#include "lumifact/report/sorted_entries.h"
#include "lumifact/report/tiff_values.h"
#include "lumifact/report/video_report.h"
#include "model/conversions.h"

namespace lumifact {

namespace {

constexpr std::string_view makerKey = "{MakerApple}";

void appendPlainValue(std::string& text, std::string_view key, model::Value& value) {
  if (key == "Orientation") {
    if (const auto name = imageOrientationName(model::integerValue(value))) value = *name;
  }
  text.append("\n").append(key).append(" = ");
  appendValue(text, value);
}

}  // namespace

std::string DataParser::parseDataToString(model::Dictionary& properties,
                                          std::optional<std::string>& mapCoordinates,
                                          const model::KeyComparison& keyOrder) {
  std::string text;
  const auto entries = sortedEntries(properties, keyOrder);
  for (auto* entry : entries) {
    auto& [key, value] = *entry;
    if (value.kind() != model::Kind::dictionary) appendPlainValue(text, key, value);
  }
  for (auto* entry : entries) {
    auto& [key, value] = *entry;
    auto* section = value.asDictionary();
    if (section == nullptr || key == makerKey) continue;
    if (key == "{Exif}") {
      appendRewrittenSection(text, key, *section, exifReading, keyOrder);
    } else if (key == "{TIFF}") {
      appendRewrittenSection(text, key, *section, tiffReading, keyOrder);
    } else if (key == "{GPS}") {
      auto coordinates = appendGpsSection(text, *section, keyOrder);
      if (coordinates) mapCoordinates = std::move(coordinates);
    } else {
      appendDescribedSection(text, key, value);
    }
  }
  if (const auto* maker = find(properties, makerKey))
    appendDescribedSection(text, makerKey, *maker);
  return text;
}

std::string DataParser::parseAVURLAsset(const model::MediaAsset* asset,
                                        [[maybe_unused]] model::Dictionary& toDataAndString,
                                        std::optional<std::string>& mapCoordinates,
                                        const model::KeyComparison& keyOrder) {
  if (asset == nullptr) return {};
  return videoReport(*asset, mapCoordinates, keyOrder);
}

}  // namespace lumifact
