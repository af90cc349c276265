// SPDX-License-Identifier: MIT
//
// The page that shows an item's details, as the settings want it.
#pragma once

#include "lumifact/details/item_file.h"
#include "lumifact/platform.h"

namespace lumifact {

// A page for an item and its file: text, or a table where viewType says so and the item is a still.
// Nil where the file holds no image and the item is no video.
// REQUIRES: the file is open.
Owned<UIViewController> makeReportPage(PHAsset asset, const ItemFile& file);

}  // namespace lumifact
