// SPDX-License-Identifier: MIT
//
// How a recogniser comes to its decision among the others: the first one to recognise makes those
// fail that do not go together with it.
#include "desktop/uikit/touch/ui_gesture_recognizer.h"

#include <algorithm>
#include <utility>

#include "bridge/class_builder.h"
#include "bridge/runtime/fields.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/touch/gesture_arbiter.h"
#include "desktop/uikit/touch/ui_event.h"
#include "desktop/uikit/touch/ui_touch.h"

namespace desktop::uikit {
namespace {

constexpr const char* targetsField = "_targets";
constexpr const char* targetField = "_target";
constexpr const char* actionField = "_action";

NSMutableArray recordsOf(Object recognizer) {
  return NSMutableArray(objectField(recognizer, targetsField).get());
}

UIGestureRecognizerState::Action actionOf(Object record) {
  return {NSObject(objectField(record, targetField).get()), selectorField(record, actionField)};
}

Owned<NSObject> makeRecord(NSObject target, SEL action) {
  auto record = makeNew<NSObject>(UIGestureRecognizerTarget::classObject());
  setBorrowedField(record, targetField, target);
  setSelectorField(record, actionField, action);
  return record;
}

// With the recogniser as its argument where the action takes one.
void perform(const UIGestureRecognizerState::Action& action, UIGestureRecognizer sender) {
  if (!action.target || !action.action) return;
  if (argumentCount(sel_getName(action.action)) == 0)
    dispatch<void>(action.target.get(), action.action);
  else
    dispatch<void>(action.target.get(), action.action, sender.get());
}

}  // namespace

Class UIGestureRecognizerTarget::classObject() {
  static const Class made = ClassBuilder<UIGestureRecognizerTarget>("UIGestureRecognizerTarget")
                                .field(targetField, "@")
                                .field(actionField, ":")
                                .build();
  return made;
}

Class UIGestureRecognizerState::classObject() {
  using Self = UIGestureRecognizerState;
  static const Class made =
      ClassBuilder<Self>("UIGestureRecognizer")
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

UIGestureRecognizerState::~UIGestureRecognizerState() {
  setObjectField(self(), targetsField, {});
}

UIGestureRecognizer UIGestureRecognizerState::init() {
  return initWith<"initWithTarget:action:">(self(), NSObject(), SEL{});
}

UIGestureRecognizer UIGestureRecognizerState::initWithTarget(NSObject target, SEL action) {
  const auto object = super<UIGestureRecognizer, "init">();
  if (!object) return object;
  setObjectField(object, targetsField, makeNew<NSMutableArray>().get());
  addTarget(target, action);
  return object;
}

std::vector<UIGestureRecognizerState::Action> UIGestureRecognizerState::actions() const {
  std::vector<Action> all;
  const NSMutableArray records = recordsOf(self());
  for (NSUInteger index = 0; index < records.count(); ++index)
    all.push_back(actionOf(records.at(index)));
  return all;
}

void UIGestureRecognizerState::addTarget(NSObject target, SEL action) {
  if (!target || !action) return;
  for (const Action& known : actions())
    if (known.target == target && sameSelector(known.action, action)) return;
  recordsOf(self()).add(makeRecord(target, action).get());
}

// Nil is every target, null every action.
void UIGestureRecognizerState::removeTarget(NSObject target, SEL action) {
  const NSMutableArray records = recordsOf(self());
  for (NSUInteger index = records.count(); index-- > 0;) {
    const Action known = actionOf(records.at(index));
    if ((!target || known.target == target) && (!action || sameSelector(known.action, action)))
      records.removeAt(index);
  }
}

void UIGestureRecognizerState::moveToView(UIView view) {
  if (view == _view) return;
  leaveTouches();
  _view = view;
}

void UIGestureRecognizerState::leaveTouches() {
  if (!gestureArbiter().takesPart(self())) return;
  const GestureArbiter::Turn turn(gestureArbiter());
  giveUp();
  gestureArbiter().forget(self());
}

void UIGestureRecognizerState::viewIsGone() {
  _view = {};
  gestureArbiter().forget(self());
}

void UIGestureRecognizerState::setEnabled(bool enabled) {
  if (enabled == _isEnabled) return;
  _isEnabled = enabled;
  if (!enabled) leaveTouches();
}

void UIGestureRecognizerState::requireToFail(UIGestureRecognizer other) {
  if (other && other != self()) _required.push_back(Owned<UIGestureRecognizer>::retain(other));
}

CGPoint UIGestureRecognizerState::locationIn(UIView view) const {
  return fromScreen(_location, view);
}

// One finger is all that there is.
CGPoint UIGestureRecognizerState::locationOfTouch(NSUInteger, UIView view) const {
  return locationIn(view);
}

bool UIGestureRecognizerState::wantsTouch(UITouch touch) const {
  if (!_isEnabled || !isUndecided() || isWaiting()) return false;
  return asked<bool, "gestureRecognizer:shouldReceiveTouch:">(_delegate, self(), touch)
      .value_or(true);
}

void UIGestureRecognizerState::touched(UITouch touch, UIEvent event) {
  if (isWaiting() || !(isUndecided() || isUnderWay())) return;
  const auto kept = Owned<UIGestureRecognizer>::retain(self());
  const NSSet touches = UIEventState::of(event.get()).allTouches();
  const UITouchState& state = UITouchState::of(touch.get());
  _location = state.location();
  _hasTouch = true;
  switch (state.phase()) {
    case UITouchState::began:
      return self().touchesBegan(touches, event);
    case UITouchState::moved:
    case UITouchState::stationary:
      return self().touchesMoved(touches, event);
    case UITouchState::ended:
      self().touchesEnded(touches, event);
      break;
    case UITouchState::cancelled:
      self().touchesCancelled(touches, event);
      break;
  }
  _hasTouch = false;
}

void UIGestureRecognizerState::giveUp() {
  if (isUndecided())
    fail();
  else if (isUnderWay())
    become(State::cancelled);
}

void UIGestureRecognizerState::startAnew() {
  _state = State::possible;
  _awaited = State::possible;
  _hasTouch = false;
  _expectsMoreTouches = false;
  self().reset();
}

void UIGestureRecognizerState::become(State next) {
  const GestureArbiter::Turn turn(gestureArbiter());
  const auto kept = Owned<UIGestureRecognizer>::retain(self());
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

void UIGestureRecognizerState::fail() {
  if (!isUndecided()) return;
  _state = State::failed;
  _awaited = State::possible;
}

void UIGestureRecognizerState::recognize(State first) {
  if (!_isEnabled || isExcluded() || !mayBegin()) return fail();
  if (!isUndecided()) return;  // the delegate decided otherwise
  _awaited = mustWait() ? first : State::possible;
  if (isWaiting()) return;
  _state = first;
  excludeOthers();
  fire();
  if (_cancelsTouchesInView) gestureArbiter().takeFromViews(self());
}

bool UIGestureRecognizerState::tryAgain() {
  if (!isUndecided() || !isWaiting() || mustWait()) return false;
  const auto kept = Owned<UIGestureRecognizer>::retain(self());
  recognize(std::exchange(_awaited, State::possible));
  return true;
}

// The touched view is asked too: a control keeps taps on it to itself.
bool UIGestureRecognizerState::mayBegin() const {
  const auto lets = [this](Object who) {
    return asked<bool, "gestureRecognizerShouldBegin:">(who, self()).value_or(true);
  };
  if (!lets(_delegate)) return false;
  const auto touched = gestureArbiter().touchedViewOf(self());
  return lets(_view) && (touched == _view || lets(touched));
}

bool UIGestureRecognizerState::mustWait() const {
  return std::ranges::any_of(_required, [](const auto& other) {
    return of(other.get()).isUndecided() && gestureArbiter().takesPart(other);
  });
}

// Whether one that it has to give way to has recognised.
bool UIGestureRecognizerState::isExcluded() const {
  const auto hasRecognized = [](const auto& other) {
    const UIGestureRecognizerState& state = of(other.get());
    return state.isUnderWay() || state._state == State::ended;
  };
  if (std::ranges::any_of(_required, hasRecognized)) return true;
  const auto rivals = gestureArbiter().rivalsOf(self());
  return std::ranges::any_of(
      rivals, [&](const auto& other) { return hasRecognized(other) && !goesTogetherWith(other); });
}

void UIGestureRecognizerState::excludeOthers() const {
  const auto rivals = gestureArbiter().rivalsOf(self());
  for (const auto& rival : rivals) {
    UIGestureRecognizerState& state = of(rival.get());
    if (state.isUndecided() && !goesTogetherWith(rival)) state.fail();
  }
}

bool UIGestureRecognizerState::allowsTogether(UIGestureRecognizer other) const {
  constexpr FixedString question =
      "gestureRecognizer:shouldRecognizeSimultaneouslyWithGestureRecognizer:";
  return asked<bool, question>(_delegate, self(), other).value_or(false);
}

bool UIGestureRecognizerState::goesTogetherWith(UIGestureRecognizer other) const {
  return allowsTogether(other) || of(other).allowsTogether(self());
}

// A target that is taken away by an action before its own is not told.
void UIGestureRecognizerState::fire() {
  const auto records = copy(recordsOf(self()));
  for (NSUInteger index = 0; index < records->count(); ++index)
    if (recordsOf(self()).containsIdentical(records->at(index)))
      perform(actionOf(records->at(index)), self());
}

}  // namespace desktop::uikit
