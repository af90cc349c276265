// SPDX-License-Identifier: MIT
#include "foundation/terminal_text.h"

#include <algorithm>

#include "model/utf8.h"

namespace foundation {

namespace {

struct CodePoints {
  char32_t first;
  char32_t last;
};

constexpr CodePoints controls[] = {
    {0x0000, 0x001F},    // C0
    {0x007F, 0x009F},    // DEL and C1
    {0x061C, 0x061C},    // a mark of direction
    {0x180E, 0x180E},    // a separator of vowels, without width
    {0x200B, 0x200F},    // a blank and joiners without width, marks of direction
    {0x2028, 0x202E},    // separators of lines and paragraphs, embeddings and overrides
    {0x2060, 0x206F},    // joiners and operators without width, isolates
    {0xFEFF, 0xFEFF},    // a blank without width, the byte order mark
    {0xFFF9, 0xFFFB},    // marks of annotations
    {0xE0000, 0xE007F},  // tags
};

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
    const bool isLong = character.value > 0xFFFF;
    safe += isLong ? "\\U" : "\\u";
    appendHex(safe, character.value, isLong ? 8 : 4);
  } else {
    safe += bytes;
  }
}

}  // namespace

bool controlsTerminal(char32_t codePoint) {
  const auto* const row = std::ranges::lower_bound(controls, codePoint, {}, &CodePoints::last);
  return row != std::end(controls) && codePoint >= row->first;
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
