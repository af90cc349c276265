// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/pu_zoomable_grid_view_controller.h"

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {
namespace {

using library::ZoomLevel;

struct Level {
  const char* title;
  int columns;
  Class (*info)();
  ZoomLevel closer;
};

Level describe(ZoomLevel level) {
  switch (level) {
    case ZoomLevel::years:
      return {"Years", 10, &PUYearsZoomLevelInfo::classObject, ZoomLevel::collections};
    case ZoomLevel::collections:
      return {"Collections", 7, &PUCollectionsZoomLevelInfo::classObject, ZoomLevel::moments};
    case ZoomLevel::moments:
      break;
  }
  return {"Moments", 4, &PUFullMomentsZoomLevelInfoState::classObject, ZoomLevel::moments};
}

}  // namespace

Class PUZoomableGridViewControllerState::classObject() {
  using Self = PUZoomableGridViewControllerState;
  static const Class made =
      ClassBuilder<Self>("PUZoomableGridViewController")
          .method<"_zoomLevelInfo", &Self::zoomLevelInfo>()
          .method<"collectionView:didSelectItemAtIndexPath:", &Self::didSelect>()
          .build();
  return made;
}

Owned<UIViewController> PUZoomableGridViewControllerState::make(ZoomLevel level) {
  const Level description = describe(level);
  auto made = PUPhotosGridViewControllerState::make(
      classObject(),
      {.title = description.title,
       .list = [level] { return host().library ? listOfLibrary(*host().library, level) : nullptr; },
       .columns = description.columns,
       .hasLargeTitle = true,
       .hasHeaders = true,
       .allowsSelecting = level == ZoomLevel::moments,
       .startsAtEnd = true});
  PUZoomableGridViewControllerState& grid = of(made.get());
  grid._level = level;
  grid._info = makeNew<NSObject>(description.info());
  return made;
}

// From farther off a photo is a place to look at more closely.
void PUZoomableGridViewControllerState::didSelect(UICollectionView view, NSIndexPath path) {
  if (_level == ZoomLevel::moments)
    return super<void, "collectionView:didSelectItemAtIndexPath:">(view, path);
  view.deselectItem(path, false);
  const auto at = uikit::itemPathOf(path);
  const auto index = at ? list()->indexOf(*at) : std::nullopt;
  if (!index) return;
  const auto closer = make(describe(_level).closer);
  PUPhotosGridViewControllerState& grid = PUPhotosGridViewControllerState::of(closer.get());
  grid.load();
  grid.reveal(*index);
  self().navigationController().push(closer, UIViewController::animated);
}

}  // namespace desktop::photos_ui
