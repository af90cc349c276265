// SPDX-License-Identifier: MIT
#include "desktop/uikit/bars/ui_tab_bar.h"

#include <utility>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/bar_background.h"
#include "desktop/uikit/bars/tab_bar_button.h"
#include "desktop/uikit/bars/ui_tab_bar_item.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

Class UITabBar::classObject() {
  static const Class made = ClassBuilder<UITabBar>("UITabBar")
                                .method<"initWithFrame:", &UITabBar::initWithFrame>()
                                .method<"items", &UITabBar::itemsArray>()
                                .method<"setItems:", &UITabBar::setItemsArray>()
                                .method<"selectedItem", &UITabBar::selectedItem>()
                                .method<"setSelectedItem:", &UITabBar::setSelectedItem>()
                                .method<"barStyle", &UITabBar::barStyle>()
                                .method<"setBarStyle:", &UITabBar::setBarStyle>()
                                .method<"setTintColor:", &UITabBar::setTintColor>()
                                .method<"_itemsChanged", &UITabBar::itemsChanged>()
                                .method<"sizeThatFits:", &UITabBar::sizeThatFits>()
                                .method<"layoutSubviews", &UITabBar::layoutSubviews>()
                                .build();
  return made;
}

UITabBar::~UITabBar() {
  for (const auto& item : _items) UITabBarItem::of(item.get()).setBar({});
}

UIView UITabBar::initWithFrame(CGRect frame) {
  const auto object = super<UIView, "initWithFrame:">(frame);
  _background = BarBackground::make(BarBackground::Hairline::top);
  self().addSubview(_background);
  setBarStyle(_style);
  return object;
}

void UITabBar::setItems(ObjectList<NSObject> items) {
  std::erase_if(
      items, [](const auto& item) { return !isKindOf(item.get(), UITabBarItem::classObject()); });
  for (const auto& item : _items) UITabBarItem::of(item.get()).setBar({});
  for (const auto& button : std::exchange(_buttons, {})) button->removeFromSuperview();
  _items = std::move(items);
  _selected = _items.empty() ? NSObject() : _items.front().get();
  for (NSUInteger index = 0; index < _items.size(); ++index) {
    UITabBarItem::of(_items[index].get()).setBar(self());
    _buttons.push_back(TabBarButton::make(_items[index], [this, index] {
      if (_pressed) _pressed(index);
    }));
    self().addSubview(_buttons.back());
  }
  itemsChanged();
}

void UITabBar::setSelectedItem(NSObject item) {
  _selected = item;
  itemsChanged();
}

void UITabBar::setBarStyle(NSInteger style) {
  _style = style;
  BarBackground::of(_background.get()).setLook(barColor(style, true), barHairline(style));
}

void UITabBar::setTintColor(UIColor color) {
  super<void, "setTintColor:">(color);
  itemsChanged();
}

void UITabBar::itemsChanged() {
  for (const auto& button : _buttons) {
    TabBarButton& state = TabBarButton::of(button.get());
    state.refresh(state.item() == _selected);
  }
  setNeedsLayout();
}

void UITabBar::layoutSubviews() {
  const CGSize size = self().bounds().size;
  _background->setFrame(rectOfSize(size));
  const CGFloat width = size.width / static_cast<CGFloat>(_buttons.size());
  CGFloat x = 0;
  for (const auto& button : _buttons) {
    button->setFrame({{x, 0}, {width, height}});
    x += width;
  }
}

}  // namespace desktop::uikit
