// SPDX-License-Identifier: MIT
//
// Messages between the application's own classes: who receives one is of any class below the one
// that answers it.
#pragma once

#include "bridge/uikit.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

// A change of the library is on show.
inline void libraryWasShown(UIViewController grid) {
  send<void, "libraryWasShown">(grid);
}

// The items on the bars of a single photo may be others.
inline void updateBars(NSObject barsController) {
  send<void, "updateBars">(barsController);
}

}  // namespace desktop::photos_ui
