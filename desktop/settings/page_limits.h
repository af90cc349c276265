// SPDX-License-Identifier: MIT
//
// What pages of settings may hold, in one place. Whatever goes beyond is not shown, and why is
// said.
#pragma once

#include <cstddef>

namespace desktop::settings {

struct PageLimits {
  std::size_t pages = 100;    // of a folder
  std::size_t nesting = 8;    // containers inside each other, in a page's file
  std::size_t rows = 500;     // of a page, with the cells that begin groups
  std::size_t choices = 200;  // of a row
  std::size_t text = 1'000;   // bytes of a title, label, footer, key or name
  double steps = 10'000;      // of a slider
};
inline constexpr PageLimits pageLimits;

}  // namespace desktop::settings
