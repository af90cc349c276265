// SPDX-License-Identifier: MIT
//
// The application of this process: its windows, how their frames follow each other, and the one way
// to begin anew.
#pragma once

#include <string>
#include <vector>

#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/bars/status_bar.h"
#include "desktop/uikit/base/scheduler.h"

namespace desktop::uikit {

struct Application {
  std::vector<Owned<UIView>> windows;  // from back to front
  StatusBar statusBar;
  std::vector<std::string> opened;  // links handed to the system so far

  // Lays out what needs it and shows the present moment of animations: what a frame does before
  // it is painted.
  void prepareFrame() const;
  // Moves time on in steps of a frame, preparing each; at least one.
  void advance(Seconds by) const;
  // The screen became another size; the windows are told.
  void resize(CGSize size) const;
};

Application& application();
// Makes everything new that there is one of in a process: the application, whose windows go, and
// below it touches, animations, time, the screen, the log and what is asked of the desktop.
void resetApplication();

}  // namespace desktop::uikit
