// SPDX-License-Identifier: MIT
//
// UITouch: a finger from the moment it comes down until it leaves the screen.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/scheduler.h"

namespace desktop::uikit {

class UITouchState : public Bound<UITouchState, NSObject, UITouch> {
 public:
  using Bound::Bound;
  static Class classObject();

  enum Phase : NSInteger { began, moved, stationary, ended, cancelled };

  // A finger that comes down on a view at a point of the screen, the taps counted in a row.
  static Owned<UITouch> make(UIView view, CGPoint point, NSInteger taps);

  // The view it came down on, which it keeps alive.
  UIView view() const { return _view; }
  Phase phase() const { return _phase; }
  // On the screen.
  CGPoint location() const { return _location; }
  NSInteger tapCount() const { return _tapCount; }
  Seconds timestamp() const { return _timestamp; }

  void setPhase(Phase phase) { _phase = phase; }
  // REQUIRES: both coordinates are finite.
  void moveTo(CGPoint point);
  // Puts it there without a move: for telling what was before.
  void setLocation(CGPoint point) { _location = point; }

 private:
  UIView window() const { return _window; }
  CGPoint locationIn(UIView view) const;
  CGPoint previousLocationIn(UIView view) const;
  NSInteger phaseNumber() const { return _phase; }

  Owned<UIView> _view;
  Owned<UIView> _window;
  CGPoint _location;
  CGPoint _previous;
  Phase _phase = began;
  NSInteger _tapCount = 1;
  Seconds _timestamp = 0;
};

// A point of the screen in a view's coordinates; no view is the screen.
CGPoint fromScreen(CGPoint point, UIView view);

}  // namespace desktop::uikit
