// SPDX-License-Identifier: MIT
#include "desktop/faces/photos/pu_asset_reference.h"

#include "bridge/class_builder.h"

namespace desktop::faces {

Class PUAssetReference::classObject() {
  static const Class made = bridge::ClassBuilder<PUAssetReference>("PUAssetReference")
                                .method<"asset", &PUAssetReference::asset>()
                                .method<"indexPath", &PUAssetReference::indexPath>()
                                .build();
  return made;
}

bridge::PUAssetReference PUAssetReference::make(bridge::Object asset, bridge::NSIndexPath path) {
  using bridge::Owned;
  auto made = Owned<bridge::PUAssetReference>::adopt(
      bridge::send<bridge::PUAssetReference, "new">(classObject()));
  if (!made) return {};
  PUAssetReference& reference = of(made->get());
  reference._asset = Owned<bridge::Object>::retain(asset);
  reference._indexPath = Owned<bridge::NSIndexPath>::retain(path);
  return made.autorelease();
}

}  // namespace desktop::faces
