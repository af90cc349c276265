// SPDX-License-Identifier: MIT
//
// A decoded photo or video frame as a plain value, and how large somebody wants it.
#pragma once

#include <compare>
#include <cstdint>
#include <memory>
#include <vector>

namespace desktop::pictures {

// Rows from top to bottom without gaps, upright: the file's orientation is applied. A pixel is
// 0xAARRGGBB, its colours multiplied by its alpha, in sRGB.
struct Picture {
  int width = 0;   // pixels
  int height = 0;  // pixels
  std::vector<std::uint32_t> pixels;

  std::size_t byteCount() const { return pixels.size() * sizeof(std::uint32_t); }
};

// Shared by everybody who shows it; never changed.
using SharedPicture = std::shared_ptr<const Picture>;

// How large a picture has to be. Its aspect is kept, it is never cropped, and never larger than it
// is in the file.
struct Request {
  enum class Fit {
    fill,  // as small as covers the box: for cells that crop
    fit,   // as large as lies in the box: for full views
  };

  int maxWidth = 0;   // pixels, as shown; of the box
  int maxHeight = 0;  // above 0
  Fit fit = Fit::fit;

  auto operator<=>(const Request&) const = default;
};

}  // namespace desktop::pictures
