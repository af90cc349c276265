// SPDX-License-Identifier: MIT
//
// UIPanGestureRecognizer: a finger that is dragged. It begins 10 points from where the finger came
// down, and counts its way from there.
#pragma once

#include <deque>

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/touch/ui_gesture_recognizer.h"

namespace desktop::uikit {

class UIPanGestureRecognizerState
    : public Bound<UIPanGestureRecognizerState, UIGestureRecognizerState, UIPanGestureRecognizer> {
 public:
  using Bound::Bound;
  static Class classObject();

  // In a view's coordinates; no view is the screen.
  CGPoint translationIn(UIView view) const;
  // In points a second, of the finger's last tenth of a second.
  CGPoint velocityIn(UIView view) const;

  // Which ways of the finger make it a pan, until said otherwise.
  void setWays(bool across, bool down);

 private:
  using State = UIGestureRecognizerState::State;

  void setTranslation(CGPoint translation, UIView view);
  NSUInteger minimumNumberOfTouches() const { return _minimumTouches; }
  void setMinimumNumberOfTouches(NSUInteger touches) { _minimumTouches = touches; }
  NSUInteger maximumNumberOfTouches() const { return _maximumTouches; }
  void setMaximumNumberOfTouches(NSUInteger touches) { _maximumTouches = touches; }
  void touchesBegan(NSSet touches, UIEvent event);
  void touchesMoved(NSSet touches, UIEvent event);
  void touchesEnded(NSSet touches, UIEvent event);
  void touchesCancelled(NSSet touches, UIEvent event);
  void reset();

  struct Sample {
    CGPoint location;
    Seconds time;
  };
  void note(CGPoint location);
  CGPoint velocityOnScreen() const;

  CGPoint _start;  // where the way is counted from, on the screen
  CGPoint _last;   // where the finger is
  std::deque<Sample> _samples;
  bool _goesAcross = true;
  bool _goesDown = true;
  NSUInteger _minimumTouches = 1;
  NSUInteger _maximumTouches = 10;
};

}  // namespace desktop::uikit
