// SPDX-License-Identifier: MIT
//
// Pixels as a plain value.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace model {

// Rows from top to bottom without gaps; a pixel is 0xAARRGGBB in sRGB, its colours multiplied by
// its alpha. Width and height are in pixels.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;  // width times height of them

  std::size_t byteCount() const { return pixels.size() * sizeof(std::uint32_t); }
};

}  // namespace model
