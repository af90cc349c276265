// SPDX-License-Identifier: MIT
//
// Pictures as video encoders take them.
#pragma once

#include <cstdint>

#include "samples/pictures/picture.h"

namespace samples {

// Three planes of bytes, the second and third at half the size each way.
struct YuvPlanes {
  std::uint8_t* planes[3];
  int strides[3];  // bytes from a row to the next
};

// Luminance and colour differences: of photos (Rec. 601, 0 to 255) or films (Rec. 709, 16 to 235).
enum class YuvRange { photo, film };

// REQUIRES: width and height are even, and the planes are large enough.
void fillYuv(const Picture& picture, YuvRange range, const YuvPlanes& target);

}  // namespace samples
