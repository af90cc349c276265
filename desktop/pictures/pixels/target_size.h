// SPDX-License-Identifier: MIT
//
// How large the picture that answers a request is.
#pragma once

#include "desktop/pictures/pixels/picture.h"

namespace desktop::pictures {

struct PixelSize {
  int width = 0;
  int height = 0;

  bool isEmpty() const { return width <= 0 || height <= 0; }
  PixelSize turned() const { return {height, width}; }
  bool operator==(const PixelSize&) const = default;
};

// The size of the picture that answers the request for an image of that size, both upright: never
// larger than the image nor than the limits allow. REQUIRES: neither is empty.
PixelSize targetSize(PixelSize image, const Request& request);

// Whether `inner` covers `outer` on both sides.
bool covers(PixelSize inner, PixelSize outer);

// Whether the small size is the large one scaled down, as far as whole pixels can tell. Thumbnails
// that cameras pad with black bars are not.
bool hasSameAspect(PixelSize small, PixelSize large);

// The length of a row that FFmpeg's vector code may write to: it writes 16 pixels at a time.
constexpr std::size_t paddedWidth(int width) {
  return (static_cast<std::size_t>(width) + 15) / 16 * 16;
}

}  // namespace desktop::pictures
