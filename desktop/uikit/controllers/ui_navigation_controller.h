// SPDX-License-Identifier: MIT
//
// UINavigationController: a stack of screens, the topmost of which is on show below a bar. Its
// children are the stack, from the root to the top.
#pragma once

#include "desktop/uikit/base/object_list.h"
#include "desktop/uikit/controllers/ui_view_controller.h"

namespace desktop::uikit {

class UINavigationController
    : public bridge::Bound<UINavigationController, bridge::UIViewController> {
 public:
  using Stack = ObjectList<bridge::UIViewController>;

  explicit UINavigationController(id self);
  ~UINavigationController();
  static Class classObject();

  const Stack& stack() const { return UIViewController::of(self()).children(); }
  // Nil where the stack is empty.
  bridge::UIViewController top() const;
  bridge::UINavigationBar navigationBar() const { return _bar; }
  bridge::UIView toolbar() const { return _toolbar; }
  bool isNavigationBarHidden() const { return _isBarHidden; }
  bool isToolbarHidden() const { return _isToolbarHidden; }
  bool isInTransition() const { return static_cast<bool>(_leaving) || static_cast<bool>(_coming); }

  // A controller that is on the stack already is refused and logged.
  void push(bridge::UIViewController controller, bool animated);
  // The popped one, or nil where only the root is left.
  bridge::UIViewController pop(bool animated);

 private:
  bridge::UIViewController initWithRoot(bridge::UIViewController root);
  void loadView();
  void viewWillAppear(bool animated);
  void viewWillLayoutSubviews();
  bridge::UIViewController visible() const;
  bridge::NSArray popToRoot(bool animated);
  bridge::NSArray popTo(bridge::UIViewController controller, bool animated);
  bridge::NSArray stackArray() const { return arrayOf(stack()); }
  void setStack(bridge::NSArray controllers, bool animated);
  void setStackAtOnce(bridge::NSArray controllers) { setStack(controllers, false); }
  void setBarHidden(bool hidden, bool animated);
  void setBarHiddenAtOnce(bool hidden) { setBarHidden(hidden, false); }
  void setToolbarHidden(bool hidden, bool animated);
  void setToolbarHiddenAtOnce(bool hidden) { setToolbarHidden(hidden, false); }
  bridge::NSObject delegate() const { return _delegate; }
  void setDelegate(bridge::NSObject delegate) { _delegate = delegate; }

  enum class Direction { none, forward, backward };
  // Makes the stack this one; what is on top then takes the place of what was. Answers the
  // controllers that left.
  Stack change(const Stack& next, Direction direction);
  void beginTransition(bridge::UIViewController from, bridge::UIViewController to,
                       Direction direction);
  void slide(bridge::UIViewController from, bridge::UIViewController to, Direction direction);
  void endTransition();
  void showTop();
  void arrange();
  void arrangeIn(bool animated);
  void updateBars();
  CGFloat barBottom() const;
  void tellDelegate(bool isDone, bool animated) const;

  bridge::Owned<bridge::UINavigationBar> _bar;
  bridge::Owned<bridge::UIView> _toolbar;
  bridge::Owned<bridge::UIView> _content;            // what the screens stand in
  bridge::Owned<bridge::UIViewController> _leaving;  // of the transition that goes on
  bridge::Owned<bridge::UIViewController> _coming;
  unsigned _transition = 0;    // counts them
  bridge::NSObject _delegate;  // borrowed
  bool _isBarHidden = false;
  bool _isToolbarHidden = true;
};

}  // namespace desktop::uikit
