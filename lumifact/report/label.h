// SPDX-License-Identifier: MIT
//
// A table of codes and their texts, and the one way in which such tables are read.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>

namespace lumifact {

// One row of a table: what a code means.
struct Label {
  std::int64_t code;
  std::string_view text;
};

// Whether every code is greater than the one before, so that none occurs twice.
constexpr bool keysAscend(std::span<const Label> labels) {
  return std::ranges::adjacent_find(labels, std::greater_equal(), &Label::code) == labels.end();
}

// The text of a code; none where the table has no such row. REQUIRES: the codes ascend.
inline std::optional<std::string_view> labelOf(std::span<const Label> labels, std::int64_t code) {
  const auto row = std::ranges::lower_bound(labels, code, std::less(), &Label::code);
  if (row == labels.end() || row->code != code) return std::nullopt;
  return row->text;
}

}  // namespace lumifact
