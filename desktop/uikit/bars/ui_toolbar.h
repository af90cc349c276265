// SPDX-License-Identifier: MIT
//
// UIToolbar: a row of bar items at the bottom of a screen.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_bars.h"
#include "desktop/uikit/bars/bar_slots.h"

namespace desktop::uikit {

class UIToolbar : public bridge::Bound<UIToolbar, bridge::UIView> {
 public:
  explicit UIToolbar(id self);
  static Class classObject();

  static constexpr CGFloat height = 44;  // points

  const ObjectList<bridge::UIBarButtonItem>& items() const { return _items; }
  void setItems(ObjectList<bridge::UIBarButtonItem> items);
  const std::vector<BarSlot>& slots() const { return _slots.slots(); }
  NSInteger barStyle() const { return _style; }

 private:
  bridge::UIView initWithFrame(CGRect frame);
  bridge::NSArray itemsArray() const { return arrayOrNil(_items); }
  void setItemsArray(bridge::NSArray items) { setItems(listOf<bridge::UIBarButtonItem>(items)); }
  void setItemsArrayAnimated(bridge::NSArray items, bool) { setItemsArray(items); }
  void setBarStyle(NSInteger style);
  void setTintColor(bridge::UIColor color);
  void itemChanged();
  CGSize sizeThatFits(CGSize size) const { return {size.width, height}; }
  void layoutSubviews();

  ObjectList<bridge::UIBarButtonItem> _items;
  bridge::Owned<bridge::UIView> _background;
  BarSlots _slots;
  NSInteger _style = 0;
};

}  // namespace desktop::uikit
