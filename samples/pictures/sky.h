// SPDX-License-Identifier: MIT
//
// Everything above the horizon. Positions and sizes are in heights of the picture.
#pragma once

#include "samples/pictures/shapes.h"

namespace samples {

// Fills the whole picture from top (0) to bottom (1).
void paintGradient(Picture& picture, std::span<const ColorStop> stops);

// The disc of the sun and the light around it.
void paintSun(Picture& picture, Point center, float radius, Rgb disc, Rgb light);

// A moon with a few darker seas, and a faint halo.
void paintMoon(Picture& picture, Point center, float radius, Rgb color);

struct Clouds {
  float horizon = 0.5f;  // clouds flatten towards it
  float cover = 0.5f;    // share of the sky, 0 to 1
  float scale = 1;       // larger is smaller clouds
  float opacity = 0.9f;
  Rgb light = {1, 1, 1};
  Rgb shade = {0.6f, 0.65f, 0.7f};
  std::uint32_t seed = 1;
};

void paintClouds(Picture& picture, const Clouds& clouds);

// Stars down to the horizon; `density` is the share of cells of a 1/150 raster that holds one.
void paintStars(Picture& picture, float horizon, float density, std::uint32_t seed);

// A band of dusty light from the lower left to the upper right.
void paintMilkyWay(Picture& picture, float horizon, Rgb glow, std::uint32_t seed);

// Curtains of light that hang from the upper sky.
void paintAurora(Picture& picture, float horizon, Rgb low, Rgb high, std::uint32_t seed);

}  // namespace samples
