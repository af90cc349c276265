// SPDX-License-Identifier: MIT
#include "desktop/uikit/font_metrics.h"

#include <algorithm>

#include "model/utf8.h"

namespace desktop::uikit {
namespace {

// Inter Regular 4.0, as the font itself states them (rsms.me/inter).
constexpr FontMetrics inter = {
    .name = "Inter",
    .unitsPerEm = 2816,
    .ascender = 2728,
    .descender = -680,
    .advances =
        {
            // clang-format off
        792, 784, 1136, 1776, 1796, 2288, 1800, 624, 1020, 1020, 1408, 1856,
        788, 1296, 776, 1004, 1760, 1308, 1704, 1792, 1808, 1712, 1756, 1608,
        1736, 1756, 776, 788, 1856, 1856, 1856, 1428, 2636, 1904, 1832, 2048,
        2024, 1684, 1652, 2092, 2084, 744, 1528, 1836, 1584, 2504, 2120, 2144,
        1788, 2144, 1800, 1796, 1808, 2088, 1904, 2672, 1808, 1872, 1760, 1020,
        1004, 1020, 1320, 1272, 1400, 1588, 1748, 1572, 1748, 1640, 1016, 1716,
        1664, 668, 668, 1532, 668, 2448, 1648, 1680, 1716, 1716, 1048, 1472,
        1024, 1636, 1568, 2288, 1520, 1568, 1524, 1020, 920, 1020, 1856,
            // clang-format on
        },
};
static_assert(std::ranges::min(inter.advances) > 0, "Every ASCII character has a width.");

constexpr char32_t firstWideCharacter = 0x2E80;  // CJK radicals and all that follows

int advance(const FontMetrics& font, char32_t character) {
  if (character >= firstWideCharacter) return font.unitsPerEm;
  const bool isListed = character >= ' ' && character <= '~';
  return font.advances[(isListed ? character : '0') - ' '];
}

}  // namespace

const FontMetrics& systemFontMetrics() {
  return inter;
}

double scaled(const FontMetrics& font, int units, double size) {
  return size * units / font.unitsPerEm;
}

TextSize measureText(const FontMetrics& font, double size, std::string_view utf8) {
  double width = 0;
  double widest = 0;
  int lines = 1;
  for (std::size_t offset = 0; offset < utf8.size();) {
    const model::CodePoint point = model::codePointAt(utf8, offset);
    offset += point.bytes;
    if (point.value == '\n') {
      ++lines;
      width = 0;
    } else {
      width += scaled(font, advance(font, point.value), size);
      widest = std::max(widest, width);
    }
  }
  return {widest, lines * scaled(font, font.lineHeight(), size)};
}

}  // namespace desktop::uikit
