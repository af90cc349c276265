// SPDX-License-Identifier: MIT
//
// Times of media: seconds as the fraction that they once were.
#pragma once

#include "bridge/avfoundation.h"
#include "desktop/platform.h"

namespace desktop::faces {

// The fraction with the smallest timescale whose seconds are exactly these, as
// CMTimeGetSeconds gives them; the nearest one where no timescale of 31 bits does. Invalid for NaN,
// infinite for what no time holds.
CMTime timeOfSeconds(double seconds);

}  // namespace desktop::faces
