// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/scroll_travel.h"

#include <algorithm>

namespace desktop::uikit {

ScrollTravel ScrollTravel::coasting(CGPoint from, CGPoint velocity, CGPoint least, CGPoint most,
                                    bool bounces) {
  return {.x = ScrollMotion::coasting(from.x, velocity.x, {least.x, most.x}, bounces),
          .y = ScrollMotion::coasting(from.y, velocity.y, {least.y, most.y}, bounces),
          .isCoasting = true};
}

ScrollTravel ScrollTravel::springing(CGPoint from, CGPoint velocity, CGPoint to) {
  return {.x = ScrollMotion::springing(from.x, velocity.x, to.x),
          .y = ScrollMotion::springing(from.y, velocity.y, to.y),
          .isCoasting = true};
}

ScrollTravel ScrollTravel::easing(CGPoint from, CGPoint to, Seconds duration) {
  return {.x = ScrollMotion::easing(from.x, to.x, duration),
          .y = ScrollMotion::easing(from.y, to.y, duration)};
}

Seconds ScrollTravel::duration() const {
  return std::max(x.duration(), y.duration());
}

}  // namespace desktop::uikit
