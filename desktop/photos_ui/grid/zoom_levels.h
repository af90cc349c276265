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
#include "desktop/platform.h"

namespace desktop::photos_ui {

// From the widest to the closest.
inline constexpr std::array zoomLevels = {
    library::ZoomLevel::years, library::ZoomLevel::collections, library::ZoomLevel::moments};

// "moments", "collections" or "years".
std::optional<library::ZoomLevel> zoomLevelNamed(std::string_view name);

// What a zoomable grid says of its level; extensions ask for the class.
class PUFullMomentsZoomLevelInfoState
    : public Bound<PUFullMomentsZoomLevelInfoState, NSObject, PUFullMomentsZoomLevelInfo> {
 public:
  using Bound::Bound;
  static Class classObject();
};

class PUCollectionsZoomLevelInfo : public Bound<PUCollectionsZoomLevelInfo, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();
};

class PUYearsZoomLevelInfo : public Bound<PUYearsZoomLevelInfo, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();
};

}  // namespace desktop::photos_ui
