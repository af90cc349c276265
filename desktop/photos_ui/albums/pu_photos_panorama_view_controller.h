// SPDX-License-Identifier: MIT
//
// PUPhotosPanoramaViewController: panoramas, each as wide as the view.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"

namespace desktop::photos_ui {

class PUPhotosPanoramaViewController
    : public bridge::Bound<PUPhotosPanoramaViewController, bridge::PUPhotosGridViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

 private:
  void viewWillAppear(bool animated);
  void viewWillDisappear(bool animated);
};

}  // namespace desktop::photos_ui
