// SPDX-License-Identifier: MIT
//
// One track of a video as a block of the report.
#pragma once

#include <string>

#include "model/key_order.h"
#include "model/media_asset.h"

namespace lumifact {

// Whether a metadata item has both a key and a value; others are left out of the report.
bool isShown(const model::MetadataItem& item);

// Appends "AVAssetTrack", "{", the track's facts, its format descriptions with their extensions
// and its metadata, and "}".
void appendTrackBlock(std::string& text, const model::Track& track,
                      const model::KeyComparison& keyOrder);

}  // namespace lumifact
