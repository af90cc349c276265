// SPDX-License-Identifier: MIT
//
// Mountains, hills, dunes and trees. Positions and sizes are in heights of the picture.
#pragma once

#include <vector>

#include "samples/pictures/shapes.h"

namespace samples {

// The upper edge of a piece of land: y for each column of the picture.
using SkyLine = std::vector<float>;

struct Ridge {
  float base = 0.6f;    // y of the lowest crest
  float height = 0.2f;  // how far peaks rise above it
  float scale = 2;      // peaks in one height of the picture
  float sharpness = 1;  // 0 rolling hills, 1 rock
  std::uint32_t seed = 1;
};

SkyLine ridgeLine(const Picture& picture, const Ridge& ridge);

// One peak added to a line: it rises `height` above its surroundings at x, `width` wide.
// `flatness` cuts its top off (0 a cone, 1 a table).
void raisePeak(const Picture& picture, SkyLine& line, float x, float width, float height,
               float flatness);

// A rounded rock, steep at its sides, added to a line in the same way.
void raiseDome(const Picture& picture, SkyLine& line, float x, float width, float height);

struct LandLook {
  Rgb lit;                // slopes towards the light
  Rgb shade;              // slopes away from it
  Rgb haze;               // what distance and the foot fade to
  float hazeAtCrest = 0;  // 0 to 1
  float hazeAtFoot = 0.5f;
  float depth = 0.3f;   // how far below the crest the foot is
  float relief = 6;     // how fine the slopes are
  float woods = 0;      // 0 gullied rock, 1 meadows and woods
  float lightFrom = 1;  // 1 right, -1 left
  float snowLine = 0;   // y above which snow lies; 0 for none
  Rgb snowLight = {0.98f, 0.98f, 0.99f};
  Rgb snowShade = {0.62f, 0.70f, 0.83f};
  std::uint32_t seed = 1;
};

// Fills everything below the line.
void paintLand(Picture& picture, const SkyLine& line, const LandLook& look);

// Smooth sand below the line: a lit and a shaded face that part at the line's tops, with ripples.
void paintDune(Picture& picture, const SkyLine& line, Rgb lit, Rgb shade, float lightFrom,
               std::uint32_t seed);

struct Trees {
  float height = 0.1f;
  float spacing = 0.02f;
  Rgb color = {};
  Rgb mist = {};           // what the ground below a wood fades to
  float mistStrength = 0;  // 0 to 1
  std::uint32_t seed = 1;
};

// A row of conifers that stand on the line.
void paintConifers(Picture& picture, const SkyLine& line, const Trees& trees);

// The conifers and the dark ground that they stand on, which fills everything below the line.
void paintWood(Picture& picture, const SkyLine& line, const Trees& trees);

}  // namespace samples
