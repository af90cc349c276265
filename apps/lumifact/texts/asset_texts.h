// SPDX-License-Identifier: MIT
//
// The texts of one asset: what the reports, the quick info and the caption say of it.
#pragma once

#include <optional>
#include <string>

#include "apps/lumifact/texts/environment.h"
#include "lumifact/grid/quick_info_text.h"
#include "media/facts/asset_facts.h"
#include "model/value.h"

namespace lumifact::tool {

// The report of a photo or video in all its forms.
struct AssetReport {
  std::string header;
  std::string text;
  std::optional<model::Dictionary> table;  // none for a video
  std::optional<std::string> coordinates;
  std::optional<std::string> mapLink;
};

// Makes the report; the facts' properties become its table.
AssetReport reportOf(media::facts::AssetFacts facts, const Environment& environment);

// The file's facts as rows above the table.
model::Dictionary summaryRecordOf(const media::facts::AssetFacts& facts,
                                  const Environment& environment);

std::string quickInfoOf(const media::facts::AssetFacts& facts, QuickInfoForm form,
                        const Environment& environment);

// The caption under a thumbnailInfoDisplay value; empty where that sets none.
std::string captionOf(const media::facts::AssetFacts& facts, std::int32_t display,
                      const Environment& environment);

}  // namespace lumifact::tool
