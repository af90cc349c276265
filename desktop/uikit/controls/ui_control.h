// SPDX-License-Identifier: MIT
//
// UIControl: a view that turns touches into control events and tells its targets of them.
#pragma once

#include <vector>

#include "bridge/bound.h"
#include "bridge/uikit/ui_controls.h"

namespace desktop::uikit {

class UIControl : public bridge::Bound<UIControl, bridge::UIView> {
 public:
  using Bound::Bound;
  static Class classObject();

  enum Event : NSUInteger {
    touchDown = 1 << 0,
    touchDownRepeat = 1 << 1,
    touchDragInside = 1 << 2,
    touchDragOutside = 1 << 3,
    touchDragEnter = 1 << 4,
    touchDragExit = 1 << 5,
    touchUpInside = 1 << 6,
    touchUpOutside = 1 << 7,
    touchCancel = 1 << 8,
    valueChanged = 1 << 12,
  };
  enum StateBit : NSUInteger { normal = 0, highlighted = 1, disabled = 2, selected = 4 };

  struct Target {
    bridge::NSObject target;  // borrowed; nil is whoever first answers on the way up
    SEL action;
    NSUInteger events;
  };
  const std::vector<Target>& targets() const { return _targets; }
  // A pair of target and action is there once, for all of its events together.
  void addTarget(bridge::NSObject target, SEL action, NSUInteger events);
  // Nil is every target, null every action.
  void removeTarget(bridge::NSObject target, SEL action, NSUInteger events);
  void sendActions(NSUInteger events);

  NSUInteger state() const { return _state; }
  bool isEnabled() const { return (_state & disabled) == 0; }
  bool isHighlighted() const { return (_state & highlighted) != 0; }
  bool isSelected() const { return (_state & selected) != 0; }
  bool isTracking() const { return _isTracking; }
  bool isTouchInside() const { return _isTouchInside; }

 private:
  void setEnabled(bool enabled);
  void setHighlighted(bool isHighlighted) { setBit(highlighted, isHighlighted); }
  void setSelected(bool isSelected) { setBit(selected, isSelected); }
  void setBit(NSUInteger bit, bool isSet);
  bridge::NSSet allTargets() const;
  NSUInteger allControlEvents() const;
  bridge::NSArray actionsForTarget(bridge::NSObject target, NSUInteger events) const;
  void sendAction(SEL action, bridge::NSObject target, bridge::UIEvent event);
  void sendActionsWithEvent(NSUInteger events, bridge::UIEvent event);
  bool shouldBegin(bridge::UIGestureRecognizer recognizer) const;

  bool beginTracking(bridge::UITouch, bridge::UIEvent) { return true; }
  bool continueTracking(bridge::UITouch, bridge::UIEvent) { return true; }
  void endTracking(bridge::UITouch, bridge::UIEvent) {}
  void cancelTracking(bridge::UIEvent) {}
  void touchesBegan(bridge::NSSet touches, bridge::UIEvent event);
  void touchesMoved(bridge::NSSet touches, bridge::UIEvent event);
  void touchesEnded(bridge::NSSet touches, bridge::UIEvent event);
  void touchesCancelled(bridge::NSSet touches, bridge::UIEvent event);
  bool isNear(bridge::UITouch touch) const;
  void stopTracking();

  std::vector<Target> _targets;
  NSUInteger _state = normal;
  bool _isTracking = false;
  bool _isTouchInside = false;
};

}  // namespace desktop::uikit
