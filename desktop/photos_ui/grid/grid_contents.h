// SPDX-License-Identifier: MIT
//
// What a grid shows, and how.
#pragma once

#include <functional>
#include <string>

#include "desktop/photos_ui/base/item_list.h"

namespace desktop::photos_ui {

struct GridContents {
  std::string title;
  std::function<ItemListPointer()> list;  // as the library is now; null where there is none
  int columns = 4;                        // in an upright window 375 points wide
  double heightByWidth = 1;               // of a cell
  bool hasLargeTitle = false;
  bool hasHeaders = false;
  bool allowsSelecting = true;
  bool startsAtEnd = false;  // the newest are seen first, and stay in sight when new ones come
};

}  // namespace desktop::photos_ui
