// SPDX-License-Identifier: MIT
//
// The bar at the bottom of a thumbnail that marks a video and says how long it is.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
class Canvas;
}

namespace desktop::photos_ui {

// "0:09", "12:34" or "1:02:03"; whole seconds, of which there is at least one.
std::string durationText(double seconds);

class ItemBadge : public Bound<ItemBadge, uikit::UIViewState> {
 public:
  using Bound::Bound;
  static Class classObject();
  static constexpr CGFloat height = 20;  // points

  // Seconds; no length is shown where it is not known.
  void setDuration(double seconds);

 private:
  UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  void drawContent(uikit::Canvas* canvas) const;

  Owned<UILabel> _label;
};

}  // namespace desktop::photos_ui
