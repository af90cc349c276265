// SPDX-License-Identifier: MIT
//
// The fonts that the platform's own views are set in.
#pragma once

#include "bridge/uikit/ui_appearance.h"

namespace desktop::uikit {

// Sizes are in points; autoreleased.
inline bridge::UIFont semiboldFont(CGFloat size) {
  constexpr CGFloat semibold = 0.3;
  return bridge::send<bridge::UIFont, "systemFontOfSize:weight:">(bridge::UIFont::classObject(),
                                                                  size, semibold);
}
inline bridge::UIFont boldFont(CGFloat size) {
  return bridge::send<bridge::UIFont, "boldSystemFontOfSize:">(bridge::UIFont::classObject(), size);
}

}  // namespace desktop::uikit
