// SPDX-License-Identifier: MIT
#include "desktop/uikit/bars/ui_tab_bar_item.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/own_messages.h"

namespace desktop::uikit {

Class UITabBarItem::classObject() {
  static const Class made = ClassBuilder<UITabBarItem>("UITabBarItem")
                                .method<"initWithTitle:image:tag:", &UITabBarItem::initWithTitle>()
                                .method<"title", &UITabBarItem::title>()
                                .method<"setTitle:", &UITabBarItem::setTitle>()
                                .method<"image", &UITabBarItem::image>()
                                .method<"setImage:", &UITabBarItem::setImage>()
                                .method<"_setPicture:", &UITabBarItem::setPicture>()
                                .method<"tag", &UITabBarItem::tag>()
                                .method<"setTag:", &UITabBarItem::setTag>()
                                .method<"badgeValue", &UITabBarItem::badgeValue>()
                                .method<"setBadgeValue:", &UITabBarItem::setBadgeValue>()
                                .build();
  return made;
}

Owned<NSObject> UITabBarItem::make(NSString title, UIImage image, NSInteger picture) {
  auto made =
      makeWith<NSObject, "initWithTitle:image:tag:">(classObject(), title, image, NSInteger{0});
  of(made.get()).setPicture(picture);
  return made;
}

NSObject UITabBarItem::initWithTitle(NSString title, UIImage image, NSInteger tag) {
  const auto object = super<NSObject, "init">();
  setTitle(title);
  setImage(image);
  _tag = tag;
  return object;
}

void UITabBarItem::setTitle(NSString title) {
  _title = copy(title);
  changed();
}

void UITabBarItem::setImage(UIImage image) {
  _image = Owned<UIImage>::retain(image);
  changed();
}

void UITabBarItem::setPicture(NSInteger picture) {
  _picture = picture;
  changed();
}

void UITabBarItem::setBadgeValue(NSString badge) {
  _badge = copy(badge);
  changed();
}

void UITabBarItem::changed() const {
  itemsChanged(_bar);
}

}  // namespace desktop::uikit
