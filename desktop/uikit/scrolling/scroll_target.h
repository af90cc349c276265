// SPDX-License-Identifier: MIT
//
// Where content is scrolled to show a part of it, in one direction. Lengths are in points.
#pragma once

#include "bridge/geometry.h"
#include "desktop/platform.h"

namespace desktop::uikit {

// What is seen: from the offset on, less what is covered at either end.
struct Sight {
  CGFloat offset = 0;
  CGFloat length = 0;
  CGFloat coveredBefore = 0;
  CGFloat coveredAfter = 0;
};

enum class ShownAt {
  nearest,  // as little as needed; of what is longer than the sight, the end shows
  start,
  middle,
  end
};

// The offset that shows the part of this length, which begins at `start`.
CGFloat offsetShowing(CGFloat start, CGFloat length, const Sight& sight, ShownAt where);

}  // namespace desktop::uikit
