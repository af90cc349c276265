// SPDX-License-Identifier: MIT
//
// UITabBar: pictures with names, one of which is selected.
#pragma once

#include <functional>
#include "desktop/uikit/views/ui_view.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_bars.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/object_list.h"

namespace desktop::uikit {

class UITabBar : public Bound<UITabBar, UIViewState> {
 public:
  using Bound::Bound;
  ~UITabBar();
  static Class classObject();

  static constexpr CGFloat height = 49;  // points

  const ObjectList<NSObject>& items() const { return _items; }
  void setItems(ObjectList<NSObject> items);
  NSObject selectedItem() const { return _selected; }
  void setSelectedItem(NSObject item);
  // Called with the place of an item that was pressed.
  void setPressed(std::function<void(NSUInteger)> pressed) { _pressed = std::move(pressed); }

 private:
  UIView initWithFrame(CGRect frame);
  NSArray itemsArray() const { return arrayOrNil(_items); }
  void setItemsArray(NSArray items) { setItems(listOf<NSObject>(items)); }
  NSInteger barStyle() const { return _style; }
  void setBarStyle(NSInteger style);
  void setTintColor(UIColor color);
  void itemsChanged();
  CGSize sizeThatFits(CGSize size) const { return {size.width, height}; }
  void layoutSubviews();

  ObjectList<NSObject> _items;
  ObjectList<UIView> _buttons;
  NSObject _selected;  // one of the items, or nil
  Owned<UIView> _background;
  std::function<void(NSUInteger)> _pressed;
  NSInteger _style = 0;
};

}  // namespace desktop::uikit
