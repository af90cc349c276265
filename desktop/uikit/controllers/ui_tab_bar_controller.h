// SPDX-License-Identifier: MIT
//
// UITabBarController: screens side by side, one of which is on show above a bar that switches
// between them. Its children are the screens.
#pragma once

#include "desktop/uikit/base/object_list.h"
#include "desktop/uikit/controllers/ui_view_controller.h"

namespace desktop::uikit {

class UITabBarController : public bridge::Bound<UITabBarController, bridge::UIViewController> {
 public:
  explicit UITabBarController(id self);
  ~UITabBarController();
  static Class classObject();

  bridge::UIView tabBar() const { return _bar; }
  // Nil where there are none.
  bridge::UIViewController selected() const { return _selected; }
  NSUInteger selectedIndex() const;  // NSNotFound where there are none
  void select(bridge::UIViewController controller);
  // Shows or hides the bar as the selected screen wishes, which may have changed.
  void updateBar(bool animated);

 private:
  void loadView();
  void viewWillAppear(bool animated);
  void viewWillLayoutSubviews();
  bridge::NSArray controllersArray() const;
  void setControllers(bridge::NSArray controllers);
  void setControllersAnimated(bridge::NSArray controllers, bool) { setControllers(controllers); }
  void setSelectedIndex(NSUInteger index);
  bridge::NSObject delegate() const { return _delegate; }
  void setDelegate(bridge::NSObject delegate) { _delegate = delegate; }
  void pressed(NSUInteger index);
  void showSelected();
  bool wantsBar() const;
  void arrange();

  bridge::Owned<bridge::UIView> _bar;
  bridge::UIViewController _selected;  // one of the children
  bridge::NSObject _delegate;          // borrowed
  bool _isBarShown = true;
};

}  // namespace desktop::uikit
