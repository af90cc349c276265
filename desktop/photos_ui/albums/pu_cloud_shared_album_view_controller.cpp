// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/albums/pu_cloud_shared_album_view_controller.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/cells/pu_photos_grid_cell.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "model/utf8.h"

namespace desktop::photos_ui {

using bridge::NSString;

Class PUCloudSharedAlbumViewController::classObject() {
  using Self = PUCloudSharedAlbumViewController;
  static const Class made =
      bridge::ClassBuilder<Self>("PUCloudSharedAlbumViewController")
          .method<"collectionView:numberOfItemsInSection:", &Self::numberOfItems>()
          .method<"collectionView:cellForItemAtIndexPath:", &Self::cellForItem>()
          .method<"collectionView:shouldSelectItemAtIndexPath:", &Self::shouldSelect>()
          .build();
  return made;
}

NSInteger PUCloudSharedAlbumViewController::numberOfItems(bridge::UICollectionView view,
                                                          NSInteger section) const {
  return super<NSInteger, "collectionView:numberOfItemsInSection:">(view, section) + 1;
}

bool PUCloudSharedAlbumViewController::isAddCell(bridge::NSIndexPath path) const {
  const auto at = uikit::itemPathOf(path);
  return at && !PUPhotosGridViewController::of(self()).list()->indexOf(*at);
}

bridge::UIView PUCloudSharedAlbumViewController::cellForItem(bridge::UICollectionView view,
                                                             bridge::NSIndexPath path) {
  const auto cell = super<bridge::UIView, "collectionView:cellForItemAtIndexPath:">(view, path);
  if (isAddCell(path) && bridge::isKindOf(cell, PUPhotosGridCell::classObject()))
    PUPhotosGridCell::of(cell).showAddSign();
  return cell;
}

bool PUCloudSharedAlbumViewController::shouldSelect(bridge::UICollectionView,
                                                    bridge::NSIndexPath path) {
  if (!isAddCell(path)) return true;
  if (!uikit::UIViewController::of(self()).isEditing()) tellHowToAdd();
  return false;
}

void PUCloudSharedAlbumViewController::tellHowToAdd() {
  const auto& items = PUPhotosGridViewController::of(self()).list()->items();
  if (items.empty()) return;
  const std::string folder = model::replacingInvalidUtf8(items.front()->folder());
  const auto alert = bridge::UIAlertController::make(
      NSString::make("Add to This Album"),
      NSString::make("Photos and videos that are put into " + folder + " appear here."),
      bridge::UIAlertController::alert);
  alert.addAction(
      bridge::UIAlertAction::make(NSString::make("OK"), bridge::UIAlertAction::cancel, {}));
  self().present(alert, bridge::UIViewController::animated, {});
}

}  // namespace desktop::photos_ui
