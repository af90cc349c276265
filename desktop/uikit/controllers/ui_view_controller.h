// SPDX-License-Identifier: MIT
//
// UIViewController: a screen of the application. It loads its view when it is first asked for it,
// is told when the view comes and goes, and can stand in another controller (its parent) or be
// presented over one.
#pragma once

#include <vector>

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_controllers.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/controllers/appearance_cycle.h"
#include "desktop/uikit/controllers/presentation.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "desktop/uikit/views/ui_responder.h"

namespace desktop::uikit {

// How a presented controller covers its presenter: wholly, so that the presenter's view goes
// meanwhile, or over it.
enum ModalPresentationStyle : NSInteger { fullScreen = 0, custom = 4, overFullScreen = 5 };

class UIViewControllerState
    : public Bound<UIViewControllerState, UIResponderState, UIViewController> {
 public:
  explicit UIViewControllerState(id self);
  ~UIViewControllerState();
  static Class classObject();

  // The view, loaded where it was not; and the same without loading it.
  UIView view();
  UIView viewIfLoaded() const { return _view; }
  void setView(UIView view);

  NSString title() const { return _title; }
  void setTitle(NSString title);
  UINavigationItem navigationItem();
  NSObject tabBarItem();
  bool isEditing() const { return _isEditing; }
  bool hidesBottomBarWhenPushed() const { return _hidesBottomBar; }
  const std::vector<Owned<NSObject>>& toolbarItems() const { return _toolbarItems; }
  UIPopoverPresentationController popover();

  // Containment. Children are owned, from the first to the last; the rest is borrowed.
  const std::vector<Owned<UIViewController>>& children() const { return _children; }
  UIViewController parent() const { return _parent; }
  // The outermost controller that this one stands in, or itself.
  UIViewController root() const;
  // The nearest controller around this one that is of the class, or nil.
  UIViewController enclosing(Class aClass) const;
  // Adding a controller that has a parent takes it from there. Its view stays where it is.
  void addChild(UIViewController child);
  void removeFromParent();
  // For containers that let their children go in time: makes the children these. Who is not among
  // them any more keeps its parent until it is told that it left.
  void setChildren(const std::vector<Owned<UIViewController>>& children);
  void leftParent();

  // Presentation: what this controller presents itself, and what presents it; nil where none.
  UIViewController presented() const { return _presentation.presented(); }
  UIViewController presenting() const { return _presentation.presenting(); }

  using Appearance = AppearanceCycle::Stage;
  Appearance appearance() const { return _appearance.stage(); }
  bool isThereOrComing() const { return _appearance.isThereOrComing(); }
  // The view is about to come or to go; tells this controller and the children that show in it.
  // What is so already is not told again.
  void beginAppearance(bool comes, bool animated);
  // What began is over.
  void endAppearance();

  // The window becomes another size; tells this controller, its children and what it presents.
  void becomeSize(CGSize size);

  // Room at the view's edges, in points, that bars around it take; scroll views that fill the view
  // keep their content out of it.
  EdgeInsets safeArea() const { return _safeArea; }
  void setSafeArea(EdgeInsets insets);

 private:
  UIViewController init();
  UIViewController initWithNib(NSString, Object) const;
  void loadView();
  void loadViewIfNeeded() { view(); }
  bool isViewLoaded() const { return static_cast<bool>(_view); }
  UIResponder nextResponder() const;
  void viewWillTransition(CGSize size, Object coordinator);
  void adjustScrollViews();
  EdgeInsets safeAreaInsets() const { return _safeArea; }

  void setTabBarItem(NSObject item);
  void setEditing(bool editing, bool animated);
  void setEditingAtOnce(bool editing);
  void setHidesBottomBar(bool hides) { _hidesBottomBar = hides; }
  NSArray toolbarItemsArray() const;
  void setToolbarItems(NSArray items);
  void setToolbarItemsAnimated(NSArray items, bool) { setToolbarItems(items); }

  NSArray childrenArray() const;
  UIViewController navigationController() const;
  UIViewController tabBarController() const;

  UIViewController presentedController() const;
  UIViewController presentingController() const;
  NSInteger modalPresentationStyle() const { return _modalStyle; }
  void setModalPresentationStyle(NSInteger style) { _modalStyle = style; }
  NSInteger modalTransitionStyle() const { return _modalTransition; }
  void setModalTransitionStyle(NSInteger style) { _modalTransition = style; }
  bool isBeingPresented() const { return _presentation.isBeingPresented(); }
  bool isBeingDismissed() const { return _presentation.isBeingDismissed(); }
  void present(UIViewController controller, bool animated, const BlockHeader* completion);
  void dismiss(bool animated, const BlockHeader* completion);
  // Where a presented view stands when it is shown, and before and after; animated.
  void showPresented(bool shown);
  Seconds presentationDuration() const;

  // Those whose views stand in this one's.
  std::vector<Owned<UIViewController>> shownChildren() const;

  const char* refusal(UIViewController controller) const;

  Owned<UIView> _view;
  Owned<NSString> _title;
  Owned<UINavigationItem> _navigationItem;
  Owned<NSObject> _tabBarItem;
  Owned<UIPopoverPresentationController> _popover;
  std::vector<Owned<NSObject>> _toolbarItems;
  std::vector<Owned<UIViewController>> _children;
  UIViewController _parent;  // borrowed
  Presentation _presentation{self()};
  AppearanceCycle _appearance;
  EdgeInsets _safeArea;
  NSInteger _modalStyle = fullScreen;
  NSInteger _modalTransition = 0;
  bool _isEditing = false;
  bool _hidesBottomBar = false;
};

}  // namespace desktop::uikit
