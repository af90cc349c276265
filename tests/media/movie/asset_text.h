// SPDX-License-Identifier: MIT
//
// A media asset as a readable text, every field of it, for golden comparisons.
#pragma once

#include <string>

#include "model/media_asset.h"

namespace media::movie {

std::string assetText(const model::MediaAsset& asset);

}  // namespace media::movie
