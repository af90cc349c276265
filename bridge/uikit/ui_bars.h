// SPDX-License-Identifier: MIT
//
// Navigation bars and what stands on them.
#pragma once

#include "bridge/uikit/ui_controls.h"

namespace bridge {

// What buttons on bars and tabs have in common.
struct UIBarItem : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UIBarItem">(); }

  NSString title() const { return send<NSString, "title">(*this); }
  void setTitle(NSString title) const { send<void, "setTitle:">(*this, title); }
  NSInteger tag() const { return send<NSInteger, "tag">(*this); }
  void setTag(NSInteger tag) const { send<void, "setTag:">(*this, tag); }
};

struct UIBarButtonItem : UIBarItem {
  using UIBarItem::UIBarItem;
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

  void setWidth(CGFloat width) const { send<void, "setWidth:">(*this, width); }
  CGFloat width() const { return send<CGFloat, "width">(*this); }
  // Nil where it is a plain one.
  UIView customView() const { return send<UIView, "customView">(*this); }
};

// The first of the right items is the right-most.
struct UINavigationItem : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UINavigationItem">(); }

  NSString title() const { return send<NSString, "title">(*this); }
  void setTitle(NSString title) const { send<void, "setTitle:">(*this, title); }
  // Nil where there are none.
  NSArray rightBarButtonItems() const { return send<NSArray, "rightBarButtonItems">(*this); }
  void setRightBarButtonItems(NSArray items) const {
    send<void, "setRightBarButtonItems:">(*this, items);
  }
  void setLeftBarButtonItems(NSArray items) const {
    send<void, "setLeftBarButtonItems:">(*this, items);
  }
  NSArray leftBarButtonItems() const { return send<NSArray, "leftBarButtonItems">(*this); }
  void setLargeTitleDisplayMode(NSInteger mode) const {
    send<void, "setLargeTitleDisplayMode:">(*this, mode);
  }
};

struct UINavigationBar : UIView {
  using UIView::UIView;
  static Class classObject() { return classNamed<"UINavigationBar">(); }

  NSInteger barStyle() const { return send<NSInteger, "barStyle">(*this); }
  void setBarStyle(NSInteger style) const { send<void, "setBarStyle:">(*this, style); }
  void setTintColor(UIColor color) const { send<void, "setTintColor:">(*this, color); }
  void setPrefersLargeTitles(bool prefers) const {
    send<void, "setPrefersLargeTitles:">(*this, prefers);
  }
};

// A view of a navigation bar that shows the title, small or large, of whatever class.
struct NavigationTitleView : UIView {
  using UIView::UIView;

  void setTitle(NSString title) const { send<void, "setTitle:">(*this, title); }
};

struct UIToolbar : UIView {
  using UIView::UIView;
  static Class classObject() { return classNamed<"UIToolbar">(); }

  void setItems(NSArray items) const { send<void, "setItems:">(*this, items); }
};

}  // namespace bridge
