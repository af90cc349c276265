// SPDX-License-Identifier: MIT
//
// AVMetadataItem: one fact about a video or a track.
#pragma once

#include <vector>

#include "bridge/avfoundation.h"
#include "bridge/bound.h"
#include "bridge/foundation.h"
#include "desktop/platform.h"
#include "model/media_asset.h"

namespace desktop::faces {

class AVMetadataItemState : public Bound<AVMetadataItemState, NSObject, AVMetadataItem> {
 public:
  using Bound::Bound;
  static Class classObject();

  // An array of them; +1.
  static Owned<NSArray> makeAll(const std::vector<model::MetadataItem>& items);

 private:
  static Owned<NSObject> make(const model::MetadataItem& item);
  // Nil for keys that are not common, and where there is no value.
  NSString commonKey() const { return _commonKey; }
  Object value() const { return _value; }

  Owned<NSString> _commonKey;
  Owned<Object> _value;
};

}  // namespace desktop::faces
