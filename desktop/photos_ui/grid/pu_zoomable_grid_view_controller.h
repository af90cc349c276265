// SPDX-License-Identifier: MIT
//
// PUZoomableGridViewController: all photos of the library at one zoom level.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/photos_ui/grid/zoom_levels.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

class PUZoomableGridViewControllerState
    : public Bound<PUZoomableGridViewControllerState, PUPhotosGridViewControllerState,
                   PUZoomableGridViewController> {
 public:
  using Bound::Bound;
  static Class classObject();
  // +1.
  static Owned<UIViewController> make(library::ZoomLevel level);

  library::ZoomLevel level() const { return _level; }

 private:
  NSObject zoomLevelInfo() const { return _info; }
  void didSelect(UICollectionView view, NSIndexPath path);

  library::ZoomLevel _level = library::ZoomLevel::moments;
  Owned<NSObject> _info;
};

}  // namespace desktop::photos_ui
