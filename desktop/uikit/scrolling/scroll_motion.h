// SPDX-License-Identifier: MIT
//
// How content goes on by itself in one direction: it coasts to a stop, springs back from beyond
// its end, or moves to a place. Positions are content offsets in points, times count from the
// motion's start.
#pragma once

#include "desktop/uikit/base/scheduler.h"

namespace desktop::uikit {

class ScrollMotion {
 public:
  // The offsets that show nothing beyond the content. REQUIRES: least <= most.
  struct Limits {
    double least = 0;
    double most = 0;
  };

  // From a velocity in points a second, with the platform's rate of 0.998 a millisecond. At a limit
  // it stops or, where it bounces, swings beyond it and comes back; from beyond it goes back.
  static ScrollMotion coasting(double from, double velocity, Limits limits, bool bounces);
  // To a place, as a spring that does not swing.
  static ScrollMotion springing(double from, double velocity, double to);
  // To a place in a given time, slow at both ends.
  static ScrollMotion easing(double from, double to, Seconds duration);
  static ScrollMotion standing(double at) { return springing(at, 0, at); }

  double at(Seconds time) const;
  // When it is at its end, exactly.
  Seconds duration() const { return _springTime + _springDuration; }
  double end() const { return _end; }

 private:
  double _from = 0;
  double _velocity = 0;
  double _end = 0;
  // Coasting until then, springing to the end from there.
  Seconds _springTime = 0;
  Seconds _springDuration = 0;
  double _springFrom = 0;
  double _springVelocity = 0;
  bool _isEasing = false;

  void spring(double from, double velocity);
};

// How far content goes with a finger that pulls it this far beyond its end: less and less.
double rubberBand(double beyond, double room);

}  // namespace desktop::uikit
