// SPDX-License-Identifier: MIT
#include "desktop/photos_runtime/photos_runtime.h"

#include "desktop/photos_runtime/cl_location.h"
#include "desktop/photos_runtime/ph_asset.h"
#include "desktop/photos_runtime/pu_asset_reference.h"

namespace desktop::photos {

void registerPhotos() {
  CLLocation::classObject();
  PHAsset::classObject();
  PUAssetReference::classObject();
}

}  // namespace desktop::photos
