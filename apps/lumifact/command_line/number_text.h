// SPDX-License-Identifier: MIT
//
// Numbers as people type them.
#pragma once

#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>
#include <system_error>
#include <type_traits>

namespace lumifact::tool {

// A whole text as a decimal number; a leading plus is allowed. None where it does not read or fit,
// or is "nan" or "inf".
template <typename Number>
std::optional<Number> numberFromText(std::string_view text) {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  if constexpr (std::is_floating_point_v<Number>) {
    if (!std::isfinite(number)) return std::nullopt;
  }
  return number;
}

}  // namespace lumifact::tool
