// SPDX-License-Identifier: MIT
#include "desktop/uikit/application/window_painter.h"

#include "desktop/uikit/application/application.h"
#include "desktop/uikit/views/view_painter.h"

namespace desktop::uikit {

void paintWindows(Canvas& canvas) {
  for (const auto& window : application().windows) paintView(window, canvas);
  paintStatusBar(application().statusBar, canvas);
}

}  // namespace desktop::uikit
