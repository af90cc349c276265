// SPDX-License-Identifier: MIT
//
// Lists of words in one text.
#pragma once

#include <string_view>
#include <vector>

namespace samples {

// The words between commas; none of a null text.
inline std::vector<std::string_view> words(const char* list) {
  std::vector<std::string_view> found;
  std::string_view rest = list == nullptr ? "" : list;
  while (!rest.empty()) {
    const std::size_t comma = rest.find(',');
    found.push_back(rest.substr(0, comma));
    rest = comma == std::string_view::npos ? "" : rest.substr(comma + 1);
  }
  return found;
}

}  // namespace samples
