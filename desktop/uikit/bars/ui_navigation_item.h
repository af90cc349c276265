// SPDX-License-Identifier: MIT
//
// UINavigationItem: what a navigation bar shows of one screen.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_bars.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/object_list.h"

namespace desktop::uikit {

class UINavigationItemState : public Bound<UINavigationItemState, NSObject, UINavigationItem> {
 public:
  using Bound::Bound;
  static Class classObject();

  enum LargeTitle : NSInteger { automatic = 0, always = 1, never = 2 };
  using Items = ObjectList<UIBarButtonItem>;

  NSString title() const { return _title; }
  void setTitle(NSString title);
  UIView titleView() const { return _titleView; }
  const Items& leftItems() const { return _leftItems; }
  const Items& rightItems() const { return _rightItems; }  // the first is the right-most
  UIBarButtonItem backItem() const { return _backItem; }
  bool hidesBackButton() const { return _hidesBackButton; }
  bool keepsBackButton() const { return _keepsBackButton; }  // beside left items
  NSInteger largeTitleDisplayMode() const { return _largeTitle; }

  // The bar that has the item on its stack, or nil; set by that bar. Borrowed.
  void setBar(UIView bar) { _bar = bar; }

 private:
  NSObject initWithTitle(NSString title);
  void setTitleView(UIView view);
  NSArray leftArray() const { return arrayOrNil(_leftItems); }
  NSArray rightArray() const { return arrayOrNil(_rightItems); }
  void setLeftArray(NSArray items);
  void setRightArray(NSArray items);
  void setLeftArrayAnimated(NSArray items, bool) { setLeftArray(items); }
  void setRightArrayAnimated(NSArray items, bool) { setRightArray(items); }
  UIBarButtonItem leftItem() const;
  UIBarButtonItem rightItem() const;
  void setLeftItem(UIBarButtonItem item);
  void setRightItem(UIBarButtonItem item);
  void setLeftItemAnimated(UIBarButtonItem item, bool) { setLeftItem(item); }
  void setRightItemAnimated(UIBarButtonItem item, bool) { setRightItem(item); }
  void setBackItem(UIBarButtonItem item);
  void setHidesBackButton(bool hides);
  void setHidesBackButtonAnimated(bool hides, bool) { setHidesBackButton(hides); }
  void setKeepsBackButton(bool keeps);
  void setLargeTitleDisplayMode(NSInteger mode);

  // Has the bar show what is so now.
  void changed() const;

  Owned<NSString> _title;
  Owned<UIView> _titleView;
  Items _leftItems;
  Items _rightItems;
  Owned<UIBarButtonItem> _backItem;
  UIView _bar;
  NSInteger _largeTitle = automatic;
  bool _hidesBackButton = false;
  bool _keepsBackButton = false;
};

}  // namespace desktop::uikit
