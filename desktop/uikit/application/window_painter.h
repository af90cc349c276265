// SPDX-License-Identifier: MIT
//
// Paints what is on the screen: the windows and the status bar over them.
#pragma once

namespace desktop::uikit {

class Canvas;

// As everything is shown now, in points of the screen.
void paintWindows(Canvas& canvas);

}  // namespace desktop::uikit
