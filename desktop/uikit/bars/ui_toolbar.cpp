// SPDX-License-Identifier: MIT
#include "desktop/uikit/bars/ui_toolbar.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/uikit/bars/bar_background.h"
#include "desktop/uikit/bars/ui_bar_button_item.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat margin = 16;  // points, at the sides
constexpr CGFloat itemGap = 8;  // points, between two items

}  // namespace

Class UIToolbar::classObject() {
  static const Class made = bridge::ClassBuilder<UIToolbar>("UIToolbar")
                                .method<"initWithFrame:", &UIToolbar::initWithFrame>()
                                .method<"items", &UIToolbar::itemsArray>()
                                .method<"setItems:", &UIToolbar::setItemsArray>()
                                .method<"setItems:animated:", &UIToolbar::setItemsArrayAnimated>()
                                .method<"barStyle", &UIToolbar::barStyle>()
                                .method<"setBarStyle:", &UIToolbar::setBarStyle>()
                                .method<"setTintColor:", &UIToolbar::setTintColor>()
                                .method<"_itemChanged", &UIToolbar::itemChanged>()
                                .method<"sizeThatFits:", &UIToolbar::sizeThatFits>()
                                .method<"layoutSubviews", &UIToolbar::layoutSubviews>()
                                .build();
  return made;
}

UIToolbar::UIToolbar(id self) : Bound(self), _slots(bridge::UIView(self)) {}

bridge::UIView UIToolbar::initWithFrame(CGRect frame) {
  const auto object = super<bridge::UIView, "initWithFrame:">(frame);
  _background = BarBackground::make(BarBackground::Hairline::top);
  self().addSubview(_background);
  BarBackground::of(_background.get()).setLook(barColor(_style, true), barHairline(_style));
  return object;
}

void UIToolbar::setItems(ObjectList<bridge::UIBarButtonItem> items) {
  _items = std::move(items);
  itemChanged();
}

void UIToolbar::setBarStyle(NSInteger style) {
  _style = style;
  BarBackground::of(_background.get()).setLook(barColor(_style, true), barHairline(_style));
}

void UIToolbar::setTintColor(bridge::UIColor color) {
  super<void, "setTintColor:">(color);
  itemChanged();
}

void UIToolbar::itemChanged() {
  _slots.show(_items);
  UIView::of(self()).setNeedsLayout();
}

// Flexible spaces share what is left of the width.
void UIToolbar::layoutSubviews() {
  const CGSize size = self().bounds().size;
  _background->setFrame(rectOfSize(size));
  CGFloat used = 2 * margin;
  CGFloat springs = 0;
  for (const BarSlot& slot : _slots.slots()) {
    const bool isSpring =
        UIBarButtonItem::of(slot.item.get()).systemItem() == UIBarButtonItem::flexibleSpace;
    used += isSpring ? 0 : BarSlots::widthOf(slot, height) + (slot.view ? itemGap : 0);
    springs += isSpring ? 1 : 0;
  }
  const CGFloat spring = springs > 0 ? std::max(0.0, size.width - used + itemGap) / springs : 0;
  CGFloat x = margin;
  for (const BarSlot& slot : _slots.slots()) {
    BarSlots::place(slot, x, height);
    const bool isSpring =
        UIBarButtonItem::of(slot.item.get()).systemItem() == UIBarButtonItem::flexibleSpace;
    x += isSpring ? spring : BarSlots::widthOf(slot, height) + (slot.view ? itemGap : 0);
  }
}

}  // namespace desktop::uikit
