// SPDX-License-Identifier: MIT
//
// The strip at the top of the screen. It shows the same time always, so that pictures of the same
// screen are the same.
#pragma once

namespace desktop::uikit {

class Canvas;

struct StatusBar {
  bool isShown = false;
  bool isLight = false;  // white on what is below, instead of black
};

// Paints it where it is shown.
void paintStatusBar(const StatusBar& bar, Canvas& canvas);

}  // namespace desktop::uikit
