// SPDX-License-Identifier: MIT
#include "desktop/uikit/bars/bar_background.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

Class BarBackground::classObject() {
  static const Class made = ClassBuilder<BarBackground>("_UIBarBackground")
                                .method<"drawContentOn:", &BarBackground::drawContent>()
                                .build();
  return made;
}

Owned<UIView> BarBackground::make(Hairline side) {
  auto made = makeNew<UIView>(classObject());
  of(made.get())._side = side;
  made->setUserInteractionEnabled(false);
  return made;
}

void BarBackground::setLook(Color background, Color hairline) {
  self().setBackgroundColor(UIColorState::make(background));
  if (hairline == _hairline) return;
  _hairline = hairline;
  setNeedsDisplay();
}

void BarBackground::drawContent(Canvas* canvas) const {
  const CGRect bounds = self().bounds();
  const CGFloat width = 1 / screen().scale;
  const CGFloat y = _side == Hairline::top ? 0 : bounds.size.height - width;
  canvas->fill({{0, y}, {bounds.size.width, width}}, _hairline, 0);
}

Color barColor(NSInteger style, bool isTranslucent) {
  const Color opaque = style == 0 ? Color::white(0.973) : Color::white(0.07);
  return isTranslucent ? opaque.withAlpha(style == 0 ? 0.95 : 0.87) : opaque;
}

Color barHairline(NSInteger style) {
  return style == 0 ? Color::white(0, 0.3) : Color::white(1, 0.15);
}

}  // namespace desktop::uikit
