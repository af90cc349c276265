// SPDX-License-Identifier: MIT
//
// The class, and a controller's view. Containment and appearance are in
// ui_view_controller_containment.cpp, presentation in ui_view_controller_presentation.cpp.
#include "desktop/uikit/controllers/ui_view_controller.h"

#include "bridge/class_builder.h"
#include "desktop/uikit/bars/ui_navigation_item.h"
#include "desktop/uikit/bars/ui_tab_bar_item.h"
#include "desktop/uikit/base/object_list.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controllers/presentation.h"
#include "desktop/uikit/overlays/ui_popover_presentation_controller.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

Class UIViewController::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIViewController>("UIViewController")
          .method<"init", &UIViewController::init>()
          .method<"initWithNibName:bundle:", &UIViewController::initWithNib>()
          .method<"view", &UIViewController::view>()
          .method<"setView:", &UIViewController::setView>()
          .method<"viewIfLoaded", &UIViewController::viewIfLoaded>()
          .method<"isViewLoaded", &UIViewController::isViewLoaded>()
          .method<"loadView", &UIViewController::loadView>()
          .method<"loadViewIfNeeded", &UIViewController::loadViewIfNeeded>()
          .method<"viewDidLoad", &UIViewController::viewDidLoad>()
          .method<"nextResponder", &UIViewController::nextResponder>()
          .method<"title", &UIViewController::title>()
          .method<"setTitle:", &UIViewController::setTitle>()
          .method<"navigationItem", &UIViewController::navigationItem>()
          .method<"tabBarItem", &UIViewController::tabBarItem>()
          .method<"setTabBarItem:", &UIViewController::setTabBarItem>()
          .method<"isEditing", &UIViewController::isEditing>()
          .method<"setEditing:", &UIViewController::setEditingAtOnce>()
          .method<"setEditing:animated:", &UIViewController::setEditing>()
          .method<"hidesBottomBarWhenPushed", &UIViewController::hidesBottomBarWhenPushed>()
          .method<"setHidesBottomBarWhenPushed:", &UIViewController::setHidesBottomBar>()
          .method<"toolbarItems", &UIViewController::toolbarItemsArray>()
          .method<"setToolbarItems:", &UIViewController::setToolbarItems>()
          .method<"setToolbarItems:animated:", &UIViewController::setToolbarItemsAnimated>()
          .method<"viewWillAppear:", &UIViewController::viewWillAppear>()
          .method<"viewDidAppear:", &UIViewController::viewDidAppear>()
          .method<"viewWillDisappear:", &UIViewController::viewWillDisappear>()
          .method<"viewDidDisappear:", &UIViewController::viewDidDisappear>()
          .method<"viewWillLayoutSubviews", &UIViewController::viewWillLayoutSubviews>()
          .method<"viewDidLayoutSubviews", &UIViewController::viewDidLayoutSubviews>()
          .method<"viewWillTransitionToSize:withTransitionCoordinator:",
                  &UIViewController::viewWillTransition>()
          .method<"_adjustScrollViews", &UIViewController::adjustScrollViews>()
          .method<"_safeAreaInsets", &UIViewController::safeAreaInsets>()
          .method<"beginAppearanceTransition:animated:", &UIViewController::beginAppearance>()
          .method<"endAppearanceTransition", &UIViewController::endAppearance>()
          .method<"childViewControllers", &UIViewController::childrenArray>()
          .method<"parentViewController", &UIViewController::parent>()
          .method<"addChildViewController:", &UIViewController::addChild>()
          .method<"removeFromParentViewController", &UIViewController::removeFromParent>()
          .method<"willMoveToParentViewController:", &UIViewController::willMoveToParent>()
          .method<"didMoveToParentViewController:", &UIViewController::didMoveToParent>()
          .method<"navigationController", &UIViewController::navigationController>()
          .method<"tabBarController", &UIViewController::tabBarController>()
          .method<"presentedViewController", &UIViewController::presentedController>()
          .method<"presentingViewController", &UIViewController::presentingController>()
          .method<"popoverPresentationController", &UIViewController::popover>()
          .method<"modalPresentationStyle", &UIViewController::modalPresentationStyle>()
          .method<"setModalPresentationStyle:", &UIViewController::setModalPresentationStyle>()
          .method<"modalTransitionStyle", &UIViewController::modalTransitionStyle>()
          .method<"setModalTransitionStyle:", &UIViewController::setModalTransitionStyle>()
          .method<"isBeingPresented", &UIViewController::isBeingPresented>()
          .method<"isBeingDismissed", &UIViewController::isBeingDismissed>()
          .method<"presentViewController:animated:completion:", &UIViewController::present>()
          .method<"dismissViewControllerAnimated:completion:", &UIViewController::dismiss>()
          .method<"_showPresented:", &UIViewController::showPresented>()
          .method<"_presentationDuration", &UIViewController::presentationDuration>()
          .build();
  return made;
}

UIViewController::UIViewController(id self) : Bound(self) {}

UIViewController::~UIViewController() {
  for (const auto& child : _children) of(child.get())._parent = {};
  if (_presentation) {
    of(_presentation->presented.get())._presenting = {};
    _presentation->container->removeFromSuperview();
  }
  if (_view) UIView::of(_view.get()).setController({});
}

bridge::UIViewController UIViewController::init() {
  return bridge::send<bridge::UIViewController, "initWithNibName:bundle:">(
      self(), bridge::NSString(), bridge::Object());
}

// There are no nibs.
bridge::UIViewController UIViewController::initWithNib(bridge::NSString, bridge::Object) const {
  return super<bridge::UIViewController, "init">();
}

bridge::UIView UIViewController::view() {
  if (_view) return _view;
  bridge::send<void, "loadView">(self());
  if (!_view) loadView();
  bridge::send<void, "viewDidLoad">(self());
  return _view;
}

void UIViewController::loadView() {
  const auto made = bridge::makeView<bridge::UIView>(rectOfSize(screen().size));
  made->setAutoresizingMask(bridge::flexibleWidth | bridge::flexibleHeight);
  bridge::send<void, "setView:">(self(), made.get());
}

void UIViewController::setView(bridge::UIView view) {
  if (view == _view.get()) return;
  if (_view) UIView::of(_view.get()).setController({});
  _view = bridge::Owned<bridge::UIView>::retain(view);
  if (!_view) return;
  UIView::of(_view.get()).setController(self());
  UIView::of(_view.get()).setNeedsLayout();
}

// What a controller does not take goes to what its view stands in, or to who presented it.
bridge::UIResponder UIViewController::nextResponder() const {
  if (_presenting) return _presenting;
  return _view ? UIView::of(_view.get()).superview() : bridge::UIView();
}

// The items follow the title until they are given one of their own.
void UIViewController::setTitle(bridge::NSString title) {
  _title = bridge::Owned<bridge::NSString>::adopt(bridge::send<bridge::NSString, "copy">(title));
  if (_navigationItem) _navigationItem->setTitle(title);
  bridge::send<void, "setTitle:">(_tabBarItem.get(), title);
}

bridge::UINavigationItem UIViewController::navigationItem() {
  if (!_navigationItem)
    _navigationItem = bridge::Owned<bridge::UINavigationItem>::adopt(
        bridge::send<bridge::UINavigationItem, "initWithTitle:">(
            bridge::send<id, "alloc">(UINavigationItem::classObject()), _title.get()));
  return _navigationItem;
}

bridge::NSObject UIViewController::tabBarItem() {
  if (!_tabBarItem) _tabBarItem = UITabBarItem::make(_title, {}, 0);
  return _tabBarItem;
}

void UIViewController::setTabBarItem(bridge::NSObject item) {
  _tabBarItem = bridge::Owned<bridge::NSObject>::retain(item);
}

void UIViewController::setEditing(bool editing, bool) {
  _isEditing = editing;
}

void UIViewController::setEditingAtOnce(bool editing) {
  bridge::send<void, "setEditing:animated:">(self(), editing, false);
}

bridge::NSArray UIViewController::toolbarItemsArray() const {
  return arrayOrNil(_toolbarItems);
}

void UIViewController::setToolbarItems(bridge::NSArray items) {
  _toolbarItems = listOf<bridge::NSObject>(items);
  const bridge::UIView view(navigationController() ? navigationController().view()
                                                   : bridge::UIView());
  if (view) UIView::of(view.get()).setNeedsLayout();
}

bridge::UIPopoverPresentationController UIViewController::popover() {
  if (!_popover) _popover = bridge::makeNew<bridge::UIPopoverPresentationController>();
  return _popover;
}

void UIViewController::setSafeArea(EdgeInsets insets) {
  if (insets == _safeArea) return;
  _safeArea = insets;
  adjustScrollViews();
  if (_view) UIView::of(_view.get()).setNeedsLayout();
}

// The view itself and what stands directly in it.
void UIViewController::adjustScrollViews() {
  if (!_view) return;
  const auto adjust = [this](bridge::UIView view) {
    if (bridge::isKindOf(view, UIScrollView::classObject()))
      UIScrollView::of(view.get()).setSafeArea(_safeArea);
  };
  adjust(_view);
  for (const auto& view : UIView::of(_view.get()).subviews()) adjust(view);
}

}  // namespace desktop::uikit
