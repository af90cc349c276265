// SPDX-License-Identifier: MIT
//
// The pictures of buttons that come with one: an "i" or a plus in a circle.
#pragma once

#include "desktop/uikit/controls/ui_button.h"

namespace desktop::uikit {

inline constexpr CGSize symbolSize{22, 22};  // points

// REQUIRES: the type is one with a symbol.
void drawSymbol(UIButton::Type type, CGRect rect, Color color, Canvas& canvas);

}  // namespace desktop::uikit
