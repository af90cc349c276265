// SPDX-License-Identifier: MIT
#include "model/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace model {

namespace {

// The radix character of the C library's current locale: a host may have set one.
char currentRadix() {
  std::array<char, 8> probe{};
  std::snprintf(probe.data(), probe.size(), "%.1f", 0.5);
  return probe[1];
}

// Replaces whatever radix the C library printed by a point.
std::string withPoint(std::string text) {
  for (char& character : text) {
    const bool part = (character >= '0' && character <= '9') || character == '-' ||
                      character == '+' || character == 'e';
    if (!part) character = '.';
  }
  return text;
}

std::string nonFiniteText(double value) {
  if (std::isnan(value)) return "nan";
  return value < 0 ? "-inf" : "inf";
}

// "%.*e" parts: the significant digits without trailing zeros, and the decimal exponent.
struct Decimal {
  std::string digits;
  int exponent;
};

Decimal decimalOf(const char* printed) {
  Decimal decimal{.digits = {}, .exponent = 0};
  const char* cursor = printed;
  for (; *cursor != 'e'; ++cursor) {
    if (*cursor >= '0' && *cursor <= '9') decimal.digits.push_back(*cursor);
  }
  decimal.exponent = static_cast<int>(std::strtol(cursor + 1, nullptr, 10));
  while (decimal.digits.size() > 1 && decimal.digits.back() == '0') decimal.digits.pop_back();
  return decimal;
}

// The shortest digits that read back to `magnitude`, a positive finite number. `parse` is strtod
// or strtof, so that the same search serves both widths; 17 digits always suffice.
template <typename Real>
Decimal shortestDecimal(Real magnitude, int guaranteed, Real (*parse)(const char*, char**)) {
  std::array<char, 40> text{};
  // Up to `guaranteed` digits the printed decimal is already the shortest, save for subnormals.
  const int first = magnitude < std::numeric_limits<Real>::min() ? 1 : guaranteed;
  for (int precision = first;; ++precision) {
    std::snprintf(text.data(), text.size(), "%.*e", precision - 1, static_cast<double>(magnitude));
    if (precision >= 17 || parse(text.data(), nullptr) == magnitude) return decimalOf(text.data());
  }
}

std::string textOf(const Decimal& decimal, bool negative) {
  const int count = static_cast<int>(decimal.digits.size());
  std::string text = negative ? "-" : "";
  if (decimal.exponent < -4 || decimal.exponent > 15) {
    text += decimal.digits[0];
    if (count > 1) text.append(".").append(decimal.digits, 1);
    text += decimal.exponent < 0 ? "e-" : "e+";
    return text + paddedIntegerText(std::abs(decimal.exponent), 2);
  }
  if (decimal.exponent < 0) {
    text.append("0.").append(static_cast<std::size_t>(-decimal.exponent - 1), '0');
    return text + decimal.digits;
  }
  const int whole = decimal.exponent + 1;
  if (count <= whole) {
    return text.append(decimal.digits).append(static_cast<std::size_t>(whole - count), '0');
  }
  text.append(decimal.digits, 0, static_cast<std::size_t>(whole)).append(".");
  return text.append(decimal.digits, static_cast<std::size_t>(whole));
}

}  // namespace

std::string integerText(std::int64_t value) {
  std::array<char, 24> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  return {text.data(), end};
}

std::string paddedIntegerText(std::int64_t value, int width) {
  std::string text = integerText(value);
  const std::size_t sign = value < 0 ? 1 : 0;
  const auto wanted = static_cast<std::size_t>(width);
  if (text.size() < wanted) text.insert(sign, wanted - text.size(), '0');
  return text;
}

std::string realText(double value) {
  if (!std::isfinite(value)) return nonFiniteText(value);
  if (value == 0) return std::signbit(value) ? "-0" : "0";
  // Most numbers of a photo are whole: those need no search.
  if (std::abs(value) < 1e15 && value == std::trunc(value)) {
    return integerText(static_cast<std::int64_t>(value));
  }
  return textOf(shortestDecimal<double>(std::abs(value), 15, &std::strtod), value < 0);
}

std::string fixedText(double value, int decimals) {
  if (!std::isfinite(value)) return nonFiniteText(value);
  std::array<char, 512> text{};  // the largest double has 309 digits before the point
  std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
  return withPoint(text.data());
}

double widenedByText(float value) {
  if (!std::isfinite(value) || value == 0) return value;
  const Decimal decimal = shortestDecimal<float>(std::abs(value), 6, &std::strtof);
  return parseRealPrefix(textOf(decimal, value < 0));
}

double parseRealPrefix(std::string_view text) {
  std::size_t cursor = 0;
  const auto at = [&](std::size_t index) { return index < text.size() ? text[index] : '\0'; };
  const auto digitsFrom = [&](std::size_t start) {
    std::size_t end = start;
    while (at(end) >= '0' && at(end) <= '9') ++end;
    return end - start;
  };
  while (at(cursor) == ' ' || (at(cursor) >= '\t' && at(cursor) <= '\r')) ++cursor;
  const std::size_t start = cursor;
  if (at(cursor) == '-' || at(cursor) == '+') ++cursor;
  const std::size_t whole = digitsFrom(cursor);
  cursor += whole;
  std::size_t point = std::string::npos;
  std::size_t fraction = 0;
  if (at(cursor) == '.') {
    fraction = digitsFrom(cursor + 1);
    point = cursor - start;
    cursor += 1 + fraction;
  }
  if (whole + fraction == 0) return 0;
  if (at(cursor) == 'e' || at(cursor) == 'E') {
    const std::size_t sign = at(cursor + 1) == '-' || at(cursor + 1) == '+' ? 1 : 0;
    const std::size_t exponent = digitsFrom(cursor + 1 + sign);
    if (exponent > 0) cursor += 1 + sign + exponent;
  }
  std::string number(text.substr(start, cursor - start));
  if (point != std::string::npos) number[point] = currentRadix();
  return std::strtod(number.c_str(), nullptr);
}

}  // namespace model
