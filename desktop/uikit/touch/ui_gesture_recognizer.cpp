// SPDX-License-Identifier: MIT
//
// How a recogniser comes to its decision among the others: the first one to recognise makes those
// fail that do not go together with it.
#include "desktop/uikit/touch/ui_gesture_recognizer.h"

#include <algorithm>
#include <utility>

#include "bridge/class_builder.h"
#include "bridge/runtime/fields.h"
#include "desktop/uikit/touch/gesture_arbiter.h"
#include "desktop/uikit/touch/ui_event.h"
#include "desktop/uikit/touch/ui_touch.h"

namespace desktop::uikit {
namespace {

constexpr const char* targetsField = "_targets";
constexpr const char* targetField = "_target";
constexpr const char* actionField = "_action";

bridge::NSMutableArray recordsOf(bridge::Object recognizer) {
  return bridge::NSMutableArray(bridge::objectField(recognizer, targetsField).get());
}

UIGestureRecognizer::Action actionOf(bridge::Object record) {
  return {bridge::NSObject(bridge::objectField(record, targetField).get()),
          bridge::selectorField(record, actionField)};
}

bridge::Owned<bridge::NSObject> makeRecord(bridge::NSObject target, SEL action) {
  auto record = bridge::Owned<bridge::NSObject>::adopt(
      bridge::send<bridge::NSObject, "new">(UIGestureRecognizerTarget::classObject()));
  bridge::setBorrowedField(record, targetField, target);
  bridge::setSelectorField(record, actionField, action);
  return record;
}

// With the recogniser as its argument where the action takes one.
void perform(const UIGestureRecognizer::Action& action, bridge::UIGestureRecognizer sender) {
  if (!action.target || !action.action) return;
  if (bridge::argumentCount(sel_getName(action.action)) == 0)
    bridge::dispatch<void>(action.target.get(), action.action);
  else
    bridge::dispatch<void>(action.target.get(), action.action, sender.get());
}

}  // namespace

Class UIGestureRecognizerTarget::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIGestureRecognizerTarget>("UIGestureRecognizerTarget")
          .field(targetField, "@")
          .field(actionField, ":")
          .build();
  return made;
}

Class UIGestureRecognizer::classObject() {
  using Self = UIGestureRecognizer;
  static const Class made =
      bridge::ClassBuilder<Self>("UIGestureRecognizer")
          .field(targetsField, "@")
          .method<"init", &Self::init>()
          .method<"initWithTarget:action:", &Self::initWithTarget>()
          .method<"addTarget:action:", &Self::addTarget>()
          .method<"removeTarget:action:", &Self::removeTarget>()
          .method<"view", &Self::view>()
          .method<"moveToView:", &Self::moveToView>()
          .method<"_leaveTouches", &Self::leaveTouches>()
          .method<"_viewIsGone", &Self::viewIsGone>()
          .method<"state", &Self::stateNumber>()
          .method<"setState:", &Self::setStateNumber>()
          .method<"locationInView:", &Self::locationIn>()
          .method<"locationOfTouch:inView:", &Self::locationOfTouch>()
          .method<"numberOfTouches", &Self::numberOfTouches>()
          .method<"isEnabled", &Self::isEnabled>()
          .method<"setEnabled:", &Self::setEnabled>()
          .method<"delegate", &Self::delegate>()
          .method<"setDelegate:", &Self::setDelegate>()
          .method<"cancelsTouchesInView", &Self::cancelsTouchesInView>()
          .method<"setCancelsTouchesInView:", &Self::setCancelsTouchesInView>()
          .method<"delaysTouchesBegan", &Self::delaysTouchesBegan>()
          .method<"setDelaysTouchesBegan:", &Self::setDelaysTouchesBegan>()
          .method<"delaysTouchesEnded", &Self::delaysTouchesEnded>()
          .method<"setDelaysTouchesEnded:", &Self::setDelaysTouchesEnded>()
          .method<"requireGestureRecognizerToFail:", &Self::requireToFail>()
          .method<"touchesBegan:withEvent:", &Self::ignoreTouches>()
          .method<"touchesMoved:withEvent:", &Self::ignoreTouches>()
          .method<"touchesEnded:withEvent:", &Self::ignoreTouches>()
          .method<"touchesCancelled:withEvent:", &Self::ignoreTouches>()
          .method<"reset", &Self::reset>()
          .build();
  return made;
}

UIGestureRecognizer::~UIGestureRecognizer() {
  bridge::setObjectField(self(), targetsField, {});
}

bridge::UIGestureRecognizer UIGestureRecognizer::init() {
  return bridge::send<bridge::UIGestureRecognizer, "initWithTarget:action:">(
      self(), bridge::NSObject(), SEL{});
}

bridge::UIGestureRecognizer UIGestureRecognizer::initWithTarget(bridge::NSObject target,
                                                                SEL action) {
  const auto object = super<bridge::UIGestureRecognizer, "init">();
  if (!object) return object;
  bridge::setObjectField(object, targetsField, bridge::makeNew<bridge::NSMutableArray>().get());
  addTarget(target, action);
  return object;
}

std::vector<UIGestureRecognizer::Action> UIGestureRecognizer::actions() const {
  std::vector<Action> all;
  const bridge::NSMutableArray records = recordsOf(self());
  for (NSUInteger index = 0; index < records.count(); ++index)
    all.push_back(actionOf(records.at(index)));
  return all;
}

void UIGestureRecognizer::addTarget(bridge::NSObject target, SEL action) {
  if (!target || !action) return;
  for (const Action& known : actions())
    if (known.target == target && bridge::sameSelector(known.action, action)) return;
  recordsOf(self()).add(makeRecord(target, action).get());
}

// Nil is every target, null every action.
void UIGestureRecognizer::removeTarget(bridge::NSObject target, SEL action) {
  const bridge::NSMutableArray records = recordsOf(self());
  for (NSUInteger index = records.count(); index-- > 0;) {
    const Action known = actionOf(records.at(index));
    if ((!target || known.target == target) &&
        (!action || bridge::sameSelector(known.action, action)))
      bridge::send<void, "removeObjectAtIndex:">(records, index);
  }
}

void UIGestureRecognizer::moveToView(bridge::UIView view) {
  if (view == _view) return;
  leaveTouches();
  _view = view;
}

void UIGestureRecognizer::leaveTouches() {
  if (!gestureArbiter().takesPart(me())) return;
  const GestureArbiter::Turn turn(gestureArbiter());
  giveUp();
  gestureArbiter().forget(me());
}

void UIGestureRecognizer::viewIsGone() {
  _view = {};
  gestureArbiter().forget(me());
}

void UIGestureRecognizer::setEnabled(bool enabled) {
  if (enabled == _isEnabled) return;
  _isEnabled = enabled;
  if (!enabled) leaveTouches();
}

void UIGestureRecognizer::requireToFail(bridge::UIGestureRecognizer other) {
  if (other && other != me())
    _required.push_back(bridge::Owned<bridge::UIGestureRecognizer>::retain(other));
}

CGPoint UIGestureRecognizer::locationIn(bridge::UIView view) const {
  return fromScreen(_location, view);
}

CGPoint UIGestureRecognizer::locationOfTouch(NSUInteger, bridge::UIView view) const {
  return locationIn(view);
}

bool UIGestureRecognizer::wantsTouch(bridge::UITouch touch) const {
  if (!_isEnabled || !isUndecided() || isWaiting()) return false;
  if (!bridge::respondsTo<"gestureRecognizer:shouldReceiveTouch:">(_delegate)) return true;
  return bridge::send<bool, "gestureRecognizer:shouldReceiveTouch:">(_delegate, me(), touch);
}

void UIGestureRecognizer::touched(bridge::UITouch touch, bridge::UIEvent event) {
  if (isWaiting() || !(isUndecided() || isUnderWay())) return;
  const auto kept = bridge::Owned<bridge::UIGestureRecognizer>::retain(me());
  const bridge::NSSet touches = UIEvent::of(event.get()).allTouches();
  const UITouch& state = UITouch::of(touch.get());
  _location = state.location();
  _hasTouch = true;
  switch (state.phase()) {
    case UITouch::began:
      return bridge::send<void, "touchesBegan:withEvent:">(me(), touches, event);
    case UITouch::moved:
    case UITouch::stationary:
      return bridge::send<void, "touchesMoved:withEvent:">(me(), touches, event);
    case UITouch::ended:
      bridge::send<void, "touchesEnded:withEvent:">(me(), touches, event);
      break;
    case UITouch::cancelled:
      bridge::send<void, "touchesCancelled:withEvent:">(me(), touches, event);
      break;
  }
  _hasTouch = false;
}

void UIGestureRecognizer::giveUp() {
  if (isUndecided())
    fail();
  else if (isUnderWay())
    become(State::cancelled);
}

void UIGestureRecognizer::startAnew() {
  _state = State::possible;
  _awaited = State::possible;
  _hasTouch = false;
  _expectsMoreTouches = false;
  bridge::send<void, "reset">(self());
}

void UIGestureRecognizer::become(State next) {
  const GestureArbiter::Turn turn(gestureArbiter());
  const auto kept = bridge::Owned<bridge::UIGestureRecognizer>::retain(me());
  if (isUndecided()) {
    if (next == State::failed || next == State::cancelled) return fail();
    if (next != State::possible) recognize(next);
    return;
  }
  if (!isUnderWay() || next == State::possible) return;
  if (next == State::began) next = State::changed;
  _state = next == State::failed ? State::cancelled : next;
  fire();
}

void UIGestureRecognizer::fail() {
  if (!isUndecided()) return;
  _state = State::failed;
  _awaited = State::possible;
}

void UIGestureRecognizer::recognize(State first) {
  if (!_isEnabled || isExcluded() || !mayBegin()) return fail();
  if (!isUndecided()) return;  // the delegate decided otherwise
  _awaited = mustWait() ? first : State::possible;
  if (isWaiting()) return;
  _state = first;
  excludeOthers();
  fire();
  if (_cancelsTouchesInView) gestureArbiter().takeFromViews(me());
}

bool UIGestureRecognizer::tryAgain() {
  if (!isUndecided() || !isWaiting() || mustWait()) return false;
  const auto kept = bridge::Owned<bridge::UIGestureRecognizer>::retain(me());
  recognize(std::exchange(_awaited, State::possible));
  return true;
}

// The touched view is asked too: a control keeps taps on it to itself.
bool UIGestureRecognizer::mayBegin() const {
  if (bridge::respondsTo<"gestureRecognizerShouldBegin:">(_delegate) &&
      !bridge::send<bool, "gestureRecognizerShouldBegin:">(_delegate, me()))
    return false;
  const auto touched = gestureArbiter().touchedViewOf(me());
  for (const bridge::UIView view : {_view, touched == _view ? bridge::UIView() : touched})
    if (bridge::respondsTo<"gestureRecognizerShouldBegin:">(view) &&
        !bridge::send<bool, "gestureRecognizerShouldBegin:">(view, me()))
      return false;
  return true;
}

bool UIGestureRecognizer::mustWait() const {
  return std::ranges::any_of(_required, [](const auto& other) {
    return of(other.get()).isUndecided() && gestureArbiter().takesPart(other);
  });
}

// Whether one that it has to give way to has recognised.
bool UIGestureRecognizer::isExcluded() const {
  const auto hasRecognized = [](const auto& other) {
    const UIGestureRecognizer& state = of(other.get());
    return state.isUnderWay() || state._state == State::ended;
  };
  if (std::ranges::any_of(_required, hasRecognized)) return true;
  const auto rivals = gestureArbiter().rivalsOf(me());
  return std::ranges::any_of(
      rivals, [&](const auto& other) { return hasRecognized(other) && !goesTogetherWith(other); });
}

void UIGestureRecognizer::excludeOthers() const {
  const auto rivals = gestureArbiter().rivalsOf(me());
  for (const auto& rival : rivals) {
    UIGestureRecognizer& state = of(rival.get());
    if (state.isUndecided() && !goesTogetherWith(rival)) state.fail();
  }
}

bool UIGestureRecognizer::allowsTogether(bridge::UIGestureRecognizer other) const {
  constexpr bridge::FixedString question =
      "gestureRecognizer:shouldRecognizeSimultaneouslyWithGestureRecognizer:";
  return bridge::respondsTo<question>(_delegate) &&
         bridge::send<bool, question>(_delegate, me(), other);
}

bool UIGestureRecognizer::goesTogetherWith(bridge::UIGestureRecognizer other) const {
  return allowsTogether(other) || of(other).allowsTogether(me());
}

// A target that is taken away by an action before its own is not told.
void UIGestureRecognizer::fire() {
  const auto records = bridge::Owned<bridge::NSArray>::adopt(
      bridge::send<bridge::NSArray, "copy">(recordsOf(self())));
  for (NSUInteger index = 0; index < records->count(); ++index)
    if (recordsOf(self()).containsIdentical(records->at(index)))
      perform(actionOf(records->at(index)), me());
}

}  // namespace desktop::uikit
