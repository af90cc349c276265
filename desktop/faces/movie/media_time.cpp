// SPDX-License-Identifier: MIT
#include "desktop/faces/movie/media_time.h"

#include <cmath>
#include <limits>
#include <utility>

namespace desktop::faces {

namespace {

constexpr std::uint32_t isValid = 1;
constexpr std::uint32_t isPositiveInfinity = 4;
constexpr std::uint32_t isNegativeInfinity = 8;

struct Fraction {
  std::int64_t value;
  std::int32_t timescale;
};

// The convergents of the continued fraction come ever nearer, each with the smallest timescale for
// its distance; the first one that divides to the very number is taken. REQUIRES: 0 <= seconds,
// and seconds times the largest timescale fits.
Fraction simplestFraction(double seconds) {
  constexpr double largest = std::numeric_limits<std::int32_t>::max();
  double previousValue = 1;
  double previousScale = 0;
  double value = std::floor(seconds);
  double scale = 1;
  double rest = seconds - value;
  while (value / scale != seconds && rest != 0) {
    const double inverse = 1 / rest;
    const double whole = std::floor(inverse);
    const double nextValue = whole * value + previousValue;
    const double nextScale = whole * scale + previousScale;
    if (nextScale > largest) break;
    previousValue = std::exchange(value, nextValue);
    previousScale = std::exchange(scale, nextScale);
    rest = inverse - whole;
  }
  return {static_cast<std::int64_t>(value), static_cast<std::int32_t>(scale)};
}

}  // namespace

CMTime timeOfSeconds(double seconds) {
  constexpr double longest = 4e9;  // seconds: with 31 bits of timescale still 63 bits
  if (std::isnan(seconds)) return {};
  if (seconds > longest) return {.flags = isValid | isPositiveInfinity};
  if (seconds < -longest) return {.flags = isValid | isNegativeInfinity};
  const auto [value, timescale] = simplestFraction(std::abs(seconds));
  return {.value = seconds < 0 ? -value : value, .timescale = timescale, .flags = isValid};
}

}  // namespace desktop::faces

double CMTimeGetSeconds(CMTime time) {
  using namespace desktop::faces;
  constexpr double infinity = std::numeric_limits<double>::infinity();
  if ((time.flags & isValid) == 0) return std::numeric_limits<double>::quiet_NaN();
  if ((time.flags & isPositiveInfinity) != 0) return infinity;
  if ((time.flags & isNegativeInfinity) != 0) return -infinity;
  return static_cast<double>(time.value) / static_cast<double>(time.timescale);
}
