// SPDX-License-Identifier: MIT
//
// The two views of a navigation bar that carry the title, under the platform's names: the row with
// title and buttons, and the large title below it. Both are given the title by message, and hold
// the label that shows it as a direct subview.
#pragma once

#include <functional>
#include "desktop/uikit/views/ui_view.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_bars.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/bar_slots.h"
#include "desktop/uikit/graphics/color.h"

namespace desktop::uikit {

class NavigationBarContentView : public Bound<NavigationBarContentView, UIViewState> {
 public:
  explicit NavigationBarContentView(id self);
  static Class classObject();

  UILabel label() const { return _label; }
  // What is shown; nil where there is no way back.
  UIView backButton() const { return _backButton; }
  const std::vector<BarSlot>& leftSlots() const { return _left.slots(); }
  const std::vector<BarSlot>& rightSlots() const { return _right.slots(); }

  // Shows an item's views and buttons; nil shows nothing. The title comes by setTitle:.
  void show(UINavigationItem item);
  // A way back with the first of the titles that fits: none where there is no title at all.
  void showBack(NSString title, const std::function<void()>& pressed);
  void setTitleLook(Color color, bool isHidden);

 private:
  UIView initWithFrame(CGRect frame);
  NSString title() const { return _label->text(); }
  void setTitle(NSString title);
  void itemChanged();
  void layoutSubviews();
  CGFloat placeLeft();
  CGFloat placeRight();
  void placeTitle(CGFloat left, CGFloat right);
  CGFloat titleWidth() const;

  Owned<UILabel> _label;
  Owned<UIView> _titleView;
  Owned<UIView> _backButton;
  Owned<NSString> _backTitle;
  BarSlots _left;
  BarSlots _right;
  bool _isTitleHidden = false;
};

class NavigationBarLargeTitleView : public Bound<NavigationBarLargeTitleView, UIViewState> {
 public:
  explicit NavigationBarLargeTitleView(id self);
  static Class classObject();

  UILabel label() const { return _label; }

 private:
  UIView initWithFrame(CGRect frame);
  NSString title() const { return _label->text(); }
  void setTitle(NSString title);
  void layoutSubviews();

  Owned<UILabel> _label;
};

}  // namespace desktop::uikit
