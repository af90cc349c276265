// SPDX-License-Identifier: MIT
//
// UILongPressGestureRecognizer: a finger that stays where it came down. It begins while the finger
// is still there, follows it, and ends with it.
#pragma once

#include "bridge/bound.h"
#include "desktop/uikit/base/pending_call.h"
#include "desktop/uikit/touch/ui_gesture_recognizer.h"

namespace desktop::uikit {

class UILongPressGestureRecognizer
    : public bridge::Bound<UILongPressGestureRecognizer, bridge::UIGestureRecognizer> {
 public:
  using Bound::Bound;
  static Class classObject();

  Seconds minimumPressDuration() const { return _minimumPressDuration; }
  CGFloat allowableMovement() const { return _allowableMovement; }

 private:
  using State = UIGestureRecognizer::State;

  UIGestureRecognizer& base() const;
  void setMinimumPressDuration(Seconds duration) { _minimumPressDuration = duration; }
  void setAllowableMovement(CGFloat points) { _allowableMovement = points; }
  void touchesBegan(bridge::NSSet touches, bridge::UIEvent event);
  void touchesMoved(bridge::NSSet touches, bridge::UIEvent event);
  void touchesEnded(bridge::NSSet touches, bridge::UIEvent event);
  void touchesCancelled(bridge::NSSet touches, bridge::UIEvent event);
  void reset();

  Seconds _minimumPressDuration = 0.5;
  CGFloat _allowableMovement = 10;
  CGPoint _start;  // on the screen
  PendingCall _press;
};

}  // namespace desktop::uikit
