// SPDX-License-Identifier: MIT
//
// UINavigationItem: what a navigation bar shows of one screen.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_bars.h"
#include "desktop/uikit/base/object_list.h"

namespace desktop::uikit {

class UINavigationItem : public bridge::Bound<UINavigationItem, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  enum LargeTitle : NSInteger { automatic = 0, always = 1, never = 2 };
  using Items = ObjectList<bridge::UIBarButtonItem>;

  bridge::NSString title() const { return _title; }
  void setTitle(bridge::NSString title);
  bridge::UIView titleView() const { return _titleView; }
  const Items& leftItems() const { return _leftItems; }
  const Items& rightItems() const { return _rightItems; }  // the first is the right-most
  bridge::UIBarButtonItem backItem() const { return _backItem; }
  bool hidesBackButton() const { return _hidesBackButton; }
  bool keepsBackButton() const { return _keepsBackButton; }  // beside left items
  NSInteger largeTitleDisplayMode() const { return _largeTitle; }

  // The bar that has the item on its stack, or nil; set by that bar. Borrowed.
  void setBar(bridge::UIView bar) { _bar = bar; }

 private:
  bridge::NSObject initWithTitle(bridge::NSString title);
  void setTitleView(bridge::UIView view);
  bridge::NSArray leftArray() const { return arrayOrNil(_leftItems); }
  bridge::NSArray rightArray() const { return arrayOrNil(_rightItems); }
  void setLeftArray(bridge::NSArray items);
  void setRightArray(bridge::NSArray items);
  void setLeftArrayAnimated(bridge::NSArray items, bool) { setLeftArray(items); }
  void setRightArrayAnimated(bridge::NSArray items, bool) { setRightArray(items); }
  bridge::UIBarButtonItem leftItem() const;
  bridge::UIBarButtonItem rightItem() const;
  void setLeftItem(bridge::UIBarButtonItem item);
  void setRightItem(bridge::UIBarButtonItem item);
  void setLeftItemAnimated(bridge::UIBarButtonItem item, bool) { setLeftItem(item); }
  void setRightItemAnimated(bridge::UIBarButtonItem item, bool) { setRightItem(item); }
  void setBackItem(bridge::UIBarButtonItem item);
  void setHidesBackButton(bool hides);
  void setHidesBackButtonAnimated(bool hides, bool) { setHidesBackButton(hides); }
  void setKeepsBackButton(bool keeps);
  void setLargeTitleDisplayMode(NSInteger mode);

  // Has the bar show what is so now.
  void changed() const;

  bridge::Owned<bridge::NSString> _title;
  bridge::Owned<bridge::UIView> _titleView;
  Items _leftItems;
  Items _rightItems;
  bridge::Owned<bridge::UIBarButtonItem> _backItem;
  bridge::UIView _bar;
  NSInteger _largeTitle = automatic;
  bool _hidesBackButton = false;
  bool _keepsBackButton = false;
};

}  // namespace desktop::uikit
