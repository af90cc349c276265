// SPDX-License-Identifier: MIT
//
// Items that no file stands for.
#pragma once

#include <algorithm>
#include <string>

#include "desktop/photos_ui/base/item_list.h"

namespace desktop::photos_ui {

// The date is in seconds since 1970.
inline library::ItemPointer sampleItem(const std::string& name, double date) {
  return std::make_shared<library::LibraryItem>(library::LibraryItem{
      .path = "/" + name, .uuid = "uuid of " + name, .modificationDate = {date}});
}

// "0", "1" and so on, dated by their numbers, without those of some numbers.
inline ItemListPointer sampleList(int count, const std::vector<int>& without = {}) {
  std::vector<library::ItemPointer> items;
  for (int index = 0; index < count; ++index)
    if (std::ranges::find(without, index) == without.end())
      items.push_back(sampleItem(std::to_string(index), index));
  return std::make_shared<ItemList>(std::move(items));
}

}  // namespace desktop::photos_ui
