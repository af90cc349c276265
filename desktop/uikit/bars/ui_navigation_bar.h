// SPDX-License-Identifier: MIT
//
// UINavigationBar: title and buttons of the topmost of a stack of navigation items.
#pragma once

#include <functional>
#include "desktop/uikit/views/ui_view.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_bars.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/object_list.h"

namespace desktop::uikit {

class UINavigationBarState : public Bound<UINavigationBarState, UIViewState, UINavigationBar> {
 public:
  using Items = ObjectList<UINavigationItem>;

  explicit UINavigationBarState(id self);
  ~UINavigationBarState();
  static Class classObject();

  enum BarStyle : NSInteger { standard = 0, black = 1 };

  NSInteger barStyle() const { return _style; }
  const Items& items() const { return _items; }  // from the bottom to the top
  UINavigationItem topItem() const;
  void setItems(Items items);
  // What the back button does, besides what is under the topmost item being shown again.
  void setBackAction(std::function<void()> action) { _backAction = std::move(action); }

  // The platform's two views for the title.
  UIView contentView() const { return _content; }
  UIView largeTitleView() const { return _largeTitle; }
  bool showsLargeTitle() const;
  // In points, by what is shown.
  CGFloat height() const;
  // Shows what the items say now.
  void itemsChanged();

 private:
  UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  CGSize sizeThatFits(CGSize size) const;
  void setBarStyle(NSInteger style);
  void setTintColor(UIColor color);
  bool isTranslucent() const { return _isTranslucent; }
  void setTranslucent(bool translucent);
  UIColor barTintColor() const { return _barTint; }
  void setBarTintColor(UIColor color);
  bool prefersLargeTitles() const { return _prefersLargeTitles; }
  void setPrefersLargeTitles(bool prefers);
  UINavigationItem backItem() const;
  NSArray itemsArray() const { return arrayOf(_items); }
  void setItemsArray(NSArray items) { setItems(listOf<UINavigationItem>(items)); }
  void setItemsArrayAnimated(NSArray items, bool) { setItemsArray(items); }
  void pushItem(UINavigationItem item, bool animated);
  UINavigationItem popItem(bool animated);
  NSObject delegate() const { return _delegate; }
  void setDelegate(NSObject delegate) { _delegate = delegate; }

  void back();
  void updateBackground();

  Items _items;
  std::function<void()> _backAction;
  Owned<UIView> _background;
  Owned<UIView> _content;
  Owned<UIView> _largeTitle;
  Owned<UIColor> _barTint;
  NSObject _delegate;  // borrowed
  NSInteger _style = standard;
  bool _isTranslucent = true;
  bool _prefersLargeTitles = false;
};

}  // namespace desktop::uikit
