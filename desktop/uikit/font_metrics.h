// SPDX-License-Identifier: MIT
//
// What is known of a font without opening it: enough to lay out lines of text.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace desktop::uikit {

// Measures in the font's own units.
struct FontMetrics {
  std::string_view name;
  int unitsPerEm;
  int ascender;                            // above the baseline
  int descender;                           // below the baseline, so negative; no gap between lines
  std::array<std::uint16_t, 95> advances;  // widths of ' ' to '~', without kerning

  constexpr int lineHeight() const { return ascender - descender; }
};

// The font that the user interface is set in.
const FontMetrics& systemFontMetrics();

// A measure at a font size, in points.
double scaled(const FontMetrics& font, int units, double size);

// Width and height of a text.
struct TextSize {
  double width = 0;
  double height = 0;
  bool operator==(const TextSize&) const = default;
};

// What a text takes at a font size, in points and unrounded: as wide as its longest line, as high
// as its lines (one at least). Characters beyond ASCII are taken to be as wide as a digit, the wide
// ones of East Asia and what lies behind them one em. Bytes that are no UTF-8 count as a character.
TextSize measureText(const FontMetrics& font, double size, std::string_view utf8);

}  // namespace desktop::uikit
