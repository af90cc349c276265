// SPDX-License-Identifier: MIT
//
// What UIKit adds to Foundation's index paths: two indices read as a section and a row or item of
// it, both counted from 0.
#pragma once

#include <compare>
#include <optional>

#include "bridge/uikit/ui_lists.h"
#include "desktop/platform.h"

namespace desktop::uikit {

// The same as a plain value.
struct ItemPath {
  NSInteger section = 0;
  NSInteger item = 0;  // or row
  bool operator==(const ItemPath&) const = default;
  // By section, then by item.
  constexpr std::strong_ordering operator<=>(const ItemPath& other) const {
    const auto bySection = section <=> other.section;
    return std::is_neq(bySection) ? bySection : item <=> other.item;
  }
};

// As an object; autoreleased. REQUIRES: no index is negative.
NSIndexPath indexPathOf(ItemPath path);
// None for nil, for another object, and for a path of less than two indices.
std::optional<ItemPath> itemPathOf(Object path);

// Gives index paths indexPathForRow:inSection:, indexPathForItem:inSection:, section, row and item.
// An index that a path does not have is NSNotFound.
void addIndexPathMethods();

}  // namespace desktop::uikit
