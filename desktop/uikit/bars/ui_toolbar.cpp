// SPDX-License-Identifier: MIT
#include "desktop/uikit/bars/ui_toolbar.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/bar_background.h"
#include "desktop/uikit/bars/ui_bar_button_item.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat margin = 16;  // points, at the sides
constexpr CGFloat itemGap = 8;  // points, between two items

}  // namespace

Class UIToolbarState::classObject() {
  static const Class made =
      ClassBuilder<UIToolbarState>("UIToolbar")
          .method<"initWithFrame:", &UIToolbarState::initWithFrame>()
          .method<"items", &UIToolbarState::itemsArray>()
          .method<"setItems:", &UIToolbarState::setItemsArray>()
          .method<"setItems:animated:", &UIToolbarState::setItemsArrayAnimated>()
          .method<"barStyle", &UIToolbarState::barStyle>()
          .method<"setBarStyle:", &UIToolbarState::setBarStyle>()
          .method<"setTintColor:", &UIToolbarState::setTintColor>()
          .method<"_itemChanged", &UIToolbarState::itemChanged>()
          .method<"sizeThatFits:", &UIToolbarState::sizeThatFits>()
          .method<"layoutSubviews", &UIToolbarState::layoutSubviews>()
          .build();
  return made;
}

UIToolbarState::UIToolbarState(id self) : Bound(self), _slots(UIView(self)) {}

UIView UIToolbarState::initWithFrame(CGRect frame) {
  const auto object = super<UIView, "initWithFrame:">(frame);
  _background = BarBackground::make(BarBackground::Hairline::top);
  self().addSubview(_background);
  BarBackground::of(_background.get()).setLook(barColor(_style, true), barHairline(_style));
  return object;
}

void UIToolbarState::setItems(ObjectList<UIBarButtonItem> items) {
  _items = std::move(items);
  itemChanged();
}

void UIToolbarState::setBarStyle(NSInteger style) {
  _style = style;
  BarBackground::of(_background.get()).setLook(barColor(_style, true), barHairline(_style));
}

void UIToolbarState::setTintColor(UIColor color) {
  super<void, "setTintColor:">(color);
  itemChanged();
}

void UIToolbarState::itemChanged() {
  _slots.show(_items);
  setNeedsLayout();
}

// Flexible spaces share what is left of the width.
void UIToolbarState::layoutSubviews() {
  const CGSize size = self().bounds().size;
  _background->setFrame(rectOfSize(size));
  CGFloat used = 2 * margin;
  CGFloat springs = 0;
  for (const BarSlot& slot : _slots.slots()) {
    const bool isSpring = UIBarButtonItemState::of(slot.item.get()).systemItem() ==
                          UIBarButtonItemState::flexibleSpace;
    used += isSpring ? 0 : BarSlots::widthOf(slot, height) + (slot.view ? itemGap : 0);
    springs += isSpring ? 1 : 0;
  }
  const CGFloat spring = springs > 0 ? std::max(0.0, size.width - used + itemGap) / springs : 0;
  CGFloat x = margin;
  for (const BarSlot& slot : _slots.slots()) {
    BarSlots::place(slot, x, height);
    const bool isSpring = UIBarButtonItemState::of(slot.item.get()).systemItem() ==
                          UIBarButtonItemState::flexibleSpace;
    x += isSpring ? spring : BarSlots::widthOf(slot, height) + (slot.view ? itemGap : 0);
  }
}

}  // namespace desktop::uikit
