// SPDX-License-Identifier: MIT
//
// A text taken apart into what can be laid out by itself: its paragraphs, and parts of long ones.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace desktop::uikit {

// What begins on a line of its own. Paragraphs end at line feed, carriage return, both, U+0085 and
// U+2029; U+2028, U+000B and U+000C break a line within one. A paragraph that is longer than a
// piece may be is broken like that too, behind a blank where there is one near.
struct TextPiece {
  std::size_t start = 0;        // in UTF-16 units of the text
  std::uint32_t length = 0;     // in UTF-16 units, without what ends it
  std::uint8_t separator = 0;   // units that end it: 0, 1 or 2
  bool beginsParagraph = true;  // or goes on with one
  bool endsParagraph = true;

  std::size_t end() const { return start + length; }
  bool operator==(const TextPiece&) const = default;
};

constexpr std::size_t longestPiece = 8192;  // UTF-16 units

// At least one piece; behind a separator at the end an empty one.
std::vector<TextPiece> piecesOf(std::u16string_view text);

}  // namespace desktop::uikit
