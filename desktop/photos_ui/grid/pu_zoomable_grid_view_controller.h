// SPDX-License-Identifier: MIT
//
// PUZoomableGridViewController: all photos of the library at one zoom level.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/photos_ui/grid/zoom_levels.h"

namespace desktop::photos_ui {

class PUZoomableGridViewController
    : public bridge::Bound<PUZoomableGridViewController, bridge::PUPhotosGridViewController> {
 public:
  using Bound::Bound;
  static Class classObject();
  // +1.
  static bridge::Owned<bridge::UIViewController> make(library::ZoomLevel level);

  library::ZoomLevel level() const { return _level; }

 private:
  bridge::NSObject zoomLevelInfo() const { return _info; }
  void didSelect(bridge::UICollectionView view, bridge::NSIndexPath path);

  library::ZoomLevel _level = library::ZoomLevel::moments;
  bridge::Owned<bridge::NSObject> _info;
};

}  // namespace desktop::photos_ui
