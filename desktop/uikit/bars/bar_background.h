// SPDX-License-Identifier: MIT
//
// What stands behind a bar's buttons: a plain, slightly translucent colour with a hairline on the
// side of the content.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/color.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

class Canvas;

class BarBackground : public Bound<BarBackground, UIViewState> {
 public:
  using Bound::Bound;
  static Class classObject();

  enum class Hairline { top, bottom };
  static Owned<UIView> make(Hairline side);

  void setLook(Color background, Color hairline);

 private:
  void drawContent(Canvas* canvas) const;

  Hairline _side = Hairline::top;
  Color _hairline;
};

// What bars of a style look like: white, or black for style 1.
Color barColor(NSInteger style, bool isTranslucent);
Color barHairline(NSInteger style);

}  // namespace desktop::uikit
