// SPDX-License-Identifier: MIT
#include "desktop/uikit/bars/ui_tab_bar_item.h"

#include "bridge/class_builder.h"

namespace desktop::uikit {

using bridge::NSObject;
using bridge::NSString;
using bridge::Owned;

Class UITabBarItem::classObject() {
  static const Class made = bridge::ClassBuilder<UITabBarItem>("UITabBarItem")
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

Owned<NSObject> UITabBarItem::make(NSString title, bridge::UIImage image, NSInteger picture) {
  auto made = Owned<NSObject>::adopt(bridge::send<NSObject, "initWithTitle:image:tag:">(
      bridge::send<id, "alloc">(classObject()), title, image, NSInteger{0}));
  of(made.get()).setPicture(picture);
  return made;
}

NSObject UITabBarItem::initWithTitle(NSString title, bridge::UIImage image, NSInteger tag) {
  const auto object = super<NSObject, "init">();
  setTitle(title);
  setImage(image);
  _tag = tag;
  return object;
}

void UITabBarItem::setTitle(NSString title) {
  _title = Owned<NSString>::adopt(bridge::send<NSString, "copy">(title));
  changed();
}

void UITabBarItem::setImage(bridge::UIImage image) {
  _image = Owned<bridge::UIImage>::retain(image);
  changed();
}

void UITabBarItem::setPicture(NSInteger picture) {
  _picture = picture;
  changed();
}

void UITabBarItem::setBadgeValue(NSString badge) {
  _badge = Owned<NSString>::adopt(bridge::send<NSString, "copy">(badge));
  changed();
}

void UITabBarItem::changed() const {
  bridge::send<void, "_itemsChanged">(_bar);
}

}  // namespace desktop::uikit
