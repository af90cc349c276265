// SPDX-License-Identifier: MIT
#include "desktop/uikit/application/ui_application.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/outside.h"

namespace desktop::uikit {

Class UIApplication::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIApplication>("UIApplication")
          .classMethod<"sharedApplication", &UIApplication::sharedApplication>()
          .method<"openURL:", &UIApplication::openURL>()
          .method<"keyWindow", &UIApplication::keyWindow>()
          .method<"windows", &UIApplication::windows>()
          .build();
  return made;
}

bridge::UIApplication UIApplication::sharedApplication() {
  static const bridge::UIApplication application =
      bridge::makeNew<bridge::UIApplication>().detach();
  return application;
}

bool UIApplication::openURL(bridge::NSURL url) {
  if (!url) return false;
  const std::string link = bridge::send<bridge::NSString, "absoluteString">(url).utf8();
  application().opened.push_back(link);
  return outside().openLink && outside().openLink(link);
}

bridge::UIView UIApplication::keyWindow() const {
  return application().windows.empty() ? bridge::UIView() : application().windows.back().get();
}

bridge::NSArray UIApplication::windows() const {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  for (const auto& window : application().windows) all->add(window.get());
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

}  // namespace desktop::uikit
