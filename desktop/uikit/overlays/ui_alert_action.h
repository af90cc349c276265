// SPDX-License-Identifier: MIT
//
// UIAlertAction: one of the choices of an alert.
#pragma once

#include "bridge/block.h"
#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_controllers.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class UIAlertActionState : public Bound<UIAlertActionState, NSObject, UIAlertAction> {
 public:
  using Bound::Bound;
  static Class classObject();

  enum Style : NSInteger { normal = 0, cancel = 1, destructive = 2 };

  NSString title() const { return _title; }
  NSInteger style() const { return _style; }
  bool isEnabled() const { return _isEnabled; }
  void callHandler() const { _handler(UIAlertAction(self().get())); }

 private:
  static UIAlertAction make(NSString title, NSInteger style, const BlockHeader* handler);
  void setEnabled(bool enabled) { _isEnabled = enabled; }

  Owned<NSString> _title;
  Block<void(UIAlertAction)> _handler;
  NSInteger _style = normal;
  bool _isEnabled = true;
};

}  // namespace desktop::uikit
