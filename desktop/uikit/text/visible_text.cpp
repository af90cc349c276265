// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/visible_text.h"

#include "desktop/uikit/text/utf16.h"

namespace desktop::uikit {
namespace {

// What a script may need: joiners and marks of direction.
constexpr bool isMark(char16_t unit) {
  return (unit >= 0x200C && unit <= 0x200F) || unit == 0x061C;
}

constexpr bool isHidden(char16_t unit) {
  return unit == 0x180E || unit == 0x200B || (unit >= 0x2028 && unit <= 0x202E) ||
         (unit >= 0x2060 && unit <= 0x206F) || unit == 0xFEFF || (unit >= 0xFFF9 && unit <= 0xFFFB);
}

constexpr bool isLetterBeyondAscii(std::u16string_view text, std::size_t index) {
  return index < text.size() && text[index] >= 0x80 && !isMark(text[index]) &&
         !isHidden(text[index]);
}

}  // namespace

std::u16string visibleText(std::u16string_view text) {
  constexpr char16_t replacement = 0xFFFD;
  std::u16string made = withoutLoneSurrogates(text);
  for (std::size_t index = 0; index < text.size(); ++index) {
    const bool isNeeded =
        isLetterBeyondAscii(text, index + 1) || (index > 0 && isLetterBeyondAscii(text, index - 1));
    if (isHidden(text[index]) || (isMark(text[index]) && !isNeeded)) made[index] = replacement;
  }
  return made;
}

}  // namespace desktop::uikit
