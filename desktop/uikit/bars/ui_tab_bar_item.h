// SPDX-License-Identifier: MIT
//
// UITabBarItem: a name and a picture for one of the screens that a tab bar switches between.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_bars.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class UITabBarItem : public Bound<UITabBarItem, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // The platform's tab bar pictures that exist here; 0 is none.
  enum SystemPicture : NSInteger { none = 0, photos = 100, albums = 101 };

  static Owned<NSObject> make(NSString title, UIImage image, NSInteger picture);

  NSString title() const { return _title; }
  UIImage image() const { return _image; }
  NSInteger picture() const { return _picture; }  // drawn where there is no image
  NSInteger tag() const { return _tag; }
  NSString badgeValue() const { return _badge; }

  // The tab bar that shows it, or nil; set by that bar. Borrowed.
  void setBar(UIView bar) { _bar = bar; }

 private:
  NSObject initWithTitle(NSString title, UIImage image, NSInteger tag);
  void setTitle(NSString title);
  void setImage(UIImage image);
  void setPicture(NSInteger picture);
  void setTag(NSInteger tag) { _tag = tag; }
  void setBadgeValue(NSString badge);
  void changed() const;

  Owned<NSString> _title;
  Owned<UIImage> _image;
  Owned<NSString> _badge;
  UIView _bar;
  NSInteger _picture = none;
  NSInteger _tag = 0;
};

}  // namespace desktop::uikit
