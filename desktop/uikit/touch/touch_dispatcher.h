// SPDX-License-Identifier: MIT
//
// The way of a finger: from the screen to the view below it, and to the gesture recognisers of
// that view and of the views around it.
#pragma once

#include <memory>
#include <vector>

#include "bridge/uikit/ui_view.h"
#include "desktop/uikit/base/scheduler.h"

namespace desktop::uikit {

class TouchSession;

// One finger at a time: another one that comes down cancels the first. Points are of the screen;
// those that are not finite are ignored.
class TouchDispatcher {
 public:
  TouchDispatcher();
  ~TouchDispatcher();
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

  // Forgets every touch without telling anybody.
  void abandon();

  // For recognisers and views.

  // While something happens with touches. Whoever waited for what was decided meanwhile hears of it
  // at the end of the outermost one.
  class Turn {
   public:
    explicit Turn(TouchDispatcher& dispatcher);
    ~Turn();
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

   private:
    const bridge::AutoreleasePool _pool;
    TouchDispatcher& _dispatcher;
  };

  using Recognizers = std::vector<bridge::Owned<bridge::UIGestureRecognizer>>;
  // All that take part in a touch which the recogniser takes part in, without itself.
  Recognizers rivalsOf(bridge::UIGestureRecognizer recognizer) const;
  bool takesPart(bridge::UIGestureRecognizer recognizer) const;
  // The view below the finger that the recogniser watches, or watched last; nil where it does not.
  bridge::UIView touchedViewOf(bridge::UIGestureRecognizer recognizer) const;
  // The touches that the recogniser takes part in are now its own.
  void takeFromViews(bridge::UIGestureRecognizer recognizer);
  // It takes part in no touch any longer.
  void forget(bridge::UIGestureRecognizer recognizer);

 private:
  using Session = std::shared_ptr<TouchSession>;

  bridge::UIView viewAt(CGPoint point, bridge::UIEvent event) const;
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

}  // namespace desktop::uikit
