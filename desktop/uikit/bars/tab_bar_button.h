// SPDX-License-Identifier: MIT
//
// One item of a tab bar: its picture over its name.
#pragma once

#include <functional>

#include "bridge/bound.h"
#include "bridge/uikit/ui_bars.h"

namespace desktop::uikit {

class Canvas;

class TabBarButton : public bridge::Bound<TabBarButton, bridge::UIControl> {
 public:
  explicit TabBarButton(id self);
  static Class classObject();

  static bridge::Owned<bridge::UIView> make(bridge::NSObject item, std::function<void()> pressed);

  bridge::NSObject item() const { return _item; }
  // Shows what the item says now.
  void refresh(bool isSelected);

 private:
  bridge::UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  void press(bridge::Object sender);
  void drawContent(Canvas* canvas) const;

  bridge::Owned<bridge::NSObject> _item;
  bridge::Owned<bridge::UILabel> _label;
  std::function<void()> _pressed;
  bool _isSelected = false;
};

}  // namespace desktop::uikit
