// SPDX-License-Identifier: MIT
//
// The thin bars at the edges of a scroll view that say where in the content one is, for a moment
// after it moved.
#pragma once

#include <array>

#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/scrolling/scroll_content.h"

namespace desktop::uikit {

class Canvas;

class ScrollIndicators {
 public:
  static constexpr Seconds shownFor = 0.5;  // after the last movement, then they fade

  bool showsVertical() const { return _showsVertical; }
  void setShowsVertical(bool shows) { _showsVertical = shows; }
  bool showsHorizontal() const { return _showsHorizontal; }
  void setShowsHorizontal(bool shows) { _showsHorizontal = shows; }

  // Where they lie, in the content's points; empty where there is nothing to say.
  using Bars = std::array<CGRect, 2>;
  Bars bars(CGRect seen, const ScrollContent& content) const;
  // The content moved.
  void show(Seconds now) { _shown = now; }
  // How much of them one sees, from 0 to 1; all of it where a finger holds the content.
  double alpha(Seconds now, bool isHeld) const;
  static void draw(Canvas& canvas, const Bars& bars, double alpha);

 private:
  bool _showsVertical = true;
  bool _showsHorizontal = true;
  Seconds _shown = -1'000;
};

}  // namespace desktop::uikit
