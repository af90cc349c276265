// SPDX-License-Identifier: MIT
//
// What a collection shows: an item, or a supplementary view of a kind.
#pragma once

#include <string>

#include "desktop/uikit/lists/index_path.h"

namespace desktop::uikit {

struct CollectionElement {
  std::string kind;  // empty: an item
  ItemPath path;
  bool isItem() const { return kind.empty(); }
  bool operator==(const CollectionElement&) const = default;
  // Items before supplementary views.
  std::strong_ordering operator<=>(const CollectionElement& other) const {
    const auto byKind = kind <=> other.kind;
    return std::is_neq(byKind) ? byKind : path <=> other.path;
  }
};

}  // namespace desktop::uikit
