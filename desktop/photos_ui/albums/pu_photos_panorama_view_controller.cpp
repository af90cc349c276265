// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/albums/pu_photos_panorama_view_controller.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

namespace {

constexpr CGFloat panoramaSpacing = 2;  // points

}  // namespace

Class PUPhotosPanoramaViewController::classObject() {
  using Self = PUPhotosPanoramaViewController;
  static const Class made = ClassBuilder<Self>("PUPhotosPanoramaViewController")
                                .method<"viewWillAppear:", &Self::viewWillAppear>()
                                .method<"viewWillDisappear:", &Self::viewWillDisappear>()
                                .build();
  return made;
}

// The class answers both messages itself, so that whoever extends them extends only these.
void PUPhotosPanoramaViewController::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  layout().setInterItemSpacing(panoramaSpacing);
}

void PUPhotosPanoramaViewController::viewWillDisappear(bool animated) {
  super<void, "viewWillDisappear:">(animated);
}

}  // namespace desktop::photos_ui
