// SPDX-License-Identifier: MIT
//
// Which screens have their title in large letters below the bar.
#pragma once

#include "bridge/uikit.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

void useLargeTitle(UIViewController controller, bool isLarge);

}  // namespace desktop::photos_ui
