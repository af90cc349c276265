// SPDX-License-Identifier: MIT
//
// AVURLAsset: a video file, read when its facts are first asked for.
#pragma once

#include "bridge/avfoundation.h"
#include "bridge/bound.h"
#include "desktop/platform.h"

namespace desktop::faces {

class AVURLAssetState : public Bound<AVURLAssetState, NSObject, AVURLAsset> {
 public:
  using Bound::Bound;
  static Class classObject();

 private:
  // Autoreleased; of any link, and nil of nil.
  static NSObject withURL(NSURL url, NSDictionary options);
  NSURL url() const { return _url; }
  // Empty where the file is no video or cannot be read; and while another process reads it, which
  // takes containers that are not the phone's.
  NSArray tracks();
  NSArray commonMetadata();
  // Zero then.
  CMTime duration();
  void readOnce();

  Owned<NSURL> _url;
  bool _isRead = false;
  Owned<NSArray> _tracks;
  Owned<NSArray> _commonMetadata;
  double _duration = 0;  // seconds
};

}  // namespace desktop::faces
