// SPDX-License-Identifier: MIT
//
// UITabBar: pictures with names, one of which is selected.
#pragma once

#include <functional>

#include "bridge/bound.h"
#include "bridge/uikit/ui_bars.h"
#include "desktop/uikit/base/object_list.h"

namespace desktop::uikit {

class UITabBar : public bridge::Bound<UITabBar, bridge::UIView> {
 public:
  using Bound::Bound;
  ~UITabBar();
  static Class classObject();

  static constexpr CGFloat height = 49;  // points

  const ObjectList<bridge::NSObject>& items() const { return _items; }
  void setItems(ObjectList<bridge::NSObject> items);
  bridge::NSObject selectedItem() const { return _selected; }
  void setSelectedItem(bridge::NSObject item);
  // Called with the place of an item that was pressed.
  void setPressed(std::function<void(NSUInteger)> pressed) { _pressed = std::move(pressed); }

 private:
  bridge::UIView initWithFrame(CGRect frame);
  bridge::NSArray itemsArray() const { return arrayOrNil(_items); }
  void setItemsArray(bridge::NSArray items) { setItems(listOf<bridge::NSObject>(items)); }
  NSInteger barStyle() const { return _style; }
  void setBarStyle(NSInteger style);
  void setTintColor(bridge::UIColor color);
  void itemsChanged();
  CGSize sizeThatFits(CGSize size) const { return {size.width, height}; }
  void layoutSubviews();

  ObjectList<bridge::NSObject> _items;
  ObjectList<bridge::UIView> _buttons;
  bridge::NSObject _selected;  // one of the items, or nil
  bridge::Owned<bridge::UIView> _background;
  std::function<void(NSUInteger)> _pressed;
  NSInteger _style = 0;
};

}  // namespace desktop::uikit
