// SPDX-License-Identifier: MIT
//
// How what lies over a screen is left by a key, without a finger on it.
#pragma once

#include "bridge/uikit.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

// Answers an alert by its cancel action, or its only one, and dismisses everything else. A page
// that was reached from the presented one leads back to that first.
void leavePresented(UIViewController presented);

// Taps what others laid over all of a controller's view, beside its contents. Whether there is such
// a thing.
bool tapCoverAway(UIViewController controller);

}  // namespace desktop::photos_ui
