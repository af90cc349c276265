// SPDX-License-Identifier: MIT
//
// The summary of an asset, from the asset to the screen.
#pragma once

#include "bridge/photos.h"
#include "lumifact/platform.h"

namespace lumifact {

// Shows it over the grid: in the pop-up box with labels, or in an alert without, as the user
// chose. Waits for nobody; either goes away by itself or by its button.
void showQuickInfo(PUPhotosGridViewController grid, PHAsset asset);

}  // namespace lumifact
