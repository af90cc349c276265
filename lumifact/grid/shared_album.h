// SPDX-License-Identifier: MIT
//
// The last cell of a shared album's section, which is for adding and stands for no photo.
#pragma once

#include "bridge/photos.h"
#include "bridge/uikit.h"
#include "lumifact/platform.h"

namespace lumifact {

inline bool isLastOfSharedAlbum(PUPhotosGridViewController grid, NSIndexPath path) {
  if (!isKindOf(grid, PUCloudSharedAlbumViewController::classObject())) return false;
  return path.row() >= grid.collectionView().numberOfItemsInSection(path.section()) - 1;
}

}  // namespace lumifact
