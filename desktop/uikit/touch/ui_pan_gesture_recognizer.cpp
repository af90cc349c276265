// SPDX-License-Identifier: MIT
#include "desktop/uikit/touch/ui_pan_gesture_recognizer.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/touch/ui_touch.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat slop = 10;             // points from where the finger came down
constexpr Seconds velocityWindow = 0.1;  // what counts for the velocity

// A way on the screen as one in a view's coordinates.
CGPoint wayIn(CGPoint way, UIView view) {
  return fromScreen(way, view) - fromScreen({0, 0}, view);
}

}  // namespace

Class UIPanGestureRecognizerState::classObject() {
  using Self = UIPanGestureRecognizerState;
  static const Class made =
      ClassBuilder<Self>("UIPanGestureRecognizer")
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

CGPoint UIPanGestureRecognizerState::translationIn(UIView view) const {
  return wayIn(_last - _start, view);
}

void UIPanGestureRecognizerState::setTranslation(CGPoint translation, UIView view) {
  if (!std::isfinite(translation.x) || !std::isfinite(translation.y)) return;
  const CGPoint start = fromScreen(_last, view) - translation;
  _start = view ? apply(UIViewState::of(view.get()).toScreen(), start) : start;
}

CGPoint UIPanGestureRecognizerState::velocityIn(UIView view) const {
  return wayIn(velocityOnScreen(), view);
}

void UIPanGestureRecognizerState::setWays(bool across, bool down) {
  _goesAcross = across;
  _goesDown = down;
}

// A finger that has come to rest has none.
CGPoint UIPanGestureRecognizerState::velocityOnScreen() const {
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

void UIPanGestureRecognizerState::note(CGPoint location) {
  _last = location;
  const Seconds now = scheduler().now();
  while (!_samples.empty() && _samples.front().time < now - velocityWindow) _samples.pop_front();
  // Of what happens at one moment only the last counts.
  if (_samples.size() > 1 && _samples.back().time == now) _samples.pop_back();
  _samples.push_back({location, now});
}

void UIPanGestureRecognizerState::touchesBegan(NSSet, UIEvent) {
  if (_minimumTouches > 1 || !(_goesAcross || _goesDown)) return become(State::failed);
  _samples.clear();
  _start = locationOnScreen();
  note(_start);
}

// What is counted begins where the slop was overcome.
void UIPanGestureRecognizerState::touchesMoved(NSSet, UIEvent) {
  note(locationOnScreen());
  if (isUnderWay()) return become(State::changed);
  const CGPoint way = _last - _start;
  const CGFloat distance = std::hypot(_goesAcross ? way.x : 0, _goesDown ? way.y : 0);
  if (distance < slop) return;
  const CGFloat part = slop / distance;
  _start = _start + CGPoint{way.x * part, way.y * part};
  become(State::began);
}

void UIPanGestureRecognizerState::touchesEnded(NSSet, UIEvent) {
  if (_last != locationOnScreen()) note(locationOnScreen());
  become(isUnderWay() ? State::ended : State::failed);
}

void UIPanGestureRecognizerState::touchesCancelled(NSSet, UIEvent) {
  _samples.clear();
  become(State::cancelled);
}

void UIPanGestureRecognizerState::reset() {
  _samples.clear();
}

}  // namespace desktop::uikit
