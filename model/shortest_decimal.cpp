// SPDX-License-Identifier: MIT
//
// A double is m / 2^s with a 53-bit m. For n digits it is scaled by a power of ten 10^k so that
// the part before the point has n digits; m * 10^k stays below 2^128 here, so quotient and
// remainder by 2^s are exact. A candidate d / 10^k reads back to the double when it lies no
// further from it than half the gap to the next double: |d * 2^s - m * 10^k| <= 10^k / 2, with
// equality for an even m only, because reading rounds a tie to even. Below a power of two the
// gap is half as wide.
#include "model/shortest_decimal.h"

#include <bit>
#include <charconv>
#include <cstdint>

namespace model {

namespace {

using Wide = unsigned __int128;

constexpr int fewestDigits = 15;  // every decimal of so many digits survives a double
constexpr int mostDigits = 17;    // always enough
constexpr int lowestExponent = -5;
constexpr double smallest = 1e-5;
constexpr double limit = 9007199254740992.0;  // 2^53
constexpr std::uint64_t powerOfTwo = 1ULL << 52;

constexpr std::array<Wide, mostDigits - lowestExponent> powersOfTen = [] {
  std::array<Wide, mostDigits - lowestExponent> powers{};
  Wide power = 1;
  for (Wide& entry : powers) {
    entry = power;
    power *= 10;
  }
  return powers;
}();

// The decimal exponent of the first digit.
int exponentOf(double number) {
  int exponent = lowestExponent;
  for (const double power : {1e-4, 1e-3, 1e-2, 1e-1, 1e0,  1e1,  1e2,  1e3,  1e4,  1e5,
                             1e6,  1e7,  1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15}) {
    if (number < power) break;
    ++exponent;
  }
  return exponent;
}

// A double taken apart.
struct Binary {
  std::uint64_t mantissa;  // m, from 2^52 to 2^53
  int shift;               // s

  // REQUIRES: the number is positive and not subnormal.
  explicit Binary(double number) {
    const auto bits = std::bit_cast<std::uint64_t>(number);
    mantissa = (bits & (powerOfTwo - 1)) | powerOfTwo;
    shift = 1075 - static_cast<int>(bits >> 52);
  }

  bool readsBackFromAbove(Wide distance, Wide scale) const {
    return 2 * distance < scale || (2 * distance == scale && mantissa % 2 == 0);
  }
  bool readsBackFromBelow(Wide distance, Wide scale) const {
    return readsBackFromAbove(mantissa == powerOfTwo ? 2 * distance : distance, scale);
  }
};

// The nearest whole number to number * scale that reads back when it is divided by the scale.
std::optional<std::uint64_t> nearestThatReadsBack(const Binary& number, Wide scale) {
  const Wide one = Wide{1} << number.shift;
  const Wide scaled = number.mantissa * scale;
  const auto below = static_cast<std::uint64_t>(scaled >> number.shift);
  const Wide down = scaled & (one - 1);
  const Wide up = one - down;
  const bool belowFits = number.readsBackFromBelow(down, scale);
  const bool aboveFits = number.readsBackFromAbove(up, scale);
  const bool belowIsNearer = down < up || (down == up && below % 2 == 0);
  if (belowFits && (belowIsNearer || !aboveFits)) return below;
  if (aboveFits) return below + 1;
  return std::nullopt;
}

// The decimal of digits / 10^places.
Decimal decimalOf(std::uint64_t digits, int places) {
  Decimal decimal;
  auto& text = decimal.digits;
  const char* const end = std::to_chars(text.data(), text.data() + text.size(), digits).ptr;
  decimal.count = static_cast<int>(end - text.data());
  decimal.exponent = decimal.count - 1 - places;
  while (decimal.count > 1 && text[static_cast<std::size_t>(decimal.count - 1)] == '0') {
    --decimal.count;
  }
  return decimal;
}

}  // namespace

std::optional<Decimal> shortestDecimal(double number) {
  if (number < smallest || number >= limit) return std::nullopt;
  const Binary binary(number);
  const int exponent = exponentOf(number);
  for (int count = fewestDigits; count <= mostDigits; ++count) {
    const int places = count - 1 - exponent;
    if (places < 0) continue;
    const auto digits = nearestThatReadsBack(binary, powersOfTen[static_cast<std::size_t>(places)]);
    if (digits) return decimalOf(*digits, places);
  }
  return std::nullopt;
}

}  // namespace model
