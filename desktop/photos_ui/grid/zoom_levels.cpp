// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/zoom_levels.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

std::optional<library::ZoomLevel> zoomLevelNamed(std::string_view name) {
  if (name == "moments") return library::ZoomLevel::moments;
  if (name == "collections") return library::ZoomLevel::collections;
  if (name == "years") return library::ZoomLevel::years;
  return {};
}

Class PUFullMomentsZoomLevelInfoState::classObject() {
  using Self = PUFullMomentsZoomLevelInfoState;
  static const Class made = ClassBuilder<Self>("PUFullMomentsZoomLevelInfo").build();
  return made;
}

Class PUCollectionsZoomLevelInfo::classObject() {
  using Self = PUCollectionsZoomLevelInfo;
  static const Class made = ClassBuilder<Self>("PUCollectionsZoomLevelInfo").build();
  return made;
}

Class PUYearsZoomLevelInfo::classObject() {
  using Self = PUYearsZoomLevelInfo;
  static const Class made = ClassBuilder<Self>("PUYearsZoomLevelInfo").build();
  return made;
}

}  // namespace desktop::photos_ui
