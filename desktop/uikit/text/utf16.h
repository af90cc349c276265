// SPDX-License-Identifier: MIT
//
// The platform's strings as UTF-16, which all ranges of text are counted in.
#pragma once

#include <string>

#include "bridge/foundation/ns_string.h"
#include "desktop/platform.h"

namespace desktop::uikit {

constexpr bool isLeadSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
constexpr bool isTrailSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

// The index itself, or the one before it where it lies within a surrogate pair.
std::size_t outsidePair(std::u16string_view text, std::size_t index);

// The text with every lone surrogate replaced by U+FFFD; as long as before.
std::u16string withoutLoneSurrogates(std::u16string_view text);

// The units of a string, lone surrogates included; empty for nil.
std::u16string utf16Of(NSString text);

// A string of these units without lone surrogates, which the platform's strings cannot be made
// of. Autoreleased.
NSString stringOf(std::u16string_view units);

}  // namespace desktop::uikit
