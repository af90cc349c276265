// SPDX-License-Identifier: MIT
#include "lumifact/report/exposure_fraction.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "model/number_text.h"

namespace lumifact {

namespace {

struct Fraction {
  double numerator;
  std::int32_t denominator;
};

// Toward zero, saturating; NaN is 0.
std::int32_t truncated(double number) {
  using Limits = std::numeric_limits<std::int32_t>;
  if (std::isnan(number)) return 0;
  if (number >= Limits::max()) return Limits::max();
  if (number <= Limits::min()) return Limits::min();
  return static_cast<std::int32_t>(number);
}

// The part of `magnitude` beyond its `whole` seconds as one over something.
Fraction fractionOf(float magnitude, std::int32_t whole) {
  const auto wholeSeconds = static_cast<float>(whole);
  if (magnitude == wholeSeconds || magnitude < 1e-19) return {magnitude, 1};
  if (magnitude > 1e19) return {1e19, 1};
  const float rest = magnitude - wholeSeconds;
  return {1, truncated(1.0 / static_cast<double>(rest) + 0.5)};
}

}  // namespace

std::string exposureFraction(float seconds) {
  const double sign = seconds < 0 ? -1 : 1;
  const float magnitude = std::abs(seconds);
  const std::int32_t whole = truncated(magnitude);
  const auto [numerator, denominator] = fractionOf(magnitude, whole);
  std::string text;
  if (whole < 1) {
    text = model::integerText(truncated(sign * numerator));
  } else {
    text = model::integerText(truncated(sign * static_cast<double>(magnitude)));
    text.append(" ").append(model::integerText(truncated(numerator)));
  }
  return text.append("/").append(model::integerText(denominator));
}

}  // namespace lumifact
