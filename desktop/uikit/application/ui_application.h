// SPDX-License-Identifier: MIT
//
// UIApplication: the one application, which hands links to the system.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_controllers.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/ui_responder.h"

namespace desktop::uikit {

class UIApplicationState : public Bound<UIApplicationState, UIResponderState, UIApplication> {
 public:
  using Bound::Bound;
  static Class classObject();
  static UIApplication sharedApplication();

 private:
  // Notes the link and asks the desktop to open it; nil is nobody's.
  bool openURL(NSURL url);
  UIView keyWindow() const;
  NSArray windows() const;
};

}  // namespace desktop::uikit
