// SPDX-License-Identifier: MIT
//
// View controllers, alerts, the share sheet, the edit menu and the application.
#pragma once

#include "bridge/uikit/ui_bars.h"

namespace bridge {

struct UINavigationController;
struct UIPopoverPresentationController;

struct UIViewController : UIResponder {
  using UIResponder::UIResponder;
  static Class classObject() { return classNamed<"UIViewController">(); }

  UIView view() const { return send<UIView, "view">(*this); }
  UINavigationItem navigationItem() const {
    return send<UINavigationItem, "navigationItem">(*this);
  }
  // Nil outside one.
  inline UINavigationController navigationController() const;
  // Nil where the presentation has none.
  inline UIPopoverPresentationController popoverPresentationController() const;

  enum Animated : bool { immediately = false, animated = true };

  void present(UIViewController controller, Animated how, const Block<void()>& completion) const {
    send<void, "presentViewController:animated:completion:">(*this, controller, bool{how},
                                                             completion);
  }
  void dismiss(Animated how, const Block<void()>& completion) const {
    send<void, "dismissViewControllerAnimated:completion:">(*this, bool{how}, completion);
  }

  NSString title() const { return send<NSString, "title">(*this); }
  void setTitle(NSString title) const { send<void, "setTitle:">(*this, title); }
  void setView(UIView view) const { send<void, "setView:">(*this, view); }
  void loadView() const { send<void, "loadView">(*this); }
  void viewDidLoad() const { send<void, "viewDidLoad">(*this); }
  // What a container tells a controller whose view it shows or hides, before and after.
  void beginAppearance(bool isComing, bool isAnimated) const {
    send<void, "beginAppearanceTransition:animated:">(*this, isComing, isAnimated);
  }
  void endAppearance() const { send<void, "endAppearanceTransition">(*this); }
  void viewWillAppear(bool isAnimated) const { send<void, "viewWillAppear:">(*this, isAnimated); }
  void viewDidAppear(bool isAnimated) const { send<void, "viewDidAppear:">(*this, isAnimated); }
  void viewWillDisappear(bool isAnimated) const {
    send<void, "viewWillDisappear:">(*this, isAnimated);
  }
  void viewDidDisappear(bool isAnimated) const {
    send<void, "viewDidDisappear:">(*this, isAnimated);
  }
  void viewWillLayoutSubviews() const { send<void, "viewWillLayoutSubviews">(*this); }
  void viewDidLayoutSubviews() const { send<void, "viewDidLayoutSubviews">(*this); }
  void viewWillTransition(CGSize size, Object coordinator) const {
    send<void, "viewWillTransitionToSize:withTransitionCoordinator:">(*this, size, coordinator);
  }
  void willMoveToParent(UIViewController parent) const {
    send<void, "willMoveToParentViewController:">(*this, parent);
  }
  void didMoveToParent(UIViewController parent) const {
    send<void, "didMoveToParentViewController:">(*this, parent);
  }
  // Nil where there is none.
  UIViewController presentedViewController() const {
    return send<UIViewController, "presentedViewController">(*this);
  }
  bool isBeingPresented() const { return send<bool, "isBeingPresented">(*this); }
  UIViewController tabBarController() const {
    return send<UIViewController, "tabBarController">(*this);
  }
  NSInteger modalPresentationStyle() const {
    return send<NSInteger, "modalPresentationStyle">(*this);
  }
  void setModalPresentationStyle(NSInteger style) const {
    send<void, "setModalPresentationStyle:">(*this, style);
  }
  bool isEditing() const { return send<bool, "isEditing">(*this); }
  void setEditing(bool editing, bool isAnimated) const {
    send<void, "setEditing:animated:">(*this, editing, isAnimated);
  }
  NSObject tabBarItem() const { return send<NSObject, "tabBarItem">(*this); }
  void setTabBarItem(NSObject item) const { send<void, "setTabBarItem:">(*this, item); }
  void setToolbarItems(NSArray items) const { send<void, "setToolbarItems:">(*this, items); }
  bool hidesBottomBarWhenPushed() const { return send<bool, "hidesBottomBarWhenPushed">(*this); }
  void setHidesBottomBarWhenPushed(bool hides) const {
    send<void, "setHidesBottomBarWhenPushed:">(*this, hides);
  }
};

struct UINavigationController : UIViewController {
  using UIViewController::UIViewController;
  static Class classObject() { return classNamed<"UINavigationController">(); }

  static Owned<UINavigationController> withRoot(UIViewController root) {
    return makeWith<UINavigationController, "initWithRootViewController:">(classObject(), root);
  }

  void setControllers(NSArray controllers) const {
    send<void, "setViewControllers:">(*this, controllers);
  }
  UINavigationBar navigationBar() const { return send<UINavigationBar, "navigationBar">(*this); }
  void push(UIViewController controller, Animated how) const {
    send<void, "pushViewController:animated:">(*this, controller, bool{how});
  }
  // The controllers that go, from the bottom.
  NSArray popTo(UIViewController controller, bool isAnimated) const {
    return send<NSArray, "popToViewController:animated:">(*this, controller, isAnimated);
  }
  NSArray popToRoot(bool isAnimated) const {
    return send<NSArray, "popToRootViewControllerAnimated:">(*this, isAnimated);
  }
  // The one that goes; nil where only the root is left.
  UIViewController pop(bool isAnimated) const {
    return send<UIViewController, "popViewControllerAnimated:">(*this, isAnimated);
  }
  UIViewController topViewController() const {
    return send<UIViewController, "topViewController">(*this);
  }
  void setToolbarHidden(bool hidden, bool isAnimated) const {
    send<void, "setToolbarHidden:animated:">(*this, hidden, isAnimated);
  }
  void setNavigationBarHidden(bool hidden, bool isAnimated) const {
    send<void, "setNavigationBarHidden:animated:">(*this, hidden, isAnimated);
  }
};

struct UIPopoverPresentationController : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UIPopoverPresentationController">(); }

  void setSourceView(UIView view) const { send<void, "setSourceView:">(*this, view); }
  void setSourceRect(CGRect rect) const { send<void, "setSourceRect:">(*this, rect); }
  void setBarButtonItem(UIBarButtonItem item) const {
    send<void, "setBarButtonItem:">(*this, item);
  }
};

inline UINavigationController UIViewController::navigationController() const {
  return send<UINavigationController, "navigationController">(*this);
}

inline UIPopoverPresentationController UIViewController::popoverPresentationController() const {
  if (!respondsTo<"popoverPresentationController">(*this)) return {};
  return send<UIPopoverPresentationController, "popoverPresentationController">(*this);
}

struct UIAlertAction : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UIAlertAction">(); }

  enum Style : NSInteger { normal = 0, cancel = 1 };

  static UIAlertAction make(NSString title, Style style,
                            const Block<void(UIAlertAction)>& handler) {
    return send<UIAlertAction, "actionWithTitle:style:handler:">(classObject(), title,
                                                                 NSInteger{style}, handler);
  }

  NSString title() const { return send<NSString, "title">(*this); }
  NSInteger style() const { return send<NSInteger, "style">(*this); }
};

struct UIAlertController : UIViewController {
  using UIViewController::UIViewController;
  static Class classObject() { return classNamed<"UIAlertController">(); }

  enum Style : NSInteger { alert = 1 };

  static UIAlertController make(NSString title, NSString message, Style style) {
    return send<UIAlertController, "alertControllerWithTitle:message:preferredStyle:">(
        classObject(), title, message, NSInteger{style});
  }

  void addAction(UIAlertAction action) const { send<void, "addAction:">(*this, action); }
  NSString message() const { return send<NSString, "message">(*this); }
  NSArray actions() const { return send<NSArray, "actions">(*this); }
};

// The share sheet.
struct UIActivityViewController : UIViewController {
  using UIViewController::UIViewController;
  static Class classObject() { return classNamed<"UIActivityViewController">(); }

  static Owned<UIActivityViewController> withItems(NSArray items) {
    return makeWith<UIActivityViewController, "initWithActivityItems:applicationActivities:">(
        classObject(), items, NSArray());
  }

  void setExcludedActivityTypes(NSArray types) const {
    send<void, "setExcludedActivityTypes:">(*this, types);
  }
};

struct UIMenuController : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"UIMenuController">(); }

  // In the coordinates of the screen.
  CGRect menuFrame() const { return send<CGRect, "menuFrame">(*this); }
  static UIMenuController shared() {
    return send<UIMenuController, "sharedMenuController">(classObject());
  }
  void setTargetRect(CGRect rect, UIView view) const {
    send<void, "setTargetRect:inView:">(*this, rect, view);
  }
  void setMenuVisible(bool visible, bool isAnimated) const {
    send<void, "setMenuVisible:animated:">(*this, visible, isAnimated);
  }
};

struct UIApplication : UIResponder {
  using UIResponder::UIResponder;
  static Class classObject() { return classNamed<"UIApplication">(); }
  static UIApplication sharedApplication() {
    return send<UIApplication, "sharedApplication">(classObject());
  }

  // The windows on screen from back to front; the foremost of them, nil where there is none.
  NSArray windows() const { return send<NSArray, "windows">(*this); }
  UIView keyWindow() const { return send<UIView, "keyWindow">(*this); }
  // Whether the system had somebody to open it; nil is nobody's.
  bool openURL(NSURL url) const { return send<bool, "openURL:">(*this, url); }
};

struct UIWindow : UIView {
  using UIView::UIView;
  static Class classObject() { return classNamed<"UIWindow">(); }

  UIViewController rootViewController() const {
    return send<UIViewController, "rootViewController">(*this);
  }
  void setRootViewController(UIViewController controller) const {
    send<void, "setRootViewController:">(*this, controller);
  }
  void makeKeyAndVisible() const { send<void, "makeKeyAndVisible">(*this); }
};

struct UITabBarController : UIViewController {
  using UIViewController::UIViewController;
  static Class classObject() { return classNamed<"UITabBarController">(); }

  void setViewControllers(NSArray controllers) const {
    send<void, "setViewControllers:">(*this, controllers);
  }
  UIViewController selectedViewController() const {
    return send<UIViewController, "selectedViewController">(*this);
  }
  void setSelectedIndex(NSUInteger index) const { send<void, "setSelectedIndex:">(*this, index); }
  void setSelectedViewController(UIViewController controller) const {
    send<void, "setSelectedViewController:">(*this, controller);
  }
};

}  // namespace bridge
