// SPDX-License-Identifier: MIT
#include "desktop/faces/photos/cl_location.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::faces {

Class CLLocationState::classObject() {
  static const Class made =
      ClassBuilder<CLLocationState>("CLLocation")
          .method<"initWithLatitude:longitude:", &CLLocationState::initWithDegrees>()
          .method<"coordinate", &CLLocationState::coordinate>()
          .build();
  return made;
}

CLLocation CLLocationState::make(const model::Location& place) {
  auto made = makeNew<CLLocation>(classObject());
  if (made) of(made->get())._coordinate = {place.latitude, place.longitude};
  return made.autorelease();
}

NSObject CLLocationState::initWithDegrees(double latitude, double longitude) {
  _coordinate = {latitude, longitude};
  return self();
}

}  // namespace desktop::faces
