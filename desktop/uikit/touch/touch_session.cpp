// SPDX-License-Identifier: MIT
#include "desktop/uikit/touch/touch_session.h"

#include <algorithm>

#include "desktop/uikit/touch/gesture_arbiter.h"
#include "desktop/uikit/touch/ui_event.h"
#include "desktop/uikit/touch/ui_gesture_recognizer.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr Seconds scrollingTime =
    0.15;  // in which a finger on scrollable content moves, or is a touch

void tell(bridge::UIView view, UITouch::Phase phase, bridge::NSSet touches, bridge::UIEvent event) {
  switch (phase) {
    case UITouch::began:
      return bridge::send<void, "touchesBegan:withEvent:">(view, touches, event);
    case UITouch::moved:
    case UITouch::stationary:
      return bridge::send<void, "touchesMoved:withEvent:">(view, touches, event);
    case UITouch::ended:
      return bridge::send<void, "touchesEnded:withEvent:">(view, touches, event);
    case UITouch::cancelled:
      return bridge::send<void, "touchesCancelled:withEvent:">(view, touches, event);
  }
}

UIGestureRecognizer& stateOf(bridge::UIGestureRecognizer recognizer) {
  return UIGestureRecognizer::of(recognizer);
}

}  // namespace

TouchSession::TouchSession(bridge::UITouch touch, bridge::UIEvent event)
    : _touch(bridge::Owned<bridge::UITouch>::retain(touch)),
      _event(bridge::Owned<bridge::UIEvent>::retain(event)) {
  findRecognizers();
  holdForScrolling();
}

void TouchSession::findRecognizers() {
  for (bridge::UIView view = UITouch::of(_touch.get()).view(); view;
       view = UIView::of(view).superview()) {
    const auto candidates = UIView::of(view).gestureRecognizers();
    for (const auto& candidate : candidates)
      if (stateOf(candidate).wantsTouch(_touch)) _recognizers.push_back(candidate);
  }
}

void TouchSession::holdForScrolling() {
  bridge::UIView view = UITouch::of(_touch.get()).view();
  while ((view = UIView::of(view).superview())) {
    if (!bridge::send<bool, "_delaysTouches">(view)) continue;
    return _scrolling.callAfter(scrollingTime,
                                [] { const GestureArbiter::Turn turn(gestureArbiter()); });
  }
}

bool TouchSession::has(bridge::UIGestureRecognizer recognizer) const {
  return std::ranges::find(_recognizers, recognizer,
                           &bridge::Owned<bridge::UIGestureRecognizer>::get) != _recognizers.end();
}

bool TouchSession::isOpen() const {
  return _isFingerDown || !_untold.empty() || !_recognizers.empty();
}

void TouchSession::deliver(UITouch::Phase phase) {
  const auto present = _recognizers;
  for (const auto& recognizer : present) {
    UITouch::of(_touch.get()).setPhase(phase);  // the view may have heard of another one meanwhile
    if (has(recognizer)) stateOf(recognizer).touched(_touch, _event);
  }
  if (phase == UITouch::ended || phase == UITouch::cancelled) {
    _isFingerDown = false;
    _scrolling.cancel();
    giveUpUndecided();
  }
  _untold.push_back({phase, UITouch::of(_touch.get()).location()});
  flush();
}

// A finger that left brings no more: who has not decided by now never will, or waits for another.
void TouchSession::giveUpUndecided() {
  const auto present = _recognizers;
  for (const auto& recognizer : present)
    if (has(recognizer) && !stateOf(recognizer).staysUndecided()) stateOf(recognizer).giveUp();
}

bool TouchSession::isHeld(UITouch::Phase phase) const {
  if (!_viewKnows && _scrolling.isWaiting()) return true;
  return std::ranges::any_of(_recognizers, [&](const auto& recognizer) {
    const UIGestureRecognizer& state = stateOf(recognizer);
    if (!state.isUndecided()) return false;
    return (!_viewKnows && state.delaysTouchesBegan()) ||
           (phase == UITouch::ended && state.delaysTouchesEnded());
  });
}

bool TouchSession::flush() {
  bool toldAny = false;
  while (!_untold.empty() && !_isOverForView && !isHeld(_untold.front().phase)) {
    const Step step = _untold.front();
    _untold.pop_front();
    tellView(step);
    toldAny = true;
  }
  if (_isOverForView) _untold.clear();
  return toldAny;
}

// What was kept back is told with the finger where it was then.
void TouchSession::tellView(const Step& step) {
  UITouch& touch = UITouch::of(_touch.get());
  if (step.phase == UITouch::began) _viewKnows = true;
  if (step.phase == UITouch::ended || step.phase == UITouch::cancelled) _isOverForView = true;
  const CGPoint now = touch.location();
  touch.setLocation(step.at);
  touch.setPhase(step.phase);
  tell(touch.view(), step.phase, UIEvent::of(_event.get()).allTouches(), _event);
  touch.setLocation(now);
}

void TouchSession::cancelInView() {
  if (_isOverForView) return;
  _untold.clear();
  _isOverForView = true;
  if (_viewKnows) tellView({UITouch::cancelled, UITouch::of(_touch.get()).location()});
}

void TouchSession::drop(bridge::UIGestureRecognizer recognizer) {
  std::erase_if(_recognizers, [&](const auto& known) { return known.get() == recognizer; });
}

}  // namespace desktop::uikit
