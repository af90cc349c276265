// SPDX-License-Identifier: MIT
#include "desktop/uikit/application/ui_screen.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/screen.h"

namespace desktop::uikit {

Class UIScreenState::classObject() {
  static const Class made = ClassBuilder<UIScreenState>("UIScreen")
                                .classMethod<"mainScreen", &UIScreenState::mainScreen>()
                                .method<"bounds", &UIScreenState::bounds>()
                                .method<"scale", &UIScreenState::scale>()
                                .build();
  return made;
}

UIScreen UIScreenState::mainScreen() {
  static const UIScreen screen = makeNew<UIScreen>().detach();
  return screen;
}

CGRect UIScreenState::bounds() const {
  return rectOfSize(screen().size);
}

CGFloat UIScreenState::scale() const {
  return screen().scale;
}

}  // namespace desktop::uikit
