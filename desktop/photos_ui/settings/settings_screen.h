// SPDX-License-Identifier: MIT
//
// The settings of extensions, over whatever is on show: the page where there is one, a list of them
// where there are several.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/controllers/ui_navigation_controller.h"

namespace desktop::photos_ui {

class SettingsScreen : public Bound<SettingsScreen, uikit::UINavigationControllerState> {
 public:
  using Bound::Bound;
  static Class classObject();

  // Presents them as the host's folder of pages is now.
  static void presentOver(UIViewController controller, UIViewController::Animated how);

 private:
  void done(NSObject sender);
};

}  // namespace desktop::photos_ui
