// SPDX-License-Identifier: MIT
#include "desktop/faces/photos/cl_location.h"

#include "bridge/class_builder.h"

namespace desktop::faces {

Class CLLocation::classObject() {
  static const Class made =
      bridge::ClassBuilder<CLLocation>("CLLocation")
          .method<"initWithLatitude:longitude:", &CLLocation::initWithDegrees>()
          .method<"coordinate", &CLLocation::coordinate>()
          .build();
  return made;
}

bridge::CLLocation CLLocation::make(const model::Location& place) {
  auto made = bridge::Owned<bridge::CLLocation>::adopt(
      bridge::send<bridge::CLLocation, "new">(classObject()));
  if (made) of(made->get())._coordinate = {place.latitude, place.longitude};
  return made.autorelease();
}

bridge::NSObject CLLocation::initWithDegrees(double latitude, double longitude) {
  _coordinate = {latitude, longitude};
  return self();
}

}  // namespace desktop::faces
