// SPDX-License-Identifier: MIT
//
// Navigation bars and what stands on them.
#pragma once

#include "bridge/uikit/ui_controls.h"

namespace bridge {

struct UIBarButtonItem : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UIBarButtonItem">(); }

  enum Style : NSInteger { plain = 0, done = 2 };
  enum SystemItem : NSInteger { fixedSpace = 6, action = 9, bookmarks = 11 };

  static Owned<UIBarButtonItem> withTitle(NSString title, Style style, NSObject target,
                                          SEL selector) {
    return makeWith<UIBarButtonItem, "initWithTitle:style:target:action:">(
        classObject(), title, NSInteger{style}, target, selector);
  }
  static Owned<UIBarButtonItem> withSystemItem(SystemItem item, NSObject target, SEL selector) {
    return makeWith<UIBarButtonItem, "initWithBarButtonSystemItem:target:action:">(
        classObject(), NSInteger{item}, target, selector);
  }
  static Owned<UIBarButtonItem> withCustomView(UIView view) {
    return makeWith<UIBarButtonItem, "initWithCustomView:">(classObject(), view);
  }

  void setTitle(NSString title) const { send<void, "setTitle:">(*this, title); }
  void setWidth(CGFloat width) const { send<void, "setWidth:">(*this, width); }
  void setTag(NSInteger tag) const { send<void, "setTag:">(*this, tag); }
};

// The first of the right items is the right-most.
struct UINavigationItem : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UINavigationItem">(); }

  void setTitle(NSString title) const { send<void, "setTitle:">(*this, title); }
  // Nil where there are none.
  NSArray rightBarButtonItems() const { return send<NSArray, "rightBarButtonItems">(*this); }
  void setRightBarButtonItems(NSArray items) const {
    send<void, "setRightBarButtonItems:">(*this, items);
  }
  void setLeftBarButtonItems(NSArray items) const {
    send<void, "setLeftBarButtonItems:">(*this, items);
  }
};

struct UINavigationBar : UIView {
  using UIView::UIView;
  static Class classObject() { return classNamed<"UINavigationBar">(); }

  NSInteger barStyle() const { return send<NSInteger, "barStyle">(*this); }
  void setBarStyle(NSInteger style) const { send<void, "setBarStyle:">(*this, style); }
  void setTintColor(UIColor color) const { send<void, "setTintColor:">(*this, color); }
};

struct UIToolbar : UIView {
  using UIView::UIView;
  static Class classObject() { return classNamed<"UIToolbar">(); }

  void setItems(NSArray items) const { send<void, "setItems:">(*this, items); }
};

}  // namespace bridge
