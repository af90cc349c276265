// SPDX-License-Identifier: MIT
//
// AVAssetTrack: one track of a video.
#pragma once

#include "bridge/avfoundation.h"
#include "bridge/bound.h"
#include "model/media_asset.h"

namespace desktop::faces {

class AVAssetTrack : public bridge::Bound<AVAssetTrack, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // An array of them; +1.
  static bridge::Owned<bridge::NSArray> makeAll(const std::vector<model::Track>& tracks);

 private:
  static bridge::Owned<bridge::NSObject> make(const model::Track& track);
  int trackID() const { return _facts.trackID; }
  bridge::NSString mediaType() const { return bridge::NSString::make(_facts.mediaType); }
  bridge::NSArray formatDescriptions() const { return _formatDescriptions; }
  CGSize naturalSize() const { return {_facts.naturalSize.width, _facts.naturalSize.height}; }
  CGAffineTransform preferredTransform() const;
  CMTimeRange timeRange() const;
  float estimatedDataRate() const { return _facts.estimatedDataRate; }
  float nominalFrameRate() const { return _facts.nominalFrameRate; }
  CMTime minFrameDuration() const;
  bridge::NSArray commonMetadata() const { return _commonMetadata; }

  model::Track _facts;  // without what has objects of its own
  bridge::Owned<bridge::NSArray> _formatDescriptions;
  bridge::Owned<bridge::NSArray> _commonMetadata;
};

}  // namespace desktop::faces
