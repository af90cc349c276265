// SPDX-License-Identifier: MIT
//
// UIApplication: the one application, which hands links to the system.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_controllers.h"

namespace desktop::uikit {

class UIApplication : public bridge::Bound<UIApplication, bridge::UIResponder> {
 public:
  using Bound::Bound;
  static Class classObject();
  static bridge::UIApplication sharedApplication();

 private:
  // Notes the link and asks the desktop to open it; nil is nobody's.
  bool openURL(bridge::NSURL url);
  bridge::UIView keyWindow() const;
  bridge::NSArray windows() const;
};

}  // namespace desktop::uikit
