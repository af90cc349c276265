// SPDX-License-Identifier: MIT
#include "lumifact/report/orientation_names.h"

#include "lumifact/report/label.h"

namespace lumifact {

std::optional<std::string_view> imageOrientationName(std::int64_t orientation) {
  static constexpr Label names[] = {
      {1, "0° - Landscape (1)"},
      {2, "0° - Landscape, Mirrored (2)"},
      {3, "0° - Landscape (3)"},
      {4, "180° - Landscape, Mirrored (4)"},
      {5, "90° CW - Portrait,  Mirrored (5)"},
      {6, "90° CW - Portrait (6)"},
      {7, "90° CCW - Portrait,  Mirrored (7)"},
      {8, "90° CCW - Portrait (8)"},
  };
  static_assert(keysAscend(names));
  return labelOf(names, orientation);
}

std::optional<std::string_view> tiffOrientationName(std::int64_t orientation) {
  static constexpr Label names[] = {
      {1, "0° - Landscape (1)"},
      {2, "180° - Landscape, Mirrored (2)"},
      {3, "180° - Landscape (3)"},
      {4, "180° - Landscape, Mirrored (4)"},
      {5, "90° CW - Portrait,  Mirrored (5)"},
      {6, "90° CW - Portrait (6)"},
      {7, "90° CCW - Portrait,  Mirrored (7)"},
      {8, "90° CCW - Portrait (8)"},
  };
  static_assert(keysAscend(names));
  return labelOf(names, orientation);
}

}  // namespace lumifact
