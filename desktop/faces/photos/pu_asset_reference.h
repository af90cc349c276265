// SPDX-License-Identifier: MIT
//
// PUAssetReference: an asset and its place in what is browsed.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/platform.h"

namespace desktop::faces {

class PUAssetReferenceState : public Bound<PUAssetReferenceState, NSObject, PUAssetReference> {
 public:
  using Bound::Bound;
  static Class classObject();

  // Autoreleased. The asset may be any object; it and the path are kept.
  static PUAssetReference make(Object asset, NSIndexPath path);

 private:
  Object asset() const { return _asset; }
  NSIndexPath indexPath() const { return _indexPath; }

  Owned<Object> _asset;
  Owned<NSIndexPath> _indexPath;
};

}  // namespace desktop::faces
