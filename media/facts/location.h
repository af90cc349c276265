// SPDX-License-Identifier: MIT
//
// Where a photo or video was taken, from its metadata.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/geometry.h"
#include "model/media_asset.h"
#include "model/value.h"

namespace media::facts {

// From "{GPS}": "Latitude" and "Longitude", south and west negative by their references. None
// where one is missing, no number or out of range.
std::optional<model::Location> locationOfProperties(const model::Dictionary& properties);

// From ISO 6709 text, with or without altitude, reference system and final slash: degrees
// ("+48.8577+002.2950+035.000/"), degrees and minutes ("+4851.46+00217.70/"), or degrees, minutes
// and seconds ("+485127.7+0021742.0/"). None where it does not read or is out of range.
std::optional<model::Location> locationOfIso6709(std::string_view text);

// From the first "location" of a video's metadata that reads.
std::optional<model::Location> locationOfAsset(const model::MediaAsset& asset);

// City, province and country of "{IPTC}", joined by ", "; none where there are none.
std::optional<std::string> placeOfProperties(const model::Dictionary& properties);

}  // namespace media::facts
