// SPDX-License-Identifier: MIT
//
// A finger that swipes near the top or the bottom of what is seen of a grid scrolls it, the faster
// the nearer the edge is, for as long as it stays there.
#pragma once

#include <functional>

#include "desktop/photos_ui/grid/grid_collection.h"
#include "desktop/uikit/base/pending_call.h"

namespace desktop::photos_ui {

// How fast a finger scrolls that is so far below the top of a room of some height, all in points;
// in points a second, upwards where it is negative.
CGFloat edgeSpeed(CGFloat y, CGFloat height);

class EdgeScrolling {
 public:
  // Of a grid that outlives it.
  explicit EdgeScrolling(const GridCollection& grid) : _grid(grid) {}

  // The finger is at a point of the grid's content. After each step of scrolling it is over another
  // one, and `scrolled` is called; with that place the next call of this comes.
  void follow(CGPoint finger, std::function<void()> scrolled);
  void stop();

 private:
  void step();

  const GridCollection& _grid;
  CGFloat _speed = 0;
  std::function<void()> _scrolled;
  uikit::PendingCall _next;
};

}  // namespace desktop::photos_ui
