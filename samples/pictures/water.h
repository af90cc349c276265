// SPDX-License-Identifier: MIT
//
// Water that mirrors what is painted above its horizon.
#pragma once

#include "samples/pictures/shapes.h"

namespace samples {

struct Water {
  float horizon = 0.6f;    // y of its upper edge
  Rgb depth;               // its own colour
  float clearness = 0.5f;  // how much of the mirrored picture shows, 0 to 1
  float waves = 0.5f;      // 0 a mirror, 1 the open sea
  Rgb glitter;             // light that sparkles below the sun; black for none
  float sunX = 0;
  float phase = 0;  // moves the waves; for films
  std::uint32_t seed = 1;
};

// Fills everything below the horizon.
void paintWater(Picture& picture, const Water& water);

// A little boat with a sail, its waterline at `foot`.
void paintSailBoat(Picture& picture, Point foot, float size, Rgb sail, Rgb hull);

}  // namespace samples
