// SPDX-License-Identifier: MIT
#include "desktop/uikit/graphics/ui_bezier_path.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/graphics/encodings.h"

namespace desktop::uikit {

Class UIBezierPath::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIBezierPath>("UIBezierPath")
          .classMethod<"bezierPathWithRect:", &UIBezierPath::withRect>()
          .classMethod<"bezierPathWithRoundedRect:cornerRadius:", &UIBezierPath::withRoundedRect>()
          .classMethod<"bezierPathWithOvalInRect:", &UIBezierPath::withOval>()
          .method<"CGPath", &UIBezierPath::cgPath>()
          .method<"bounds", &UIBezierPath::bounds>()
          .build();
  return made;
}

bridge::UIBezierPath UIBezierPath::make(Path path) {
  auto made = bridge::Owned<bridge::UIBezierPath>::adopt(
      bridge::send<bridge::UIBezierPath, "new">(classObject()));
  if (made) of(made.get())._path = std::move(path);
  return made.autorelease();
}

const Path* UIBezierPath::valueOf(bridge::Object path) {
  return bridge::isKindOf(path, classObject()) ? &of(path)._path : nullptr;
}

}  // namespace desktop::uikit
