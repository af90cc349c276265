// SPDX-License-Identifier: MIT
//
// UITouch: a finger from the moment it comes down until it leaves the screen.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/uikit/base/scheduler.h"

namespace desktop::uikit {

class UITouch : public bridge::Bound<UITouch, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  enum Phase : NSInteger { began, moved, stationary, ended, cancelled };

  // A finger that comes down on a view at a point of the screen, the taps counted in a row.
  static bridge::Owned<bridge::UITouch> make(bridge::UIView view, CGPoint point, NSInteger taps);

  // The view it came down on, which it keeps alive.
  bridge::UIView view() const { return _view; }
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
  bridge::UIView window() const { return _window; }
  CGPoint locationIn(bridge::UIView view) const;
  CGPoint previousLocationIn(bridge::UIView view) const;
  NSInteger phaseNumber() const { return _phase; }

  bridge::Owned<bridge::UIView> _view;
  bridge::Owned<bridge::UIView> _window;
  CGPoint _location;
  CGPoint _previous;
  Phase _phase = began;
  NSInteger _tapCount = 1;
  Seconds _timestamp = 0;
};

// A point of the screen in a view's coordinates; no view is the screen.
CGPoint fromScreen(CGPoint point, bridge::UIView view);

}  // namespace desktop::uikit
