// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/cells/cell_marks.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {
namespace {

constexpr CGPoint moved(CGPoint from, CGFloat right, CGFloat down) {
  return {from.x + right, from.y + down};
}

using uikit::Path;
namespace colors = uikit::colors;

// At the top, clear of what stands at the bottom of a thumbnail.
void drawTick(uikit::Canvas& canvas, CGRect bounds) {
  constexpr CGFloat side = 22;   // points
  constexpr CGFloat margin = 4;  // points
  const CGRect circle{{uikit::right(bounds) - side - margin, bounds.origin.y + margin},
                      {side, side}};
  canvas.fill(Path::ellipse(circle), colors::tint);
  canvas.stroke(Path::ellipse(uikit::inset(circle, 0.75, 0.75)), 1.5, colors::white);
  const CGPoint middle = uikit::middle(circle);
  Path tick;
  tick.moveTo(moved(middle, -4.5, 0.5))
      .lineTo(moved(middle, -1.5, 3.5))
      .lineTo(moved(middle, 4.5, -3.5));
  canvas.stroke(tick, 2, colors::white);
}

void drawPlus(uikit::Canvas& canvas, CGRect bounds) {
  const CGFloat arm = std::min({bounds.size.width, bounds.size.height, 80.0}) / 5;
  const CGPoint middle = uikit::middle(bounds);
  Path plus;
  plus.moveTo(moved(middle, -arm, 0)).lineTo(moved(middle, arm, 0));
  plus.moveTo(moved(middle, 0, -arm)).lineTo(moved(middle, 0, arm));
  canvas.fill(bounds, colors::groupedBackground, 0);
  canvas.stroke(plus, 2, colors::secondaryText);
}

}  // namespace

Class CellMark::classObject() {
  static const Class made =
      ClassBuilder<CellMark>("CellMark").method<"drawContentOn:", &CellMark::drawContent>().build();
  return made;
}

Owned<UIView> CellMark::make(Kind kind) {
  auto made = makeNew<UIView>(classObject());
  made->setUserInteractionEnabled(false);
  of(made.get()).setKind(kind);
  return made;
}

void CellMark::setKind(Kind kind) {
  if (kind == _kind) return;
  _kind = kind;
  setNeedsDisplay();
}

void CellMark::drawContent(uikit::Canvas* canvas) const {
  const CGRect bounds = shown().bounds;
  switch (_kind) {
    case Kind::pressed:
      canvas->fill(bounds, uikit::Color::white(0, 0.3), 0);
      break;
    case Kind::selected:
      canvas->fill(bounds, uikit::Color::white(1, 0.3), 0);
      drawTick(*canvas, bounds);
      break;
    case Kind::add:
      drawPlus(*canvas, bounds);
      break;
  }
}

}  // namespace desktop::photos_ui
