// SPDX-License-Identifier: MIT
//
// UINavigationBar: title and buttons of the topmost of a stack of navigation items.
#pragma once

#include <functional>

#include "bridge/bound.h"
#include "bridge/uikit/ui_bars.h"
#include "desktop/uikit/base/object_list.h"

namespace desktop::uikit {

class UINavigationBar : public bridge::Bound<UINavigationBar, bridge::UIView> {
 public:
  using Items = ObjectList<bridge::UINavigationItem>;

  explicit UINavigationBar(id self);
  ~UINavigationBar();
  static Class classObject();

  enum BarStyle : NSInteger { standard = 0, black = 1 };

  NSInteger barStyle() const { return _style; }
  const Items& items() const { return _items; }  // from the bottom to the top
  bridge::UINavigationItem topItem() const;
  void setItems(Items items);
  // What the back button does, besides what is under the topmost item being shown again.
  void setBackAction(std::function<void()> action) { _backAction = std::move(action); }

  // The platform's two views for the title.
  bridge::UIView contentView() const { return _content; }
  bridge::UIView largeTitleView() const { return _largeTitle; }
  bool showsLargeTitle() const;
  // In points, by what is shown.
  CGFloat height() const;
  // Shows what the items say now.
  void itemsChanged();

 private:
  bridge::UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  CGSize sizeThatFits(CGSize size) const;
  void setBarStyle(NSInteger style);
  void setTintColor(bridge::UIColor color);
  bool isTranslucent() const { return _isTranslucent; }
  void setTranslucent(bool translucent);
  bridge::UIColor barTintColor() const { return _barTint; }
  void setBarTintColor(bridge::UIColor color);
  bool prefersLargeTitles() const { return _prefersLargeTitles; }
  void setPrefersLargeTitles(bool prefers);
  bridge::UINavigationItem backItem() const;
  bridge::NSArray itemsArray() const { return arrayOf(_items); }
  void setItemsArray(bridge::NSArray items) { setItems(listOf<bridge::UINavigationItem>(items)); }
  void setItemsArrayAnimated(bridge::NSArray items, bool) { setItemsArray(items); }
  void pushItem(bridge::UINavigationItem item, bool animated);
  bridge::UINavigationItem popItem(bool animated);
  bridge::NSObject delegate() const { return _delegate; }
  void setDelegate(bridge::NSObject delegate) { _delegate = delegate; }

  void back();
  void updateBackground();

  Items _items;
  std::function<void()> _backAction;
  bridge::Owned<bridge::UIView> _background;
  bridge::Owned<bridge::UIView> _content;
  bridge::Owned<bridge::UIView> _largeTitle;
  bridge::Owned<bridge::UIColor> _barTint;
  bridge::NSObject _delegate;  // borrowed
  NSInteger _style = standard;
  bool _isTranslucent = true;
  bool _prefersLargeTitles = false;
};

}  // namespace desktop::uikit
