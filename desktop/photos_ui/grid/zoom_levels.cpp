// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/zoom_levels.h"

#include "bridge/class_builder.h"

namespace desktop::photos_ui {

std::optional<library::ZoomLevel> zoomLevelNamed(std::string_view name) {
  if (name == "moments") return library::ZoomLevel::moments;
  if (name == "collections") return library::ZoomLevel::collections;
  if (name == "years") return library::ZoomLevel::years;
  return {};
}

Class PUFullMomentsZoomLevelInfo::classObject() {
  using Self = PUFullMomentsZoomLevelInfo;
  static const Class made = bridge::ClassBuilder<Self>("PUFullMomentsZoomLevelInfo").build();
  return made;
}

Class PUCollectionsZoomLevelInfo::classObject() {
  using Self = PUCollectionsZoomLevelInfo;
  static const Class made = bridge::ClassBuilder<Self>("PUCollectionsZoomLevelInfo").build();
  return made;
}

Class PUYearsZoomLevelInfo::classObject() {
  using Self = PUYearsZoomLevelInfo;
  static const Class made = bridge::ClassBuilder<Self>("PUYearsZoomLevelInfo").build();
  return made;
}

}  // namespace desktop::photos_ui
