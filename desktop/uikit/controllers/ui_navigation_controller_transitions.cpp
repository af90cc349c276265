// SPDX-License-Identifier: MIT
//
// How one screen of the stack takes another's place. A transition holds both controllers until its
// animation ends; what is under way is over at once when the next one begins, so two never run
// together, and appearance messages always come in pairs.
#include <algorithm>

#include "desktop/uikit/bars/ui_navigation_bar.h"
#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/base/own_messages.h"
#include "desktop/uikit/controllers/ui_navigation_controller.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr Seconds slideTime = 0.35;
constexpr CGFloat parallax = 0.3;  // how far the lower screen moves, as part of the width

bool contains(const UINavigationControllerState::Stack& stack, UIViewController controller) {
  return std::ranges::any_of(stack, [&](const auto& known) { return known.get() == controller; });
}

}  // namespace

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
  _leaving = Owned<UIViewController>::retain(from);
  _coming = Owned<UIViewController>::retain(to);
  if (!viewIfLoaded()) return endTransition();
  const bool isShown = appearance() == UIViewControllerState::Appearance::shown ||
                       appearance() == UIViewControllerState::Appearance::appearing;
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
  if (isAnimated) return slide(from, to, direction);
  showTop();
  arrange();
  endTransition();
}

// The upper of both screens moves by the whole width, the lower one by a part of it.
void UINavigationControllerState::slide(UIViewController from, UIViewController to,
                                        Direction direction) {
  const CGRect bounds = _content->bounds();
  const bool isForward = direction == Direction::forward;
  const CGFloat width = bounds.size.width;
  const UIView bar = UINavigationBarState::of(_bar.get()).contentView();
  animator().withoutAnimation([&] {
    UIViewState::of(_content.get()).insertSubview(to.view(), isForward ? 1 : 0);
    to.view().setAutoresizingMask(flexibleWidth | flexibleHeight);
    to.view().setFrame(bounds);
    arrange();
    to.view().layoutIfNeeded();
    to.view().setFrame(offset(bounds, {isForward ? width : -parallax * width, 0}));
    bar.setAlpha(0);
  });
  const unsigned transition = ++_transition;
  const auto kept = Owned<UIViewController>::retain(self());
  animator().animate(
      slideTime, 0, AnimationCurve::easeInOut,
      [&] {
        from.view().setFrame(offset(bounds, {isForward ? -parallax * width : width, 0}));
        to.view().setFrame(bounds);
        bar.setAlpha(1);
      },
      [kept, transition](bool) {
        UINavigationControllerState& me = of(kept.get());
        if (me._transition == transition) me.endTransition();
      });
}

void UINavigationControllerState::endTransition() {
  if (!isInTransition()) return;
  ++_transition;
  const auto leaving = std::exchange(_leaving, {});
  const auto coming = std::exchange(_coming, {});
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
