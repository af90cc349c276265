// SPDX-License-Identifier: MIT
#include "foundation/byte_count.h"

#include <array>
#include <limits>

#include "foundation/locale_data.h"
#include "model/number_text.h"

namespace foundation {

namespace {

// A unit, up to which magnitude it serves, and with how many decimals at most. What would round up
// to 1,000 of a unit belongs to the next one.
struct UnitRow {
  ByteUnit unit;
  std::uint64_t largest;
  std::uint64_t size;
  int decimals;
};

constexpr std::array<UnitRow, 6> units = {{
    {ByteUnit::byte, 999, 1, 0},
    {ByteUnit::kilobyte, 999'499, 1'000, 0},
    {ByteUnit::megabyte, 999'949'999, 1'000'000, 1},
    {ByteUnit::gigabyte, 999'994'999'999, 1'000'000'000, 2},
    {ByteUnit::terabyte, 999'994'999'999'999, 1'000'000'000'000, 2},
    {ByteUnit::petabyte, std::numeric_limits<std::uint64_t>::max(), 1'000'000'000'000'000, 2},
}};

constexpr std::array<std::string_view, 6> englishNames = {"bytes", "KB", "MB", "GB", "TB", "PB"};

const UnitRow& unitFor(std::uint64_t magnitude) {
  for (const UnitRow& row : units) {
    if (magnitude <= row.largest) return row;
  }
  return units.back();
}

// The magnitude in the unit as a plain decimal, exact ties rounded away from zero and final zeros
// dropped.
std::string decimalText(std::uint64_t magnitude, const UnitRow& row) {
  std::uint64_t step = row.size;
  for (int index = 0; index < row.decimals; ++index) step /= 10;
  const std::uint64_t steps = (magnitude + step / 2) / step;
  const std::uint64_t stepsOfUnit = row.size / step;
  std::string text = model::integerText(static_cast<std::int64_t>(steps / stepsOfUnit));
  const auto fraction = static_cast<std::int64_t>(steps % stepsOfUnit);
  if (fraction == 0) return text;
  text.append(".").append(model::paddedIntegerText(fraction, row.decimals));
  while (text.back() == '0') text.pop_back();
  return text;
}

// The decimal with commas between groups of three digits; only petabytes reach four.
std::string groupedText(std::string decimal) {
  const std::size_t point = std::min(decimal.find('.'), decimal.size());
  const std::size_t sign = decimal.starts_with('-') ? 1 : 0;
  for (std::size_t at = point; at > sign + 3; at -= 3) decimal.insert(at - 3, ",");
  return decimal;
}

std::string englishText(const std::string& decimal, ByteUnit unit) {
  if (decimal == "0") return "Zero KB";
  const bool isOne = unit == ByteUnit::byte && (decimal == "1" || decimal == "-1");
  const std::string_view name = isOne ? "byte" : englishNames[static_cast<std::size_t>(unit)];
  return groupedText(decimal).append(" ").append(name);
}

}  // namespace

std::string byteCountText(std::int64_t bytes, const Locale& locale) {
  const auto number = static_cast<std::uint64_t>(bytes);
  const std::uint64_t magnitude = bytes < 0 ? 0 - number : number;
  const UnitRow& row = unitFor(magnitude);
  const std::string decimal = (bytes < 0 ? "-" : "") + decimalText(magnitude, row);
  if (locale.isEnUS()) return englishText(decimal, row.unit);
  const LocaleData* data = localeData();
  const auto text = data ? data->byteCountText(decimal, row.unit, locale) : std::nullopt;
  return text.value_or(englishText(decimal, row.unit));
}

}  // namespace foundation
