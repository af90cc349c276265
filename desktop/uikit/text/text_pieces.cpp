// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/text_pieces.h"

#include "desktop/uikit/text/utf16.h"

namespace desktop::uikit {
namespace {

constexpr char16_t verticalTab = 0x0B;
constexpr char16_t formFeed = 0x0C;
constexpr char16_t nextLine = 0x85;
constexpr char16_t lineSeparator = 0x2028;
constexpr char16_t paragraphSeparator = 0x2029;

constexpr bool endsParagraph(char16_t unit) {
  return unit == u'\n' || unit == u'\r' || unit == nextLine || unit == paragraphSeparator;
}
constexpr bool endsLine(char16_t unit) {
  return endsParagraph(unit) || unit == verticalTab || unit == formFeed || unit == lineSeparator;
}

// How much of a run without separators makes a piece.
std::size_t pieceLength(std::u16string_view text, std::size_t start) {
  constexpr std::size_t near = longestPiece / 8;
  if (text.size() - start <= longestPiece) return text.size() - start;
  const std::size_t blank = text.rfind(u' ', start + longestPiece - 1);
  if (blank != std::u16string_view::npos && blank + near >= start + longestPiece)
    return blank + 1 - start;
  return outsidePair(text, start + longestPiece) - start;
}

// Appends the pieces of what lies between two separators.
void addPieces(std::vector<TextPiece>& pieces, std::u16string_view text, std::size_t start,
               bool beginsParagraph) {
  do {
    const std::size_t length = pieceLength(text, start);
    pieces.push_back({start, static_cast<std::uint32_t>(length), 0, beginsParagraph, false});
    beginsParagraph = false;
    start += length;
  } while (start < text.size());
}

}  // namespace

std::vector<TextPiece> piecesOf(std::u16string_view text) {
  std::vector<TextPiece> pieces;
  bool beginsParagraph = true;
  for (std::size_t start = 0;;) {
    std::size_t end = start;
    while (end < text.size() && !endsLine(text[end])) ++end;
    addPieces(pieces, text.substr(0, end), start, beginsParagraph);
    TextPiece& last = pieces.back();
    last.endsParagraph = end == text.size() || endsParagraph(text[end]);
    if (end == text.size()) return pieces;
    last.separator = text.substr(end, 2) == u"\r\n" ? 2 : 1;
    beginsParagraph = last.endsParagraph;
    start = end + last.separator;
  }
}

}  // namespace desktop::uikit
