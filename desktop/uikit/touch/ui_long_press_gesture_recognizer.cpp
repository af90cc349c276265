// SPDX-License-Identifier: MIT
#include "desktop/uikit/touch/ui_long_press_gesture_recognizer.h"

#include <cmath>

#include "bridge/class_builder.h"

namespace desktop::uikit {

Class UILongPressGestureRecognizer::classObject() {
  using Self = UILongPressGestureRecognizer;
  static const Class made =
      bridge::ClassBuilder<Self>("UILongPressGestureRecognizer")
          .method<"minimumPressDuration", &Self::minimumPressDuration>()
          .method<"setMinimumPressDuration:", &Self::setMinimumPressDuration>()
          .method<"allowableMovement", &Self::allowableMovement>()
          .method<"setAllowableMovement:", &Self::setAllowableMovement>()
          .method<"touchesBegan:withEvent:", &Self::touchesBegan>()
          .method<"touchesMoved:withEvent:", &Self::touchesMoved>()
          .method<"touchesEnded:withEvent:", &Self::touchesEnded>()
          .method<"touchesCancelled:withEvent:", &Self::touchesCancelled>()
          .method<"reset", &Self::reset>()
          .build();
  return made;
}

UIGestureRecognizer& UILongPressGestureRecognizer::base() const {
  return UIGestureRecognizer::of(self());
}

void UILongPressGestureRecognizer::touchesBegan(bridge::NSSet, bridge::UIEvent) {
  _start = base().locationOnScreen();
  _press.callAfter(_minimumPressDuration, [this] { base().become(State::began); });
}

void UILongPressGestureRecognizer::touchesMoved(bridge::NSSet, bridge::UIEvent) {
  if (base().isUnderWay()) return base().become(State::changed);
  const CGPoint location = base().locationOnScreen();
  if (std::hypot(location.x - _start.x, location.y - _start.y) > _allowableMovement)
    base().become(State::failed);
}

void UILongPressGestureRecognizer::touchesEnded(bridge::NSSet, bridge::UIEvent) {
  base().become(base().isUnderWay() ? State::ended : State::failed);
}

void UILongPressGestureRecognizer::touchesCancelled(bridge::NSSet, bridge::UIEvent) {
  base().become(State::cancelled);
}

void UILongPressGestureRecognizer::reset() {
  _press.cancel();
}

}  // namespace desktop::uikit
