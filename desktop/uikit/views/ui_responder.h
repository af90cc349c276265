// SPDX-License-Identifier: MIT
//
// UIResponder: what takes touches and commands. What it does not take goes to the next responder.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class UIResponderState : public Bound<UIResponderState, NSObject, UIResponder> {
 public:
  using Bound::Bound;
  static Class classObject();
  ~UIResponderState();

  // The responder that takes commands at present, or nil. Borrowed.
  static UIResponder firstResponder();

 private:
  UIResponder nextResponder() const { return {}; }
  bool canBecomeFirstResponder() const { return false; }
  bool becomeFirstResponder();
  bool resignFirstResponder();
  bool isFirstResponder() const;
  bool canPerformAction(SEL action, Object sender) const;
  void touchesBegan(NSSet touches, UIEvent event);
  void touchesMoved(NSSet touches, UIEvent event);
  void touchesEnded(NSSet touches, UIEvent event);
  void touchesCancelled(NSSet touches, UIEvent event);
  UIResponder next() const;
};

}  // namespace desktop::uikit
