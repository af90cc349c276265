// SPDX-License-Identifier: MIT
#include "apps/lumifact/json/json_marks.h"

#include <cmath>
#include <limits>
#include <utility>

#include "foundation/property_lists/base64.h"
#include "model/civil_time.h"
#include "model/number_text.h"

namespace lumifact::tool {

namespace {

std::optional<double> realFromText(std::string_view text) {
  if (text == "nan") return std::numeric_limits<double>::quiet_NaN();
  if (text == "inf") return std::numeric_limits<double>::infinity();
  if (text == "-inf") return -std::numeric_limits<double>::infinity();
  return std::nullopt;
}

template <typename T>
model::Result<model::Value> valueOr(std::optional<T> read, const char* reason) {
  if (!read) return model::Error{reason};
  return model::Value(*std::move(read));
}

// The number of `digits` decimal digits at the offset, or none where there are other characters.
std::optional<int> digitsAt(std::string_view text, std::size_t offset, std::size_t digits) {
  int number = 0;
  for (const char character : text.substr(offset, digits)) {
    if (character < '0' || character > '9') return std::nullopt;
    number = number * 10 + (character - '0');
  }
  return number;
}

// ".25" of "2018-09-30T12:03:11.25Z": the seconds' fraction, or none where it does not read.
std::optional<double> fractionOf(std::string_view text) {
  if (text.empty()) return 0;
  if (text.size() < 2 || text[0] != '.') return std::nullopt;
  if (text.find_first_not_of("0123456789", 1) != std::string_view::npos) return std::nullopt;
  return model::parseRealPrefix(text);
}

}  // namespace

bool isJsonMark(std::string_view key) {
  return key == "$data" || key == "$date" || key == "$real" || key == "$dictionary";
}

model::Result<model::Value> markedValue(std::string_view key, model::Value value) {
  if (key == "$dictionary") {
    if (value.asDictionary() == nullptr) return model::Error{"\"$dictionary\" holds no object"};
    return value;
  }
  const std::string text = value.asString() == nullptr ? "?" : *value.asString();
  if (key == "$data")
    return valueOr(foundation::dataFromBase64(text), "\"$data\" holds no base64 text");
  if (key == "$date") {
    return valueOr(dateFromIsoText(text), "\"$date\" holds no ISO 8601 date in UTC");
  }
  return valueOr(realFromText(text), R"("$real" holds none of "nan", "inf", "-inf")");
}

std::string isoText(model::Date date) {
  const model::CivilTime time = model::civilTimeInUtc(date);
  std::string text = model::paddedIntegerText(time.year, 4);
  const std::pair<char, int> parts[] = {
      {'-', time.month}, {'-', time.day}, {'T', time.hour}, {':', time.minute}, {':', time.second}};
  for (const auto& [separator, number] : parts) {
    text += separator;
    text += model::paddedIntegerText(number, 2);
  }
  const double fraction = date.secondsSince1970 - std::floor(date.secondsSince1970);
  // Truncated, so that a fraction close to 1 does not read as the next second.
  const auto microseconds = std::isnan(fraction) ? 0 : static_cast<std::int64_t>(fraction * 1e6);
  if (microseconds != 0) {
    text.append(".").append(model::paddedIntegerText(microseconds, 6));
    text.erase(text.find_last_not_of('0') + 1);
  }
  return text + "Z";
}

std::optional<model::Date> dateFromIsoText(std::string_view text) {
  constexpr std::string_view form = "0000-00-00T00:00:00";
  if (text.size() <= form.size() || text.back() != 'Z') return std::nullopt;
  for (std::size_t index = 0; index < form.size(); ++index) {
    if (form[index] != '0' && form[index] != text[index]) return std::nullopt;
  }
  const auto year = digitsAt(text, 0, 4);
  const auto month = digitsAt(text, 5, 2);
  const auto day = digitsAt(text, 8, 2);
  const auto hour = digitsAt(text, 11, 2);
  const auto minute = digitsAt(text, 14, 2);
  const auto second = digitsAt(text, 17, 2);
  const auto fraction = fractionOf(text.substr(form.size(), text.size() - form.size() - 1));
  if (!year || !month || !day || !hour || !minute || !second || !fraction) return std::nullopt;
  const model::CivilTime time{*year, *month, *day, *hour, *minute, *second};
  const model::Date date = model::dateFromUtc(time);
  // A 30th of February is carried over, and so is not what was written.
  if (model::civilTimeInUtc(date) != time) return std::nullopt;
  return model::Date{date.secondsSince1970 + *fraction};
}

}  // namespace lumifact::tool
