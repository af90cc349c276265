// SPDX-License-Identifier: MIT
//
// How many items there are, in words.
#pragma once

#include <span>
#include <string>

#include "desktop/library/library_item.h"

namespace desktop::photos_ui {

// "Select Items", "1 Photo Selected", "2 Videos Selected" or "3 Items Selected".
std::string selectionTitle(std::span<const library::ItemPointer> items);

// "2 Photos, 1 Video"; empty for none.
std::string countText(std::span<const library::ItemPointer> items);

}  // namespace desktop::photos_ui
