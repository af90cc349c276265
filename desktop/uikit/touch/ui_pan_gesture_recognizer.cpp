// SPDX-License-Identifier: MIT
#include "desktop/uikit/touch/ui_pan_gesture_recognizer.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/touch/ui_touch.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat slop = 10;             // points from where the finger came down
constexpr Seconds velocityWindow = 0.1;  // what counts for the velocity

// A way on the screen as one in a view's coordinates.
CGPoint wayIn(CGPoint way, bridge::UIView view) {
  return fromScreen(way, view) - fromScreen({0, 0}, view);
}

}  // namespace

Class UIPanGestureRecognizer::classObject() {
  using Self = UIPanGestureRecognizer;
  static const Class made =
      bridge::ClassBuilder<Self>("UIPanGestureRecognizer")
          .method<"translationInView:", &Self::translationIn>()
          .method<"setTranslation:inView:", &Self::setTranslation>()
          .method<"velocityInView:", &Self::velocityIn>()
          .method<"minimumNumberOfTouches", &Self::minimumNumberOfTouches>()
          .method<"setMinimumNumberOfTouches:", &Self::setMinimumNumberOfTouches>()
          .method<"maximumNumberOfTouches", &Self::maximumNumberOfTouches>()
          .method<"setMaximumNumberOfTouches:", &Self::setMaximumNumberOfTouches>()
          .method<"touchesBegan:withEvent:", &Self::touchesBegan>()
          .method<"touchesMoved:withEvent:", &Self::touchesMoved>()
          .method<"touchesEnded:withEvent:", &Self::touchesEnded>()
          .method<"touchesCancelled:withEvent:", &Self::touchesCancelled>()
          .method<"reset", &Self::reset>()
          .build();
  return made;
}

UIGestureRecognizer& UIPanGestureRecognizer::base() const {
  return UIGestureRecognizer::of(self());
}

CGPoint UIPanGestureRecognizer::translationIn(bridge::UIView view) const {
  return wayIn(_last - _start, view);
}

void UIPanGestureRecognizer::setTranslation(CGPoint translation, bridge::UIView view) {
  if (!std::isfinite(translation.x) || !std::isfinite(translation.y)) return;
  const CGPoint start = fromScreen(_last, view) - translation;
  _start = view ? apply(UIView::of(view.get()).toScreen(), start) : start;
}

CGPoint UIPanGestureRecognizer::velocityIn(bridge::UIView view) const {
  return wayIn(velocityOnScreen(), view);
}

void UIPanGestureRecognizer::setWays(bool across, bool down) {
  _goesAcross = across;
  _goesDown = down;
}

// A finger that has come to rest has none.
CGPoint UIPanGestureRecognizer::velocityOnScreen() const {
  const Seconds now = scheduler().now();
  const auto first = std::ranges::find_if(
      _samples, [&](const Sample& sample) { return sample.time >= now - velocityWindow; });
  if (first == _samples.end()) return {};
  const Sample& last = _samples.back();
  const Seconds time = last.time - first->time;
  if (!(time > 0)) return {};
  return {(last.location.x - first->location.x) / time,
          (last.location.y - first->location.y) / time};
}

void UIPanGestureRecognizer::note(CGPoint location) {
  _last = location;
  const Seconds now = scheduler().now();
  while (!_samples.empty() && _samples.front().time < now - velocityWindow) _samples.pop_front();
  // Of what happens at one moment only the last counts.
  if (_samples.size() > 1 && _samples.back().time == now) _samples.pop_back();
  _samples.push_back({location, now});
}

void UIPanGestureRecognizer::touchesBegan(bridge::NSSet, bridge::UIEvent) {
  if (_minimumTouches > 1 || !(_goesAcross || _goesDown)) return base().become(State::failed);
  _samples.clear();
  _start = base().locationOnScreen();
  note(_start);
}

// What is counted begins where the slop was overcome.
void UIPanGestureRecognizer::touchesMoved(bridge::NSSet, bridge::UIEvent) {
  note(base().locationOnScreen());
  if (base().isUnderWay()) return base().become(State::changed);
  const CGPoint way = _last - _start;
  const CGFloat distance = std::hypot(_goesAcross ? way.x : 0, _goesDown ? way.y : 0);
  if (distance < slop) return;
  const CGFloat part = slop / distance;
  _start = _start + CGPoint{way.x * part, way.y * part};
  base().become(State::began);
}

void UIPanGestureRecognizer::touchesEnded(bridge::NSSet, bridge::UIEvent) {
  if (_last != base().locationOnScreen()) note(base().locationOnScreen());
  base().become(base().isUnderWay() ? State::ended : State::failed);
}

void UIPanGestureRecognizer::touchesCancelled(bridge::NSSet, bridge::UIEvent) {
  _samples.clear();
  base().become(State::cancelled);
}

void UIPanGestureRecognizer::reset() {
  _samples.clear();
}

}  // namespace desktop::uikit
