// SPDX-License-Identifier: MIT
//
// A controller's view, and who stands in whom: a controller keeps its children alive and knows its
// parent without keeping it. Who comes and goes with it hears of it, through the children whose
// views stand in its own. What one asks of presentation goes to the outermost controller.
#include "desktop/uikit/controllers/ui_view_controller.h"

#include <algorithm>
#include <utility>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/ui_navigation_item.h"
#include "desktop/uikit/bars/ui_tab_bar_item.h"
#include "desktop/uikit/base/object_list.h"
#include "desktop/uikit/base/platform_log.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/overlays/ui_popover_presentation_controller.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr Seconds standardPresentationTime = 0.4;

// What a plain controller answers to messages that are there for classes below to answer.
void nothingToDo() {}
template <typename Ignored>
void nothingToDoAbout(Ignored) {}

}  // namespace

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
          .method<"viewDidLoad", &nothingToDo>()
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
          .method<"viewWillAppear:", &nothingToDoAbout<bool>>()
          .method<"viewDidAppear:", &nothingToDoAbout<bool>>()
          .method<"viewWillDisappear:", &nothingToDoAbout<bool>>()
          .method<"viewDidDisappear:", &nothingToDoAbout<bool>>()
          .method<"viewWillLayoutSubviews", &nothingToDo>()
          .method<"viewDidLayoutSubviews", &nothingToDo>()
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
          .method<"willMoveToParentViewController:", &nothingToDoAbout<UIViewController>>()
          .method<"didMoveToParentViewController:", &nothingToDoAbout<UIViewController>>()
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
  if (presenting()) return presenting();
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

UIViewController UIViewControllerState::root() const {
  UIViewController at = self();
  while (const auto above = of(at.get())._parent) at = above;
  return at;
}

UIViewController UIViewControllerState::enclosing(Class aClass) const {
  UIViewController at = _parent;
  while (at && !isKindOf(at, aClass)) at = of(at.get())._parent;
  return at;
}

UIViewController UIViewControllerState::navigationController() const {
  return enclosing(classNamed<"UINavigationController">());
}

UIViewController UIViewControllerState::tabBarController() const {
  return enclosing(classNamed<"UITabBarController">());
}

NSArray UIViewControllerState::childrenArray() const {
  return arrayOf(_children);
}

void UIViewControllerState::addChild(UIViewController child) {
  const UIViewController me = self();
  if (!child || root() == child) return;
  const auto kept = Owned<UIViewController>::retain(child);
  if (of(child.get())._parent) of(child.get()).removeFromParent();
  child.willMoveToParent(me);
  _children.push_back(kept);
  of(child.get())._parent = me;
}

void UIViewControllerState::removeFromParent() {
  if (!_parent) return;
  const UIViewController me = self();
  const auto kept = Owned<UIViewController>::retain(me);
  std::erase_if(of(_parent.get())._children, [&](const auto& child) { return child.get() == me; });
  leftParent();
}

void UIViewControllerState::setChildren(const std::vector<Owned<UIViewController>>& children) {
  const UIViewController me = self();
  for (const auto& child : children) {
    UIViewControllerState& state = of(child.get());
    if (state._parent == me) continue;
    state.removeFromParent();
    child->willMoveToParent(me);
    state._parent = me;
  }
  const auto before = std::exchange(_children, children);
  for (const auto& child : children) {
    const bool isNew =
        std::ranges::none_of(before, [&](const auto& known) { return known.get() == child.get(); });
    if (isNew) child->didMoveToParent(me);
  }
}

void UIViewControllerState::leftParent() {
  _parent = {};
  self().didMoveToParent(UIViewController());
}

void UIViewControllerState::beginAppearance(bool comes, bool animated) {
  if (!_appearance.begin(comes, animated)) return;
  if (comes) {
    view();
    self().viewWillAppear(animated);
  } else {
    self().viewWillDisappear(animated);
  }
  for (const auto& child : shownChildren()) of(child.get()).beginAppearance(comes, animated);
}

void UIViewControllerState::endAppearance() {
  const auto hasCome = _appearance.end();
  if (!hasCome) return;
  if (*hasCome)
    self().viewDidAppear(_appearance.isAnimated());
  else
    self().viewDidDisappear(_appearance.isAnimated());
  for (const auto& child : shownChildren()) of(child.get()).endAppearance();
}

void UIViewControllerState::becomeSize(CGSize size) {
  self().viewWillTransition(size, Object());
  if (const auto above = presented()) of(above.get()).becomeSize(size);
}

// There is no coordinator: sizes change at once.
void UIViewControllerState::viewWillTransition(CGSize size, Object coordinator) {
  const auto children = _children;
  for (const auto& child : children) child->viewWillTransition(size, coordinator);
}

std::vector<Owned<UIViewController>> UIViewControllerState::shownChildren() const {
  auto shown = _children;
  std::erase_if(shown, [this](const auto& child) {
    const UIView view = of(child.get())._view;
    return !view || !UIViewState::of(view.get()).isDescendantOf(_view);
  });
  return shown;
}

const char* UIViewControllerState::refusal(UIViewController controller) const {
  if (!controller) return "which is none";
  const UIViewControllerState& other = of(controller.get());
  if (other.presenting() || other._parent || controller == root()) return "which is shown already";
  if (_presentation.isInTransition()) return "while a presentation is in progress";
  if (presented()) return "which is already presenting";
  if (!_view || !UIViewState::of(_view.get()).window())
    return "whose view is not in the window hierarchy";
  return nullptr;
}

void UIViewControllerState::present(UIViewController controller, bool animated,
                                    const BlockHeader* completion) {
  if (root() != self()) return of(root().get()).present(controller, animated, completion);
  if (const char* why = refusal(controller))
    return logLine("Attempt to present " + nameOf(controller) + " on " + nameOf(self()) + " " +
                   why);
  _presentation.present(of(controller.get())._presentation, animated,
                        Block<void()>::retain(completion));
}

void UIViewControllerState::dismiss(bool animated, const BlockHeader* completion) {
  of(root().get())._presentation.dismiss(animated, Block<void()>::retain(completion));
}

UIViewController UIViewControllerState::presentedController() const {
  return of(root().get()).presented();
}

UIViewController UIViewControllerState::presentingController() const {
  return of(root().get()).presenting();
}

void UIViewControllerState::showPresented(bool shown) {
  const CGRect whole = UIViewState::of(_view.get()).superview().bounds();
  _view->setFrame(shown ? whole : offset(whole, {0, whole.size.height}));
}

Seconds UIViewControllerState::presentationDuration() const {
  return standardPresentationTime;
}

}  // namespace desktop::uikit
