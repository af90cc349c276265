// SPDX-License-Identifier: MIT
#include "model/conversions.h"

#include <cmath>
#include <limits>

#include "model/digits.h"
#include "model/number_text.h"

namespace model {

namespace {

bool isBlank(char character) {
  return character == ' ' || (character >= '\t' && character <= '\r');
}

// The integer at the front of a text (blanks, a sign, digits), saturating.
template <typename Integer>
Integer leadingInteger(std::string_view text) {
  std::size_t cursor = 0;
  while (cursor < text.size() && isBlank(text[cursor])) ++cursor;
  const bool negative = cursor < text.size() && text[cursor] == '-';
  if (cursor < text.size() && (text[cursor] == '-' || text[cursor] == '+')) ++cursor;
  using Limits = std::numeric_limits<Integer>;
  Integer result = 0;
  for (; cursor < text.size() && isDigit(text[cursor]); ++cursor) {
    const auto digit = static_cast<Integer>(text[cursor] - '0');
    if (negative) {
      if (result < (Limits::min() + digit) / 10) return Limits::min();
      result = static_cast<Integer>(result * 10 - digit);
    } else {
      if (result > (Limits::max() - digit) / 10) return Limits::max();
      result = static_cast<Integer>(result * 10 + digit);
    }
  }
  return result;
}

// A real truncated toward zero, saturating; NaN is 0.
template <typename Integer>
Integer truncated(double real) {
  using Limits = std::numeric_limits<Integer>;
  if (std::isnan(real)) return 0;
  if (real >= static_cast<double>(Limits::max())) return Limits::max();
  if (real <= static_cast<double>(Limits::min())) return Limits::min();
  return static_cast<Integer>(real);
}

}  // namespace

std::int64_t integerValue(const Value& value) {
  if (const auto* integer = value.asInteger()) return *integer;
  if (const auto* large = value.asLargeInteger()) return static_cast<std::int64_t>(*large);
  if (const auto* real = value.asReal()) return truncated<std::int64_t>(*real);
  if (const auto* boolean = value.asBoolean()) return *boolean ? 1 : 0;
  if (const auto* text = value.asString()) return leadingInteger<std::int64_t>(*text);
  return 0;
}

std::int32_t intValue(const Value& value) {
  if (const auto* integer = value.asInteger()) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(*integer));
  }
  if (const auto* large = value.asLargeInteger()) return static_cast<std::int32_t>(*large);
  if (const auto* real = value.asReal()) return truncated<std::int32_t>(*real);
  if (const auto* boolean = value.asBoolean()) return *boolean ? 1 : 0;
  if (const auto* text = value.asString()) return leadingInteger<std::int32_t>(*text);
  return 0;
}

bool boolValue(const Value& value) {
  if (const auto* boolean = value.asBoolean()) return *boolean;
  if (const auto* integer = value.asInteger()) return *integer != 0;
  if (value.asLargeInteger() != nullptr) return true;
  if (const auto* real = value.asReal()) return *real != 0;
  const auto* text = value.asString();
  if (text == nullptr) return false;
  std::size_t cursor = 0;
  while (cursor < text->size() && isBlank((*text)[cursor])) ++cursor;
  if (cursor < text->size() && ((*text)[cursor] == '-' || (*text)[cursor] == '+')) ++cursor;
  while (cursor < text->size() && (*text)[cursor] == '0') ++cursor;
  if (cursor == text->size()) return false;
  const char deciding = (*text)[cursor];
  return deciding == 'Y' || deciding == 'y' || deciding == 'T' || deciding == 't' ||
         (deciding >= '1' && deciding <= '9');
}

float floatValue(const Value& value) {
  if (const auto* real = value.asReal()) return static_cast<float>(*real);
  if (const auto* integer = value.asInteger()) return static_cast<float>(*integer);
  if (const auto* large = value.asLargeInteger()) return static_cast<float>(*large);
  if (const auto* boolean = value.asBoolean()) return *boolean ? 1.0F : 0.0F;
  if (const auto* text = value.asString()) return static_cast<float>(parseRealPrefix(*text));
  return 0;
}

}  // namespace model
