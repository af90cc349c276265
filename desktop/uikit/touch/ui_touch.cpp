// SPDX-License-Identifier: MIT
#include "desktop/uikit/touch/ui_touch.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

Class UITouch::classObject() {
  static const Class made = bridge::ClassBuilder<UITouch>("UITouch")
                                .method<"view", &UITouch::view>()
                                .method<"window", &UITouch::window>()
                                .method<"phase", &UITouch::phaseNumber>()
                                .method<"tapCount", &UITouch::tapCount>()
                                .method<"timestamp", &UITouch::timestamp>()
                                .method<"locationInView:", &UITouch::locationIn>()
                                .method<"previousLocationInView:", &UITouch::previousLocationIn>()
                                .build();
  return made;
}

bridge::Owned<bridge::UITouch> UITouch::make(bridge::UIView view, CGPoint point, NSInteger taps) {
  auto touch = bridge::makeNew<bridge::UITouch>();
  UITouch& state = of(touch.get());
  state._view = bridge::Owned<bridge::UIView>::retain(view);
  state._window = bridge::Owned<bridge::UIView>::retain(UIView::of(view).window());
  state._tapCount = taps;
  state._location = point;
  state.moveTo(point);
  return touch;
}

void UITouch::moveTo(CGPoint point) {
  _previous = _location;
  _location = point;
  _timestamp = scheduler().now();
}

CGPoint UITouch::locationIn(bridge::UIView view) const {
  return fromScreen(_location, view);
}

CGPoint UITouch::previousLocationIn(bridge::UIView view) const {
  return fromScreen(_previous, view);
}

CGPoint fromScreen(CGPoint point, bridge::UIView view) {
  return view ? apply(inverse(UIView::of(view).toScreen()), point) : point;
}

}  // namespace desktop::uikit
