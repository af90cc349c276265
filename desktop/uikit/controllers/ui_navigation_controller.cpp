// SPDX-License-Identifier: MIT
//
// The stack, and where its bars and screens stand. Who leaves and who comes is held by a transition
// until its animation ends; what is under way is over at once when the next one begins, so two
// never run together, and appearance messages always come in pairs.
#include "desktop/uikit/controllers/ui_navigation_controller.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/ui_navigation_bar.h"
#include "desktop/uikit/bars/ui_toolbar.h"
#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/base/own_messages.h"
#include "desktop/uikit/base/platform_log.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/controllers/transition_view.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

bool contains(const UINavigationControllerState::Stack& stack, UIViewController controller) {
  return std::ranges::any_of(stack, [&](const auto& known) { return known.get() == controller; });
}

}  // namespace

Class UINavigationControllerState::classObject() {
  using Controller = UINavigationControllerState;
  static const Class made =
      ClassBuilder<Controller>("UINavigationController")
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

UINavigationControllerState::UINavigationControllerState(id self)
    : Bound(self),
      _bar(bridge::makeView<UINavigationBar>({})),
      _toolbar(makeNew<UIView>(UIToolbarState::classObject())) {
  UINavigationBarState::of(_bar.get()).setBackAction([this] { pop(true); });
}

UINavigationControllerState::~UINavigationControllerState() {
  UINavigationBarState::of(_bar.get()).setBackAction({});
}

UIViewController UINavigationControllerState::initWithRoot(UIViewController root) {
  const auto object = initWith<"init">(self());
  push(root, false);
  return object;
}

void UINavigationControllerState::loadView() {
  super<void, "loadView">();
  const UIView view = self().view();
  _content = makeTransitionView(view.bounds());
  view.addSubview(_content);
  view.addSubview(_toolbar);
  view.addSubview(_bar);
}

UIViewController UINavigationControllerState::top() const {
  return stack().empty() ? UIViewController() : stack().back().get();
}

UIViewController UINavigationControllerState::visible() const {
  const auto presented = self().presentedViewController();
  return presented ? presented : top();
}

void UINavigationControllerState::push(UIViewController controller, bool animated) {
  if (!controller) return;
  Stack next = stack();
  const bool isKnown = contains(next, controller);
  if (isKnown || isKindOf(controller, classObject()))
    return logLine("Attempt to push " + nameOf(controller) + " on " + nameOf(self()) +
                   (isKnown ? " more than once" : ", which is a navigation controller"));
  next.push_back(Owned<UIViewController>::retain(controller));
  change(next, animated ? Direction::forward : Direction::none);
}

UIViewController UINavigationControllerState::pop(bool animated) {
  if (stack().size() < 2) return {};
  Stack next = stack();
  next.pop_back();
  Stack gone = change(next, animated ? Direction::backward : Direction::none);
  return gone.back().autorelease();
}

NSArray UINavigationControllerState::popToRoot(bool animated) {
  return stack().empty() ? NSArray() : popTo(stack().front(), animated);
}

NSArray UINavigationControllerState::popTo(UIViewController controller, bool animated) {
  Stack next = stack();
  const auto place = std::ranges::find(next, controller, &Owned<UIViewController>::get);
  if (place == next.end() || place + 1 == next.end()) return {};
  next.erase(place + 1, next.end());
  return arrayOf(change(next, animated ? Direction::backward : Direction::none));
}

void UINavigationControllerState::setStack(NSArray controllers, bool animated) {
  const Stack next = listOf<UIViewController>(controllers);
  const bool goesBack = !next.empty() && contains(stack(), next.back());
  change(next, !animated ? Direction::none : goesBack ? Direction::backward : Direction::forward);
}

void UINavigationControllerState::setBarHidden(bool hidden, bool animated) {
  if (hidden == _isBarHidden) return;
  _isBarHidden = hidden;
  arrangeIn(animated);
}

void UINavigationControllerState::setToolbarHidden(bool hidden, bool animated) {
  if (hidden == _isToolbarHidden) return;
  _isToolbarHidden = hidden;
  arrangeIn(animated);
}

void UINavigationControllerState::arrangeIn(bool animated) {
  constexpr Seconds duration = 0.2;
  if (!animated) return arrange();
  const auto kept = Owned<UIViewController>::retain(self());
  UIViewState::of(_bar.get()).setHidden(false);
  animator().animate(
      duration, 0, AnimationCurve::easeInOut, [this] { arrange(); },
      [kept](bool) { of(kept.get()).arrange(); });
}

void UINavigationControllerState::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  showTop();
}

void UINavigationControllerState::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  if (!isInTransition()) showTop();
  arrange();
}

CGFloat UINavigationControllerState::barBottom() const {
  return _isBarHidden ? 0
                      : screen().statusBarHeight + UINavigationBarState::of(_bar.get()).height();
}

// A bar that is hidden stands outside the view, on its own side.
void UINavigationControllerState::arrange() {
  if (!viewIfLoaded()) return;
  const CGRect bounds = self().view().bounds();
  const CGFloat barHeight = UINavigationBarState::of(_bar.get()).height();
  const CGFloat barTop = _isBarHidden ? -barHeight : screen().statusBarHeight;
  _bar->setFrame({{0, barTop}, {bounds.size.width, barHeight}});
  UIViewState::of(_bar.get()).setHidden(_isBarHidden && !animator().isAnimating(_bar.get()));
  const EdgeInsets around = UIViewControllerState::of(self()).safeArea();
  const CGFloat toolbarTop = _isToolbarHidden
                                 ? bounds.size.height
                                 : bounds.size.height - around.bottom - UIToolbarState::height;
  _toolbar->setFrame(
      {{0, toolbarTop}, {bounds.size.width, UIToolbarState::height + around.bottom}});
  if (const auto shown = top()) {
    const auto& items = UIViewControllerState::of(shown.get()).toolbarItems();
    ObjectList<UIBarButtonItem> toolbarItems;
    for (const auto& item : items)
      if (const auto known = as<UIBarButtonItem>(item.get()))
        toolbarItems.push_back(Owned<UIBarButtonItem>::retain(known));
    UIToolbarState::of(_toolbar.get()).setItems(std::move(toolbarItems));
    UIViewControllerState::of(shown.get())
        .setSafeArea({.top = std::max(barBottom(), around.top),
                      .bottom = std::max(bounds.size.height - toolbarTop, around.bottom)});
  }
}

// What was under way is over at once: two never run together. Answers the controllers that left.
UINavigationControllerState::Stack UINavigationControllerState::change(const Stack& next,
                                                                       Direction direction) {
  endTransition();
  const Stack before = stack();
  const auto from = Owned<UIViewController>::retain(top());
  setChildren(next);
  Stack gone;
  for (const auto& controller : before)
    if (!contains(next, controller)) gone.push_back(controller);
  for (const auto& controller : gone)
    if (controller.get() != from.get()) UIViewControllerState::of(controller.get()).leftParent();
  updateBars();
  if (top() != from.get()) beginTransition(from, top(), direction);
  return gone;
}

void UINavigationControllerState::updateBars() {
  UINavigationBarState::Items items;
  for (const auto& controller : stack())
    items.push_back(Owned<UINavigationItem>::retain(controller->navigationItem()));
  UINavigationBarState::of(_bar.get()).setItems(std::move(items));
}

// Nobody is told of screens that change while nothing of the stack is on show.
void UINavigationControllerState::beginTransition(UIViewController from, UIViewController to,
                                                  Direction direction) {
  _transition.begin(from, to);
  if (!viewIfLoaded()) return endTransition();
  const bool isShown = isThereOrComing();
  const bool isAnimated = direction != Direction::none && from && to && isShown &&
                          UIViewState::of(view().get()).window();
  UIMenuControllerState::shared().hide();
  tellDelegate(false, isAnimated);
  if (to) to.view();
  if (isShown) {
    if (from) UIViewControllerState::of(from.get()).beginAppearance(false, isAnimated);
    if (to) UIViewControllerState::of(to.get()).beginAppearance(true, isAnimated);
  }
  updateBar(self().tabBarController(), isAnimated);
  if (isAnimated) return slide(direction);
  showTop();
  arrange();
  endTransition();
}

void UINavigationControllerState::slide(Direction direction) {
  const auto kept = Owned<UIViewController>::retain(self());
  _transition.slide(
      direction, _content, UINavigationBarState::of(_bar.get()).contentView(),
      [this] { arrange(); }, [kept] { of(kept.get()).endTransition(); });
}

void UINavigationControllerState::endTransition() {
  if (!isInTransition()) return;
  const auto [leaving, coming] = _transition.end();
  const bool isLoaded = static_cast<bool>(viewIfLoaded());
  if (leaving) {
    UIViewControllerState& state = UIViewControllerState::of(leaving.get());
    if (state.viewIfLoaded()) state.viewIfLoaded().removeFromSuperview();
    state.endAppearance();
    if (!contains(stack(), leaving)) state.leftParent();
  }
  if (!coming || !isLoaded) return;
  animator().stop(coming->view());
  // Who is coming because the whole stack is coming is told with it.
  if (appearance() == UIViewControllerState::Appearance::shown)
    UIViewControllerState::of(coming.get()).endAppearance();
  tellDelegate(true, false);
}

void UINavigationControllerState::showTop() {
  if (!_content) return;
  const UIView shown = top() ? top().view() : UIView();
  const auto before = UIViewState::of(_content.get()).subviews();
  for (const auto& view : before)
    if (view.get() != shown) view->removeFromSuperview();
  if (!shown || UIViewState::of(shown.get()).superview() == _content.get()) return;
  shown.setAutoresizingMask(flexibleWidth | flexibleHeight);
  shown.setFrame(_content->bounds());
  _content->addSubview(shown);
}

void UINavigationControllerState::tellDelegate(bool isDone, bool animated) const {
  if (isDone) {
    told<"navigationController:didShowViewController:animated:">(_delegate, self(), top(),
                                                                 animated);
  } else {
    told<"navigationController:willShowViewController:animated:">(_delegate, self(), top(),
                                                                  animated);
  }
}

}  // namespace desktop::uikit
