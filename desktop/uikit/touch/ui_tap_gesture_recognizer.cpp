// SPDX-License-Identifier: MIT
#include "desktop/uikit/touch/ui_tap_gesture_recognizer.h"

#include <cmath>

#include "bridge/class_builder.h"

namespace desktop::uikit {
namespace {

constexpr Seconds longestTap = 0.75;     // from down to up
constexpr Seconds longestPause = 0.35;   // between taps
constexpr CGFloat allowedMovement = 45;  // points

}  // namespace

Class UITapGestureRecognizer::classObject() {
  using Self = UITapGestureRecognizer;
  static const Class made =
      bridge::ClassBuilder<Self>("UITapGestureRecognizer")
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

UIGestureRecognizer& UITapGestureRecognizer::base() const {
  return UIGestureRecognizer::of(self());
}

// There is one finger only: more of them never come.
void UITapGestureRecognizer::touchesBegan(bridge::NSSet touches, bridge::UIEvent event) {
  base().setExpectsMoreTouches(false);
  if (_touchesRequired > 1) return base().become(State::failed);
  if (_taps == 0) _start = base().locationOnScreen();
  failAfter(longestTap);
  touchesMoved(touches, event);
}

void UITapGestureRecognizer::touchesMoved(bridge::NSSet, bridge::UIEvent) {
  const CGPoint location = base().locationOnScreen();
  if (std::hypot(location.x - _start.x, location.y - _start.y) > allowedMovement)
    base().become(State::failed);
}

void UITapGestureRecognizer::touchesEnded(bridge::NSSet touches, bridge::UIEvent event) {
  touchesMoved(touches, event);
  if (!base().isUndecided()) return;
  _limit.cancel();
  if (++_taps >= _tapsRequired) return base().become(State::ended);
  base().setExpectsMoreTouches(true);
  failAfter(longestPause);
}

void UITapGestureRecognizer::touchesCancelled(bridge::NSSet, bridge::UIEvent) {
  base().become(State::failed);
}

void UITapGestureRecognizer::failAfter(Seconds time) {
  _limit.callAfter(time, [this] { base().become(State::failed); });
}

void UITapGestureRecognizer::reset() {
  _limit.cancel();
  _taps = 0;
}

}  // namespace desktop::uikit
