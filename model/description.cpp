// SPDX-License-Identifier: MIT
//
// Two forms of a value: its plain text, as it stands alone in a line, and its description inside a
// container, where texts are quoted unless they are letters and digits only. Containers are written
// into one string from the outside in, each level four blanks further right, so the time is in
// proportion to the text.
#include "model/description.h"

#include <algorithm>
#include <array>

#include "model/civil_time.h"
#include "model/number_text.h"

namespace model {

namespace {

constexpr std::string_view hexDigits = "0123456789abcdef";

std::string dataText(const Data& data) {
  std::string text = "<";
  text.reserve(data.size() * 2 + data.size() / 4 + 2);
  for (std::size_t index = 0; index < data.size(); ++index) {
    if (index > 0 && index % 4 == 0) text += ' ';
    text += hexDigits[data[index] >> 4];
    text += hexDigits[data[index] & 15];
  }
  return text += '>';
}

std::string dateText(Date date) {
  const CivilTime time = civilTimeInUtc(date);
  return paddedIntegerText(time.year, 4) + '-' + paddedIntegerText(time.month, 2) + '-' +
         paddedIntegerText(time.day, 2) + ' ' + paddedIntegerText(time.hour, 2) + ':' +
         paddedIntegerText(time.minute, 2) + ':' + paddedIntegerText(time.second, 2) + " +0000";
}

bool isBare(std::string_view text) {
  return !text.empty() && std::ranges::all_of(text, [](char character) {
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z');
  });
}

void appendQuoted(std::string& text, std::string_view content) {
  text += '"';
  for (std::size_t offset = 0; offset < content.size();) {
    const CodePoint next = codePointAt(content, offset);
    offset += next.bytes;
    const char32_t value = next.value;
    if (value == '"' || value == '\\') {
      text += '\\';
      text += static_cast<char>(value);
    } else if (value == '\n') {
      text += "\\n";
    } else if (value == '\t') {
      text += "\\t";
    } else if (value < 0x20 || (value >= 0x7F && value < 0xA0)) {
      text += "\\U00";
      text += hexDigits[value >> 4];
      text += hexDigits[value & 15];
    } else {
      appendUtf8(text, value);
    }
  }
  text += '"';
}

void appendScalar(std::string& text, std::string_view content) {
  if (isBare(content)) {
    text += content;
  } else {
    appendQuoted(text, content);
  }
}

void appendDescription(std::string& text, const Value& value, std::size_t level);

void startLine(std::string& text, std::size_t level) {
  text += '\n';
  text.append(level * 4, ' ');
}

void appendDictionary(std::string& text, const Dictionary& dictionary, std::size_t level) {
  text += '{';
  for (const auto& [key, value] : dictionary) {
    startLine(text, level + 1);
    appendScalar(text, key);
    text += " = ";
    appendDescription(text, value, level + 1);
    text += ';';
  }
  startLine(text, level);
  text += '}';
}

void appendArray(std::string& text, const Array& array, std::size_t level) {
  text += '(';
  for (std::size_t index = 0; index < array.size(); ++index) {
    if (index > 0) text += ',';
    startLine(text, level + 1);
    appendDescription(text, array[index], level + 1);
  }
  startLine(text, level);
  text += ')';
}

void appendDescription(std::string& text, const Value& value, std::size_t level) {
  if (const auto* dictionary = value.asDictionary()) {
    appendDictionary(text, *dictionary, level);
  } else if (const auto* array = value.asArray()) {
    appendArray(text, *array, level);
  } else if (const auto* data = value.asData()) {
    text += dataText(*data);
  } else if (const auto* string = value.asString()) {
    appendScalar(text, *string);
  } else {
    appendScalar(text, valueText(value));
  }
}

}  // namespace

std::string valueText(const Value& value) {
  switch (value.kind()) {
    case Kind::null:
      return "<null>";
    case Kind::boolean:
      return *value.asBoolean() ? "1" : "0";
    case Kind::integer:
      return integerText(*value.asInteger());
    case Kind::largeInteger:
      return largeIntegerText(*value.asLargeInteger());
    case Kind::real:
      return realText(*value.asReal());
    case Kind::string:
      return *value.asString();
    case Kind::date:
      return dateText(*value.asDate());
    case Kind::data:
      return dataText(*value.asData());
    case Kind::array:
    case Kind::dictionary:
      return description(value);
  }
  return {};
}

std::string description(const Value& value) {
  std::string text;
  appendDescription(text, value, 0);
  return text;
}

std::string description(const Dictionary& dictionary) {
  std::string text;
  appendDictionary(text, dictionary, 0);
  return text;
}

std::string joinedElements(const Array& elements, std::string_view separator) {
  std::string text;
  for (std::size_t index = 0; index < elements.size(); ++index) {
    if (index > 0) text += separator;
    text += valueText(elements[index]);
  }
  return text;
}

std::string halvingIndentation(std::string_view text) {
  constexpr std::string_view four = "    ";
  std::string result;
  result.reserve(text.size());
  for (std::size_t start = 0;;) {
    const std::size_t run = text.find(four, start);
    result += text.substr(start, run - start);
    if (run == std::string_view::npos) return result;
    result += "  ";
    start = run + four.size();
  }
}

}  // namespace model
