// SPDX-License-Identifier: MIT
//
// UINavigationController: a stack of screens, the topmost of which is on show below a bar. Its
// children are the stack, from the root to the top.
#pragma once

#include "desktop/uikit/base/object_list.h"
#include "desktop/uikit/controllers/navigation_transition.h"
#include "desktop/uikit/controllers/ui_view_controller.h"

namespace desktop::uikit {

class UINavigationControllerState
    : public Bound<UINavigationControllerState, UIViewControllerState, UINavigationController> {
 public:
  using Stack = ObjectList<UIViewController>;

  explicit UINavigationControllerState(id self);
  ~UINavigationControllerState();
  static Class classObject();

  const Stack& stack() const { return children(); }
  // Nil where the stack is empty.
  UIViewController top() const;
  UINavigationBar navigationBar() const { return _bar; }
  UIView toolbar() const { return _toolbar; }
  bool isNavigationBarHidden() const { return _isBarHidden; }
  bool isToolbarHidden() const { return _isToolbarHidden; }
  bool isInTransition() const { return _transition.isUnderWay(); }

  // A controller that is on the stack already is refused and logged.
  void push(UIViewController controller, bool animated);
  // The popped one, or nil where only the root is left.
  UIViewController pop(bool animated);

 private:
  UIViewController initWithRoot(UIViewController root);
  void loadView();
  void viewWillAppear(bool animated);
  void viewWillLayoutSubviews();
  UIViewController visible() const;
  NSArray popToRoot(bool animated);
  NSArray popTo(UIViewController controller, bool animated);
  NSArray stackArray() const { return arrayOf(stack()); }
  void setStack(NSArray controllers, bool animated);
  void setStackAtOnce(NSArray controllers) { setStack(controllers, false); }
  void setBarHidden(bool hidden, bool animated);
  void setBarHiddenAtOnce(bool hidden) { setBarHidden(hidden, false); }
  void setToolbarHidden(bool hidden, bool animated);
  void setToolbarHiddenAtOnce(bool hidden) { setToolbarHidden(hidden, false); }
  NSObject delegate() const { return _delegate; }
  void setDelegate(NSObject delegate) { _delegate = delegate; }

  using Direction = NavigationTransition::Direction;
  // Makes the stack this one; what is on top then takes the place of what was. Answers the
  // controllers that left.
  Stack change(const Stack& next, Direction direction);
  void beginTransition(UIViewController from, UIViewController to, Direction direction);
  void slide(Direction direction);
  void endTransition();
  void showTop();
  void arrange();
  void arrangeIn(bool animated);
  void updateBars();
  CGFloat barBottom() const;
  void tellDelegate(bool isDone, bool animated) const;

  Owned<UINavigationBar> _bar;
  Owned<UIView> _toolbar;
  Owned<UIView> _content;  // what the screens stand in
  NavigationTransition _transition;
  NSObject _delegate;  // borrowed
  bool _isBarHidden = false;
  bool _isToolbarHidden = true;
};

}  // namespace desktop::uikit
