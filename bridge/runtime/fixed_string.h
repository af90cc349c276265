// SPDX-License-Identifier: MIT
//
// Text as a template argument: selectors, class names and type encodings.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace bridge {

// A text of N - 1 characters and its terminating zero.
template <std::size_t N>
struct FixedString {
  char text[N]{};

  constexpr FixedString() = default;
  constexpr FixedString(const char (&literal)[N]) { std::copy_n(literal, N, text); }

  constexpr std::string_view view() const { return {text, N - 1}; }
};

template <std::size_t N, std::size_t M>
constexpr FixedString<N + M - 1> operator+(const FixedString<N>& left,
                                           const FixedString<M>& right) {
  FixedString<N + M - 1> joined;
  std::copy_n(left.text, N - 1, joined.text);
  std::copy_n(right.text, M, joined.text + N - 1);
  return joined;
}

// A text of one character.
constexpr FixedString<2> fixedString(char character) {
  FixedString<2> single;
  single.text[0] = character;
  return single;
}

// How many arguments a selector takes: one for each colon.
constexpr std::size_t argumentCount(std::string_view selector) {
  return static_cast<std::size_t>(std::ranges::count(selector, ':'));
}

}  // namespace bridge
