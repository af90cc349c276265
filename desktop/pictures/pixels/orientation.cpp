// SPDX-License-Identifier: MIT
#include "desktop/pictures/pixels/orientation.h"

#include <utility>

namespace desktop::pictures {

namespace {

// Where in the stored picture the shown one begins, and how its axes run there.
struct Axes {
  bool startsRight;   // at the stored right edge
  bool startsBottom;  // at the stored bottom edge
  bool swapsSides;    // the shown x runs along the stored y
};

constexpr Axes axesOf[] = {
    {false, false, false},  // 1: as stored
    {true, false, false},   // 2: mirrored
    {true, true, false},    // 3: upside down
    {false, true, false},   // 4: upside down and mirrored
    {false, false, true},   // 5: turned left and mirrored
    {false, true, true},    // 6: to be turned right
    {true, true, true},     // 7: turned right and mirrored
    {true, false, true},    // 8: to be turned left
};

}  // namespace

Picture Orientation::upright(Picture stored) const {
  if (_number == 1) return stored;
  const Axes axes = axesOf[_number - 1];
  const std::ptrdiff_t width = stored.width;
  const std::ptrdiff_t height = stored.height;
  // Steps in the stored pixels for one step right, and one down, in the shown ones.
  const std::ptrdiff_t alongRow = axes.startsRight ? -1 : 1;
  const std::ptrdiff_t alongColumn = axes.startsBottom ? -width : width;
  const std::ptrdiff_t right = axes.swapsSides ? alongColumn : alongRow;
  const std::ptrdiff_t down = axes.swapsSides ? alongRow : alongColumn;
  const std::ptrdiff_t start =
      (axes.startsBottom ? (height - 1) * width : 0) + (axes.startsRight ? width - 1 : 0);
  const PixelSize size = turned({stored.width, stored.height});
  Picture shown{size.width, size.height, {}};
  shown.pixels.reserve(stored.pixels.size());
  for (std::ptrdiff_t row = 0; row < size.height; ++row) {
    for (std::ptrdiff_t column = 0; column < size.width; ++column) {
      const std::ptrdiff_t at = start + row * down + column * right;
      shown.pixels.push_back(stored.pixels[static_cast<std::size_t>(at)]);
    }
  }
  return shown;
}

}  // namespace desktop::pictures
