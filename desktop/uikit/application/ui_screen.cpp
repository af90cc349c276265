// SPDX-License-Identifier: MIT
#include "desktop/uikit/application/ui_screen.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/screen.h"

namespace desktop::uikit {

Class UIScreen::classObject() {
  static const Class made = bridge::ClassBuilder<UIScreen>("UIScreen")
                                .classMethod<"mainScreen", &UIScreen::mainScreen>()
                                .method<"bounds", &UIScreen::bounds>()
                                .method<"scale", &UIScreen::scale>()
                                .build();
  return made;
}

bridge::UIScreen UIScreen::mainScreen() {
  static const bridge::UIScreen screen = bridge::makeNew<bridge::UIScreen>().detach();
  return screen;
}

CGRect UIScreen::bounds() const {
  return rectOfSize(screen().size);
}

CGFloat UIScreen::scale() const {
  return screen().scale;
}

}  // namespace desktop::uikit
