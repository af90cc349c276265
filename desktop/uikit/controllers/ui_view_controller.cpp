// SPDX-License-Identifier: MIT
//
// The class, and a controller's view. Containment and appearance are in
// ui_view_controller_containment.cpp, presentation in ui_view_controller_presentation.cpp.
#include "desktop/uikit/controllers/ui_view_controller.h"

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/ui_navigation_item.h"
#include "desktop/uikit/bars/ui_tab_bar_item.h"
#include "desktop/uikit/base/object_list.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controllers/presentation.h"
#include "desktop/uikit/overlays/ui_popover_presentation_controller.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

Class UIViewControllerState::classObject() {
  static const Class made =
      ClassBuilder<UIViewControllerState>("UIViewController")
          .method<"init", &UIViewControllerState::init>()
          .method<"initWithNibName:bundle:", &UIViewControllerState::initWithNib>()
          .method<"view", &UIViewControllerState::view>()
          .method<"setView:", &UIViewControllerState::setView>()
          .method<"viewIfLoaded", &UIViewControllerState::viewIfLoaded>()
          .method<"isViewLoaded", &UIViewControllerState::isViewLoaded>()
          .method<"loadView", &UIViewControllerState::loadView>()
          .method<"loadViewIfNeeded", &UIViewControllerState::loadViewIfNeeded>()
          .method<"viewDidLoad", &UIViewControllerState::viewDidLoad>()
          .method<"nextResponder", &UIViewControllerState::nextResponder>()
          .method<"title", &UIViewControllerState::title>()
          .method<"setTitle:", &UIViewControllerState::setTitle>()
          .method<"navigationItem", &UIViewControllerState::navigationItem>()
          .method<"tabBarItem", &UIViewControllerState::tabBarItem>()
          .method<"setTabBarItem:", &UIViewControllerState::setTabBarItem>()
          .method<"isEditing", &UIViewControllerState::isEditing>()
          .method<"setEditing:", &UIViewControllerState::setEditingAtOnce>()
          .method<"setEditing:animated:", &UIViewControllerState::setEditing>()
          .method<"hidesBottomBarWhenPushed", &UIViewControllerState::hidesBottomBarWhenPushed>()
          .method<"setHidesBottomBarWhenPushed:", &UIViewControllerState::setHidesBottomBar>()
          .method<"toolbarItems", &UIViewControllerState::toolbarItemsArray>()
          .method<"setToolbarItems:", &UIViewControllerState::setToolbarItems>()
          .method<"setToolbarItems:animated:", &UIViewControllerState::setToolbarItemsAnimated>()
          .method<"viewWillAppear:", &UIViewControllerState::viewWillAppear>()
          .method<"viewDidAppear:", &UIViewControllerState::viewDidAppear>()
          .method<"viewWillDisappear:", &UIViewControllerState::viewWillDisappear>()
          .method<"viewDidDisappear:", &UIViewControllerState::viewDidDisappear>()
          .method<"viewWillLayoutSubviews", &UIViewControllerState::viewWillLayoutSubviews>()
          .method<"viewDidLayoutSubviews", &UIViewControllerState::viewDidLayoutSubviews>()
          .method<"viewWillTransitionToSize:withTransitionCoordinator:",
                  &UIViewControllerState::viewWillTransition>()
          .method<"_adjustScrollViews", &UIViewControllerState::adjustScrollViews>()
          .method<"_safeAreaInsets", &UIViewControllerState::safeAreaInsets>()
          .method<"beginAppearanceTransition:animated:", &UIViewControllerState::beginAppearance>()
          .method<"endAppearanceTransition", &UIViewControllerState::endAppearance>()
          .method<"childViewControllers", &UIViewControllerState::childrenArray>()
          .method<"parentViewController", &UIViewControllerState::parent>()
          .method<"addChildViewController:", &UIViewControllerState::addChild>()
          .method<"removeFromParentViewController", &UIViewControllerState::removeFromParent>()
          .method<"willMoveToParentViewController:", &UIViewControllerState::willMoveToParent>()
          .method<"didMoveToParentViewController:", &UIViewControllerState::didMoveToParent>()
          .method<"navigationController", &UIViewControllerState::navigationController>()
          .method<"tabBarController", &UIViewControllerState::tabBarController>()
          .method<"presentedViewController", &UIViewControllerState::presentedController>()
          .method<"presentingViewController", &UIViewControllerState::presentingController>()
          .method<"popoverPresentationController", &UIViewControllerState::popover>()
          .method<"modalPresentationStyle", &UIViewControllerState::modalPresentationStyle>()
          .method<"setModalPresentationStyle:", &UIViewControllerState::setModalPresentationStyle>()
          .method<"modalTransitionStyle", &UIViewControllerState::modalTransitionStyle>()
          .method<"setModalTransitionStyle:", &UIViewControllerState::setModalTransitionStyle>()
          .method<"isBeingPresented", &UIViewControllerState::isBeingPresented>()
          .method<"isBeingDismissed", &UIViewControllerState::isBeingDismissed>()
          .method<"presentViewController:animated:completion:", &UIViewControllerState::present>()
          .method<"dismissViewControllerAnimated:completion:", &UIViewControllerState::dismiss>()
          .method<"_showPresented:", &UIViewControllerState::showPresented>()
          .method<"_presentationDuration", &UIViewControllerState::presentationDuration>()
          .build();
  return made;
}

UIViewControllerState::UIViewControllerState(id self) : Bound(self) {}

UIViewControllerState::~UIViewControllerState() {
  for (const auto& child : _children) of(child.get())._parent = {};
  if (_presentation) {
    of(_presentation->presented.get())._presenting = {};
    _presentation->container->removeFromSuperview();
  }
  if (_view) UIViewState::of(_view.get()).setController({});
}

UIViewController UIViewControllerState::init() {
  return initWith<"initWithNibName:bundle:">(self(), NSString(), Object());
}

// There are no nibs.
UIViewController UIViewControllerState::initWithNib(NSString, Object) const {
  return super<UIViewController, "init">();
}

UIView UIViewControllerState::view() {
  if (_view) return _view;
  self().loadView();
  if (!_view) loadView();
  self().viewDidLoad();
  return _view;
}

void UIViewControllerState::loadView() {
  const auto made = bridge::makeView<UIView>(rectOfSize(screen().size));
  made->setAutoresizingMask(flexibleWidth | flexibleHeight);
  self().setView(made.get());
}

void UIViewControllerState::setView(UIView view) {
  if (view == _view.get()) return;
  if (_view) UIViewState::of(_view.get()).setController({});
  _view = Owned<UIView>::retain(view);
  if (!_view) return;
  UIViewState::of(_view.get()).setController(self());
  UIViewState::of(_view.get()).setNeedsLayout();
}

// What a controller does not take goes to what its view stands in, or to who presented it.
UIResponder UIViewControllerState::nextResponder() const {
  if (_presenting) return _presenting;
  return _view ? UIViewState::of(_view.get()).superview() : UIView();
}

// The items follow the title until they are given one of their own.
void UIViewControllerState::setTitle(NSString title) {
  _title = copy(title);
  if (_navigationItem) _navigationItem->setTitle(title);
  UIBarItem(_tabBarItem->get()).setTitle(title);
}

UINavigationItem UIViewControllerState::navigationItem() {
  if (!_navigationItem)
    _navigationItem = makeWith<UINavigationItem, "initWithTitle:">(
        UINavigationItemState::classObject(), _title.get());
  return _navigationItem;
}

NSObject UIViewControllerState::tabBarItem() {
  if (!_tabBarItem) _tabBarItem = UITabBarItem::make(_title, {}, 0);
  return _tabBarItem;
}

void UIViewControllerState::setTabBarItem(NSObject item) {
  _tabBarItem = Owned<NSObject>::retain(item);
}

void UIViewControllerState::setEditing(bool editing, bool) {
  _isEditing = editing;
}

void UIViewControllerState::setEditingAtOnce(bool editing) {
  self().setEditing(editing, false);
}

NSArray UIViewControllerState::toolbarItemsArray() const {
  return arrayOrNil(_toolbarItems);
}

void UIViewControllerState::setToolbarItems(NSArray items) {
  _toolbarItems = listOf<NSObject>(items);
  const UIView view(navigationController() ? navigationController().view() : UIView());
  if (view) UIViewState::of(view.get()).setNeedsLayout();
}

UIPopoverPresentationController UIViewControllerState::popover() {
  if (!_popover) _popover = makeNew<UIPopoverPresentationController>();
  return _popover;
}

void UIViewControllerState::setSafeArea(EdgeInsets insets) {
  if (insets == _safeArea) return;
  _safeArea = insets;
  adjustScrollViews();
  if (_view) UIViewState::of(_view.get()).setNeedsLayout();
}

// The view itself and what stands directly in it.
void UIViewControllerState::adjustScrollViews() {
  if (!_view) return;
  const auto adjust = [this](UIView view) {
    if (isKindOf(view, UIScrollViewState::classObject()))
      UIScrollViewState::of(view.get()).setSafeArea(_safeArea);
  };
  adjust(_view);
  for (const auto& view : UIViewState::of(_view.get()).subviews()) adjust(view);
}

}  // namespace desktop::uikit
