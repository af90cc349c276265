// SPDX-License-Identifier: MIT
//
// UIToolbar: a row of bar items at the bottom of a screen.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_bars.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/bar_slots.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

class UIToolbarState : public Bound<UIToolbarState, UIViewState, UIToolbar> {
 public:
  explicit UIToolbarState(id self);
  static Class classObject();

  static constexpr CGFloat height = 44;  // points

  const ObjectList<UIBarButtonItem>& items() const { return _items; }
  void setItems(ObjectList<UIBarButtonItem> items);
  const std::vector<BarSlot>& slots() const { return _slots.slots(); }
  NSInteger barStyle() const { return _style; }

 private:
  UIView initWithFrame(CGRect frame);
  NSArray itemsArray() const { return arrayOrNil(_items); }
  void setItemsArray(NSArray items) { setItems(listOf<UIBarButtonItem>(items)); }
  void setItemsArrayAnimated(NSArray items, bool) { setItemsArray(items); }
  void setBarStyle(NSInteger style);
  void setTintColor(UIColor color);
  void itemChanged();
  CGSize sizeThatFits(CGSize size) const { return {size.width, height}; }
  void layoutSubviews();

  ObjectList<UIBarButtonItem> _items;
  Owned<UIView> _background;
  BarSlots _slots;
  NSInteger _style = 0;
};

}  // namespace desktop::uikit
