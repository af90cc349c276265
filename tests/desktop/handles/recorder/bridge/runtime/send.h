// SPDX-License-Identifier: MIT
//
// In place of the header of this name: a message is not sent, but the line that would send it is
// recorded when the program starts, whether the line is ever run or not.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <type_traits>

#include "bridge/runtime/encoding.h"
#include "bridge/runtime/selector.h"

namespace bridge {
namespace recorder {

// "RECEIVER SELECTOR ENCODING RESULT", types as C++ writes them.
inline std::set<std::string>& lines() {
  static std::set<std::string> all;
  return all;
}

template <typename T>
constexpr std::string_view nameOf() {
  const std::string_view text = __PRETTY_FUNCTION__;
  const auto from = text.find("T = ") + 4;
  return text.substr(from, text.find_first_of(";]", from) - from);
}

// Compilers differ in where they leave blanks.
inline std::string word(std::string_view name) {
  std::string text(name);
  std::erase(text, ' ');
  return text;
}

inline bool record(std::string_view receiver, std::string_view selector, std::string_view encoding,
                   std::string_view result) {
  lines().insert(word(receiver) + ' ' + std::string(selector) + ' ' + std::string(encoding) + ' ' +
                 word(result));
  return true;
}

template <typename R, FixedString Selector, typename Receiver, typename... Arguments>
struct Line {
  [[gnu::used]] static inline const bool isRecorded = record(
      nameOf<Receiver>(), Selector.view(), encodingOf<R(id, SEL, Arguments...)>, nameOf<R>());
};

}  // namespace recorder

template <typename R, FixedString Selector, typename Receiver, typename... Arguments>
R send(const Receiver&, const Arguments&...) {
  static_cast<void>(
      recorder::Line<R, Selector, Receiver, std::decay_t<const Arguments&>...>::isRecorded);
  return R();
}

}  // namespace bridge
