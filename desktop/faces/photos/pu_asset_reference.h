// SPDX-License-Identifier: MIT
//
// PUAssetReference: an asset and its place in what is browsed.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"

namespace desktop::faces {

class PUAssetReference : public bridge::Bound<PUAssetReference, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // Autoreleased. The asset may be any object; it and the path are kept.
  static bridge::PUAssetReference make(bridge::Object asset, bridge::NSIndexPath path);

 private:
  bridge::Object asset() const { return _asset; }
  bridge::NSIndexPath indexPath() const { return _indexPath; }

  bridge::Owned<bridge::Object> _asset;
  bridge::Owned<bridge::NSIndexPath> _indexPath;
};

}  // namespace desktop::faces
