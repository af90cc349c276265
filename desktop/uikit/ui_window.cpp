// SPDX-License-Identifier: MIT
#include "desktop/uikit/ui_window.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/uikit/stage.h"

namespace desktop::uikit {

Class UIWindow::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIWindow>("UIWindow")
          .method<"rootViewController", &UIWindow::rootViewController>()
          .method<"setRootViewController:", &UIWindow::setRootViewController>()
          .method<"makeKeyAndVisible", &UIWindow::makeKeyAndVisible>()
          .method<"isKeyWindow", &UIWindow::isKeyWindow>()
          .method<"nextResponder", &UIWindow::nextResponder>()
          .build();
  return made;
}

void UIWindow::setRootViewController(bridge::UIViewController controller) {
  const auto before = _rootViewController;
  _rootViewController = bridge::Owned<bridge::UIViewController>::retain(controller);
  if (before) before->view().removeFromSuperview();
  const bridge::UIView view = controller.view();
  UIView& me = UIView::of(self().get());
  view.setFrame(me.bounds());
  view.setAutoresizingMask(bridge::flexibleWidth | bridge::flexibleHeight);
  me.insertSubview(view, 0);
}

void UIWindow::makeKeyAndVisible() {
  auto& windows = stage().windows;
  const auto kept = bridge::Owned<bridge::UIView>::retain(self());
  std::erase_if(windows, [this](const auto& window) { return window.get() == self(); });
  windows.push_back(kept);
  UIView::of(self().get()).setNeedsDisplay();
}

bool UIWindow::isKeyWindow() const {
  const auto& windows = stage().windows;
  return !windows.empty() && windows.back().get() == self();
}

bridge::UIResponder UIWindow::nextResponder() const {
  return bridge::UIApplication::sharedApplication();
}

}  // namespace desktop::uikit
