// SPDX-License-Identifier: MIT
//
// The report of a video: its metadata above, then a block a track.
#pragma once

#include <optional>
#include <string>

#include "model/key_order.h"
#include "model/media_asset.h"

namespace lumifact {

// The report text. `coordinates` receives "latitude,longitude" of a location with altitude, and is
// left untouched where there is none.
std::string videoReport(const model::MediaAsset& asset, std::optional<std::string>& coordinates,
                        const model::KeyComparison& keyOrder);

}  // namespace lumifact
