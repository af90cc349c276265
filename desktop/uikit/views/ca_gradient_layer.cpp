// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/ca_gradient_layer.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/ui_color.h"

namespace desktop::uikit {

Class CAGradientLayerState::classObject() {
  static const Class made = ClassBuilder<CAGradientLayerState>("CAGradientLayer")
                                .classMethod<"layer", &CAGradientLayerState::layer>()
                                .method<"colors", &CAGradientLayerState::colorsArray>()
                                .method<"setColors:", &CAGradientLayerState::setColors>()
                                .method<"startPoint", &CAGradientLayerState::startPoint>()
                                .method<"setStartPoint:", &CAGradientLayerState::setStartPoint>()
                                .method<"endPoint", &CAGradientLayerState::endPoint>()
                                .method<"setEndPoint:", &CAGradientLayerState::setEndPoint>()
                                .build();
  return made;
}

CAGradientLayer CAGradientLayerState::layer() {
  return makeNew<CAGradientLayer>(classObject()).autorelease();
}

std::vector<Color> CAGradientLayerState::colors() const {
  std::vector<Color> values;
  for (NSUInteger index = 0; index < _colors->count(); ++index)
    values.push_back(UIColorState::valueOf(_colors->at(index)));
  return values;
}

void CAGradientLayerState::setColors(NSArray colors) {
  _colors = copy(colors);
}

}  // namespace desktop::uikit
