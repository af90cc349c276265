// SPDX-License-Identifier: MIT
#include "desktop/uikit/application/ui_window.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controllers/ui_view_controller.h"

namespace desktop::uikit {

Class UIWindow::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIWindow>("UIWindow")
          .method<"rootViewController", &UIWindow::rootViewController>()
          .method<"setRootViewController:", &UIWindow::setRootViewController>()
          .method<"makeKeyAndVisible", &UIWindow::makeKeyAndVisible>()
          .method<"isKeyWindow", &UIWindow::isKeyWindow>()
          .method<"nextResponder", &UIWindow::nextResponder>()
          .method<"_screenDidResizeFrom:", &UIWindow::screenDidResize>()
          .build();
  return made;
}

UIWindow::UIWindow(id self) : Bound(self) {
  UIView::of(self).standAsWindow();
}

void UIWindow::setRootViewController(bridge::UIViewController controller) {
  if (controller == _rootViewController.get()) return;
  const auto before = _rootViewController;
  _rootViewController = bridge::Owned<bridge::UIViewController>::retain(controller);
  if (before) {
    UIViewController& gone = UIViewController::of(before.get());
    gone.beginAppearance(false, false);
    if (const auto view = gone.viewIfLoaded()) view.removeFromSuperview();
    gone.endAppearance();
  }
  if (isVisible()) showRoot();
}

void UIWindow::makeKeyAndVisible() {
  auto& windows = application().windows;
  const auto kept = bridge::Owned<bridge::UIView>::retain(self());
  std::erase_if(windows, [this](const auto& window) { return window.get() == self(); });
  windows.push_back(kept);
  UIView::of(self().get()).setNeedsDisplay();
  showRoot();
}

bool UIWindow::isVisible() const {
  return std::ranges::any_of(application().windows,
                             [this](const auto& window) { return window.get() == self(); });
}

// The view comes at once; that it has come is told when time goes on.
void UIWindow::showRoot() {
  const auto root = _rootViewController;
  if (!root || UIViewController::of(root.get()).appearance() != UIViewController::Appearance::gone)
    return;
  UIView& me = UIView::of(self().get());
  const bridge::UIView view = root->view();
  UIViewController::of(root.get()).beginAppearance(true, false);
  view.setFrame(me.bounds());
  view.setAutoresizingMask(bridge::flexibleWidth | bridge::flexibleHeight);
  me.insertSubview(view, 0);
  scheduler().callAfter(0, [root] { UIViewController::of(root.get()).endAppearance(); });
}

void UIWindow::screenDidResize(CGSize before) {
  if (self().frame() != rectOfSize(before)) return;
  const CGSize size = screen().size;
  if (const auto root = _rootViewController) UIViewController::of(root.get()).becomeSize(size);
  self().setFrame(rectOfSize(size));
}

bool UIWindow::isKeyWindow() const {
  const auto& windows = application().windows;
  return !windows.empty() && windows.back().get() == self();
}

bridge::UIResponder UIWindow::nextResponder() const {
  return bridge::UIApplication::sharedApplication();
}

}  // namespace desktop::uikit
