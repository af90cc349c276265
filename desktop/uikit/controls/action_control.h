// SPDX-License-Identifier: MIT
//
// A control with a title that does something of ours when it is pressed: the buttons of alerts,
// sheets and menus.
#pragma once

#include <functional>
#include "desktop/uikit/controls/ui_control.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/color.h"

namespace desktop::uikit {

class ActionControl : public Bound<ActionControl, UIControlState> {
 public:
  explicit ActionControl(id self);
  static Class classObject();

  struct Look {
    NSString title;
    CGFloat fontSize = 17;  // points
    bool isSemibold = false;
    Color color = colors::tint;
    Color pressedBackground = colors::highlight;
    CGFloat margin = 16;  // points at the left and right of the title
  };
  // A new control; +1. The action is kept until the control goes.
  static Owned<UIControl> make(const Look& look, std::function<void()> action);

  UILabel label() const { return _label; }

 private:
  UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  CGSize sizeThatFits(CGSize size) const;
  void setHighlighted(bool highlighted);
  void setEnabled(bool enabled);
  void pressed(Object sender);

  Owned<UILabel> _label;
  std::function<void()> _action;
  Color _color;
  Color _pressedBackground;
  CGFloat _margin = 0;
};

}  // namespace desktop::uikit
