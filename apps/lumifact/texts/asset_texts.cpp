// SPDX-License-Identifier: MIT
#include "apps/lumifact/texts/asset_texts.h"

#include <utility>

#include "foundation/byte_count.h"
#include "foundation/date_text.h"
#include "foundation/paths.h"
#include "lumifact/assets/file_names.h"
#include "lumifact/details/file_facts.h"
#include "lumifact/details/map_link.h"
#include "lumifact/grid/caption_text.h"
#include "lumifact/report/data_parser.h"

namespace lumifact::tool {

namespace {

using media::facts::AssetFacts;

std::string dateText(model::Date date, const Environment& environment) {
  return foundation::dateText(date, foundation::DateStyle::mediumDate, environment.dates);
}

std::string sizeText(const AssetFacts& facts, const Environment& environment) {
  return foundation::byteCountText(static_cast<std::int64_t>(facts.fileSize), environment.numbers);
}

FileFacts fileFactsOf(const AssetFacts& facts, const Environment& environment) {
  return {.path = shownPath(facts.path),
          .fileDate = dateText(facts.fileModificationDate, environment),
          .fileSize = sizeText(facts, environment),
          .pixelHeight = facts.pixelHeight,
          .pixelWidth = facts.pixelWidth};
}

std::string textOf(AssetFacts& facts, const Environment& environment,
                   std::optional<std::string>& coordinates) {
  if (facts.properties) {
    return DataParser::parseDataToString(*facts.properties, coordinates, environment.keyOrder);
  }
  model::Dictionary unused;
  return DataParser::parseAVURLAsset(facts.asset ? &*facts.asset : nullptr, unused, coordinates,
                                     environment.keyOrder);
}

}  // namespace

AssetReport reportOf(AssetFacts facts, const Environment& environment) {
  AssetReport report;
  report.header = headerText(fileFactsOf(facts, environment));
  report.text = textOf(facts, environment, report.coordinates);
  report.mapLink = buildMapLink(report.coordinates, facts.location, environment.settings);
  report.table = std::move(facts.properties);
  return report;
}

model::Dictionary summaryRecordOf(const AssetFacts& facts, const Environment& environment) {
  return fileSummaryRecord(fileFactsOf(facts, environment));
}

std::string quickInfoOf(const AssetFacts& facts, QuickInfoForm form,
                        const Environment& environment) {
  const QuickInfo info{.path = shownPath(foundation::fileUrlText(facts.path)),
                       .dateText = dateText(facts.creationDate, environment),
                       .sizeText = sizeText(facts, environment),
                       .pixelWidth = facts.pixelWidth,
                       .pixelHeight = facts.pixelHeight,
                       .isVideo = facts.isVideo,
                       .duration = facts.duration,
                       .exifOrientation = facts.exifOrientation,
                       .place = facts.localizedGeoDescription};
  return quickInfoText(info, form);
}

std::string captionOf(const AssetFacts& facts, std::int32_t display,
                      const Environment& environment) {
  const auto caption = captionText(display, facts.pixelWidth, facts.pixelHeight,
                                   fileTypeName(facts.uniformTypeIdentifier),
                                   [&] { return sizeText(facts, environment); });
  return caption.value_or("");
}

}  // namespace lumifact::tool
