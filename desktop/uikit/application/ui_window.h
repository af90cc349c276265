// SPDX-License-Identifier: MIT
//
// UIWindow: the top of a tree of views, on screen once it is made visible.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_controllers.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

class UIWindowState : public Bound<UIWindowState, UIViewState, UIWindow> {
 public:
  explicit UIWindowState(id self);
  static Class classObject();

  UIViewController rootViewController() const { return _rootViewController; }

 private:
  // The controller's view fills the window, behind everything that is presented, from when the
  // window is visible.
  void setRootViewController(UIViewController controller);
  void makeKeyAndVisible();
  bool isKeyWindow() const;
  UIResponder nextResponder() const;
  bool isVisible() const;
  // Fills the screen again where it filled it so far.
  void screenDidResize(CGSize before);
  void showRoot();

  Owned<UIViewController> _rootViewController;
};

}  // namespace desktop::uikit
