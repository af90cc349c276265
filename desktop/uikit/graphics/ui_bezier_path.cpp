// SPDX-License-Identifier: MIT
#include "desktop/uikit/graphics/ui_bezier_path.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/encodings.h"

namespace desktop::uikit {

Class UIBezierPathState::classObject() {
  static const Class made =
      ClassBuilder<UIBezierPathState>("UIBezierPath")
          .classMethod<"bezierPathWithRect:", &UIBezierPathState::withRect>()
          .classMethod<"bezierPathWithRoundedRect:cornerRadius:",
                       &UIBezierPathState::withRoundedRect>()
          .classMethod<"bezierPathWithOvalInRect:", &UIBezierPathState::withOval>()
          .method<"CGPath", &UIBezierPathState::cgPath>()
          .method<"bounds", &UIBezierPathState::bounds>()
          .build();
  return made;
}

UIBezierPath UIBezierPathState::make(Path path) {
  auto made = makeNew<UIBezierPath>(classObject());
  if (made) of(made.get())._path = std::move(path);
  return made.autorelease();
}

const Path* UIBezierPathState::valueOf(Object path) {
  return isKindOf(path, classObject()) ? &of(path)._path : nullptr;
}

}  // namespace desktop::uikit
