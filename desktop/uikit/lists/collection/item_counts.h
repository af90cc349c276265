// SPDX-License-Identifier: MIT
//
// How many items each section of a collection has.
#pragma once

#include <vector>

#include "desktop/uikit/lists/index_path.h"

namespace desktop::uikit {

class ItemCounts {
 public:
  ItemCounts() = default;
  // Of one section after the other.
  explicit ItemCounts(std::vector<NSInteger> items) : _items(std::move(items)) {}

  NSInteger sections() const { return static_cast<NSInteger>(_items.size()); }
  // 0 where there is no such section.
  NSInteger items(NSInteger section) const;
  bool has(ItemPath path) const { return path.item >= 0 && path.item < items(path.section); }

 private:
  std::vector<NSInteger> _items;
};

}  // namespace desktop::uikit
