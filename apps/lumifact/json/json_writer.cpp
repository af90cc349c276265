// SPDX-License-Identifier: MIT
#include <array>
#include <cmath>

#include "apps/lumifact/json/json.h"
#include "apps/lumifact/json/json_marks.h"
#include "apps/lumifact/json/json_object.h"
#include "foundation/property_lists/base64.h"
#include "foundation/terminal_text.h"
#include "model/number_text.h"
#include "model/utf8.h"

namespace lumifact::tool {

namespace {

// The characters that stand for themselves in a JSON string and need no look at what follows.
constexpr auto plainBytes = [] {
  std::array<bool, 256> plain{};
  for (std::size_t byte = 0x20; byte < 0x7F; ++byte) plain[byte] = byte != '"' && byte != '\\';
  return plain;
}();

void appendUnit(std::string& text, char32_t unit) {
  constexpr std::string_view hexDigits = "0123456789abcdef";
  text += "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) text += hexDigits[(unit >> shift) & 15];
}

void appendEscape(std::string& text, char32_t codePoint) {
  switch (codePoint) {
    case U'"':
      text += "\\\"";
      return;
    case U'\\':
      text += "\\\\";
      return;
    case U'\n':
      text += "\\n";
      return;
    case U'\t':
      text += "\\t";
      return;
    default:
      // Beyond U+FFFF there are two of UTF-16.
      if (codePoint > 0xFFFF) appendUnit(text, 0xD7C0 + (codePoint >> 10));
      appendUnit(text, codePoint > 0xFFFF ? 0xDC00 | (codePoint & 0x3FF) : codePoint);
  }
}

// Appends the character at the offset, which is no plain byte; returns how many bytes it took.
std::size_t appendSpecial(std::string& text, std::string_view characters, std::size_t offset) {
  const model::CodePoint character = model::codePointAt(characters, offset);
  if (!character.valid) {
    model::appendUtf8(text, U'\uFFFD');
  } else if (character.value < 0x80 || foundation::controlsTerminal(character.value)) {
    appendEscape(text, character.value);
  } else {
    text += characters.substr(offset, character.bytes);
  }
  return character.bytes;
}

void appendReal(std::string& text, double real) {
  if (!std::isfinite(real)) {
    JsonObject(text).field("$real", model::realText(real));
    return;
  }
  const std::string digits = model::realText(real);
  text += digits;
  // What reads back as an integer needs the point that tells it apart.
  if (digits.find_first_of(".e") == std::string::npos) text += ".0";
}

void appendArray(std::string& text, const model::Array& elements) {
  text += '[';
  bool first = true;
  for (const model::Value& element : elements) {
    if (!first) text += ',';
    first = false;
    appendJson(text, element);
  }
  text += ']';
}

void appendEntries(std::string& text, const model::Dictionary& dictionary) {
  JsonObject object(text);
  for (const auto& [key, value] : dictionary) appendJson(object.begin(key), value);
}

}  // namespace

void appendJsonString(std::string& text, std::string_view characters) {
  text += '"';
  std::size_t offset = 0;
  while (offset < characters.size()) {
    std::size_t end = offset;
    while (end < characters.size() && plainBytes[static_cast<unsigned char>(characters[end])]) {
      ++end;
    }
    text.append(characters, offset, end - offset);
    offset = end;
    if (offset < characters.size()) offset += appendSpecial(text, characters, offset);
  }
  text += '"';
}

void appendJson(std::string& text, const model::Dictionary& dictionary) {
  const bool looksMarked = dictionary.size() == 1 && isJsonMark(dictionary.begin()->first);
  if (!looksMarked) return appendEntries(text, dictionary);
  JsonObject object(text);
  appendEntries(object.begin("$dictionary"), dictionary);
}

void appendJson(std::string& text, const model::Value& value) {
  switch (value.kind()) {
    case model::Kind::null:
      text += "null";
      return;
    case model::Kind::boolean:
      text += *value.asBoolean() ? "true" : "false";
      return;
    case model::Kind::integer:
      text += model::integerText(*value.asInteger());
      return;
    case model::Kind::largeInteger:
      text += model::largeIntegerText(*value.asLargeInteger());
      return;
    case model::Kind::real:
      appendReal(text, *value.asReal());
      return;
    case model::Kind::string:
      appendJsonString(text, *value.asString());
      return;
    case model::Kind::date:
      JsonObject(text).field("$date", isoText(*value.asDate()));
      return;
    case model::Kind::data:
      JsonObject(text).field("$data", foundation::base64Text(*value.asData()));
      return;
    case model::Kind::array:
      appendArray(text, *value.asArray());
      return;
    case model::Kind::dictionary:
      appendJson(text, *value.asDictionary());
      return;
  }
}

}  // namespace lumifact::tool
