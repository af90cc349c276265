// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/text_direction.h"

#include <algorithm>

namespace desktop::uikit {
namespace {

struct UnitRange {
  char16_t first;
  char16_t last;
};

// Hebrew to Arabic Extended-A, their presentation forms, the marks, and the lead surrogates of
// U+10800-U+10FFF and U+1E800-U+1EFFF (Unicode, bidirectional classes R and AL).
constexpr UnitRange rightToLeft[] = {
    {0x0590, 0x08FF}, {0x200F, 0x200F}, {0xD802, 0xD803},
    {0xD83A, 0xD83B}, {0xFB1D, 0xFDFF}, {0xFE70, 0xFEFC},
};
// Signs, punctuation and marks, which have no direction.
constexpr UnitRange neutral[] = {
    {0x0000, 0x0040}, {0x005B, 0x0060}, {0x007B, 0x00A9}, {0x00AB, 0x00B4}, {0x00B6, 0x00B9},
    {0x00BB, 0x00BF}, {0x00D7, 0x00D7}, {0x00F7, 0x00F7}, {0x2000, 0x200D}, {0x2010, 0x2BFF},
    {0x3000, 0x3004}, {0xD83C, 0xD83E}, {0xFE00, 0xFE6F}, {0xFFF0, 0xFFFF},
};

bool isIn(const auto& ranges, char16_t unit) {
  return std::ranges::any_of(
      ranges, [unit](UnitRange range) { return unit >= range.first && unit <= range.last; });
}

}  // namespace

bool isRightToLeft(std::u16string_view text) {
  for (std::size_t index = 0; index < text.size(); ++index) {
    if (isIn(rightToLeft, text[index])) return true;
    if (!isIn(neutral, text[index])) return false;
    const bool isLead = text[index] >= 0xD800 && text[index] < 0xDC00;
    if (isLead) ++index;
  }
  return false;
}

bool hasRightToLeft(std::u16string_view text) {
  return std::ranges::any_of(text, [](char16_t unit) { return isIn(rightToLeft, unit); });
}

}  // namespace desktop::uikit
