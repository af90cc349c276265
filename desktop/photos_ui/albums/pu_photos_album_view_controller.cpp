// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/albums/pu_photos_album_view_controller.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/photos_ui/grid/selection_title.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {
Class PUPhotosAlbumViewControllerState::classObject() {
  using Self = PUPhotosAlbumViewControllerState;
  static const Class made = ClassBuilder<Self>("PUPhotosAlbumViewController")
                                .method<"mainGridLayout", &Self::mainGridLayout>()
                                .method<"viewWillAppear:", &Self::viewWillAppear>()
                                .method<"setEditing:animated:", &Self::setEditing>()
                                .method<"libraryWasShown", &Self::libraryWasShown>()
                                .method<"updateGlobalFooter", &Self::updateGlobalFooter>()
                                .build();
  return made;
}

PUSectionedGridLayout PUPhotosAlbumViewControllerState::mainGridLayout() const {
  return PUSectionedGridLayout(layout().self().get());
}

// The bar has its items by now.
void PUPhotosAlbumViewControllerState::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  self().updateGlobalFooter();
}

void PUPhotosAlbumViewControllerState::setEditing(bool editing, bool animated) {
  super<void, "setEditing:animated:">(editing, animated);
  self().updateGlobalFooter();
}

void PUPhotosAlbumViewControllerState::libraryWasShown() {
  super<void, "libraryWasShown">();
  self().updateGlobalFooter();
}

void PUPhotosAlbumViewControllerState::updateGlobalFooter() {
  setFooterText(countText(list()->items()));
}

}  // namespace desktop::photos_ui
