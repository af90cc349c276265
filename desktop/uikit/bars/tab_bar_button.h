// SPDX-License-Identifier: MIT
//
// One item of a tab bar: its picture over its name.
#pragma once

#include <functional>
#include "desktop/uikit/controls/ui_control.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_bars.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class Canvas;

class TabBarButton : public Bound<TabBarButton, UIControlState> {
 public:
  explicit TabBarButton(id self);
  static Class classObject();

  static Owned<UIView> make(NSObject item, std::function<void()> pressed);

  NSObject item() const { return _item; }
  // Shows what the item says now.
  void refresh(bool isSelected);

 private:
  UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  void press(Object sender);
  void drawContent(Canvas* canvas) const;

  Owned<NSObject> _item;
  Owned<UILabel> _label;
  std::function<void()> _pressed;
  bool _isSelected = false;
};

}  // namespace desktop::uikit
