// SPDX-License-Identifier: MIT
//
// PUPhotosPanoramaViewController: panoramas, each as wide as the view.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

class PUPhotosPanoramaViewController
    : public Bound<PUPhotosPanoramaViewController, PUPhotosGridViewControllerState> {
 public:
  using Bound::Bound;
  static Class classObject();

 private:
  void viewWillAppear(bool animated);
  void viewWillDisappear(bool animated);
};

}  // namespace desktop::photos_ui
