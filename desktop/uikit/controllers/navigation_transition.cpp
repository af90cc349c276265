// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/navigation_transition.h"

#include <utility>

#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr Seconds slidingTime = 0.35;
constexpr CGFloat parallax = 0.3;  // how far the lower screen moves, as part of the width

}  // namespace

void NavigationTransition::begin(UIViewController leaving, UIViewController coming) {
  _screens = {Owned<UIViewController>::retain(leaving), Owned<UIViewController>::retain(coming)};
}

NavigationTransition::Screens NavigationTransition::end() {
  if (isUnderWay()) ++_number;
  return std::exchange(_screens, {});
}

// The upper of both screens moves by the whole width, the lower one by a part of it.
void NavigationTransition::slide(Direction direction, UIView content, UIView bar,
                                 const std::function<void()>& arrange,
                                 const std::function<void()>& isOver) {
  const UIView leaving = _screens.leaving->view();
  const UIView coming = _screens.coming->view();
  const CGRect bounds = content.bounds();
  const CGFloat width = bounds.size.width;
  const bool isForward = direction == Direction::forward;
  animator().withoutAnimation([&] {
    UIViewState::of(content.get()).insertSubview(coming, isForward ? 1 : 0);
    coming.setAutoresizingMask(flexibleWidth | flexibleHeight);
    coming.setFrame(bounds);
    arrange();
    coming.layoutIfNeeded();
    coming.setFrame(offset(bounds, {isForward ? width : -parallax * width, 0}));
    bar.setAlpha(0);
  });
  animator().animate(
      slidingTime, 0, AnimationCurve::easeInOut,
      [&] {
        leaving.setFrame(offset(bounds, {isForward ? -parallax * width : width, 0}));
        coming.setFrame(bounds);
        bar.setAlpha(1);
      },
      [this, number = ++_number, isOver](bool) {
        if (_number == number) isOver();
      });
}

}  // namespace desktop::uikit
