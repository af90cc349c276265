// SPDX-License-Identifier: MIT
//
// UIViewController: a screen of the application. It loads its view when it is first asked for it,
// is told when the view comes and goes, and can stand in another controller (its parent) or be
// presented over one.
#pragma once

#include <memory>
#include <vector>

#include "bridge/bound.h"
#include "bridge/uikit/ui_controllers.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"

namespace desktop::uikit {

struct Presentation;

// How a presented controller covers its presenter: wholly, so that the presenter's view goes
// meanwhile, or over it.
enum ModalPresentationStyle : NSInteger { fullScreen = 0, custom = 4, overFullScreen = 5 };

class UIViewController : public bridge::Bound<UIViewController, bridge::UIResponder> {
 public:
  explicit UIViewController(id self);
  ~UIViewController();
  static Class classObject();

  // The view, loaded where it was not; and the same without loading it.
  bridge::UIView view();
  bridge::UIView viewIfLoaded() const { return _view; }
  void setView(bridge::UIView view);

  bridge::NSString title() const { return _title; }
  void setTitle(bridge::NSString title);
  bridge::UINavigationItem navigationItem();
  bridge::NSObject tabBarItem();
  bool isEditing() const { return _isEditing; }
  bool hidesBottomBarWhenPushed() const { return _hidesBottomBar; }
  const std::vector<bridge::Owned<bridge::NSObject>>& toolbarItems() const { return _toolbarItems; }
  bridge::UIPopoverPresentationController popover();

  // Containment. Children are owned, from the first to the last; the rest is borrowed.
  const std::vector<bridge::Owned<bridge::UIViewController>>& children() const { return _children; }
  bridge::UIViewController parent() const { return _parent; }
  // The outermost controller that this one stands in, or itself.
  bridge::UIViewController root() const;
  // The nearest controller around this one that is of the class, or nil.
  bridge::UIViewController enclosing(Class aClass) const;
  // Adding a controller that has a parent takes it from there. Its view stays where it is.
  void addChild(bridge::UIViewController child);
  void removeFromParent();
  // For containers that let their children go in time: makes the children these. Who is not among
  // them any more keeps its parent until it is told that it left.
  void setChildren(const std::vector<bridge::Owned<bridge::UIViewController>>& children);
  void leftParent();

  // Presentation: what this controller presents itself, and what presents it; nil where none.
  bridge::UIViewController presented() const;
  bridge::UIViewController presenting() const { return _presenting; }

  enum class Appearance { gone, appearing, shown, disappearing };
  Appearance appearance() const { return _appearance; }
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
  bridge::UIViewController init();
  bridge::UIViewController initWithNib(bridge::NSString, bridge::Object) const;
  void loadView();
  void viewDidLoad() {}
  void loadViewIfNeeded() { view(); }
  bool isViewLoaded() const { return static_cast<bool>(_view); }
  bridge::UIResponder nextResponder() const;
  void viewWillAppear(bool) {}
  void viewDidAppear(bool) {}
  void viewWillDisappear(bool) {}
  void viewDidDisappear(bool) {}
  void viewWillLayoutSubviews() {}
  void viewDidLayoutSubviews() {}
  void viewWillTransition(CGSize size, bridge::Object coordinator);
  void adjustScrollViews();
  EdgeInsets safeAreaInsets() const { return _safeArea; }

  void setTabBarItem(bridge::NSObject item);
  void setEditing(bool editing, bool animated);
  void setEditingAtOnce(bool editing);
  void setHidesBottomBar(bool hides) { _hidesBottomBar = hides; }
  bridge::NSArray toolbarItemsArray() const;
  void setToolbarItems(bridge::NSArray items);
  void setToolbarItemsAnimated(bridge::NSArray items, bool) { setToolbarItems(items); }

  bridge::NSArray childrenArray() const;
  void willMoveToParent(bridge::UIViewController) {}
  void didMoveToParent(bridge::UIViewController) {}
  bridge::UIViewController navigationController() const;
  bridge::UIViewController tabBarController() const;

  bridge::UIViewController presentedController() const;
  bridge::UIViewController presentingController() const;
  NSInteger modalPresentationStyle() const { return _modalStyle; }
  void setModalPresentationStyle(NSInteger style) { _modalStyle = style; }
  NSInteger modalTransitionStyle() const { return _modalTransition; }
  void setModalTransitionStyle(NSInteger style) { _modalTransition = style; }
  bool isBeingPresented() const;
  bool isBeingDismissed() const;
  void present(bridge::UIViewController controller, bool animated,
               const bridge::BlockHeader* completion);
  void dismiss(bool animated, const bridge::BlockHeader* completion);
  // Where a presented view stands when it is shown, and before and after; animated.
  void showPresented(bool shown);
  Seconds presentationDuration() const;

  // Those whose views stand in this one's.
  std::vector<bridge::Owned<bridge::UIViewController>> shownChildren() const;

  const char* refusal(bridge::UIViewController controller) const;
  void finishPresenting(const std::shared_ptr<Presentation>& presentation);
  void dismissPresented(bool animated, const bridge::Block<void()>& completion);
  void finishDismissing(const std::shared_ptr<Presentation>& presentation);
  std::vector<bridge::Owned<bridge::UIViewController>> presentedChain() const;
  bool isInTransition() const;
  void putViewBack();

  bridge::Owned<bridge::UIView> _view;
  bridge::Owned<bridge::NSString> _title;
  bridge::Owned<bridge::UINavigationItem> _navigationItem;
  bridge::Owned<bridge::NSObject> _tabBarItem;
  bridge::Owned<bridge::UIPopoverPresentationController> _popover;
  std::vector<bridge::Owned<bridge::NSObject>> _toolbarItems;
  std::vector<bridge::Owned<bridge::UIViewController>> _children;
  bridge::UIViewController _parent;             // borrowed
  bridge::UIViewController _presenting;         // borrowed
  std::shared_ptr<Presentation> _presentation;  // of what this controller presents
  Appearance _appearance = Appearance::gone;
  EdgeInsets _safeArea;
  NSInteger _modalStyle = fullScreen;
  NSInteger _modalTransition = 0;
  bool _isTransitionAnimated = false;
  bool _isEditing = false;
  bool _hidesBottomBar = false;
};

}  // namespace desktop::uikit
