// SPDX-License-Identifier: MIT
//
// UIWindow: the top of a tree of views, on screen once it is made visible.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_controllers.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

class UIWindow : public bridge::Bound<UIWindow, bridge::UIView> {
 public:
  explicit UIWindow(id self);
  static Class classObject();

  bridge::UIViewController rootViewController() const { return _rootViewController; }

 private:
  // The controller's view fills the window, behind everything that is presented, from when the
  // window is visible.
  void setRootViewController(bridge::UIViewController controller);
  void makeKeyAndVisible();
  bool isKeyWindow() const;
  bridge::UIResponder nextResponder() const;
  bool isVisible() const;
  // Fills the screen again where it filled it so far.
  void screenDidResize(CGSize before);
  void showRoot();

  bridge::Owned<bridge::UIViewController> _rootViewController;
};

}  // namespace desktop::uikit
