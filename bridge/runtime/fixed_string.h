// SPDX-License-Identifier: MIT
//
// Text as a template argument: selectors, class names and type encodings.
#pragma once

#include <cstddef>
#include <string_view>

namespace bridge {

// A text of N - 1 characters and its terminating zero.
template <std::size_t N>
struct FixedString {
  char text[N]{};

  constexpr FixedString() = default;
  constexpr FixedString(const char (&literal)[N]) {
    std::char_traits<char>::copy(text, literal, N);
  }

  constexpr std::string_view view() const { return {text, N - 1}; }
};

template <std::size_t N, std::size_t M>
constexpr FixedString<N + M - 1> operator+(const FixedString<N>& left,
                                           const FixedString<M>& right) {
  FixedString<N + M - 1> joined;
  std::char_traits<char>::copy(joined.text, left.text, N - 1);
  std::char_traits<char>::copy(joined.text + N - 1, right.text, M);
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
  std::size_t count = 0;
  for (const char character : selector) count += character == ':' ? 1 : 0;
  return count;
}

}  // namespace bridge
