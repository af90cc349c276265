// SPDX-License-Identifier: MIT
//
// UITabBarController: screens side by side, one of which is on show above a bar that switches
// between them. Its children are the screens.
#pragma once

#include "desktop/uikit/base/object_list.h"
#include "desktop/uikit/controllers/ui_view_controller.h"

namespace desktop::uikit {

class UITabBarControllerState
    : public Bound<UITabBarControllerState, UIViewControllerState, UITabBarController> {
 public:
  explicit UITabBarControllerState(id self);
  ~UITabBarControllerState();
  static Class classObject();

  UIView tabBar() const { return _bar; }
  // Nil where there are none.
  UIViewController selected() const { return _selected; }
  NSUInteger selectedIndex() const;  // NSNotFound where there are none
  void select(UIViewController controller);
  // Shows or hides the bar as the selected screen wishes, which may have changed.
  void updateBar(bool animated);

 private:
  void loadView();
  void viewWillAppear(bool animated);
  void viewWillLayoutSubviews();
  NSArray controllersArray() const;
  void setControllers(NSArray controllers);
  void setControllersAnimated(NSArray controllers, bool) { setControllers(controllers); }
  void setSelectedIndex(NSUInteger index);
  NSObject delegate() const { return _delegate; }
  void setDelegate(NSObject delegate) { _delegate = delegate; }
  void pressed(NSUInteger index);
  void showSelected();
  bool wantsBar() const;
  void arrange();

  Owned<UIView> _bar;
  UIViewController _selected;  // one of the children
  NSObject _delegate;          // borrowed
  bool _isBarShown = true;
};

}  // namespace desktop::uikit
