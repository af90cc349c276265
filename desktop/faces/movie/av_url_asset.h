// SPDX-License-Identifier: MIT
//
// AVURLAsset: a video file, read when its facts are first asked for.
#pragma once

#include "bridge/avfoundation.h"
#include "bridge/bound.h"

namespace desktop::faces {

class AVURLAsset : public bridge::Bound<AVURLAsset, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

 private:
  // Autoreleased; of any link, and nil of nil.
  static bridge::NSObject withURL(bridge::NSURL url, bridge::NSDictionary options);
  bridge::NSURL url() const { return _url; }
  // Empty where the file is no video or cannot be read.
  bridge::NSArray tracks();
  bridge::NSArray commonMetadata();
  // Zero then.
  CMTime duration();
  void readOnce();

  bridge::Owned<bridge::NSURL> _url;
  bridge::Owned<bridge::NSArray> _tracks;  // nil until the file has been read
  bridge::Owned<bridge::NSArray> _commonMetadata;
  double _duration = 0;  // seconds
};

}  // namespace desktop::faces
