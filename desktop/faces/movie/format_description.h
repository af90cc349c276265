// SPDX-License-Identifier: MIT
//
// Format descriptions, and the C functions that read them.
#pragma once

#include "bridge/avfoundation.h"
#include "bridge/bound.h"
#include "desktop/platform.h"
#include "model/media_asset.h"

namespace desktop::faces {

class FormatDescription : public Bound<FormatDescription, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // +1.
  static Owned<NSObject> make(const model::FormatDescription& facts);

  model::FormatDescription facts;  // without its extensions
  AudioStreamBasicDescription audio;
  Owned<Object> extensions;  // a dictionary, or nil where there are none
};

}  // namespace desktop::faces
