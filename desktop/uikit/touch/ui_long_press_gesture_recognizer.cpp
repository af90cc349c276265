// SPDX-License-Identifier: MIT
#include "desktop/uikit/touch/ui_long_press_gesture_recognizer.h"

#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::uikit {

Class UILongPressGestureRecognizerState::classObject() {
  using Self = UILongPressGestureRecognizerState;
  static const Class made =
      ClassBuilder<Self>("UILongPressGestureRecognizer")
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

void UILongPressGestureRecognizerState::touchesBegan(NSSet, UIEvent) {
  _start = locationOnScreen();
  _press.callAfter(_minimumPressDuration, [this] { become(State::began); });
}

void UILongPressGestureRecognizerState::touchesMoved(NSSet, UIEvent) {
  if (isUnderWay()) return become(State::changed);
  const CGPoint location = locationOnScreen();
  if (std::hypot(location.x - _start.x, location.y - _start.y) > _allowableMovement)
    become(State::failed);
}

void UILongPressGestureRecognizerState::touchesEnded(NSSet, UIEvent) {
  become(isUnderWay() ? State::ended : State::failed);
}

void UILongPressGestureRecognizerState::touchesCancelled(NSSet, UIEvent) {
  become(State::cancelled);
}

void UILongPressGestureRecognizerState::reset() {
  _press.cancel();
}

}  // namespace desktop::uikit
