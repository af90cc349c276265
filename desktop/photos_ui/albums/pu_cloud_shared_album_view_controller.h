// SPDX-License-Identifier: MIT
//
// PUCloudSharedAlbumViewController: the grid of a shared album, whose last cell is for adding.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"

namespace desktop::photos_ui {

class PUCloudSharedAlbumViewController
    : public bridge::Bound<PUCloudSharedAlbumViewController, bridge::PUPhotosAlbumViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

 private:
  NSInteger numberOfItems(bridge::UICollectionView view, NSInteger section) const;
  bridge::UIView cellForItem(bridge::UICollectionView view, bridge::NSIndexPath path);
  bool shouldSelect(bridge::UICollectionView view, bridge::NSIndexPath path);
  bool isAddCell(bridge::NSIndexPath path) const;
  void tellHowToAdd();
};

}  // namespace desktop::photos_ui
