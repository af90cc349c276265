// SPDX-License-Identifier: MIT
//
// UITapGestureRecognizer: a finger that comes and goes at one place, once or several times.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/pending_call.h"
#include "desktop/uikit/touch/ui_gesture_recognizer.h"

namespace desktop::uikit {

class UITapGestureRecognizerState
    : public Bound<UITapGestureRecognizerState, UIGestureRecognizerState, UITapGestureRecognizer> {
 public:
  using Bound::Bound;
  static Class classObject();

  NSUInteger numberOfTapsRequired() const { return _tapsRequired; }

 private:
  using State = UIGestureRecognizerState::State;

  void setNumberOfTapsRequired(NSUInteger taps) { _tapsRequired = taps > 0 ? taps : 1; }
  NSUInteger numberOfTouchesRequired() const { return _touchesRequired; }
  void setNumberOfTouchesRequired(NSUInteger touches) { _touchesRequired = touches; }
  void touchesBegan(NSSet touches, UIEvent event);
  void touchesMoved(NSSet touches, UIEvent event);
  void touchesEnded(NSSet touches, UIEvent event);
  void touchesCancelled(NSSet touches, UIEvent event);
  void reset();
  void failAfter(Seconds time);

  NSUInteger _tapsRequired = 1;
  NSUInteger _touchesRequired = 1;
  NSUInteger _taps = 0;  // so far
  CGPoint _start;        // of the first tap, on the screen
  PendingCall _limit;
};

}  // namespace desktop::uikit
