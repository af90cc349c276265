// SPDX-License-Identifier: MIT
//
// Rotations and mirrorings of HEIF images as the orientation number of TIFF.
#pragma once

#include <cstdint>

namespace media::image {

// Turns and mirrors, one after the other, put together into a TIFF orientation.
class HeifTransform {
 public:
  // Turns by that many quarters, counter-clockwise. ISO/IEC 23008-12, 6.5.10.
  void rotate(int quarters);
  enum class Mirroring { topToBottom, leftToRight };
  // ISO/IEC 23008-12, 6.5.12.
  void mirror(Mirroring mirroring);

  // 1 to 8, as of TIFF tag 0x0112.
  std::int64_t orientation() const;

 private:
  // Where the stored image's x and y axes point on screen, y downward.
  int _xx = 1, _xy = 0, _yx = 0, _yy = 1;
};

}  // namespace media::image
