// SPDX-License-Identifier: MIT
//
// Sizes, transforms and places, as plain numbers.
#pragma once

namespace model {

// Width and height; the unit is the user's (pixels for media, points for views).
struct Size {
  double width = 0;
  double height = 0;
  bool operator==(const Size&) const = default;
};

// x' = a x + c y + tx, y' = b x + d y + ty. The default is the identity.
struct AffineTransform {
  double a = 1;
  double b = 0;
  double c = 0;
  double d = 1;
  double tx = 0;
  double ty = 0;
  bool operator==(const AffineTransform&) const = default;
};

// A place on the earth, in degrees; north and east are positive.
struct Location {
  double latitude = 0;
  double longitude = 0;
  bool operator==(const Location&) const = default;
};

}  // namespace model
