// SPDX-License-Identifier: MIT
#include "desktop/faces/movie/avfoundation_runtime.h"

#include "desktop/faces/movie/av_asset_track.h"
#include "desktop/faces/movie/av_metadata_item.h"
#include "desktop/faces/movie/av_url_asset.h"

namespace desktop::faces {

void registerAVFoundation() {
  AVMetadataItemState::classObject();
  AVAssetTrackState::classObject();
  AVURLAssetState::classObject();
}

}  // namespace desktop::faces
