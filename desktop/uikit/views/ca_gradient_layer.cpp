// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/ca_gradient_layer.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/graphics/ui_color.h"

namespace desktop::uikit {

Class CAGradientLayer::classObject() {
  static const Class made = bridge::ClassBuilder<CAGradientLayer>("CAGradientLayer")
                                .method<"colors", &CAGradientLayer::colorsArray>()
                                .method<"setColors:", &CAGradientLayer::setColors>()
                                .method<"startPoint", &CAGradientLayer::startPoint>()
                                .method<"setStartPoint:", &CAGradientLayer::setStartPoint>()
                                .method<"endPoint", &CAGradientLayer::endPoint>()
                                .method<"setEndPoint:", &CAGradientLayer::setEndPoint>()
                                .build();
  return made;
}

std::vector<Color> CAGradientLayer::colors() const {
  std::vector<Color> values;
  for (NSUInteger index = 0; index < _colors->count(); ++index)
    values.push_back(UIColor::valueOf(_colors->at(index)));
  return values;
}

void CAGradientLayer::setColors(bridge::NSArray colors) {
  _colors = bridge::Owned<bridge::NSArray>::adopt(bridge::send<bridge::NSArray, "copy">(colors));
}

}  // namespace desktop::uikit
