// SPDX-License-Identifier: MIT
//
// What the extension replaces and adds in the thumbnail grid, a list a subject.
#pragma once

#include "bridge/hook.h"
#include "lumifact/platform.h"

namespace lumifact {

// The bar titles, which make room for the size of the selection.
extern const HookRow barTitleHooks[2];
// The caption bar of a thumbnail: made with the cell, laid out with it.
extern const HookRow captionHooks[7];
// Whether the album list or a panorama is on screen, which decides where badges go.
extern const HookRow visibilityHooks[4];
// The button that makes the thumbnails of an album larger.
extern const HookRow gridSizeHooks[5];
// The size of the selection in the selection title.
extern const HookRow selectionHooks[3];
// The long press on a thumbnail.
extern const HookRow longPressHooks[2];
// The caption bar again: filled in as the cell is shown.
extern const HookRow shownCaptionHooks[1];

}  // namespace lumifact
