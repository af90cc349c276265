// SPDX-License-Identifier: MIT
#include "media/image/blocks/frame_delay.h"

#include <algorithm>

namespace media::image {

void setFrameDelay(double seconds, model::Dictionary& section) {
  constexpr double shortest = 0.1;
  section.insert_or_assign("DelayTime", std::max(seconds, shortest));
  section.insert_or_assign("UnclampedDelayTime", seconds);
}

}  // namespace media::image
