// SPDX-License-Identifier: MIT
//
// Where lines, carets and selections of a layout stand, and painting it.
#include <algorithm>

#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/text/text_layout.h"
#include "desktop/uikit/text/utf16.h"

namespace desktop::uikit {

PlacedLine TextLayout::placed(std::size_t index, std::size_t line, double pieceTop) const {
  const TextPiece& piece = _pieces[index];
  const TextLine& broken = linesOf(index)[line];
  const FontFace& face = runOf(piece).face;
  const double advance = lineAdvance(index);
  const double top = pieceTop + spacingBefore(index) + static_cast<double>(line) * advance;
  const bool isLast = line + 1 == linesOf(index).size();
  return {
      .start = piece.start + broken.start,
      .length = broken.length,
      .frame = {{x(piece, broken, line == 0), top}, {broken.width, measuresOf(face).lineHeight()}},
      .advance = isLast ? pieceTop + heightOf(index) - top : advance,
      .face = face};
}

std::vector<PlacedLine> TextLayout::lines(double top, double bottom) const {
  std::vector<PlacedLine> found;
  if (_pieces.empty() || !(bottom > 0) || !(_heights.total() > 0)) return found;
  for (std::size_t index = _heights.at(top); index < _pieces.size(); ++index) {
    const double pieceTop = _heights.before(index);
    if (pieceTop >= bottom) break;
    const double advance = lineAdvance(index);
    const double skipped = advance > 0 ? (top - pieceTop - spacingBefore(index)) / advance : 0;
    const std::size_t count = linesOf(index).size();
    auto line = skipped > 0 ? static_cast<std::size_t>(skipped) : 0;
    for (; line < count; ++line) {
      const PlacedLine next = placed(index, line, pieceTop);
      if (next.frame.origin.y >= bottom) break;
      found.push_back(next);
    }
  }
  return found;
}

std::size_t TextLayout::pieceAt(std::size_t index) const {
  const auto next = std::ranges::upper_bound(_pieces, index, {}, &TextPiece::start);
  return next == _pieces.begin() ? 0 : static_cast<std::size_t>(next - _pieces.begin()) - 1;
}

// Behind the last unit of a broken line a caret would stand in the next line.
std::size_t TextLayout::indexIn(const PlacedLine& line, double x, bool isLast) const {
  const auto units = std::u16string_view(_text->text).substr(line.start, line.length);
  std::size_t index = textEngine().indexAt(line.face, units, x - line.frame.origin.x);
  if (!isLast && index == line.length && index > 0) --index;
  return line.start + outsidePair(units, index);
}

std::size_t TextLayout::indexAt(CGPoint point) const {
  if (_pieces.empty()) return 0;
  const std::size_t index = _heights.at(point.y);
  const double pieceTop = _heights.before(index);
  const double advance = lineAdvance(index);
  const std::size_t last = linesOf(index).size() - 1;
  const double lines = advance > 0 ? (point.y - pieceTop - spacingBefore(index)) / advance : 0;
  const auto line = static_cast<std::size_t>(std::clamp(lines, 0.0, static_cast<double>(last)));
  return indexIn(placed(index, line, pieceTop), point.x, line == last);
}

CGRect TextLayout::caretAt(std::size_t index) const {
  if (_pieces.empty()) return {};
  const std::size_t piece = pieceAt(index);
  const std::size_t inPiece =
      std::min<std::size_t>(index - _pieces[piece].start, _pieces[piece].length);
  const std::vector<TextLine>& lines = linesOf(piece);
  const auto next = std::ranges::upper_bound(lines, inPiece, {}, &TextLine::start);
  const auto line = static_cast<std::size_t>(std::max(next - lines.begin() - 1, std::ptrdiff_t{0}));
  const PlacedLine place = placed(piece, line, _heights.before(piece));
  const auto units = std::u16string_view(_text->text).substr(place.start, place.length);
  const double x = textEngine().positionOf(place.face, units, inPiece - lines[line].start);
  return {{place.frame.origin.x + x, place.frame.origin.y}, {0, place.frame.size.height}};
}

std::vector<CGRect> TextLayout::selection(NSRange range, double top, double bottom) const {
  std::vector<CGRect> rects;
  const std::size_t end = range.location + range.length;
  for (const PlacedLine& line : lines(top, bottom)) {
    const std::size_t from = std::max<std::size_t>(range.location, line.start);
    const std::size_t to = std::min(end, line.end());
    const bool goesOn = end > line.end() && line.end() < _text->text.size();
    if (from > to || (from == to && !goesOn) || range.length == 0) continue;
    const auto units = std::u16string_view(_text->text).substr(line.start, line.length);
    const double first = textEngine().positionOf(line.face, units, from - line.start);
    const double second = textEngine().positionOf(line.face, units, to - line.start);
    const double left = line.frame.origin.x + std::min(first, second);
    const double right = goesOn ? _width : line.frame.origin.x + std::max(first, second);
    rects.push_back({{left, line.frame.origin.y}, {std::max(right - left, 0.0), line.advance}});
  }
  return rects;
}

// A line's stretches of one color are painted one by one.
void TextLayout::draw(Canvas& canvas, CGPoint origin, Color color, double top,
                      double bottom) const {
  for (const PlacedLine& line : lines(top, bottom)) {
    const auto units = std::u16string_view(_text->text).substr(line.start, line.length);
    if (canvas.isClippedAway(offset(line.frame, origin))) continue;
    const double baseline = line.frame.origin.y + measuresOf(line.face).ascender;
    for (std::size_t at = 0; at < units.size();) {
      const TextRun* const run = &_text->runAt(line.start + at);
      const bool isLast = run == &_text->runs.back();
      const std::size_t end =
          isLast ? units.size() : std::min(units.size(), run[1].start - line.start);
      const double x = end - at == units.size()
                           ? 0
                           : std::min(textEngine().positionOf(line.face, units, at),
                                      textEngine().positionOf(line.face, units, end));
      canvas.text(units.substr(at, end - at), line.face, run->color.value_or(color),
                  {origin.x + line.frame.origin.x + x, origin.y + baseline});
      at = end;
    }
  }
}

}  // namespace desktop::uikit
