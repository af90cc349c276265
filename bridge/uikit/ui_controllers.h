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
};

struct UINavigationController : UIViewController {
  using UIViewController::UIViewController;
  static Class classObject() { return classNamed<"UINavigationController">(); }

  static Owned<UINavigationController> withRoot(UIViewController root) {
    return makeWith<UINavigationController, "initWithRootViewController:">(classObject(), root);
  }

  UINavigationBar navigationBar() const { return send<UINavigationBar, "navigationBar">(*this); }
  void push(UIViewController controller, Animated how) const {
    send<void, "pushViewController:animated:">(*this, controller, bool{how});
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
};

}  // namespace bridge
