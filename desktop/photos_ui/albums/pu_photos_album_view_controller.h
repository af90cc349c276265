// SPDX-License-Identifier: MIT
//
// PUPhotosAlbumViewController: the grid of an album, with the number of its items below.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

class PUPhotosAlbumViewControllerState
    : public Bound<PUPhotosAlbumViewControllerState, PUPhotosGridViewControllerState,
                   PUPhotosAlbumViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

 private:
  PUSectionedGridLayout mainGridLayout() const;
  void viewWillAppear(bool animated);
  void setEditing(bool editing, bool animated);
  void libraryWasShown();
  void updateGlobalFooter();
};

}  // namespace desktop::photos_ui
