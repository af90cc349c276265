// SPDX-License-Identifier: MIT
//
// PUCloudSharedAlbumViewController: the grid of a shared album, whose last cell is for adding.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/photos_ui/albums/pu_photos_album_view_controller.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

class PUCloudSharedAlbumViewControllerState
    : public Bound<PUCloudSharedAlbumViewControllerState, PUPhotosAlbumViewControllerState,
                   PUCloudSharedAlbumViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

 private:
  NSInteger numberOfItems(UICollectionView view, NSInteger section) const;
  UIView cellForItem(UICollectionView view, NSIndexPath path);
  bool shouldSelect(UICollectionView view, NSIndexPath path);
  bool isAddCell(NSIndexPath path) const;
  void tellHowToAdd();
};

}  // namespace desktop::photos_ui
