// SPDX-License-Identifier: MIT
#include "desktop/uikit/application/ui_window.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controllers/ui_view_controller.h"

namespace desktop::uikit {

Class UIWindowState::classObject() {
  static const Class made =
      ClassBuilder<UIWindowState>("UIWindow")
          .method<"rootViewController", &UIWindowState::rootViewController>()
          .method<"setRootViewController:", &UIWindowState::setRootViewController>()
          .method<"makeKeyAndVisible", &UIWindowState::makeKeyAndVisible>()
          .method<"isKeyWindow", &UIWindowState::isKeyWindow>()
          .method<"nextResponder", &UIWindowState::nextResponder>()
          .method<"_screenDidResizeFrom:", &UIWindowState::screenDidResize>()
          .build();
  return made;
}

UIWindowState::UIWindowState(id self) : Bound(self) {
  UIViewState::of(self).standAsWindow();
}

void UIWindowState::setRootViewController(UIViewController controller) {
  if (controller == _rootViewController.get()) return;
  const auto before = _rootViewController;
  _rootViewController = Owned<UIViewController>::retain(controller);
  if (before) {
    UIViewControllerState& gone = UIViewControllerState::of(before.get());
    gone.beginAppearance(false, false);
    if (const auto view = gone.viewIfLoaded()) view.removeFromSuperview();
    gone.endAppearance();
  }
  if (isVisible()) showRoot();
}

void UIWindowState::makeKeyAndVisible() {
  auto& windows = application().windows;
  const auto kept = Owned<UIView>::retain(self());
  std::erase_if(windows, [this](const auto& window) { return window.get() == self(); });
  windows.push_back(kept);
  UIViewState::of(self().get()).setNeedsDisplay();
  showRoot();
}

bool UIWindowState::isVisible() const {
  return std::ranges::any_of(application().windows,
                             [this](const auto& window) { return window.get() == self(); });
}

// The view comes at once; that it has come is told when time goes on.
void UIWindowState::showRoot() {
  const auto root = _rootViewController;
  if (!root ||
      UIViewControllerState::of(root.get()).appearance() != UIViewControllerState::Appearance::gone)
    return;
  UIViewState& me = UIViewState::of(self().get());
  const UIView view = root->view();
  UIViewControllerState::of(root.get()).beginAppearance(true, false);
  view.setFrame(me.bounds());
  view.setAutoresizingMask(flexibleWidth | flexibleHeight);
  me.insertSubview(view, 0);
  scheduler().callAfter(0, [root] { UIViewControllerState::of(root.get()).endAppearance(); });
}

void UIWindowState::screenDidResize(CGSize before) {
  if (self().frame() != rectOfSize(before)) return;
  const CGSize size = screen().size;
  if (const auto root = _rootViewController) UIViewControllerState::of(root.get()).becomeSize(size);
  self().setFrame(rectOfSize(size));
}

bool UIWindowState::isKeyWindow() const {
  const auto& windows = application().windows;
  return !windows.empty() && windows.back().get() == self();
}

UIResponder UIWindowState::nextResponder() const {
  return UIApplication::sharedApplication();
}

}  // namespace desktop::uikit
