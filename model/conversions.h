// SPDX-License-Identifier: MIT
//
// A value read as a number or a flag, by the platform's rules for numbers and strings.
#pragma once

#include <cstdint>

#include "model/value.h"

namespace model {

// What the tables compare: an integer's low 64 bits, signed; a real truncated toward zero
// (saturating at 64 bits, 0 for NaN), a string holding a number read as that number, a boolean as 1
// or 0, anything else 0.
std::int64_t integerValue(const Value& value);

// 32 bits: integers keep their low 32 bits, reals truncate and saturate, strings read as their
// leading integer saturate, booleans are 1 or 0, anything else 0.
std::int32_t intValue(const Value& value);

// Numbers: not 0. Strings: Y, y, T, t or a digit 1 to 9 after optional blanks, a sign and zeros.
bool boolValue(const Value& value);

// Single precision: numbers rounded, strings by their leading decimal number, else 0.
float floatValue(const Value& value);

}  // namespace model
