// SPDX-License-Identifier: MIT
#include "foundation/terminal_text.h"

#include "model/utf8.h"

namespace foundation {

namespace {

constexpr std::string_view hexDigits = "0123456789abcdef";

void appendHex(std::string& text, std::uint32_t number, int digits) {
  for (int digit = digits - 1; digit >= 0; --digit) {
    text += hexDigits[(number >> (4 * digit)) & 15];
  }
}

void appendSafe(std::string& safe, const model::CodePoint& character, std::string_view bytes) {
  if (!character.valid) {
    safe += "\\x";
    appendHex(safe, static_cast<unsigned char>(bytes[0]), 2);
  } else if (controlsTerminal(character.value)) {
    safe += "\\u";
    appendHex(safe, character.value, 4);
  } else {
    safe += bytes;
  }
}

}  // namespace

bool controlsTerminal(char32_t codePoint) {
  return codePoint < 0x20 || (codePoint >= 0x7F && codePoint <= 0x9F) ||
         (codePoint >= 0x202A && codePoint <= 0x202E) ||
         (codePoint >= 0x2066 && codePoint <= 0x2069);
}

std::string terminalSafe(std::string_view text, Keep keep) {
  std::string safe;
  safe.reserve(text.size());
  for (std::size_t offset = 0; offset < text.size();) {
    const model::CodePoint character = model::codePointAt(text, offset);
    const bool kept =
        keep == Keep::lineBreaks && (character.value == U'\n' || character.value == U'\t');
    const std::string_view bytes = text.substr(offset, character.bytes);
    if (kept) {
      safe += bytes;
    } else {
      appendSafe(safe, character, bytes);
    }
    offset += character.bytes;
  }
  return safe;
}

}  // namespace foundation
