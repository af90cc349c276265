// SPDX-License-Identifier: MIT
//
// How content goes on by itself in both directions: after a finger, or because it was told to.
// Places are content offsets, velocities in points a second.
#pragma once

#include "bridge/geometry.h"
#include "desktop/platform.h"
#include "desktop/uikit/scrolling/scroll_motion.h"

namespace desktop::uikit {

struct ScrollTravel {
  ScrollMotion x;
  ScrollMotion y;
  Seconds start = 0;
  bool isCoasting = false;  // after a finger, not by a command

  // After a finger: to a stop between the corners, beyond which it swings where it bounces.
  static ScrollTravel coasting(CGPoint from, CGPoint velocity, CGPoint least, CGPoint most,
                               bool bounces);
  // After a finger: to this place.
  static ScrollTravel springing(CGPoint from, CGPoint velocity, CGPoint to);
  // By a command.
  static ScrollTravel easing(CGPoint from, CGPoint to, Seconds duration);

  Seconds duration() const;
  // Where it is this long after its start.
  CGPoint at(Seconds time) const { return {x.at(time), y.at(time)}; }
  CGPoint end() const { return {x.end(), y.end()}; }
};

}  // namespace desktop::uikit
