// SPDX-License-Identifier: MIT
//
// The finger of a session: where it is from coming down until it leaves the screen, whichever
// commands move it. A frame passes with every step.
#pragma once

#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/scheduler.h"

namespace desktop::script {

class Finger {
 public:
  // Comes down and rests there for a time.
  void down(CGPoint at, uikit::Seconds rest = 0);
  void move(CGPoint at);
  // Leaves from where it is.
  void up() const;
  // Is taken away: nothing comes of what it did.
  void cancel() const;

 private:
  CGPoint _place;
};

}  // namespace desktop::script
