// SPDX-License-Identifier: MIT
//
// UITabBarItem: a name and a picture for one of the screens that a tab bar switches between.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_bars.h"

namespace desktop::uikit {

class UITabBarItem : public bridge::Bound<UITabBarItem, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // The platform's tab bar pictures that exist here; 0 is none.
  enum SystemPicture : NSInteger { none = 0, photos = 100, albums = 101 };

  static bridge::Owned<bridge::NSObject> make(bridge::NSString title, bridge::UIImage image,
                                              NSInteger picture);

  bridge::NSString title() const { return _title; }
  bridge::UIImage image() const { return _image; }
  NSInteger picture() const { return _picture; }  // drawn where there is no image
  NSInteger tag() const { return _tag; }
  bridge::NSString badgeValue() const { return _badge; }

  // The tab bar that shows it, or nil; set by that bar. Borrowed.
  void setBar(bridge::UIView bar) { _bar = bar; }

 private:
  bridge::NSObject initWithTitle(bridge::NSString title, bridge::UIImage image, NSInteger tag);
  void setTitle(bridge::NSString title);
  void setImage(bridge::UIImage image);
  void setPicture(NSInteger picture);
  void setTag(NSInteger tag) { _tag = tag; }
  void setBadgeValue(bridge::NSString badge);
  void changed() const;

  bridge::Owned<bridge::NSString> _title;
  bridge::Owned<bridge::UIImage> _image;
  bridge::Owned<bridge::NSString> _badge;
  bridge::UIView _bar;
  NSInteger _picture = none;
  NSInteger _tag = 0;
};

}  // namespace desktop::uikit
