// SPDX-License-Identifier: MIT
#include "desktop/faces/photos/photos_runtime.h"

#include "desktop/faces/photos/cl_location.h"
#include "desktop/faces/photos/ph_asset.h"
#include "desktop/faces/photos/pu_asset_reference.h"

namespace desktop::faces {

void registerPhotos() {
  CLLocationState::classObject();
  PHAssetState::classObject();
  PUAssetReferenceState::classObject();
}

}  // namespace desktop::faces
