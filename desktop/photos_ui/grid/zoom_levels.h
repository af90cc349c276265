// SPDX-License-Identifier: MIT
//
// How closely the grid of all photos looks: moments, collections or years. Each is a controller of
// its own; a wider one lies below a closer one, so that going back looks from farther off.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/library/sections.h"

namespace desktop::photos_ui {

// From the widest to the closest.
inline constexpr std::array zoomLevels = {
    library::ZoomLevel::years, library::ZoomLevel::collections, library::ZoomLevel::moments};

// "moments", "collections" or "years".
std::optional<library::ZoomLevel> zoomLevelNamed(std::string_view name);

// What a zoomable grid says of its level; extensions ask for the class.
class PUFullMomentsZoomLevelInfo
    : public bridge::Bound<PUFullMomentsZoomLevelInfo, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();
};

class PUCollectionsZoomLevelInfo
    : public bridge::Bound<PUCollectionsZoomLevelInfo, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();
};

class PUYearsZoomLevelInfo : public bridge::Bound<PUYearsZoomLevelInfo, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();
};

}  // namespace desktop::photos_ui
