// SPDX-License-Identifier: MIT
//
// A text broken into lines in a column of some width, piece by piece. All lengths are in points and
// all units UTF-16's.
//
// Texts of some length are broken whole. Of longer ones the heights of the rest are estimated until
// it comes into sight, unless its font makes breaking lines quick; `refine` then moves what is
// below.
#pragma once

#include <unordered_map>
#include <vector>

#include "desktop/uikit/text/attributed_text.h"
#include "desktop/uikit/text/height_index.h"
#include "desktop/uikit/text/text_pieces.h"

namespace desktop::uikit {

class BrokenText {
 public:
  // A width that is not positive takes no text at all; an infinite one takes every paragraph in
  // one line.
  BrokenText(SharedText text, double width);

  const AttributedText& text() const { return *_text; }
  double width() const { return _width; }

  // As high as all lines, as wide as the longest one; estimated unless it is exact.
  CGSize size() const;
  bool isExact() const { return _estimated == 0; }
  // How many lines there are, estimated unless it is exact.
  std::size_t lineCount() const { return _lineCount; }

  // Lays out what lies between two heights, and as much above and below. Answers how far what is
  // at `top` moved down by that.
  double refine(double top, double bottom);

  // Pieces are counted from the top. Which is the nearest to a height, or to a unit. REQUIRES:
  // there is one.
  std::size_t pieces() const { return _pieces.size(); }
  std::size_t pieceAtHeight(double height) const { return _heights.at(height); }
  std::size_t pieceOfUnit(std::size_t unit) const;

  const TextPiece& piece(std::size_t index) const { return _pieces[index]; }
  const FontFace& faceOf(std::size_t piece) const { return runOf(_pieces[piece]).face; }
  // The top of a piece, and of its first line, which may stand below.
  double top(std::size_t piece) const { return _heights.before(piece); }
  double firstLineTop(std::size_t piece) const { return top(piece) + spacingBefore(piece); }
  double bottom(std::size_t piece) const { return top(piece) + heightOf(piece); }
  // From one line's top to the next one's.
  double lineAdvance(std::size_t piece) const;
  // Borrowed until those of another piece are asked for.
  const std::vector<TextLine>& linesOf(std::size_t piece) const;
  // Where a line of a piece begins.
  double x(std::size_t piece, std::size_t line) const;

 private:
  struct Measured {
    std::uint32_t lines = 0;
    bool isExact = false;
  };

  std::u16string_view textOf(const TextPiece& piece) const;
  const TextRun& runOf(const TextPiece& piece) const { return _text->runAt(piece.start); }
  std::vector<TextLine> broken(std::size_t piece) const;
  Measured measured(std::size_t piece, std::size_t& budget);
  std::uint32_t estimatedLines(const TextPiece& piece, const TextRun& run);
  void count(const std::vector<TextLine>& lines, const TextPiece& piece);
  double heightOf(std::size_t piece) const;
  double spacingBefore(std::size_t piece) const;

  SharedText _text;
  double _width = 0;
  std::vector<TextPiece> _pieces;
  std::vector<Measured> _measured;  // one for each piece
  HeightIndex _heights;
  std::size_t _estimated = 0;  // pieces
  std::size_t _lineCount = 0;
  double _longest = 0;  // line, with its indent
  FontFace _sampledFace{.size = 0};
  double _sampledAdvance = 0;                                             // an average
  mutable std::unordered_map<std::size_t, std::vector<TextLine>> _lines;  // of pieces in sight
};

}  // namespace desktop::uikit
