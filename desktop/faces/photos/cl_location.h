// SPDX-License-Identifier: MIT
//
// CLLocation: a place on the earth.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/platform.h"
#include "model/geometry.h"

namespace desktop::faces {

class CLLocationState : public Bound<CLLocationState, NSObject, CLLocation> {
 public:
  using Bound::Bound;
  static Class classObject();

  // Autoreleased.
  static CLLocation make(const model::Location& place);

 private:
  CLLocationCoordinate2D coordinate() const { return _coordinate; }
  NSObject initWithDegrees(double latitude, double longitude);

  CLLocationCoordinate2D _coordinate;
};

}  // namespace desktop::faces
