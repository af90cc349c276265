// SPDX-License-Identifier: MIT
#include "desktop/uikit/bars/status_bar.h"

#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/canvas.h"

namespace desktop::uikit {
namespace {

constexpr std::u16string_view time = u"9:41";
constexpr FontFace face{.weight = FontWeight::semibold, .size = 12};

// Four bars of rising strength, all of them full.
void paintSignal(Canvas& canvas, CGFloat middleY, Color color) {
  constexpr CGFloat left = 8;
  for (int bar = 0; bar < 4; ++bar) {
    const CGFloat height = 3.5 + 2 * bar;
    canvas.fill({{left + 4.5 * bar, middleY + 5 - height}, {3, height}}, color, 0.75);
  }
}

void paintBattery(Canvas& canvas, CGFloat rightEdge, CGFloat middleY, Color color) {
  const CGRect body{{rightEdge - 25, middleY - 5}, {22, 10}};
  canvas.stroke(Path::roundedRect(body, 2.5), 1, color.withAlpha(0.4));
  canvas.fill(inset(body, 1.5, 1.5), color, 1.5);
  canvas.fill({{right(body) + 1.5, middleY - 2}, {1.5, 4}}, color.withAlpha(0.4), 0.75);
}

}  // namespace

void paintStatusBar(const StatusBar& bar, Canvas& canvas) {
  if (!bar.isShown) return;
  const Color color = bar.isLight ? colors::white : colors::black;
  const CGFloat width = screen().size.width;
  const CGFloat middleY = screen().statusBarHeight / 2;
  const FontMeasures measures = measuresOf(face);
  const CGFloat x = (width - textEngine().width(face, time)) / 2;
  canvas.text(time, face, color, {x, middleY + (measures.ascender + measures.descender) / 2});
  paintSignal(canvas, middleY, color);
  paintBattery(canvas, width - 4, middleY, color);
}

}  // namespace desktop::uikit
