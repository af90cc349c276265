// SPDX-License-Identifier: MIT
//
// UIGestureRecognizer: watches the touches of its view and of all below it, and tells its targets
// when they become its gesture. Classes below it answer touchesBegan:withEvent: and its sisters,
// and say what they make of them by setState:.
#pragma once

#include <vector>

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class UIGestureRecognizerState
    : public Bound<UIGestureRecognizerState, NSObject, UIGestureRecognizer> {
 public:
  using State = UIGestureRecognizer::State;
  using Bound::Bound;
  static Class classObject();
  ~UIGestureRecognizerState();

  struct Action {
    NSObject target;  // borrowed
    SEL action;
  };
  std::vector<Action> actions() const;
  void addTarget(NSObject target, SEL action);
  State state() const { return _state; }
  // Nil where it is of no view. Borrowed.
  UIView view() const { return _view; }
  bool isEnabled() const { return _isEnabled; }
  bool cancelsTouchesInView() const { return _cancelsTouchesInView; }
  bool delaysTouchesBegan() const { return _delaysTouchesBegan; }
  bool delaysTouchesEnded() const { return _delaysTouchesEnded; }

  // For the dispatcher. Undecided: it may still become a gesture.
  bool isUndecided() const { return _state == State::possible; }
  bool isUnderWay() const { return _state == State::began || _state == State::changed; }
  // Undecided by a decision of another one.
  bool isWaiting() const { return _awaited != State::possible; }
  // Whether it goes on without a finger: between taps.
  bool staysUndecided() const { return isWaiting() || _expectsMoreTouches; }
  bool wantsTouch(UITouch touch) const;
  void touched(UITouch touch, UIEvent event);
  // Ends what is under way, and gives up what is undecided.
  void giveUp();
  // Gives up and takes part in no touch: its view is no longer shown.
  void leaveTouches();
  // The same without a word: its view is being destroyed.
  void viewIsGone();
  // Where it waits, looks again whether the others have decided. Whether it has now, too.
  bool tryAgain();
  // Possible again, for the next touch. Tells nobody.
  void startAnew();

  // For classes below.
  void become(State state);
  void setExpectsMoreTouches(bool expects) { _expectsMoreTouches = expects; }
  CGPoint locationOnScreen() const { return _location; }

 private:
  UIGestureRecognizer init();
  UIGestureRecognizer initWithTarget(NSObject target, SEL action);
  void removeTarget(NSObject target, SEL action);
  void moveToView(UIView view);
  NSInteger stateNumber() const { return _state; }
  void setStateNumber(NSInteger state) { become(static_cast<State>(state)); }
  CGPoint locationIn(UIView view) const;
  CGPoint locationOfTouch(NSUInteger index, UIView view) const;
  NSUInteger numberOfTouches() const { return _hasTouch ? 1 : 0; }
  void setEnabled(bool enabled);
  NSObject delegate() const { return _delegate; }
  void setDelegate(NSObject delegate) { _delegate = delegate; }
  void setCancelsTouchesInView(bool cancels) { _cancelsTouchesInView = cancels; }
  void setDelaysTouchesBegan(bool delays) { _delaysTouchesBegan = delays; }
  void setDelaysTouchesEnded(bool delays) { _delaysTouchesEnded = delays; }
  void requireToFail(UIGestureRecognizer other);
  void ignoreTouches(NSSet, UIEvent) {}
  void reset() {}

  void recognize(State first);
  bool mayBegin() const;
  bool mustWait() const;
  bool isExcluded() const;
  bool goesTogetherWith(UIGestureRecognizer other) const;
  bool allowsTogether(UIGestureRecognizer other) const;
  void excludeOthers() const;
  void fail();
  void fire();

  UIView _view;                                       // borrowed
  NSObject _delegate;                                 // borrowed
  Owned<UITouch> _touch;                              // asked about by the view; the last one
  std::vector<Owned<UIGestureRecognizer>> _required;  // to fail first
  State _state = State::possible;
  State _awaited = State::possible;  // what it becomes once those required have failed
  CGPoint _location;                 // on the screen
  bool _hasTouch = false;
  bool _expectsMoreTouches = false;
  bool _isEnabled = true;
  bool _cancelsTouchesInView = true;
  bool _delaysTouchesBegan = false;
  bool _delaysTouchesEnded = true;
};

// What a recogniser tells, and whom: the objects in its field `_targets`.
class UIGestureRecognizerTarget : public Bound<UIGestureRecognizerTarget, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();
};

}  // namespace desktop::uikit
