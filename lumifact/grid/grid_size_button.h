// SPDX-License-Identifier: MIT
//
// The "G" button: one for the process, which stands on the bar of whichever album is shown.
#pragma once

#include "bridge/uikit.h"
#include "lumifact/platform.h"

namespace lumifact {

struct GridSizeButton {
  Owned<UIButton> button;
  Owned<UIBarButtonItem> item;    // with the button
  Owned<UIBarButtonItem> spacer;  // between the item and the host's own
};

// Made by the first call, in the tint that is asked for then; kept for good.
const GridSizeButton& gridSizeButton(UIColor tint);

// The item of the button; nil before it was made.
UIBarButtonItem gridSizeItem();

}  // namespace lumifact
