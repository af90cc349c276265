// SPDX-License-Identifier: MIT
#include "desktop/uikit/bars/ui_navigation_item.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/own_messages.h"

namespace desktop::uikit {

Class UINavigationItemState::classObject() {
  static const Class made =
      ClassBuilder<UINavigationItemState>("UINavigationItem")
          .method<"initWithTitle:", &UINavigationItemState::initWithTitle>()
          .method<"title", &UINavigationItemState::title>()
          .method<"setTitle:", &UINavigationItemState::setTitle>()
          .method<"titleView", &UINavigationItemState::titleView>()
          .method<"setTitleView:", &UINavigationItemState::setTitleView>()
          .method<"leftBarButtonItem", &UINavigationItemState::leftItem>()
          .method<"setLeftBarButtonItem:", &UINavigationItemState::setLeftItem>()
          .method<"setLeftBarButtonItem:animated:", &UINavigationItemState::setLeftItemAnimated>()
          .method<"leftBarButtonItems", &UINavigationItemState::leftArray>()
          .method<"setLeftBarButtonItems:", &UINavigationItemState::setLeftArray>()
          .method<"setLeftBarButtonItems:animated:", &UINavigationItemState::setLeftArrayAnimated>()
          .method<"rightBarButtonItem", &UINavigationItemState::rightItem>()
          .method<"setRightBarButtonItem:", &UINavigationItemState::setRightItem>()
          .method<"setRightBarButtonItem:animated:", &UINavigationItemState::setRightItemAnimated>()
          .method<"rightBarButtonItems", &UINavigationItemState::rightArray>()
          .method<"setRightBarButtonItems:", &UINavigationItemState::setRightArray>()
          .method<"setRightBarButtonItems:animated:",
                  &UINavigationItemState::setRightArrayAnimated>()
          .method<"backBarButtonItem", &UINavigationItemState::backItem>()
          .method<"setBackBarButtonItem:", &UINavigationItemState::setBackItem>()
          .method<"hidesBackButton", &UINavigationItemState::hidesBackButton>()
          .method<"setHidesBackButton:", &UINavigationItemState::setHidesBackButton>()
          .method<"setHidesBackButton:animated:",
                  &UINavigationItemState::setHidesBackButtonAnimated>()
          .method<"leftItemsSupplementBackButton", &UINavigationItemState::keepsBackButton>()
          .method<"setLeftItemsSupplementBackButton:", &UINavigationItemState::setKeepsBackButton>()
          .method<"largeTitleDisplayMode", &UINavigationItemState::largeTitleDisplayMode>()
          .method<"setLargeTitleDisplayMode:", &UINavigationItemState::setLargeTitleDisplayMode>()
          .build();
  return made;
}

NSObject UINavigationItemState::initWithTitle(NSString title) {
  const auto object = super<NSObject, "init">();
  setTitle(title);
  return object;
}

void UINavigationItemState::setTitle(NSString title) {
  _title = copy(title);
  changed();
}

void UINavigationItemState::setTitleView(UIView view) {
  _titleView = Owned<UIView>::retain(view);
  changed();
}

void UINavigationItemState::setLeftArray(NSArray items) {
  _leftItems = listOf<UIBarButtonItem>(items);
  changed();
}

void UINavigationItemState::setRightArray(NSArray items) {
  _rightItems = listOf<UIBarButtonItem>(items);
  changed();
}

UIBarButtonItem UINavigationItemState::leftItem() const {
  return _leftItems.empty() ? UIBarButtonItem() : _leftItems.front().get();
}

UIBarButtonItem UINavigationItemState::rightItem() const {
  return _rightItems.empty() ? UIBarButtonItem() : _rightItems.front().get();
}

void UINavigationItemState::setLeftItem(UIBarButtonItem item) {
  setLeftArray(item ? NSArray::of(item) : NSArray());
}

void UINavigationItemState::setRightItem(UIBarButtonItem item) {
  setRightArray(item ? NSArray::of(item) : NSArray());
}

void UINavigationItemState::setBackItem(UIBarButtonItem item) {
  _backItem = Owned<UIBarButtonItem>::retain(item);
  changed();
}

void UINavigationItemState::setHidesBackButton(bool hides) {
  _hidesBackButton = hides;
  changed();
}

void UINavigationItemState::setKeepsBackButton(bool keeps) {
  _keepsBackButton = keeps;
  changed();
}

void UINavigationItemState::setLargeTitleDisplayMode(NSInteger mode) {
  _largeTitle = mode;
  changed();
}

void UINavigationItemState::changed() const {
  itemChanged(_bar);
}

}  // namespace desktop::uikit
