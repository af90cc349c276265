// SPDX-License-Identifier: MIT
//
// A control follows one finger: down on it, in and out of its surroundings with some allowance, and
// up, and sends the events of each step to its targets. A target of nil is looked for upwards from
// the control. Targets are not kept; a list that changes while it is told does not go on telling
// who left it.
#include "desktop/uikit/controls/ui_control.h"

#include <algorithm>
#include <string>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/touch/ui_event.h"
#include "desktop/uikit/touch/ui_gesture_recognizer.h"
#include "desktop/uikit/touch/ui_tap_gesture_recognizer.h"
#include "desktop/uikit/touch/ui_touch.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

// How far outside a finger may be and still count as inside, in points.
constexpr CGFloat allowance = 70;

UITouch touchOf(NSSet touches) {
  return UITouch(touches.anyObject().get());
}

// The first on the way up from a view that answers the action.
NSObject whoAnswers(SEL action, UIResponder from) {
  for (; from; from = from.nextResponder())
    if (respondsTo(from, action)) return from;
  return {};
}

void perform(SEL action, NSObject target, NSObject sender, UIEvent event) {
  switch (argumentCount(sel_getName(action))) {
    case 0:
      return dispatch<void>(target.get(), action);
    case 1:
      return dispatch<void>(target.get(), action, sender.get());
    default:
      return dispatch<void>(target.get(), action, sender.get(), event.get());
  }
}

}  // namespace

Class UIControlState::classObject() {
  static const Class made =
      ClassBuilder<UIControlState>("UIControl")
          .method<"addTarget:action:forControlEvents:", &UIControlState::addTarget>()
          .method<"removeTarget:action:forControlEvents:", &UIControlState::removeTarget>()
          .method<"sendActionsForControlEvents:", &UIControlState::sendActions>()
          .method<"sendAction:to:forEvent:", &UIControlState::sendAction>()
          .method<"allTargets", &UIControlState::allTargets>()
          .method<"allControlEvents", &UIControlState::allControlEvents>()
          .method<"actionsForTarget:forControlEvent:", &UIControlState::actionsForTarget>()
          .method<"state", &UIControlState::state>()
          .method<"isEnabled", &UIControlState::isEnabled>()
          .method<"setEnabled:", &UIControlState::setEnabled>()
          .method<"isHighlighted", &UIControlState::isHighlighted>()
          .method<"setHighlighted:", &UIControlState::setHighlighted>()
          .method<"isSelected", &UIControlState::isSelected>()
          .method<"setSelected:", &UIControlState::setSelected>()
          .method<"accessibilityLabel", &UIControlState::accessibilityLabel>()
          .method<"setAccessibilityLabel:", &UIControlState::setAccessibilityLabel>()
          .method<"isTracking", &UIControlState::isTracking>()
          .method<"isTouchInside", &UIControlState::isTouchInside>()
          .method<"beginTrackingWithTouch:withEvent:", &UIControlState::beginTracking>()
          .method<"continueTrackingWithTouch:withEvent:", &UIControlState::continueTracking>()
          .method<"endTrackingWithTouch:withEvent:", &UIControlState::endTracking>()
          .method<"cancelTrackingWithEvent:", &UIControlState::cancelTracking>()
          .method<"touchesBegan:withEvent:", &UIControlState::touchesBegan>()
          .method<"touchesMoved:withEvent:", &UIControlState::touchesMoved>()
          .method<"touchesEnded:withEvent:", &UIControlState::touchesEnded>()
          .method<"touchesCancelled:withEvent:", &UIControlState::touchesCancelled>()
          .method<"gestureRecognizerShouldBegin:", &UIControlState::shouldBegin>()
          .build();
  return made;
}

const std::vector<UIControlState::Target>& UIControlState::targets() {
  std::erase_if(_targets, &Target::isGone);
  return _targets;
}

void UIControlState::addTarget(NSObject target, SEL action, NSUInteger events) {
  if (!action || events == 0) return;
  targets();  // one that has gone may have been where the new one is
  for (Target& known : _targets) {
    if (known.target != target || !sameSelector(known.action, action)) continue;
    known.events |= events;
    return;
  }
  _targets.push_back({target, action, events, WeakReference(target)});
}

void UIControlState::removeTarget(NSObject target, SEL action, NSUInteger events) {
  for (Target& known : _targets)
    if ((!target || known.target == target) && (!action || sameSelector(known.action, action)))
      known.events &= ~events;
  std::erase_if(_targets, [](const Target& known) { return known.events == 0; });
}

void UIControlState::sendActions(NSUInteger events) {
  sendActionsWithEvent(events, {});
}

// An action that takes others away keeps them from being told.
void UIControlState::sendActionsWithEvent(NSUInteger events, UIEvent event) {
  const auto kept = Owned<UIView>::retain(self());
  const auto present = targets();
  for (const Target& target : present) {
    const bool isStillThere = std::ranges::any_of(targets(), [&](const Target& known) {
      return known.target == target.target && (known.events & events) != 0 &&
             sameSelector(known.action, target.action);
    });
    if (isStillThere) self().sendAction(target.action, target.target, event);
  }
}

void UIControlState::sendAction(SEL action, NSObject target, UIEvent event) {
  if (!action) return;
  const NSObject receiver = target ? target : whoAnswers(action, self());
  if (receiver) perform(action, receiver, self(), event);
}

NSSet UIControlState::allTargets() {
  auto all = makeNew<NSMutableSet>();
  for (const Target& known : targets())
    if (known.target) all->add(known.target);
  return all.autorelease();
}

NSUInteger UIControlState::allControlEvents() {
  NSUInteger all = 0;
  for (const Target& known : targets()) all |= known.events;
  return all;
}

// Nil where there are none.
NSArray UIControlState::actionsForTarget(NSObject target, NSUInteger events) {
  const auto names = makeNew<NSMutableArray>();
  for (const Target& known : targets())
    if (known.target == target && (known.events & events) != 0)
      names->add(NSString::make(sel_getName(known.action)));
  if (names->count() == 0) return {};
  return Owned<NSArray>::retain(names.get()).autorelease();
}

void UIControlState::setBit(NSUInteger bit, bool isSet) {
  const NSUInteger next = isSet ? _state | bit : _state & ~bit;
  if (next == _state) return;
  _state = next;
  setNeedsLayout();
  setNeedsDisplay();
}

void UIControlState::setEnabled(bool enabled) {
  setBit(disabled, !enabled);
  if (!enabled && _isTracking) {
    stopTracking();
    self().cancelTracking(UIEvent());
  }
}

// A single tap on a control is the control's, not that of a view around it.
bool UIControlState::shouldBegin(UIGestureRecognizer recognizer) const {
  if (UIGestureRecognizerState::of(recognizer).view() == self()) return true;
  return !isEnabled() || !isKindOf(recognizer, UITapGestureRecognizerState::classObject()) ||
         UITapGestureRecognizerState::of(recognizer).numberOfTapsRequired() != 1;
}

bool UIControlState::isNear(UITouch touch) const {
  const CGRect bounds = UIViewState::bounds();
  return contains(inset(bounds, -allowance, -allowance), touch.locationIn(self()));
}

void UIControlState::stopTracking() {
  _isTracking = false;
  _isTouchInside = false;
  self().setHighlighted(false);
}

void UIControlState::touchesBegan(NSSet touches, UIEvent event) {
  const UITouch touch = touchOf(touches);
  if (!isEnabled() || !touch) return;
  _isTracking = self().beginTracking(touch, event);
  if (!_isTracking) return;
  _isTouchInside = true;
  self().setHighlighted(true);
  const bool isRepeated = UITouchState::of(touch.get()).tapCount() > 1;
  sendActionsWithEvent(isRepeated ? touchDown | touchDownRepeat : touchDown, event);
}

// Outside a window nobody is told: the targets may be gone.
void UIControlState::touchesMoved(NSSet touches, UIEvent event) {
  const UITouch touch = touchOf(touches);
  if (!_isTracking || !touch) return;
  if (!window()) return stopTracking();
  const bool wasInside = _isTouchInside;
  _isTouchInside = isNear(touch);
  if (!self().continueTracking(touch, event)) return stopTracking();
  self().setHighlighted(_isTouchInside);
  if (_isTouchInside != wasInside)
    sendActionsWithEvent(wasInside ? touchDragExit : touchDragEnter, event);
  sendActionsWithEvent(_isTouchInside ? touchDragInside : touchDragOutside, event);
}

void UIControlState::touchesEnded(NSSet touches, UIEvent event) {
  const UITouch touch = touchOf(touches);
  if (!_isTracking || !touch) return;
  const bool isInside = isNear(touch);
  stopTracking();
  if (!window()) return;
  self().endTracking(touch, event);
  sendActionsWithEvent(isInside ? touchUpInside : touchUpOutside, event);
}

void UIControlState::touchesCancelled(NSSet, UIEvent event) {
  if (!_isTracking) return;
  stopTracking();
  if (!window()) return;
  self().cancelTracking(event);
  sendActionsWithEvent(touchCancel, event);
}

}  // namespace desktop::uikit
