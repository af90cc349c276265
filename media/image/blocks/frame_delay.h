// SPDX-License-Identifier: MIT
//
// How long a frame of an animation is shown.
#pragma once

#include "model/value.h"

namespace media::image {

// Sets "UnclampedDelayTime" to the stored seconds, and "DelayTime" to them or to the least that
// the phone's framework allows.
void setFrameDelay(double seconds, model::Dictionary& section);

}  // namespace media::image
