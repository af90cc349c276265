// SPDX-License-Identifier: MIT
//
// The fonts that the platform's own views are set in. Sizes are in points.
#pragma once

#include "desktop/uikit/text/ui_font.h"

namespace desktop::uikit {

inline UIFont semiboldFont(CGFloat size) {
  return UIFontState::make({.weight = FontWeight::semibold, .size = size});
}
inline UIFont boldFont(CGFloat size) {
  return UIFontState::make({.weight = FontWeight::bold, .size = size});
}

}  // namespace desktop::uikit
