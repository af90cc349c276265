// SPDX-License-Identifier: MIT
//
// One controller shown over another one.
#pragma once

#include "bridge/uikit/ui_controllers.h"
#include "desktop/platform.h"

namespace desktop::uikit {

// Owned by the presenter. `container` fills the window and holds the presented view; what touches
// pass to it while its view moves goes nowhere.
struct Presentation {
  Owned<UIViewController> presented;
  Owned<UIView> container;
  bool coversAll = true;      // the presenter's view leaves the window meanwhile
  bool isPresenting = false;  // the presented view is on its way in
  bool isDismissing = false;  // and on its way out
};

}  // namespace desktop::uikit
