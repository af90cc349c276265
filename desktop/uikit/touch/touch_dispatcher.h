// SPDX-License-Identifier: MIT
//
// The way of a finger: from the screen to the view below it, and to the gesture recognisers of
// that view and of the views around it.
#pragma once

#include <memory>
#include <vector>

#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/touch/gesture_arbiter.h"

namespace desktop::uikit {

class TouchSession;

// One finger at a time: another one that comes down cancels the first. Points are of the screen;
// those that are not finite are ignored.
class TouchDispatcher : public GestureArbiter {
 public:
  TouchDispatcher();
  ~TouchDispatcher() override;
  TouchDispatcher(const TouchDispatcher&) = delete;
  TouchDispatcher& operator=(const TouchDispatcher&) = delete;

  void down(CGPoint point);
  void move(CGPoint point);
  void up(CGPoint point);
  // The finger is taken away by something else: nothing comes of what it did.
  void cancel();
  bool isDown() const { return static_cast<bool>(_current); }

  // A wheel turned over a point: scrolls the innermost scroll view there that can still move that
  // way. The distance is added to the content offset: positive y shows what is further down.
  void scroll(CGPoint at, CGPoint distance);

  // Forgets every touch, and taps so far, without telling anybody.
  void abandon();

  // For recognisers.
  Recognizers rivalsOf(UIGestureRecognizer recognizer) const override;
  bool takesPart(UIGestureRecognizer recognizer) const override;
  UIView touchedViewOf(UIGestureRecognizer recognizer) const override;
  void takeFromViews(UIGestureRecognizer recognizer) override;
  void forget(UIGestureRecognizer recognizer) override;

 private:
  using Session = std::shared_ptr<TouchSession>;

  void beginTurn() override { ++_turns; }
  void endTurn() override;
  UIView viewAt(CGPoint point, UIEvent event) const;
  NSInteger tapsWith(CGPoint point) const;
  void finish(CGPoint point, bool isCancelled);
  void tidy();
  bool tidyOnce();
  void release(const Session& session);

  Session _current;                // null while no finger is down
  std::vector<Session> _sessions;  // the current one last; before it those still undecided
  CGPoint _lastUp;
  Seconds _lastUpTime = 0;
  NSInteger _taps = 0;  // in a row, up to the last touch
  int _turns = 0;       // how deep in events this is
};

// The touches of this process.
TouchDispatcher& touches();

}  // namespace desktop::uikit
