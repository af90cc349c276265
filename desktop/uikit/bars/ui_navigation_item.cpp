// SPDX-License-Identifier: MIT
#include "desktop/uikit/bars/ui_navigation_item.h"

#include "bridge/class_builder.h"

namespace desktop::uikit {

Class UINavigationItem::classObject() {
  static const Class made =
      bridge::ClassBuilder<UINavigationItem>("UINavigationItem")
          .method<"initWithTitle:", &UINavigationItem::initWithTitle>()
          .method<"title", &UINavigationItem::title>()
          .method<"setTitle:", &UINavigationItem::setTitle>()
          .method<"titleView", &UINavigationItem::titleView>()
          .method<"setTitleView:", &UINavigationItem::setTitleView>()
          .method<"leftBarButtonItem", &UINavigationItem::leftItem>()
          .method<"setLeftBarButtonItem:", &UINavigationItem::setLeftItem>()
          .method<"setLeftBarButtonItem:animated:", &UINavigationItem::setLeftItemAnimated>()
          .method<"leftBarButtonItems", &UINavigationItem::leftArray>()
          .method<"setLeftBarButtonItems:", &UINavigationItem::setLeftArray>()
          .method<"setLeftBarButtonItems:animated:", &UINavigationItem::setLeftArrayAnimated>()
          .method<"rightBarButtonItem", &UINavigationItem::rightItem>()
          .method<"setRightBarButtonItem:", &UINavigationItem::setRightItem>()
          .method<"setRightBarButtonItem:animated:", &UINavigationItem::setRightItemAnimated>()
          .method<"rightBarButtonItems", &UINavigationItem::rightArray>()
          .method<"setRightBarButtonItems:", &UINavigationItem::setRightArray>()
          .method<"setRightBarButtonItems:animated:", &UINavigationItem::setRightArrayAnimated>()
          .method<"backBarButtonItem", &UINavigationItem::backItem>()
          .method<"setBackBarButtonItem:", &UINavigationItem::setBackItem>()
          .method<"hidesBackButton", &UINavigationItem::hidesBackButton>()
          .method<"setHidesBackButton:", &UINavigationItem::setHidesBackButton>()
          .method<"setHidesBackButton:animated:", &UINavigationItem::setHidesBackButtonAnimated>()
          .method<"leftItemsSupplementBackButton", &UINavigationItem::keepsBackButton>()
          .method<"setLeftItemsSupplementBackButton:", &UINavigationItem::setKeepsBackButton>()
          .method<"largeTitleDisplayMode", &UINavigationItem::largeTitleDisplayMode>()
          .method<"setLargeTitleDisplayMode:", &UINavigationItem::setLargeTitleDisplayMode>()
          .build();
  return made;
}

bridge::NSObject UINavigationItem::initWithTitle(bridge::NSString title) {
  const auto object = super<bridge::NSObject, "init">();
  setTitle(title);
  return object;
}

void UINavigationItem::setTitle(bridge::NSString title) {
  _title = bridge::Owned<bridge::NSString>::adopt(bridge::send<bridge::NSString, "copy">(title));
  changed();
}

void UINavigationItem::setTitleView(bridge::UIView view) {
  _titleView = bridge::Owned<bridge::UIView>::retain(view);
  changed();
}

void UINavigationItem::setLeftArray(bridge::NSArray items) {
  _leftItems = listOf<bridge::UIBarButtonItem>(items);
  changed();
}

void UINavigationItem::setRightArray(bridge::NSArray items) {
  _rightItems = listOf<bridge::UIBarButtonItem>(items);
  changed();
}

bridge::UIBarButtonItem UINavigationItem::leftItem() const {
  return _leftItems.empty() ? bridge::UIBarButtonItem() : _leftItems.front().get();
}

bridge::UIBarButtonItem UINavigationItem::rightItem() const {
  return _rightItems.empty() ? bridge::UIBarButtonItem() : _rightItems.front().get();
}

void UINavigationItem::setLeftItem(bridge::UIBarButtonItem item) {
  setLeftArray(item ? bridge::NSArray::of(item) : bridge::NSArray());
}

void UINavigationItem::setRightItem(bridge::UIBarButtonItem item) {
  setRightArray(item ? bridge::NSArray::of(item) : bridge::NSArray());
}

void UINavigationItem::setBackItem(bridge::UIBarButtonItem item) {
  _backItem = bridge::Owned<bridge::UIBarButtonItem>::retain(item);
  changed();
}

void UINavigationItem::setHidesBackButton(bool hides) {
  _hidesBackButton = hides;
  changed();
}

void UINavigationItem::setKeepsBackButton(bool keeps) {
  _keepsBackButton = keeps;
  changed();
}

void UINavigationItem::setLargeTitleDisplayMode(NSInteger mode) {
  _largeTitle = mode;
  changed();
}

void UINavigationItem::changed() const {
  bridge::send<void, "_itemChanged">(_bar);
}

}  // namespace desktop::uikit
