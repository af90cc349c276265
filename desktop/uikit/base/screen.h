// SPDX-License-Identifier: MIT
//
// The screen of this process: how large it is, and what of it needs painting again.
#pragma once

#include <vector>

#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"

namespace desktop::uikit {

// What needs painting again, in points of the screen.
class Damage {
 public:
  void add(CGRect rect);
  // What there is, at most a few rectangles; nothing is left.
  std::vector<CGRect> take();
  bool isEmpty() const { return _rects.empty(); }

 private:
  std::vector<CGRect> _rects;
};

struct Screen {
  CGSize size{375, 667};         // points
  CGFloat scale = 2;             // pixels a point
  CGFloat statusBarHeight = 20;  // points
  Damage damage;
};

Screen& screen();

}  // namespace desktop::uikit
