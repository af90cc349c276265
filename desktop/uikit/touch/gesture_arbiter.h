// SPDX-License-Identifier: MIT
//
// What gesture recognisers ask of the touches that they take part in, and tell them.
#pragma once

#include <vector>

#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class GestureArbiter {
 public:
  virtual ~GestureArbiter() = default;

  // While something happens with touches. Whoever waited for what was decided meanwhile hears of it
  // at the end of the outermost one.
  class Turn {
   public:
    explicit Turn(GestureArbiter& arbiter) : _arbiter(arbiter) { _arbiter.beginTurn(); }
    ~Turn() { _arbiter.endTurn(); }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

   private:
    const AutoreleasePool _pool;
    GestureArbiter& _arbiter;
  };

  using Recognizers = std::vector<Owned<UIGestureRecognizer>>;
  // All that take part in a touch which the recogniser takes part in, without itself.
  virtual Recognizers rivalsOf(UIGestureRecognizer recognizer) const = 0;
  virtual bool takesPart(UIGestureRecognizer recognizer) const = 0;
  // The view below the finger that the recogniser watches, or watched last; nil where it does not.
  virtual UIView touchedViewOf(UIGestureRecognizer recognizer) const = 0;
  // The touches that the recogniser takes part in are now its own.
  virtual void takeFromViews(UIGestureRecognizer recognizer) = 0;
  // It takes part in no touch any longer.
  virtual void forget(UIGestureRecognizer recognizer) = 0;

 private:
  virtual void beginTurn() = 0;
  virtual void endTurn() = 0;
};

// The dispatcher of this process's touches.
GestureArbiter& gestureArbiter();

}  // namespace desktop::uikit
