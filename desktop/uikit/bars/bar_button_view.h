// SPDX-License-Identifier: MIT
//
// What a bar shows of an item that is a button: a word or a picture that takes touches; also the
// button that leads back.
#pragma once

#include <functional>
#include <string>
#include "desktop/uikit/controls/ui_control.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_bars.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/color.h"

namespace desktop::uikit {

class Canvas;

class BarButtonView : public Bound<BarButtonView, UIControlState> {
 public:
  explicit BarButtonView(id self);
  static Class classObject();

  static Owned<UIView> make(UIBarButtonItem item);
  static Owned<UIView> makeBack(NSString title, std::function<void()> pressed);

  // Nil for the back button.
  UIBarButtonItem item() const { return _item; }
  bool isBack() const { return static_cast<bool>(_pressed); }
  // The word on it, or what its picture is called, as UTF-8.
  std::string name() const;
  // Shows what the item says now. A pressed button pales.
  void refresh();
  void setTitle(NSString title);

 private:
  UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  CGSize sizeThatFits(CGSize size) const;
  bool pointInside(CGPoint point, UIEvent event) const;
  void setHighlighted(bool highlighted);
  NSString accessibilityLabel() const;
  void press(Object sender);
  void drawContent(Canvas* canvas) const;

  bool hasText() const;
  CGFloat textStart() const;
  Color color() const;

  Owned<UIBarButtonItem> _item;
  Owned<UILabel> _label;
  std::function<void()> _pressed;  // of the back button
};

}  // namespace desktop::uikit
