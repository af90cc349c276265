// SPDX-License-Identifier: MIT
//
// The platform's media asset as the report reads it.
#pragma once

#include "bridge/avfoundation.h"
#include "model/media_asset.h"

namespace bridge {

// All that the asset tells of its tracks and itself, read while the call lasts. Nil gives an asset
// without tracks. Facts beside the report (whole duration, date) are not asked for.
model::MediaAsset toMediaAsset(AVURLAsset asset);

}  // namespace bridge
