// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/albums/pu_cloud_shared_album_view_controller.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/cells/pu_photos_grid_cell.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/platform.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "model/utf8.h"

namespace desktop::photos_ui {

Class PUCloudSharedAlbumViewControllerState::classObject() {
  using Self = PUCloudSharedAlbumViewControllerState;
  static const Class made =
      ClassBuilder<Self>("PUCloudSharedAlbumViewController")
          .method<"collectionView:numberOfItemsInSection:", &Self::numberOfItems>()
          .method<"collectionView:cellForItemAtIndexPath:", &Self::cellForItem>()
          .method<"collectionView:shouldSelectItemAtIndexPath:", &Self::shouldSelect>()
          .build();
  return made;
}

NSInteger PUCloudSharedAlbumViewControllerState::numberOfItems(UICollectionView view,
                                                               NSInteger section) const {
  return super<NSInteger, "collectionView:numberOfItemsInSection:">(view, section) + 1;
}

bool PUCloudSharedAlbumViewControllerState::isAddCell(NSIndexPath path) const {
  const auto at = uikit::itemPathOf(path);
  return at && !list()->indexOf(*at);
}

UIView PUCloudSharedAlbumViewControllerState::cellForItem(UICollectionView view, NSIndexPath path) {
  const auto cell = super<UIView, "collectionView:cellForItemAtIndexPath:">(view, path);
  if (isAddCell(path) && isKindOf(cell, PUPhotosGridCellState::classObject()))
    PUPhotosGridCellState::of(cell).showAddSign();
  return cell;
}

bool PUCloudSharedAlbumViewControllerState::shouldSelect(UICollectionView, NSIndexPath path) {
  if (!isAddCell(path)) return true;
  if (!uikit::UIViewControllerState::isEditing()) tellHowToAdd();
  return false;
}

void PUCloudSharedAlbumViewControllerState::tellHowToAdd() {
  const auto& items = list()->items();
  if (items.empty()) return;
  const std::string folder = model::replacingInvalidUtf8(items.front()->folder());
  const auto alert = UIAlertController::make(
      NSString::make("Add to This Album"),
      NSString::make("Photos and videos that are put into " + folder + " appear here."),
      UIAlertController::alert);
  alert.addAction(UIAlertAction::make(NSString::make("OK"), UIAlertAction::cancel, {}));
  self().present(alert, UIViewController::animated, {});
}

}  // namespace desktop::photos_ui
