// SPDX-License-Identifier: MIT
//
// UITapGestureRecognizer: a finger that comes and goes at one place, once or several times.
#pragma once

#include "bridge/bound.h"
#include "desktop/uikit/base/pending_call.h"
#include "desktop/uikit/touch/ui_gesture_recognizer.h"

namespace desktop::uikit {

class UITapGestureRecognizer
    : public bridge::Bound<UITapGestureRecognizer, bridge::UIGestureRecognizer> {
 public:
  using Bound::Bound;
  static Class classObject();

  NSUInteger numberOfTapsRequired() const { return _tapsRequired; }

 private:
  using State = UIGestureRecognizer::State;

  UIGestureRecognizer& base() const;
  void setNumberOfTapsRequired(NSUInteger taps) { _tapsRequired = taps > 0 ? taps : 1; }
  NSUInteger numberOfTouchesRequired() const { return _touchesRequired; }
  void setNumberOfTouchesRequired(NSUInteger touches) { _touchesRequired = touches; }
  void touchesBegan(bridge::NSSet touches, bridge::UIEvent event);
  void touchesMoved(bridge::NSSet touches, bridge::UIEvent event);
  void touchesEnded(bridge::NSSet touches, bridge::UIEvent event);
  void touchesCancelled(bridge::NSSet touches, bridge::UIEvent event);
  void reset();
  void failAfter(Seconds time);

  NSUInteger _tapsRequired = 1;
  NSUInteger _touchesRequired = 1;
  NSUInteger _taps = 0;  // so far
  CGPoint _start;        // of the first tap, on the screen
  PendingCall _limit;
};

}  // namespace desktop::uikit
