// SPDX-License-Identifier: MIT
//
// A number ends where the next sign or the slash stands, so a match never has a second way to be
// made and nothing is ever tried again: each character is looked at by at most three beginnings.
#include "lumifact/report/iso6709.h"

#include <algorithm>

namespace lumifact {

namespace {

constexpr std::string_view signs = "+-";
constexpr std::string_view digitsAndPoint = "0123456789.";

// Takes a sign and at least one digit or point off the front; empty where there is none.
std::string_view takeSignedNumber(std::string_view& rest) {
  if (rest.empty() || signs.find(rest.front()) == std::string_view::npos) return {};
  const std::size_t end = std::min(rest.find_first_not_of(digitsAndPoint, 1), rest.size());
  if (end == 1) return {};
  const std::string_view number = rest.substr(0, end);
  rest.remove_prefix(end);
  return number;
}

std::optional<Iso6709Location> locationAtFront(std::string_view rest) {
  Iso6709Location location;
  for (auto* number : {&location.latitude, &location.longitude, &location.altitude}) {
    *number = takeSignedNumber(rest);
    if (number->empty()) return std::nullopt;
  }
  if (!rest.starts_with('/')) return std::nullopt;
  return location;
}

}  // namespace

std::optional<Iso6709Location> findIso6709Location(std::string_view text) {
  for (std::size_t start = text.find_first_of(signs); start != std::string_view::npos;
       start = text.find_first_of(signs, start + 1)) {
    if (const auto location = locationAtFront(text.substr(start))) return location;
  }
  return std::nullopt;
}

}  // namespace lumifact
