// SPDX-License-Identifier: MIT
//
// A text broken into lines in a column of some width. The column begins at the origin; all lengths
// are in points and all ranges in UTF-16 units.
//
// Texts of some length are laid out whole. Of longer ones the rest is estimated until it comes
// into sight, unless its font makes breaking lines quick; `refine` then moves what is below.
#pragma once

#include <unordered_map>
#include <vector>

#include "desktop/uikit/text/attributed_text.h"
#include "desktop/uikit/text/height_index.h"
#include "desktop/uikit/text/text_pieces.h"

namespace desktop::uikit {

class Canvas;

// A line where it stands. It has one font, that of its paragraph's beginning.
struct PlacedLine {
  std::size_t start = 0;
  std::size_t length = 0;  // with the blanks at its end, without what ends a paragraph
  CGRect frame;            // of the letters
  double advance = 0;      // from its top to the next line's
  FontFace face;

  std::size_t end() const { return start + length; }
};

class TextLayout {
 public:
  // A width that is not positive takes no text at all; an infinite one takes every paragraph in
  // one line.
  TextLayout(SharedText text, double width);

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

  // The lines that lie between two heights, at least in part.
  std::vector<PlacedLine> lines(double top, double bottom) const;

  // The place in the text nearest to a point.
  std::size_t indexAt(CGPoint point) const;
  // Where a caret stands in front of a unit, without width.
  CGRect caretAt(std::size_t index) const;
  // What a selection covers between two heights: a rectangle a line, to the column's end where it
  // goes on in the next line.
  std::vector<CGRect> selection(NSRange range, double top, double bottom) const;

  // Paints the lines between two heights; the color is that of text that has none of its own.
  void draw(Canvas& canvas, CGPoint origin, Color color, double top, double bottom) const;

 private:
  struct Measured {
    std::uint32_t lines = 0;
    bool isExact = false;
  };

  std::u16string_view textOf(const TextPiece& piece) const;
  const TextRun& runOf(const TextPiece& piece) const { return _text->runAt(piece.start); }
  std::vector<TextLine> broken(std::size_t piece) const;
  const std::vector<TextLine>& linesOf(std::size_t piece) const;
  Measured measured(std::size_t piece, std::size_t& budget);
  std::uint32_t estimatedLines(const TextPiece& piece, const TextRun& run);
  void count(const std::vector<TextLine>& lines, const TextPiece& piece);
  double heightOf(std::size_t piece) const;
  double spacingBefore(std::size_t piece) const;
  double lineAdvance(std::size_t piece) const;
  double x(const TextPiece& piece, const TextLine& line, bool isFirst) const;
  PlacedLine placed(std::size_t piece, std::size_t line, double pieceTop) const;
  std::size_t pieceAt(std::size_t index) const;
  std::size_t indexIn(const PlacedLine& line, double x, bool isLast) const;

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
