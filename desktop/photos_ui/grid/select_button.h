// SPDX-License-Identifier: MIT
//
// The button in a grid's bar that begins and ends select mode.
#pragma once

#include "bridge/uikit.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

enum class SelectButton { none, select, cancel };

// Shows it; the grid is sent beginSelecting: or endSelecting: by it. Leaves the bar as it is where
// the button is there already: somebody else may have added others.
void showSelectButton(UIViewController grid, SelectButton button);

}  // namespace desktop::photos_ui
