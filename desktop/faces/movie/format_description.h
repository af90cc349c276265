// SPDX-License-Identifier: MIT
//
// Format descriptions, and the C functions that read them.
#pragma once

#include "bridge/avfoundation.h"
#include "bridge/bound.h"
#include "model/media_asset.h"

namespace desktop::faces {

class FormatDescription : public bridge::Bound<FormatDescription, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // +1.
  static bridge::Owned<bridge::NSObject> make(const model::FormatDescription& facts);

  model::FormatDescription facts;  // without its extensions
  AudioStreamBasicDescription audio;
  bridge::Owned<bridge::Object> extensions;  // a dictionary, or nil where there are none
};

}  // namespace desktop::faces
