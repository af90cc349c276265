// SPDX-License-Identifier: MIT
#include "desktop/uikit/touch/ui_tap_gesture_recognizer.h"

#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::uikit {
namespace {

constexpr Seconds longestTap = 0.75;     // from down to up
constexpr Seconds longestPause = 0.35;   // between taps
constexpr CGFloat allowedMovement = 45;  // points

}  // namespace

Class UITapGestureRecognizerState::classObject() {
  using Self = UITapGestureRecognizerState;
  static const Class made =
      ClassBuilder<Self>("UITapGestureRecognizer")
          .method<"numberOfTapsRequired", &Self::numberOfTapsRequired>()
          .method<"setNumberOfTapsRequired:", &Self::setNumberOfTapsRequired>()
          .method<"numberOfTouchesRequired", &Self::numberOfTouchesRequired>()
          .method<"setNumberOfTouchesRequired:", &Self::setNumberOfTouchesRequired>()
          .method<"touchesBegan:withEvent:", &Self::touchesBegan>()
          .method<"touchesMoved:withEvent:", &Self::touchesMoved>()
          .method<"touchesEnded:withEvent:", &Self::touchesEnded>()
          .method<"touchesCancelled:withEvent:", &Self::touchesCancelled>()
          .method<"reset", &Self::reset>()
          .build();
  return made;
}

// There is one finger only: more of them never come.
void UITapGestureRecognizerState::touchesBegan(NSSet touches, UIEvent event) {
  setExpectsMoreTouches(false);
  if (_touchesRequired > 1) return become(State::failed);
  if (_taps == 0) _start = locationOnScreen();
  failAfter(longestTap);
  touchesMoved(touches, event);
}

void UITapGestureRecognizerState::touchesMoved(NSSet, UIEvent) {
  const CGPoint location = locationOnScreen();
  if (std::hypot(location.x - _start.x, location.y - _start.y) > allowedMovement)
    become(State::failed);
}

void UITapGestureRecognizerState::touchesEnded(NSSet touches, UIEvent event) {
  touchesMoved(touches, event);
  if (!isUndecided()) return;
  _limit.cancel();
  if (++_taps >= _tapsRequired) return become(State::ended);
  setExpectsMoreTouches(true);
  failAfter(longestPause);
}

void UITapGestureRecognizerState::touchesCancelled(NSSet, UIEvent) {
  become(State::failed);
}

void UITapGestureRecognizerState::failAfter(Seconds time) {
  _limit.callAfter(time, [this] { become(State::failed); });
}

void UITapGestureRecognizerState::reset() {
  _limit.cancel();
  _taps = 0;
}

}  // namespace desktop::uikit
