// SPDX-License-Identifier: MIT
//
// Where the lines of a text stand in a column of some width, and places in it. The column begins at
// the origin; all lengths are in points and all ranges in UTF-16 units.
#pragma once

#include <utility>
#include <vector>

#include "desktop/uikit/text/broken_text.h"

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
  // Of what is broken it says the same as BrokenText, which see.
  TextLayout(SharedText text, double width) : _broken(std::move(text), width) {}

  const AttributedText& text() const { return _broken.text(); }
  double width() const { return _broken.width(); }
  CGSize size() const { return _broken.size(); }
  bool isExact() const { return _broken.isExact(); }
  std::size_t lineCount() const { return _broken.lineCount(); }
  double refine(double top, double bottom) { return _broken.refine(top, bottom); }

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
  std::u16string_view unitsOf(const PlacedLine& line) const;
  PlacedLine placed(std::size_t piece, std::size_t line, double firstLineTop) const;
  std::size_t indexIn(const PlacedLine& line, double x, bool isLast) const;

  BrokenText _broken;
};

}  // namespace desktop::uikit
