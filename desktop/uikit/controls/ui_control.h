// SPDX-License-Identifier: MIT
//
// UIControl: a view that turns touches into control events and tells its targets of them.
#pragma once

#include <vector>
#include "desktop/uikit/views/ui_view.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_controls.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/weak_reference.h"

namespace desktop::uikit {

class UIControlState : public Bound<UIControlState, UIViewState, UIControl> {
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
    NSObject target;  // borrowed; nil is whoever first answers on the way up
    SEL action;
    NSUInteger events;
    WeakReference living;  // to the target

    bool isGone() const { return target && !living.get(); }
  };
  // Without those that have gone, which nobody tells.
  const std::vector<Target>& targets();
  // A pair of target and action is there once, for all of its events together.
  void addTarget(NSObject target, SEL action, NSUInteger events);
  // Nil is every target, null every action.
  void removeTarget(NSObject target, SEL action, NSUInteger events);
  void sendActions(NSUInteger events);

  NSUInteger state() const { return _state; }
  bool isEnabled() const { return (_state & disabled) == 0; }
  bool isHighlighted() const { return (_state & highlighted) != 0; }
  bool isSelected() const { return (_state & selected) != 0; }
  // What it is called by those who do not see it, where its own texts do not say; nil: nothing.
  NSString accessibilityLabel() const { return _accessibilityLabel; }
  void setAccessibilityLabel(NSString label) { _accessibilityLabel = copy(label); }
  bool isTracking() const { return _isTracking; }
  bool isTouchInside() const { return _isTouchInside; }

 private:
  void setEnabled(bool enabled);
  void setHighlighted(bool isHighlighted) { setBit(highlighted, isHighlighted); }
  void setSelected(bool isSelected) { setBit(selected, isSelected); }
  void setBit(NSUInteger bit, bool isSet);
  NSSet allTargets();
  NSUInteger allControlEvents();
  NSArray actionsForTarget(NSObject target, NSUInteger events);
  void sendAction(SEL action, NSObject target, UIEvent event);
  void sendActionsWithEvent(NSUInteger events, UIEvent event);
  bool shouldBegin(UIGestureRecognizer recognizer) const;

  bool beginTracking(UITouch, UIEvent) { return true; }
  bool continueTracking(UITouch, UIEvent) { return true; }
  void endTracking(UITouch, UIEvent) {}
  void cancelTracking(UIEvent) {}
  void touchesBegan(NSSet touches, UIEvent event);
  void touchesMoved(NSSet touches, UIEvent event);
  void touchesEnded(NSSet touches, UIEvent event);
  void touchesCancelled(NSSet touches, UIEvent event);
  bool isNear(UITouch touch) const;
  void stopTracking();

  std::vector<Target> _targets;
  Owned<NSString> _accessibilityLabel;
  NSUInteger _state = normal;
  bool _isTracking = false;
  bool _isTouchInside = false;
};

}  // namespace desktop::uikit
