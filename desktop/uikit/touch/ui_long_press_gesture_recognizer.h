// SPDX-License-Identifier: MIT
//
// UILongPressGestureRecognizer: a finger that stays where it came down. It begins while the finger
// is still there, follows it, and ends with it.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/pending_call.h"
#include "desktop/uikit/touch/ui_gesture_recognizer.h"

namespace desktop::uikit {

class UILongPressGestureRecognizerState
    : public Bound<UILongPressGestureRecognizerState, UIGestureRecognizerState,
                   UILongPressGestureRecognizer> {
 public:
  using Bound::Bound;
  static Class classObject();

  Seconds minimumPressDuration() const { return _minimumPressDuration; }
  CGFloat allowableMovement() const { return _allowableMovement; }

 private:
  using State = UIGestureRecognizerState::State;

  void setMinimumPressDuration(Seconds duration) { _minimumPressDuration = duration; }
  void setAllowableMovement(CGFloat points) { _allowableMovement = points; }
  void touchesBegan(NSSet touches, UIEvent event);
  void touchesMoved(NSSet touches, UIEvent event);
  void touchesEnded(NSSet touches, UIEvent event);
  void touchesCancelled(NSSet touches, UIEvent event);
  void reset();

  Seconds _minimumPressDuration = 0.5;
  CGFloat _allowableMovement = 10;
  CGPoint _start;  // on the screen
  PendingCall _press;
};

}  // namespace desktop::uikit
