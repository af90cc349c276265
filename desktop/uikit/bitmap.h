// SPDX-License-Identifier: MIT
//
// Pixels as a plain value.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace desktop::uikit {

// Rows from top to bottom without gaps; a pixel is 0xAARRGGBB with its colours multiplied by its
// alpha. Width and height are in pixels.
struct Bitmap {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;  // width times height of them
};

// Shared by everybody who shows it; never changed once it is.
using SharedBitmap = std::shared_ptr<const Bitmap>;

}  // namespace desktop::uikit
