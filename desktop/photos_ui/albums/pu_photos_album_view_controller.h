// SPDX-License-Identifier: MIT
//
// PUPhotosAlbumViewController: the grid of an album, with the number of its items below.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/library/albums.h"

namespace desktop::photos_ui {

class PUPhotosAlbumViewController
    : public bridge::Bound<PUPhotosAlbumViewController, bridge::PUPhotosGridViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

 private:
  bridge::PUSectionedGridLayout mainGridLayout() const;
  void viewWillAppear(bool animated);
  void setEditing(bool editing, bool animated);
  void libraryWasShown();
  void updateGlobalFooter();
};

// The controller of an album, of the class for its kind; +1. It follows the album, and is empty
// when that is gone.
bridge::Owned<bridge::UIViewController> makeAlbumController(const library::Album& album);

}  // namespace desktop::photos_ui
