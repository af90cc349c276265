// SPDX-License-Identifier: MIT
//
// The pictures of buttons that come with one: an "i" or a plus in a circle.
#pragma once

#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/graphics/color.h"

namespace desktop::uikit {

class Canvas;

enum class ButtonSymbol { info, plus };
inline constexpr CGSize symbolSize{22, 22};  // points

void drawSymbol(ButtonSymbol symbol, CGRect rect, Color color, Canvas& canvas);

}  // namespace desktop::uikit
