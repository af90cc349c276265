// SPDX-License-Identifier: MIT
//
// The shortest text that reads back as the same number. Whole numbers and everyday decimals are
// found by arithmetic on integers; the rest by printing more and more digits until they read back,
// which C's printf and strtod do, as the device's library has no to_chars for reals. Both follow
// the C locale of the host, so what they print is taken apart by digits, and what they read gets
// the locale's point.
#include "model/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "model/digits.h"
#include "model/shortest_decimal.h"

namespace model {

namespace {

// How the C library writes the decimal point in its current locale, which a host may have set.
std::string currentRadix() {
  std::array<char, 16> probe{};
  std::snprintf(probe.data(), probe.size(), "%.1f", 0.5);
  const std::string_view text(probe.data());
  return std::string(text.substr(1, text.size() - 2));
}

std::string nonFiniteText(double value) {
  if (std::isnan(value)) return "nan";
  return value < 0 ? "-inf" : "inf";
}

// The parts of a printed "%.*e".
Decimal decimalOf(const char* printed) {
  Decimal decimal;
  const char* cursor = printed;
  for (; *cursor != 'e'; ++cursor) {
    const bool isDigit = *cursor >= '0' && *cursor <= '9';
    if (isDigit) decimal.digits[static_cast<std::size_t>(decimal.count++)] = *cursor;
  }
  decimal.exponent = static_cast<int>(std::strtol(cursor + 1, nullptr, 10));
  while (decimal.count > 1 && decimal.digits[static_cast<std::size_t>(decimal.count - 1)] == '0') {
    --decimal.count;
  }
  return decimal;
}

// Raises the last digit of a printed "%.*e" by one; false where it is a 9, which would give a
// decimal of fewer digits.
bool raiseLastDigit(std::string& printed) {
  char& last = printed[printed.find('e') - 1];
  if (last < '0' || last >= '9') return false;
  ++last;
  return true;
}

// The shortest digits that read back to `magnitude`, a positive finite number. `parse` is strtod
// or strtof, so that the same search serves both widths; 17 digits always suffice.
template <typename Real>
Decimal searchedDecimal(Real magnitude, int guaranteed, Real (*parse)(const char*, char**)) {
  const auto readsBack = [&](const std::string& text) {
    return parse(text.c_str(), nullptr) == magnitude;
  };
  // Up to `guaranteed` digits the printed decimal is already the shortest, save for subnormals.
  const int first = magnitude < std::numeric_limits<Real>::min() ? 1 : guaranteed;
  std::array<char, 40> text{};
  for (int precision = first;; ++precision) {
    std::snprintf(text.data(), text.size(), "%.*e", precision - 1, static_cast<double>(magnitude));
    std::string printed = text.data();
    if (precision >= 17 || readsBack(printed)) return decimalOf(printed.c_str());
    // Numbers reach further up than down from a power of two, so where the nearest decimal does
    // not read back, the one above it may.
    if (raiseLastDigit(printed) && readsBack(printed)) return decimalOf(printed.c_str());
  }
}

std::string textOf(const Decimal& decimal, bool negative) {
  const int count = decimal.count;
  const std::string_view digits(decimal.digits.data(), static_cast<std::size_t>(count));
  std::string text = negative ? "-" : "";
  if (decimal.exponent < -4 || decimal.exponent > 15) {
    text += digits[0];
    if (count > 1) text.append(".").append(digits.substr(1));
    text += decimal.exponent < 0 ? "e-" : "e+";
    return text + paddedIntegerText(std::abs(decimal.exponent), 2);
  }
  if (decimal.exponent < 0) {
    text.append("0.").append(static_cast<std::size_t>(-decimal.exponent - 1), '0');
    return text.append(digits);
  }
  const int whole = decimal.exponent + 1;
  if (count <= whole) {
    return text.append(digits).append(static_cast<std::size_t>(whole - count), '0');
  }
  const auto split = static_cast<std::size_t>(whole);
  return text.append(digits.substr(0, split)).append(".").append(digits.substr(split));
}

bool isSign(char character) {
  return character == '-' || character == '+';
}

// Where the number at the front of a text starts and ends, and how many digits stand before and
// behind its point.
struct NumberSpan {
  std::size_t start = 0;
  std::size_t end = 0;
  std::size_t whole = 0;
  std::size_t fraction = 0;
  bool hasExponent = false;
};

NumberSpan numberSpan(std::string_view text) {
  const auto at = [&](std::size_t index) { return index < text.size() ? text[index] : '\0'; };
  const auto digitsFrom = [&](std::size_t start) {
    std::size_t end = start;
    while (isDigit(at(end))) ++end;
    return end - start;
  };
  NumberSpan span;
  while (at(span.start) == ' ' || (at(span.start) >= '\t' && at(span.start) <= '\r')) ++span.start;
  span.end = span.start + (isSign(at(span.start)) ? 1 : 0);
  span.whole = digitsFrom(span.end);
  span.end += span.whole;
  if (at(span.end) == '.') {
    span.fraction = digitsFrom(span.end + 1);
    span.end += 1 + span.fraction;
  }
  if (at(span.end) != 'e' && at(span.end) != 'E') return span;
  const std::size_t digits = span.end + (isSign(at(span.end + 1)) ? 2 : 1);
  const std::size_t count = digitsFrom(digits);
  span.hasExponent = count > 0;
  if (span.hasExponent) span.end = digits + count;
  return span;
}

// A number of at most 15 digits without an exponent: its digits as one integer and the power of
// ten to divide them by are exact doubles, so their quotient is the nearest double.
double plainNumber(std::string_view number, const NumberSpan& span) {
  double digits = 0;
  for (const char character : number) {
    if (isDigit(character)) digits = digits * 10 + (character - '0');
  }
  double scale = 1;
  for (std::size_t place = 0; place < span.fraction; ++place) scale *= 10;
  const double magnitude = digits / scale;
  return number.front() == '-' ? -magnitude : magnitude;
}

template <typename Integer>
std::string decimalText(Integer value) {
  std::array<char, 24> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  return {text.data(), end};
}

}  // namespace

std::string integerText(std::int64_t value) {
  return decimalText(value);
}

std::string largeIntegerText(std::uint64_t value) {
  return decimalText(value);
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
  const double magnitude = std::abs(value);
  const auto decimal = shortestDecimal(magnitude);
  return textOf(decimal ? *decimal : searchedDecimal<double>(magnitude, 15, &std::strtod),
                value < 0);
}

std::string fixedText(double value, int decimals) {
  if (!std::isfinite(value)) return nonFiniteText(value);
  std::array<char, 512> text{};  // the largest double has 309 digits before the point
  std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
  const std::string_view printed(text.data());
  const std::size_t radix = printed.find_first_not_of("-0123456789");
  std::string result(printed.substr(0, radix));
  if (radix == std::string_view::npos) return result;
  return result.append(".").append(printed.substr(printed.find_first_of("0123456789", radix)));
}

double widenedByText(float value) {
  if (!std::isfinite(value) || value == 0) return value;
  const Decimal decimal = searchedDecimal<float>(std::abs(value), 6, &std::strtof);
  return parseRealPrefix(textOf(decimal, value < 0));
}

double parseRealPrefix(std::string_view text) {
  const NumberSpan span = numberSpan(text);
  if (span.whole + span.fraction == 0) return 0;
  const std::string_view number = text.substr(span.start, span.end - span.start);
  if (!span.hasExponent && span.whole + span.fraction <= 15) return plainNumber(number, span);
  std::string printed(number);
  const std::size_t point = number.find('.');
  if (point != std::string_view::npos) printed.replace(point, 1, currentRadix());
  return std::strtod(printed.c_str(), nullptr);
}

}  // namespace model
