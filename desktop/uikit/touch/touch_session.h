// SPDX-License-Identifier: MIT
//
// One touch with all who watch it: which recognisers may still make it theirs, and what its view
// has been told. It lasts until the finger is up and everybody has decided.
#pragma once

#include <deque>
#include <vector>

#include "desktop/uikit/base/pending_call.h"
#include "desktop/uikit/touch/gesture_arbiter.h"
#include "desktop/uikit/touch/ui_touch.h"

namespace desktop::uikit {

class TouchSession {
 public:
  TouchSession(UITouch touch, UIEvent event);

  UITouch touch() const { return _touch; }
  const GestureArbiter::Recognizers& recognizers() const { return _recognizers; }
  bool has(UIGestureRecognizer recognizer) const;
  bool isFingerDown() const { return _isFingerDown; }
  // Whether something may still come of it.
  bool isOpen() const;

  // Tells the recognisers, then the view, unless a recogniser keeps that back.
  void deliver(UITouchState::Phase phase);
  // Tells the view what may be told by now. Whether there was something.
  bool flush();
  // The view hears that the touch is over, if it has heard of it at all.
  void cancelInView();
  void drop(UIGestureRecognizer recognizer);

 private:
  void findRecognizers();
  void holdForScrolling();
  void giveUpUndecided();
  bool isHeld(UITouchState::Phase phase) const;
  // A step of the touch, and where the finger was on the screen.
  struct Step {
    UITouchState::Phase phase;
    CGPoint at;
  };
  void tellView(const Step& step);

  Owned<UITouch> _touch;
  Owned<UIEvent> _event;
  GestureArbiter::Recognizers _recognizers;  // the touched view's first, then those around it
  std::deque<Step> _untold;                  // what the view has not been told yet
  PendingCall _scrolling;                    // waits whether the finger scrolls
  bool _isFingerDown = true;
  bool _viewKnows = false;
  bool _isOverForView = false;
};

}  // namespace desktop::uikit
