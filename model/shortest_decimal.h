// SPDX-License-Identifier: MIT
//
// The shortest decimal digits of numbers of everyday size, by exact integer arithmetic.
#pragma once

#include <array>
#include <optional>

namespace model {

// A positive number as its significant digits, without trailing zeros, and the decimal exponent of
// the first: 48.85 is "4885" and 1.
struct Decimal {
  std::array<char, 18> digits{};
  int count = 0;
  int exponent = 0;
};

// The fewest digits that read back to the same double, the nearest to it among those. None for
// numbers below 1e-5 and from 2^53 on, whose digits need more than 128 bits to find.
// REQUIRES: the number is positive and finite.
std::optional<Decimal> shortestDecimal(double number);

}  // namespace model
