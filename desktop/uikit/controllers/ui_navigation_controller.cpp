// SPDX-License-Identifier: MIT
//
// The stack, and where its bars and screens stand. How one screen takes another's place is in
// ui_navigation_controller_transitions.cpp.
#include "desktop/uikit/controllers/ui_navigation_controller.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/uikit/bars/ui_navigation_bar.h"
#include "desktop/uikit/bars/ui_toolbar.h"
#include "desktop/uikit/base/platform_log.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controllers/transition_view.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

using bridge::Owned;

Class UINavigationController::classObject() {
  using Controller = UINavigationController;
  static const Class made =
      bridge::ClassBuilder<Controller>("UINavigationController")
          .method<"initWithRootViewController:", &Controller::initWithRoot>()
          .method<"loadView", &Controller::loadView>()
          .method<"viewWillAppear:", &Controller::viewWillAppear>()
          .method<"viewWillLayoutSubviews", &Controller::viewWillLayoutSubviews>()
          .method<"viewControllers", &Controller::stackArray>()
          .method<"setViewControllers:", &Controller::setStackAtOnce>()
          .method<"setViewControllers:animated:", &Controller::setStack>()
          .method<"topViewController", &Controller::top>()
          .method<"visibleViewController", &Controller::visible>()
          .method<"pushViewController:animated:", &Controller::push>()
          .method<"popViewControllerAnimated:", &Controller::pop>()
          .method<"popToRootViewControllerAnimated:", &Controller::popToRoot>()
          .method<"popToViewController:animated:", &Controller::popTo>()
          .method<"navigationBar", &Controller::navigationBar>()
          .method<"isNavigationBarHidden", &Controller::isNavigationBarHidden>()
          .method<"setNavigationBarHidden:", &Controller::setBarHiddenAtOnce>()
          .method<"setNavigationBarHidden:animated:", &Controller::setBarHidden>()
          .method<"toolbar", &Controller::toolbar>()
          .method<"isToolbarHidden", &Controller::isToolbarHidden>()
          .method<"setToolbarHidden:", &Controller::setToolbarHiddenAtOnce>()
          .method<"setToolbarHidden:animated:", &Controller::setToolbarHidden>()
          .method<"delegate", &Controller::delegate>()
          .method<"setDelegate:", &Controller::setDelegate>()
          .build();
  return made;
}

UINavigationController::UINavigationController(id self)
    : Bound(self),
      _bar(bridge::makeView<bridge::UINavigationBar>({})),
      _toolbar(Owned<bridge::UIView>::adopt(bridge::send<bridge::UIView, "init">(
          bridge::send<id, "alloc">(UIToolbar::classObject())))) {
  UINavigationBar::of(_bar.get()).setBackAction([this] { pop(true); });
}

UINavigationController::~UINavigationController() {
  UINavigationBar::of(_bar.get()).setBackAction({});
}

bridge::UIViewController UINavigationController::initWithRoot(bridge::UIViewController root) {
  const auto object = bridge::send<bridge::UIViewController, "init">(self());
  push(root, false);
  return object;
}

void UINavigationController::loadView() {
  super<void, "loadView">();
  const bridge::UIView view = self().view();
  _content = makeTransitionView(view.bounds());
  view.addSubview(_content);
  view.addSubview(_toolbar);
  view.addSubview(_bar);
}

bridge::UIViewController UINavigationController::top() const {
  return stack().empty() ? bridge::UIViewController() : stack().back().get();
}

bridge::UIViewController UINavigationController::visible() const {
  const auto presented = bridge::send<bridge::UIViewController, "presentedViewController">(self());
  return presented ? presented : top();
}

void UINavigationController::push(bridge::UIViewController controller, bool animated) {
  if (!controller) return;
  Stack next = stack();
  const bool isKnown =
      std::ranges::any_of(next, [&](const auto& known) { return known.get() == controller; });
  if (isKnown || bridge::isKindOf(controller, classObject()))
    return logLine("Attempt to push " + nameOf(controller) + " on " + nameOf(self()) +
                   (isKnown ? " more than once" : ", which is a navigation controller"));
  next.push_back(Owned<bridge::UIViewController>::retain(controller));
  change(next, animated ? Direction::forward : Direction::none);
}

bridge::UIViewController UINavigationController::pop(bool animated) {
  if (stack().size() < 2) return {};
  Stack next = stack();
  next.pop_back();
  Stack gone = change(next, animated ? Direction::backward : Direction::none);
  return gone.back().autorelease();
}

bridge::NSArray UINavigationController::popToRoot(bool animated) {
  return stack().empty() ? bridge::NSArray() : popTo(stack().front(), animated);
}

bridge::NSArray UINavigationController::popTo(bridge::UIViewController controller, bool animated) {
  Stack next = stack();
  const auto place = std::ranges::find(next, controller, &Owned<bridge::UIViewController>::get);
  if (place == next.end() || place + 1 == next.end()) return {};
  next.erase(place + 1, next.end());
  return arrayOf(change(next, animated ? Direction::backward : Direction::none));
}

void UINavigationController::setStack(bridge::NSArray controllers, bool animated) {
  const Stack next = listOf<bridge::UIViewController>(controllers);
  const bool goesBack = !next.empty() && std::ranges::any_of(stack(), [&](const auto& known) {
    return known.get() == next.back().get();
  });
  change(next, !animated ? Direction::none : goesBack ? Direction::backward : Direction::forward);
}

void UINavigationController::setBarHidden(bool hidden, bool animated) {
  if (hidden == _isBarHidden) return;
  _isBarHidden = hidden;
  arrangeIn(animated);
}

void UINavigationController::setToolbarHidden(bool hidden, bool animated) {
  if (hidden == _isToolbarHidden) return;
  _isToolbarHidden = hidden;
  arrangeIn(animated);
}

void UINavigationController::arrangeIn(bool animated) {
  constexpr Seconds duration = 0.2;
  if (!animated) return arrange();
  const auto kept = Owned<bridge::UIViewController>::retain(self());
  UIView::of(_bar.get()).setHidden(false);
  animator().animate(
      duration, 0, AnimationCurve::easeInOut, [this] { arrange(); },
      [kept](bool) { of(kept.get()).arrange(); });
}

void UINavigationController::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  showTop();
}

void UINavigationController::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  if (!isInTransition()) showTop();
  arrange();
}

CGFloat UINavigationController::barBottom() const {
  return _isBarHidden ? 0 : screen().statusBarHeight + UINavigationBar::of(_bar.get()).height();
}

// A bar that is hidden stands outside the view, on its own side.
void UINavigationController::arrange() {
  if (!UIViewController::of(self()).viewIfLoaded()) return;
  const CGRect bounds = self().view().bounds();
  const CGFloat barHeight = UINavigationBar::of(_bar.get()).height();
  const CGFloat barTop = _isBarHidden ? -barHeight : screen().statusBarHeight;
  _bar->setFrame({{0, barTop}, {bounds.size.width, barHeight}});
  UIView::of(_bar.get()).setHidden(_isBarHidden && !animator().isAnimating(_bar.get()));
  const EdgeInsets around = UIViewController::of(self()).safeArea();
  const CGFloat toolbarTop = _isToolbarHidden
                                 ? bounds.size.height
                                 : bounds.size.height - around.bottom - UIToolbar::height;
  _toolbar->setFrame({{0, toolbarTop}, {bounds.size.width, UIToolbar::height + around.bottom}});
  if (const auto shown = top()) {
    const auto& items = UIViewController::of(shown.get()).toolbarItems();
    ObjectList<bridge::UIBarButtonItem> toolbarItems;
    for (const auto& item : items)
      if (const auto known = bridge::as<bridge::UIBarButtonItem>(item.get()))
        toolbarItems.push_back(Owned<bridge::UIBarButtonItem>::retain(known));
    UIToolbar::of(_toolbar.get()).setItems(std::move(toolbarItems));
    UIViewController::of(shown.get())
        .setSafeArea({.top = std::max(barBottom(), around.top),
                      .bottom = std::max(bounds.size.height - toolbarTop, around.bottom)});
  }
}

}  // namespace desktop::uikit
