// SPDX-License-Identifier: MIT
//
// AVMetadataItem: one fact about a video or a track.
#pragma once

#include <vector>

#include "bridge/bound.h"
#include "bridge/foundation.h"
#include "model/media_asset.h"

namespace desktop::faces {

class AVMetadataItem : public bridge::Bound<AVMetadataItem, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // An array of them; +1.
  static bridge::Owned<bridge::NSArray> makeAll(const std::vector<model::MetadataItem>& items);

 private:
  static bridge::Owned<bridge::NSObject> make(const model::MetadataItem& item);
  // Nil for keys that are not common, and where there is no value.
  bridge::NSString commonKey() const { return _commonKey; }
  bridge::Object value() const { return _value; }

  bridge::Owned<bridge::NSString> _commonKey;
  bridge::Owned<bridge::Object> _value;
};

}  // namespace desktop::faces
