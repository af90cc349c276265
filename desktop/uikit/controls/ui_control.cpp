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

bridge::UITouch touchOf(bridge::NSSet touches) {
  return bridge::UITouch(touches.anyObject().get());
}

// The first on the way up from a view that answers the action.
bridge::NSObject whoAnswers(SEL action, bridge::UIResponder from) {
  for (; from; from = bridge::send<bridge::UIResponder, "nextResponder">(from))
    if (bridge::send<bool, "respondsToSelector:">(from, action)) return from;
  return {};
}

void perform(SEL action, bridge::NSObject target, bridge::NSObject sender, bridge::UIEvent event) {
  switch (bridge::argumentCount(sel_getName(action))) {
    case 0:
      return bridge::dispatch<void>(target.get(), action);
    case 1:
      return bridge::dispatch<void>(target.get(), action, sender.get());
    default:
      return bridge::dispatch<void>(target.get(), action, sender.get(), event.get());
  }
}

}  // namespace

Class UIControl::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIControl>("UIControl")
          .method<"addTarget:action:forControlEvents:", &UIControl::addTarget>()
          .method<"removeTarget:action:forControlEvents:", &UIControl::removeTarget>()
          .method<"sendActionsForControlEvents:", &UIControl::sendActions>()
          .method<"sendAction:to:forEvent:", &UIControl::sendAction>()
          .method<"allTargets", &UIControl::allTargets>()
          .method<"allControlEvents", &UIControl::allControlEvents>()
          .method<"actionsForTarget:forControlEvent:", &UIControl::actionsForTarget>()
          .method<"state", &UIControl::state>()
          .method<"isEnabled", &UIControl::isEnabled>()
          .method<"setEnabled:", &UIControl::setEnabled>()
          .method<"isHighlighted", &UIControl::isHighlighted>()
          .method<"setHighlighted:", &UIControl::setHighlighted>()
          .method<"isSelected", &UIControl::isSelected>()
          .method<"setSelected:", &UIControl::setSelected>()
          .method<"isTracking", &UIControl::isTracking>()
          .method<"isTouchInside", &UIControl::isTouchInside>()
          .method<"beginTrackingWithTouch:withEvent:", &UIControl::beginTracking>()
          .method<"continueTrackingWithTouch:withEvent:", &UIControl::continueTracking>()
          .method<"endTrackingWithTouch:withEvent:", &UIControl::endTracking>()
          .method<"cancelTrackingWithEvent:", &UIControl::cancelTracking>()
          .method<"touchesBegan:withEvent:", &UIControl::touchesBegan>()
          .method<"touchesMoved:withEvent:", &UIControl::touchesMoved>()
          .method<"touchesEnded:withEvent:", &UIControl::touchesEnded>()
          .method<"touchesCancelled:withEvent:", &UIControl::touchesCancelled>()
          .method<"gestureRecognizerShouldBegin:", &UIControl::shouldBegin>()
          .build();
  return made;
}

void UIControl::addTarget(bridge::NSObject target, SEL action, NSUInteger events) {
  if (!action || events == 0) return;
  for (Target& known : _targets) {
    if (known.target != target || !bridge::sameSelector(known.action, action)) continue;
    known.events |= events;
    return;
  }
  _targets.push_back({target, action, events});
}

void UIControl::removeTarget(bridge::NSObject target, SEL action, NSUInteger events) {
  for (Target& known : _targets)
    if ((!target || known.target == target) &&
        (!action || bridge::sameSelector(known.action, action)))
      known.events &= ~events;
  std::erase_if(_targets, [](const Target& known) { return known.events == 0; });
}

void UIControl::sendActions(NSUInteger events) {
  sendActionsWithEvent(events, {});
}

// An action that takes others away keeps them from being told.
void UIControl::sendActionsWithEvent(NSUInteger events, bridge::UIEvent event) {
  const auto kept = bridge::Owned<bridge::UIView>::retain(self());
  const auto present = _targets;
  for (const Target& target : present) {
    const bool isStillThere = std::ranges::any_of(_targets, [&](const Target& known) {
      return known.target == target.target && (known.events & events) != 0 &&
             bridge::sameSelector(known.action, target.action);
    });
    if (isStillThere)
      bridge::send<void, "sendAction:to:forEvent:">(self(), target.action, target.target, event);
  }
}

void UIControl::sendAction(SEL action, bridge::NSObject target, bridge::UIEvent event) {
  if (!action) return;
  const bridge::NSObject receiver = target ? target : whoAnswers(action, self());
  if (receiver) perform(action, receiver, self(), event);
}

bridge::NSSet UIControl::allTargets() const {
  const auto all = bridge::send<bridge::NSSet, "set">(objc_getClass("NSMutableSet"));
  for (const Target& known : _targets)
    if (known.target) bridge::send<void, "addObject:">(all, known.target);
  return all;
}

NSUInteger UIControl::allControlEvents() const {
  NSUInteger all = 0;
  for (const Target& known : _targets) all |= known.events;
  return all;
}

// Nil where there are none.
bridge::NSArray UIControl::actionsForTarget(bridge::NSObject target, NSUInteger events) const {
  const auto names = bridge::makeNew<bridge::NSMutableArray>();
  for (const Target& known : _targets)
    if (known.target == target && (known.events & events) != 0)
      names->add(bridge::NSString::make(sel_getName(known.action)));
  if (names->count() == 0) return {};
  return bridge::Owned<bridge::NSArray>::retain(names.get()).autorelease();
}

void UIControl::setBit(NSUInteger bit, bool isSet) {
  const NSUInteger next = isSet ? _state | bit : _state & ~bit;
  if (next == _state) return;
  _state = next;
  UIView::of(self()).setNeedsLayout();
  UIView::of(self()).setNeedsDisplay();
}

void UIControl::setEnabled(bool enabled) {
  setBit(disabled, !enabled);
  if (!enabled && _isTracking) {
    stopTracking();
    bridge::send<void, "cancelTrackingWithEvent:">(self(), bridge::UIEvent());
  }
}

// A single tap on a control is the control's, not that of a view around it.
bool UIControl::shouldBegin(bridge::UIGestureRecognizer recognizer) const {
  if (UIGestureRecognizer::of(recognizer).view() == self()) return true;
  return !isEnabled() || !bridge::isKindOf(recognizer, UITapGestureRecognizer::classObject()) ||
         UITapGestureRecognizer::of(recognizer).numberOfTapsRequired() != 1;
}

bool UIControl::isNear(bridge::UITouch touch) const {
  const CGRect bounds = UIView::of(self()).bounds();
  return bridge::contains(inset(bounds, -allowance, -allowance), touch.locationIn(self()));
}

void UIControl::stopTracking() {
  _isTracking = false;
  _isTouchInside = false;
  bridge::send<void, "setHighlighted:">(self(), false);
}

void UIControl::touchesBegan(bridge::NSSet touches, bridge::UIEvent event) {
  const bridge::UITouch touch = touchOf(touches);
  if (!isEnabled() || !touch) return;
  _isTracking = bridge::send<bool, "beginTrackingWithTouch:withEvent:">(self(), touch, event);
  if (!_isTracking) return;
  _isTouchInside = true;
  bridge::send<void, "setHighlighted:">(self(), true);
  const bool isRepeated = UITouch::of(touch.get()).tapCount() > 1;
  sendActionsWithEvent(isRepeated ? touchDown | touchDownRepeat : touchDown, event);
}

// Outside a window nobody is told: the targets may be gone.
void UIControl::touchesMoved(bridge::NSSet touches, bridge::UIEvent event) {
  const bridge::UITouch touch = touchOf(touches);
  if (!_isTracking || !touch) return;
  if (!UIView::of(self()).window()) return stopTracking();
  const bool wasInside = _isTouchInside;
  _isTouchInside = isNear(touch);
  if (!bridge::send<bool, "continueTrackingWithTouch:withEvent:">(self(), touch, event))
    return stopTracking();
  bridge::send<void, "setHighlighted:">(self(), _isTouchInside);
  if (_isTouchInside != wasInside)
    sendActionsWithEvent(wasInside ? touchDragExit : touchDragEnter, event);
  sendActionsWithEvent(_isTouchInside ? touchDragInside : touchDragOutside, event);
}

void UIControl::touchesEnded(bridge::NSSet touches, bridge::UIEvent event) {
  const bridge::UITouch touch = touchOf(touches);
  if (!_isTracking || !touch) return;
  const bool isInside = isNear(touch);
  stopTracking();
  if (!UIView::of(self()).window()) return;
  bridge::send<void, "endTrackingWithTouch:withEvent:">(self(), touch, event);
  sendActionsWithEvent(isInside ? touchUpInside : touchUpOutside, event);
}

void UIControl::touchesCancelled(bridge::NSSet, bridge::UIEvent event) {
  if (!_isTracking) return;
  stopTracking();
  if (!UIView::of(self()).window()) return;
  bridge::send<void, "cancelTrackingWithEvent:">(self(), event);
  sendActionsWithEvent(touchCancel, event);
}

}  // namespace desktop::uikit
