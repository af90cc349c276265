// SPDX-License-Identifier: MIT
#include "media/image/heif/heif_transform.h"

#include <utility>

namespace media::image {

// A quarter counter-clockwise takes (x, y) to (y, -x), y being downward.
void HeifTransform::rotate(int quarters) {
  for (int turn = 0; turn < (quarters & 3); ++turn) {
    std::swap(_xx, _xy);
    std::swap(_yx, _yy);
    _xy = -_xy;
    _yy = -_yy;
  }
}

void HeifTransform::mirror(Mirroring mirroring) {
  if (mirroring == Mirroring::topToBottom) {
    _xy = -_xy;
    _yy = -_yy;
  } else {
    _xx = -_xx;
    _yx = -_yx;
  }
}

std::int64_t HeifTransform::orientation() const {
  // By the direction of the x axis on screen, then by that of the y axis.
  if (_xx == 1) return _yy == 1 ? 1 : 4;
  if (_xx == -1) return _yy == 1 ? 2 : 3;
  if (_xy == 1) return _yx == 1 ? 5 : 6;
  return _yx == 1 ? 8 : 7;
}

}  // namespace media::image
