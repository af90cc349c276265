// SPDX-License-Identifier: MIT
//
// Flat shapes with soft edges. Positions and sizes are in heights of the picture.
#pragma once

#include <span>

#include "samples/pictures/picture.h"

namespace samples {

struct Point {
  float x = 0;
  float y = 0;
};

// The inside of a closed outline (even-odd), whose corners may lie outside the picture.
void fillPolygon(Picture& picture, std::span<const Point> corners, Rgb color, float opacity = 1);

void fillRectangle(Picture& picture, Point topLeft, Point bottomRight, Rgb color,
                   float opacity = 1);

// A rectangle with rounded corners. REQUIRES: the radius fits.
void fillRounded(Picture& picture, Point topLeft, Point bottomRight, float radius, Rgb color,
                 float opacity = 1);

void fillCircle(Picture& picture, Point center, float radius, Rgb color, float opacity = 1);

// A straight line with round ends.
void strokeLine(Picture& picture, Point from, Point to, float width, Rgb color, float opacity = 1);

// Adds light around a point, fading to nothing with distance; `radius` is where a third is left.
void addGlow(Picture& picture, Point center, float radius, Rgb light);

}  // namespace samples
