// SPDX-License-Identifier: MIT
#include "desktop/uikit/application/ui_application.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/outside.h"

namespace desktop::uikit {

Class UIApplicationState::classObject() {
  static const Class made =
      ClassBuilder<UIApplicationState>("UIApplication")
          .classMethod<"sharedApplication", &UIApplicationState::sharedApplication>()
          .method<"openURL:", &UIApplicationState::openURL>()
          .method<"keyWindow", &UIApplicationState::keyWindow>()
          .method<"windows", &UIApplicationState::windows>()
          .build();
  return made;
}

UIApplication UIApplicationState::sharedApplication() {
  static const UIApplication application = makeNew<UIApplication>().detach();
  return application;
}

bool UIApplicationState::openURL(NSURL url) {
  if (!url) return false;
  const std::string link = url.absoluteString().utf8();
  application().opened.push_back(link);
  return outside().openLink && outside().openLink(link);
}

UIView UIApplicationState::keyWindow() const {
  return application().windows.empty() ? UIView() : application().windows.back().get();
}

NSArray UIApplicationState::windows() const {
  const auto all = makeNew<NSMutableArray>();
  for (const auto& window : application().windows) all->add(window.get());
  return Owned<NSArray>::retain(all.get()).autorelease();
}

}  // namespace desktop::uikit
