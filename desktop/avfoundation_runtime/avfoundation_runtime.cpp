// SPDX-License-Identifier: MIT
#include "desktop/avfoundation_runtime/avfoundation_runtime.h"

#include "desktop/avfoundation_runtime/av_asset_track.h"
#include "desktop/avfoundation_runtime/av_metadata_item.h"
#include "desktop/avfoundation_runtime/av_url_asset.h"

namespace desktop::avfoundation {

void registerAVFoundation() {
  AVMetadataItem::classObject();
  AVAssetTrack::classObject();
  AVURLAsset::classObject();
}

}  // namespace desktop::avfoundation
