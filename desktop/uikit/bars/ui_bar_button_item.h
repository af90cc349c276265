// SPDX-License-Identifier: MIT
//
// UIBarButtonItem: what stands for a button, a view or a space on a bar.
#pragma once

#include <optional>
#include <string_view>

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_bars.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/color.h"

namespace desktop::uikit {

class UIBarButtonItemState : public Bound<UIBarButtonItemState, NSObject, UIBarButtonItem> {
 public:
  using Bound::Bound;
  static Class classObject();

  enum Style : NSInteger { plain = 0, bordered = 1, done = 2 };
  // The platform's system items that are no button.
  enum Space : NSInteger { flexibleSpace = 5, fixedSpace = 6 };

  // Its own title, or that of its system item, or nil.
  NSString title() const { return _title; }
  std::optional<NSInteger> systemItem() const { return _systemItem; }
  UIView customView() const { return _customView; }
  UIImage image() const { return _image; }
  NSInteger style() const { return _style; }
  NSObject target() const { return _target; }  // borrowed; nil is the responder chain
  SEL action() const { return _action; }
  CGFloat width() const { return _width; }  // points; 0 is as wide as the content
  NSInteger tag() const { return _tag; }
  bool isEnabled() const { return _isEnabled; }
  // Its own colour, where it has one.
  std::optional<Color> tint() const;
  bool isSpace() const { return _systemItem == flexibleSpace || _systemItem == fixedSpace; }

  // The view that shows the item at present, or nil; set by that view. Borrowed.
  void setShownBy(UIView view) { _shownBy = view; }
  UIView shownBy() const { return _shownBy; }
  // Does what a press on the item does: the action goes to the target, or from the responder on
  // to whoever answers it first.
  void press(UIResponder from);

 private:
  NSObject initWithTitle(NSString title, NSInteger style, NSObject target, SEL action);
  NSObject initWithImage(UIImage image, NSInteger style, NSObject target, SEL action);
  NSObject initWithSystemItem(NSInteger item, NSObject target, SEL action);
  NSObject initWithCustomView(UIView view);
  void setTitle(NSString title);
  void setImage(UIImage image);
  void setCustomView(UIView view);
  void setStyle(NSInteger style);
  void setWidth(CGFloat width);
  void setTag(NSInteger tag) { _tag = tag; }
  void setEnabled(bool enabled);
  void setTarget(NSObject target) { _target = target; }
  void setAction(SEL action) { _action = action; }
  UIColor tintColor() const { return _tintColor; }
  void setTintColor(UIColor color);

  // Has the bar show what is so now.
  void changed() const;

  Owned<NSString> _title;
  Owned<UIImage> _image;
  Owned<UIView> _customView;
  Owned<UIColor> _tintColor;
  std::optional<NSInteger> _systemItem;
  NSObject _target;
  SEL _action = nullptr;
  UIView _shownBy;
  NSInteger _style = plain;
  CGFloat _width = 0;
  NSInteger _tag = 0;
  bool _isEnabled = true;
};

// What a system item that is a word reads as; empty for the others.
std::string_view systemItemTitle(NSInteger item);

}  // namespace desktop::uikit
