// SPDX-License-Identifier: MIT
//
// What a bar shows of an item that is a button: a word or a picture that takes touches; also the
// button that leads back.
#pragma once

#include <functional>
#include <string>

#include "bridge/bound.h"
#include "bridge/uikit/ui_bars.h"
#include "desktop/uikit/graphics/color.h"

namespace desktop::uikit {

class Canvas;

class BarButtonView : public bridge::Bound<BarButtonView, bridge::UIControl> {
 public:
  explicit BarButtonView(id self);
  static Class classObject();

  static bridge::Owned<bridge::UIView> make(bridge::UIBarButtonItem item);
  static bridge::Owned<bridge::UIView> makeBack(bridge::NSString title,
                                                std::function<void()> pressed);

  // Nil for the back button.
  bridge::UIBarButtonItem item() const { return _item; }
  bool isBack() const { return static_cast<bool>(_pressed); }
  // The word on it, or what its picture is called, as UTF-8.
  std::string name() const;
  // Shows what the item says now. A pressed button pales.
  void refresh();
  void setTitle(bridge::NSString title);

 private:
  bridge::UIView initWithFrame(CGRect frame);
  void layoutSubviews();
  CGSize sizeThatFits(CGSize size) const;
  bool pointInside(CGPoint point, bridge::UIEvent event) const;
  void setHighlighted(bool highlighted);
  bridge::NSString accessibilityLabel() const;
  void press(bridge::Object sender);
  void drawContent(Canvas* canvas) const;

  bool hasText() const;
  CGFloat textStart() const;
  Color color() const;

  bridge::Owned<bridge::UIBarButtonItem> _item;
  bridge::Owned<bridge::UILabel> _label;
  std::function<void()> _pressed;  // of the back button
};

}  // namespace desktop::uikit
