// SPDX-License-Identifier: MIT
//
// UIResponder: what takes touches and commands. What it does not take goes to the next responder.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_view.h"

namespace desktop::uikit {

class UIResponder : public bridge::Bound<UIResponder, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();
  ~UIResponder();

  // The responder that takes commands at present, or nil. Borrowed.
  static bridge::UIResponder firstResponder();

 private:
  bridge::UIResponder nextResponder() const { return {}; }
  bool canBecomeFirstResponder() const { return false; }
  bool becomeFirstResponder();
  bool resignFirstResponder();
  bool isFirstResponder() const;
  bool canPerformAction(SEL action, bridge::Object sender) const;
  void touchesBegan(bridge::NSSet touches, bridge::UIEvent event);
  void touchesMoved(bridge::NSSet touches, bridge::UIEvent event);
  void touchesEnded(bridge::NSSet touches, bridge::UIEvent event);
  void touchesCancelled(bridge::NSSet touches, bridge::UIEvent event);
  bridge::UIResponder next() const;
};

}  // namespace desktop::uikit
