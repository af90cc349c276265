// SPDX-License-Identifier: MIT
//
// The eight orientations of TIFF (tag 0x0112), applied to pixels.
#pragma once

#include "desktop/pictures/pixels/target_size.h"

namespace desktop::pictures {

// 1 to 8; any other number counts as 1.
class Orientation {
 public:
  Orientation() = default;
  explicit Orientation(std::int64_t number)
      : _number(number >= 1 && number <= 8 ? static_cast<int>(number) : 1) {}

  // Whether stored rows are shown as columns.
  bool swapsSides() const { return _number >= 5; }
  // A stored size as it is shown, and a shown size as it is stored.
  PixelSize turned(PixelSize size) const { return swapsSides() ? size.turned() : size; }
  // The stored picture as it is shown.
  Picture upright(Picture stored) const;

 private:
  int _number = 1;
};

}  // namespace desktop::pictures
