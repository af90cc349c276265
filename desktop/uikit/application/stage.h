// SPDX-License-Identifier: MIT
//
// What there is one of in an application: its screen, its time, its windows, and what leaves it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "bridge/uikit/ui_view.h"
#include "desktop/uikit/bars/status_bar.h"
#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "desktop/uikit/views/animator.h"

namespace desktop::uikit {

// What needs painting again, in points of the screen.
class Damage {
 public:
  void add(CGRect rect);
  // What there is, at most a few rectangles; nothing is left.
  std::vector<CGRect> take();
  bool isEmpty() const { return _rects.empty(); }

 private:
  std::vector<CGRect> _rects;
};

// What the application asks of the desktop around it. All may be left unset.
struct Outside {
  std::function<bool(const std::string&)> openLink;  // whether somebody opened it
  std::function<void(const std::string&)> copyText;  // to the clipboard
  std::function<void(const std::string&)> saveText;  // asks where
};

struct Stage {
  CGSize screenSize{375, 667};   // points
  CGFloat scale = 2;             // pixels a point
  CGFloat statusBarHeight = 20;  // points
  StatusBar statusBar;
  Scheduler scheduler;
  Animator animator;
  TouchDispatcher touches;
  Damage damage;
  std::vector<bridge::Owned<bridge::UIView>> windows;  // from back to front
  std::vector<std::string> opened;                     // links handed to the system so far
  std::vector<std::string> log;                        // lines for whoever debugs
  Outside outside;

  // Lays out what needs it and shows the present moment of animations: what a frame does before
  // it is painted.
  void prepareFrame();
  // Moves time on in steps of a frame, preparing each; at least one.
  void advance(Seconds by);
  // The screen became another size; windows that filled it fill it again.
  void resize(CGSize size);
};

// The stage of this process.
Stage& stage();
// A new, empty stage in place of the old one, whose windows go.
void resetStage();

}  // namespace desktop::uikit
