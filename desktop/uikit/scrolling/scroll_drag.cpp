// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/scroll_drag.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace desktop::uikit {
namespace {

constexpr CGFloat pagingVelocity = 200;  // points a second, from where on a page is turned

CGFloat pageAt(CGFloat offset, CGFloat begin, CGFloat velocity, CGFloat page) {
  if (!(page > 0)) return offset;
  const CGFloat first = std::round(begin / page);
  CGFloat wanted = std::round(offset / page);
  if (std::abs(velocity) > pagingVelocity) wanted = first + (velocity > 0 ? 1 : -1);
  return std::clamp(wanted, first - 1, first + 1) * page;
}

}  // namespace

void ScrollDrag::begin(CGPoint offset, CGPoint way, CGPoint velocity, bool isLocked) {
  const bool goesDown =
      std::abs(way.y) + std::abs(velocity.y) >= std::abs(way.x) + std::abs(velocity.x);
  _isUnderWay = true;
  _start = offset;
  _locksAcross = isLocked && goesDown;
  _locksDown = isLocked && !goesDown;
}

bool ScrollDrag::end() {
  return std::exchange(_isUnderWay, false);
}

CGPoint ScrollDrag::along(CGPoint way, bool across, bool down) const {
  return {across && !_locksAcross ? way.x : 0, down && !_locksDown ? way.y : 0};
}

CGPoint ScrollDrag::pageNear(CGPoint offset, CGPoint velocity, CGSize page) const {
  return {pageAt(offset.x, _start.x, velocity.x, page.width),
          pageAt(offset.y, _start.y, velocity.y, page.height)};
}

}  // namespace desktop::uikit
