// SPDX-License-Identifier: MIT
//
// UIAlertAction: one of the choices of an alert.
#pragma once

#include "bridge/block.h"
#include "bridge/bound.h"
#include "bridge/uikit/ui_controllers.h"

namespace desktop::uikit {

class UIAlertAction : public bridge::Bound<UIAlertAction, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  enum Style : NSInteger { normal = 0, cancel = 1, destructive = 2 };

  bridge::NSString title() const { return _title; }
  NSInteger style() const { return _style; }
  bool isEnabled() const { return _isEnabled; }
  void callHandler() const { _handler(bridge::UIAlertAction(self().get())); }

 private:
  static bridge::UIAlertAction make(bridge::NSString title, NSInteger style,
                                    const bridge::BlockHeader* handler);
  void setEnabled(bool enabled) { _isEnabled = enabled; }

  bridge::Owned<bridge::NSString> _title;
  bridge::Block<void(bridge::UIAlertAction)> _handler;
  NSInteger _style = normal;
  bool _isEnabled = true;
};

}  // namespace desktop::uikit
