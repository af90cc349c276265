// SPDX-License-Identifier: MIT
//
// How one screen of the stack takes another's place. A transition holds both controllers until its
// animation ends; what is under way is over at once when the next one begins, so two never run
// together, and appearance messages always come in pairs.
#include <algorithm>

#include "desktop/uikit/bars/ui_navigation_bar.h"
#include "desktop/uikit/controllers/ui_navigation_controller.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

using bridge::Owned;

constexpr Seconds slideTime = 0.35;
constexpr CGFloat parallax = 0.3;  // how far the lower screen moves, as part of the width

bool contains(const UINavigationController::Stack& stack, bridge::UIViewController controller) {
  return std::ranges::any_of(stack, [&](const auto& known) { return known.get() == controller; });
}

}  // namespace

// What was under way is over at once: two never run together. Answers the controllers that left.
UINavigationController::Stack UINavigationController::change(const Stack& next,
                                                             Direction direction) {
  endTransition();
  const Stack before = stack();
  const auto from = Owned<bridge::UIViewController>::retain(top());
  UIViewController::of(self()).setChildren(next);
  Stack gone;
  for (const auto& controller : before)
    if (!contains(next, controller)) gone.push_back(controller);
  for (const auto& controller : gone)
    if (controller.get() != from.get()) UIViewController::of(controller.get()).leftParent();
  updateBars();
  if (top() != from.get()) beginTransition(from, top(), direction);
  return gone;
}

void UINavigationController::updateBars() {
  UINavigationBar::Items items;
  for (const auto& controller : stack())
    items.push_back(Owned<bridge::UINavigationItem>::retain(controller->navigationItem()));
  UINavigationBar::of(_bar.get()).setItems(std::move(items));
}

// Nobody is told of screens that change while nothing of the stack is on show.
void UINavigationController::beginTransition(bridge::UIViewController from,
                                             bridge::UIViewController to, Direction direction) {
  UIViewController& me = UIViewController::of(self());
  _leaving = Owned<bridge::UIViewController>::retain(from);
  _coming = Owned<bridge::UIViewController>::retain(to);
  if (!me.viewIfLoaded()) return endTransition();
  const bool isShown = me.appearance() == UIViewController::Appearance::shown ||
                       me.appearance() == UIViewController::Appearance::appearing;
  const bool isAnimated =
      direction != Direction::none && from && to && isShown && UIView::of(me.view().get()).window();
  UIMenuController::shared().hide();
  tellDelegate(false, isAnimated);
  if (to) to.view();
  if (isShown) {
    if (from) UIViewController::of(from.get()).beginAppearance(false, isAnimated);
    if (to) UIViewController::of(to.get()).beginAppearance(true, isAnimated);
  }
  const auto tabs = bridge::send<bridge::UIViewController, "tabBarController">(self());
  bridge::send<void, "_updateBar:">(tabs, isAnimated);
  if (isAnimated) return slide(from, to, direction);
  showTop();
  arrange();
  endTransition();
}

// The upper of both screens moves by the whole width, the lower one by a part of it.
void UINavigationController::slide(bridge::UIViewController from, bridge::UIViewController to,
                                   Direction direction) {
  const CGRect bounds = _content->bounds();
  const bool isForward = direction == Direction::forward;
  const CGFloat width = bounds.size.width;
  const bridge::UIView bar = UINavigationBar::of(_bar.get()).contentView();
  animator().withoutAnimation([&] {
    UIView::of(_content.get()).insertSubview(to.view(), isForward ? 1 : 0);
    to.view().setAutoresizingMask(bridge::flexibleWidth | bridge::flexibleHeight);
    to.view().setFrame(bounds);
    arrange();
    bridge::send<void, "layoutIfNeeded">(to.view());
    to.view().setFrame(offset(bounds, {isForward ? width : -parallax * width, 0}));
    bar.setAlpha(0);
  });
  const unsigned transition = ++_transition;
  const auto kept = Owned<bridge::UIViewController>::retain(self());
  animator().animate(
      slideTime, 0, AnimationCurve::easeInOut,
      [&] {
        from.view().setFrame(offset(bounds, {isForward ? -parallax * width : width, 0}));
        to.view().setFrame(bounds);
        bar.setAlpha(1);
      },
      [kept, transition](bool) {
        UINavigationController& me = of(kept.get());
        if (me._transition == transition) me.endTransition();
      });
}

void UINavigationController::endTransition() {
  if (!isInTransition()) return;
  ++_transition;
  const auto leaving = std::exchange(_leaving, {});
  const auto coming = std::exchange(_coming, {});
  const bool isLoaded = static_cast<bool>(UIViewController::of(self()).viewIfLoaded());
  if (leaving) {
    UIViewController& state = UIViewController::of(leaving.get());
    if (state.viewIfLoaded()) state.viewIfLoaded().removeFromSuperview();
    state.endAppearance();
    if (!contains(stack(), leaving)) state.leftParent();
  }
  if (!coming || !isLoaded) return;
  animator().stop(coming->view());
  // Who is coming because the whole stack is coming is told with it.
  if (UIViewController::of(self()).appearance() == UIViewController::Appearance::shown)
    UIViewController::of(coming.get()).endAppearance();
  tellDelegate(true, false);
}

void UINavigationController::showTop() {
  if (!_content) return;
  const bridge::UIView shown = top() ? top().view() : bridge::UIView();
  const auto before = UIView::of(_content.get()).subviews();
  for (const auto& view : before)
    if (view.get() != shown) view->removeFromSuperview();
  if (!shown || UIView::of(shown.get()).superview() == _content.get()) return;
  shown.setAutoresizingMask(bridge::flexibleWidth | bridge::flexibleHeight);
  shown.setFrame(_content->bounds());
  _content->addSubview(shown);
}

void UINavigationController::tellDelegate(bool isDone, bool animated) const {
  if (isDone) {
    if (bridge::respondsTo<"navigationController:didShowViewController:animated:">(_delegate))
      bridge::send<void, "navigationController:didShowViewController:animated:">(_delegate, self(),
                                                                                 top(), animated);
  } else if (bridge::respondsTo<"navigationController:willShowViewController:animated:">(
                 _delegate)) {
    bridge::send<void, "navigationController:willShowViewController:animated:">(_delegate, self(),
                                                                                top(), animated);
  }
}

}  // namespace desktop::uikit
