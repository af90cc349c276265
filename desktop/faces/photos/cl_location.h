// SPDX-License-Identifier: MIT
//
// CLLocation: a place on the earth.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "model/geometry.h"

namespace desktop::faces {

class CLLocation : public bridge::Bound<CLLocation, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // Autoreleased.
  static bridge::CLLocation make(const model::Location& place);

 private:
  bridge::CLLocationCoordinate2D coordinate() const { return _coordinate; }
  bridge::NSObject initWithDegrees(double latitude, double longitude);

  bridge::CLLocationCoordinate2D _coordinate;
};

}  // namespace desktop::faces
