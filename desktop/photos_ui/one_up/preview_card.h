// SPDX-License-Identifier: MIT
//
// A preview is a card in the middle of what it was called from.
#pragma once

#include "bridge/uikit.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

// Where the card is in a room, as large as there is room for. The shape is as wide and as high as
// the photo, in any unit. In the room's coordinates, in points.
CGRect cardFrame(CGRect room, CGSize shape);

// Makes a view look like one.
void dressAsCard(UIView view);

}  // namespace desktop::photos_ui
