// SPDX-License-Identifier: MIT
#include "desktop/faces/photos/pu_asset_reference.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::faces {

Class PUAssetReferenceState::classObject() {
  static const Class made = ClassBuilder<PUAssetReferenceState>("PUAssetReference")
                                .method<"asset", &PUAssetReferenceState::asset>()
                                .method<"indexPath", &PUAssetReferenceState::indexPath>()
                                .build();
  return made;
}

PUAssetReference PUAssetReferenceState::make(Object asset, NSIndexPath path) {
  auto made = makeNew<PUAssetReference>(classObject());
  if (!made) return {};
  PUAssetReferenceState& reference = of(made->get());
  reference._asset = Owned<Object>::retain(asset);
  reference._indexPath = Owned<NSIndexPath>::retain(path);
  return made.autorelease();
}

}  // namespace desktop::faces
