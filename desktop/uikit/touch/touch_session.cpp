// SPDX-License-Identifier: MIT
#include "desktop/uikit/touch/touch_session.h"

#include <algorithm>

#include "desktop/uikit/base/own_messages.h"
#include "desktop/uikit/touch/gesture_arbiter.h"
#include "desktop/uikit/touch/ui_event.h"
#include "desktop/uikit/touch/ui_gesture_recognizer.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr Seconds scrollingTime =
    0.15;  // in which a finger on scrollable content moves, or is a touch

void tell(UIView view, UITouchState::Phase phase, NSSet touches, UIEvent event) {
  switch (phase) {
    case UITouchState::began:
      return view.touchesBegan(touches, event);
    case UITouchState::moved:
    case UITouchState::stationary:
      return view.touchesMoved(touches, event);
    case UITouchState::ended:
      return view.touchesEnded(touches, event);
    case UITouchState::cancelled:
      return view.touchesCancelled(touches, event);
  }
}

UIGestureRecognizerState& stateOf(UIGestureRecognizer recognizer) {
  return UIGestureRecognizerState::of(recognizer);
}

}  // namespace

TouchSession::TouchSession(UITouch touch, UIEvent event)
    : _touch(Owned<UITouch>::retain(touch)), _event(Owned<UIEvent>::retain(event)) {
  findRecognizers();
  holdForScrolling();
}

void TouchSession::findRecognizers() {
  for (UIView view = UITouchState::of(_touch.get()).view(); view;
       view = UIViewState::of(view).superview()) {
    const auto candidates = UIViewState::of(view).gestureRecognizers();
    for (const auto& candidate : candidates)
      if (stateOf(candidate).wantsTouch(_touch)) _recognizers.push_back(candidate);
  }
}

void TouchSession::holdForScrolling() {
  UIView view = UITouchState::of(_touch.get()).view();
  while ((view = UIViewState::of(view).superview())) {
    if (!delaysTouches(view)) continue;
    return _scrolling.callAfter(scrollingTime,
                                [] { const GestureArbiter::Turn turn(gestureArbiter()); });
  }
}

bool TouchSession::has(UIGestureRecognizer recognizer) const {
  return std::ranges::find(_recognizers, recognizer, &Owned<UIGestureRecognizer>::get) !=
         _recognizers.end();
}

bool TouchSession::isOpen() const {
  return _isFingerDown || !_untold.empty() || !_recognizers.empty();
}

void TouchSession::deliver(UITouchState::Phase phase) {
  const auto present = _recognizers;
  for (const auto& recognizer : present) {
    UITouchState::of(_touch.get())
        .setPhase(phase);  // the view may have heard of another one meanwhile
    if (has(recognizer)) stateOf(recognizer).touched(_touch, _event);
  }
  if (phase == UITouchState::ended || phase == UITouchState::cancelled) {
    _isFingerDown = false;
    _scrolling.cancel();
    giveUpUndecided();
  }
  _untold.push_back({phase, UITouchState::of(_touch.get()).location()});
  flush();
}

// A finger that left brings no more: who has not decided by now never will, or waits for another.
void TouchSession::giveUpUndecided() {
  const auto present = _recognizers;
  for (const auto& recognizer : present)
    if (has(recognizer) && !stateOf(recognizer).staysUndecided()) stateOf(recognizer).giveUp();
}

bool TouchSession::isHeld(UITouchState::Phase phase) const {
  if (!_viewKnows && _scrolling.isWaiting()) return true;
  return std::ranges::any_of(_recognizers, [&](const auto& recognizer) {
    const UIGestureRecognizerState& state = stateOf(recognizer);
    if (!state.isUndecided()) return false;
    return (!_viewKnows && state.delaysTouchesBegan()) ||
           (phase == UITouchState::ended && state.delaysTouchesEnded());
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
  UITouchState& touch = UITouchState::of(_touch.get());
  if (step.phase == UITouchState::began) _viewKnows = true;
  if (step.phase == UITouchState::ended || step.phase == UITouchState::cancelled)
    _isOverForView = true;
  const CGPoint now = touch.location();
  touch.setLocation(step.at);
  touch.setPhase(step.phase);
  tell(touch.view(), step.phase, UIEventState::of(_event.get()).allTouches(), _event);
  touch.setLocation(now);
}

void TouchSession::cancelInView() {
  if (_isOverForView) return;
  _untold.clear();
  _isOverForView = true;
  if (_viewKnows) tellView({UITouchState::cancelled, UITouchState::of(_touch.get()).location()});
}

void TouchSession::drop(UIGestureRecognizer recognizer) {
  std::erase_if(_recognizers, [&](const auto& known) { return known.get() == recognizer; });
}

}  // namespace desktop::uikit
