// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/button_symbols.h"

#include "desktop/uikit/graphics/canvas.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat lineWidth = 1;

void drawPlus(CGPoint mid, Color color, Canvas& canvas) {
  constexpr CGFloat arm = 5;
  canvas.stroke(Path().moveTo({mid.x - arm, mid.y}).lineTo({mid.x + arm, mid.y}), lineWidth, color);
  canvas.stroke(Path().moveTo({mid.x, mid.y - arm}).lineTo({mid.x, mid.y + arm}), lineWidth, color);
}

// A dot, a stem with a serif to its left, and a foot.
void drawLetterI(CGPoint mid, Color color, Canvas& canvas) {
  constexpr CGFloat stemWidth = 1.5;
  canvas.fill(Path::ellipse({{mid.x - 1.25, mid.y - 6}, {2.5, 2.5}}), color);
  canvas.stroke(Path()
                    .moveTo({mid.x - 1.5, mid.y - 1.5})
                    .lineTo({mid.x + 0.25, mid.y - 1.5})
                    .lineTo({mid.x + 0.25, mid.y + 5}),
                stemWidth, color);
  canvas.stroke(Path().moveTo({mid.x - 2, mid.y + 5}).lineTo({mid.x + 2.5, mid.y + 5}), stemWidth,
                color);
}

}  // namespace

void drawSymbol(ButtonSymbol symbol, CGRect rect, Color color, Canvas& canvas) {
  canvas.stroke(Path::ellipse(inset(rect, lineWidth / 2, lineWidth / 2)), lineWidth, color);
  if (symbol == ButtonSymbol::plus)
    drawPlus(middle(rect), color, canvas);
  else
    drawLetterI(middle(rect), color, canvas);
}

}  // namespace desktop::uikit
