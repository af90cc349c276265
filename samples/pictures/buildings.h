// SPDX-License-Identifier: MIT
//
// Houses and towers. Positions and sizes are in heights of the picture.
#pragma once

#include "samples/pictures/noise.h"
#include "samples/pictures/shapes.h"

namespace samples {

struct Towers {
  float foot = 0.7f;    // y of the street
  float lowest = 0.1f;  // heights of the buildings
  float highest = 0.4f;
  float narrowest = 0.04f;  // widths
  float widest = 0.1f;
  Rgb wall;
  Rgb haze;                  // what the walls fade to at the street
  float windowShare = 0.4f;  // how many windows are lit, 0 to 1
  float window = 0.006f;     // size of a window; 0 for none
  std::uint32_t seed = 1;
};

// A row of office towers across the picture, highest around `centerX`.
void paintTowers(Picture& picture, const Towers& towers, float centerX);

struct House {
  Point foot;  // lower left corner
  float width = 0.1f;
  float height = 0.2f;
  float gable = 0.08f;  // height of the roof
  Rgb wall;
  Rgb roof;
  int storeys = 3;
  int columns = 3;  // windows beside each other
  Rgb glass;
  bool stepped = false;  // a stepped gable
};

void paintHouse(Picture& picture, const House& house);

}  // namespace samples
