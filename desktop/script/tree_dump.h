// SPDX-License-Identifier: MIT
//
// What is on the screen, as JSON.
#pragma once

#include <string>

namespace desktop::script {

// The screen as one JSON object: screen, presentation, navigation, alert, sheet, menu, opened, log
// and view, the tree of the rear-most window's views. Lengths are in points; what is animated is
// told as it is shown now. The presentation names every controller from the window's to the
// top-most, each container before what it shows. Always valid UTF-8.
std::string dumpScreen();

}  // namespace desktop::script
