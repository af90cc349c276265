// SPDX-License-Identifier: MIT
//
// AVAssetTrack: one track of a video.
#pragma once

#include "bridge/avfoundation.h"
#include "bridge/bound.h"
#include "desktop/platform.h"
#include "model/media_asset.h"

namespace desktop::faces {

class AVAssetTrackState : public Bound<AVAssetTrackState, NSObject, AVAssetTrack> {
 public:
  using Bound::Bound;
  static Class classObject();

  // An array of them; +1.
  static Owned<NSArray> makeAll(const std::vector<model::Track>& tracks);

 private:
  static Owned<NSObject> make(const model::Track& track);
  int trackID() const { return _facts.trackID; }
  NSString mediaType() const { return NSString::make(_facts.mediaType); }
  NSArray formatDescriptions() const { return _formatDescriptions; }
  CGSize naturalSize() const { return {_facts.naturalSize.width, _facts.naturalSize.height}; }
  CGAffineTransform preferredTransform() const;
  CMTimeRange timeRange() const;
  float estimatedDataRate() const { return _facts.estimatedDataRate; }
  float nominalFrameRate() const { return _facts.nominalFrameRate; }
  CMTime minFrameDuration() const;
  NSArray commonMetadata() const { return _commonMetadata; }

  model::Track _facts;  // without what has objects of its own
  Owned<NSArray> _formatDescriptions;
  Owned<NSArray> _commonMetadata;
};

}  // namespace desktop::faces
