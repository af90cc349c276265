// SPDX-License-Identifier: MIT
#include "desktop/uikit/touch/ui_touch.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

Class UITouchState::classObject() {
  static const Class made =
      ClassBuilder<UITouchState>("UITouch")
          .method<"view", &UITouchState::view>()
          .method<"window", &UITouchState::window>()
          .method<"phase", &UITouchState::phaseNumber>()
          .method<"tapCount", &UITouchState::tapCount>()
          .method<"timestamp", &UITouchState::timestamp>()
          .method<"locationInView:", &UITouchState::locationIn>()
          .method<"previousLocationInView:", &UITouchState::previousLocationIn>()
          .build();
  return made;
}

Owned<UITouch> UITouchState::make(UIView view, CGPoint point, NSInteger taps) {
  auto touch = makeNew<UITouch>();
  UITouchState& state = of(touch.get());
  state._view = Owned<UIView>::retain(view);
  state._window = Owned<UIView>::retain(UIViewState::of(view).window());
  state._tapCount = taps;
  state._location = point;
  state.moveTo(point);
  return touch;
}

void UITouchState::moveTo(CGPoint point) {
  _previous = _location;
  _location = point;
  _timestamp = scheduler().now();
}

CGPoint UITouchState::locationIn(UIView view) const {
  return fromScreen(_location, view);
}

CGPoint UITouchState::previousLocationIn(UIView view) const {
  return fromScreen(_previous, view);
}

CGPoint fromScreen(CGPoint point, UIView view) {
  return view ? apply(inverse(UIViewState::of(view).toScreen()), point) : point;
}

}  // namespace desktop::uikit
