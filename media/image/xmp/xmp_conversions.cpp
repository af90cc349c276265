// SPDX-License-Identifier: MIT
//
// XMP writes every value as text: fractions with a slash, dates in the ISO's form, coordinates as
// "degrees,minutesN". Each conversion answers none for a text of another form, so that such a
// property is left out and never shown as zero. Those from a value to a value share one signature,
// which lets a row of a table name one.
#include "media/image/xmp/xmp_conversions.h"

#include <algorithm>
#include <cmath>

#include "media/image/blocks/limits.h"
#include "model/number_text.h"
#include "model/utf8.h"

namespace media::image {

namespace {

bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

bool isDigits(std::string_view text) {
  return !text.empty() && std::ranges::all_of(text, isDigit);
}

// Whether the text is a decimal number and nothing else.
bool isNumber(std::string_view text) {
  return !text.empty() && text.size() <= 64 &&
         text.find_first_not_of("+-.0123456789eE") == std::string_view::npos &&
         text.find_first_of("0123456789") != std::string_view::npos;
}

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  while (parts.size() < limits.valuesPerField) {
    const std::size_t end = text.find(separator);
    if (!text.substr(0, end).empty()) parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return parts;
}

std::optional<std::int64_t> integerOf(std::string_view text) {
  const auto number = xmpReal(text);
  if (!number || !(std::abs(*number) < 9e15)) return std::nullopt;
  return static_cast<std::int64_t>(*number);
}

// As in EXIF's own fields, 0/0 among several numbers is 0.
std::optional<double> realAmongSeveral(std::string_view text) {
  return text == "0/0" ? 0 : xmpReal(text);
}

template <typename Number>
std::optional<model::Value> arrayOf(const std::vector<std::string_view>& texts,
                                    std::optional<Number> (*numberOf)(std::string_view)) {
  model::Array numbers;
  for (const std::string_view text : texts) {
    const auto number = numberOf(text);
    if (!number) return std::nullopt;
    numbers.emplace_back(*number);
  }
  if (numbers.empty()) return std::nullopt;
  return model::Value(std::move(numbers));
}

// Takes `length` digits off the front, and the separator before them; empty where they are not
// there.
std::string_view takeDigits(std::string_view& text, std::string_view separators,
                            std::size_t length) {
  if (!separators.empty()) {
    if (text.empty() || separators.find(text.front()) == std::string_view::npos) return {};
    if (!isDigits(text.substr(1, length)) || text.size() <= length) return {};
    text.remove_prefix(1);
  }
  if (text.size() < length || !isDigits(text.substr(0, length))) return {};
  const std::string_view digits = text.substr(0, length);
  text.remove_prefix(length);
  return digits;
}

// "Z", "+02:00" or nothing, behind the time.
std::string zoneOf(std::string_view rest) {
  if (rest.starts_with('.')) {
    rest.remove_prefix(1);
    while (!rest.empty() && isDigit(rest.front())) rest.remove_prefix(1);
  }
  if (rest == "Z") return "+0000";
  const bool isOffset = rest.size() == 6 && (rest[0] == '+' || rest[0] == '-') &&
                        isDigits(rest.substr(1, 2)) && rest[3] == ':' && isDigits(rest.substr(4));
  return isOffset ? std::string(rest.substr(0, 3)) + std::string(rest.substr(4)) : std::string();
}

}  // namespace

std::optional<double> xmpReal(std::string_view text) {
  text = trimmed(text);
  const std::size_t slash = text.find('/');
  const std::string_view numerator = text.substr(0, slash);
  if (!isNumber(numerator)) return std::nullopt;
  if (slash == std::string_view::npos) return model::parseRealPrefix(numerator);
  const std::string_view denominator = text.substr(slash + 1);
  if (!isNumber(denominator) || model::parseRealPrefix(denominator) == 0) return std::nullopt;
  return model::parseRealPrefix(numerator) / model::parseRealPrefix(denominator);
}

std::optional<model::Value> xmpText(const XmpValue& value) {
  const std::string_view text = value.simpleText();
  if (text.empty()) return std::nullopt;
  return model::Value(text);
}

std::optional<model::Value> xmpJoinedText(const XmpValue& value) {
  std::string joined;
  for (const std::string_view text : value.texts()) {
    if (!joined.empty()) joined += "; ";
    joined += text;
  }
  if (joined.empty()) return std::nullopt;
  return model::Value(std::move(joined));
}

std::optional<model::Value> xmpTextArray(const XmpValue& value) {
  model::Array texts;
  for (const std::string_view text : value.texts()) texts.emplace_back(text);
  if (texts.empty()) return std::nullopt;
  return model::Value(std::move(texts));
}

std::optional<model::Value> xmpInteger(const XmpValue& value) {
  const auto number = integerOf(value.simpleText());
  if (!number) return std::nullopt;
  return model::Value(*number);
}

std::optional<model::Value> xmpIntegerArray(const XmpValue& value) {
  return arrayOf(value.texts(), integerOf);
}

std::optional<model::Value> xmpRealValue(const XmpValue& value) {
  const auto number = xmpReal(value.simpleText());
  if (!number) return std::nullopt;
  return model::Value(*number);
}

std::optional<model::Value> xmpRealArray(const XmpValue& value) {
  return arrayOf(value.items.empty() ? split(value.text, ' ') : value.texts(), realAmongSeveral);
}

std::optional<model::Value> xmpVersion(const XmpValue& value) {
  const std::string_view text = value.simpleText();
  if (text.size() != 4 || !isDigits(text)) return std::nullopt;
  const auto digit = [&](std::size_t index) { return text[index] - '0'; };
  model::Array version{digit(0) * 10 + digit(1), digit(2)};
  if (digit(3) != 0) version.emplace_back(digit(3));
  return model::Value(std::move(version));
}

std::optional<model::Value> xmpDottedVersion(const XmpValue& value) {
  return arrayOf(split(value.simpleText(), '.'), integerOf);
}

std::optional<model::Value> xmpExifDate(const XmpValue& value) {
  const auto date = xmpDate(value.simpleText());
  if (!date || date->second.empty()) return std::nullopt;
  std::string text;
  const std::string_view parts[] = {date->year, ":", date->month,  ":", date->day,   " ",
                                    date->hour, ":", date->minute, ":", date->second};
  for (const std::string_view part : parts) text += part;
  return model::Value(std::move(text));
}

std::optional<model::Value> xmpTree(const XmpValue& value) {
  if (value.isAlternative) return xmpText(value);
  if (!value.items.empty()) {
    model::Array items;
    for (const XmpValue& item : value.items) {
      if (auto tree = xmpTree(item)) items.push_back(*std::move(tree));
    }
    if (items.empty()) return std::nullopt;
    return model::Value(std::move(items));
  }
  if (value.fields.empty()) return xmpText(value);
  model::Dictionary fields;
  for (const auto& [name, field] : value.fields) {
    auto tree = isXmpKey(name.local) ? xmpTree(field) : std::nullopt;
    if (tree) fields.try_emplace(std::string(name.local), *std::move(tree));
  }
  if (fields.empty()) return std::nullopt;
  return model::Value(std::move(fields));
}

bool isXmpKey(std::string_view name) {
  return !name.empty() && model::isValidUtf8(name);
}

std::optional<XmpDate> xmpDate(std::string_view text) {
  text = trimmed(text);
  XmpDate date;
  date.year = takeDigits(text, "", 4);
  date.month = takeDigits(text, "-:", 2);
  date.day = takeDigits(text, "-:", 2);
  if (date.day.empty()) return std::nullopt;
  date.hour = takeDigits(text, "T ", 2);
  date.minute = takeDigits(text, ":", 2);
  if (date.minute.empty()) return date;
  date.second = takeDigits(text, ":", 2);
  if (date.second.empty()) date.second = "00";
  date.zone = zoneOf(text);
  return date;
}

std::optional<XmpCoordinate> xmpCoordinate(std::string_view text) {
  text = trimmed(text);
  if (text.size() < 2) return std::nullopt;
  const std::string_view hemisphere = text.substr(text.size() - 1);
  if (std::string_view("NSEW").find(hemisphere) == std::string_view::npos) return std::nullopt;
  const auto parts = split(text.substr(0, text.size() - 1), ',');
  if (parts.empty() || parts.size() > 3) return std::nullopt;
  double degrees = 0;
  double unit = 1;
  for (const std::string_view part : parts) {
    const auto number = xmpReal(part);
    if (!number || *number < 0) return std::nullopt;
    degrees += *number / unit;
    unit *= 60;
  }
  return XmpCoordinate{degrees, hemisphere};
}

}  // namespace media::image
