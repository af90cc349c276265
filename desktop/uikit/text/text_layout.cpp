// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/text_layout.h"

#include <algorithm>

#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/text/utf16.h"

namespace desktop::uikit {

std::u16string_view TextLayout::unitsOf(const PlacedLine& line) const {
  return std::u16string_view(text().text).substr(line.start, line.length);
}

PlacedLine TextLayout::placed(std::size_t index, std::size_t line, double firstLineTop) const {
  const TextLine& broken = _broken.linesOf(index)[line];
  const FontFace& face = _broken.faceOf(index);
  const double advance = _broken.lineAdvance(index);
  const double top = firstLineTop + static_cast<double>(line) * advance;
  const bool isLast = line + 1 == _broken.linesOf(index).size();
  return {.start = _broken.piece(index).start + broken.start,
          .length = broken.length,
          .frame = {{_broken.x(index, line), top}, {broken.width, measuresOf(face).lineHeight()}},
          .advance = isLast ? _broken.bottom(index) - top : advance,
          .face = face};
}

std::vector<PlacedLine> TextLayout::lines(double top, double bottom) const {
  std::vector<PlacedLine> found;
  if (_broken.pieces() == 0 || !(bottom > 0) || !(size().height > 0)) return found;
  for (std::size_t index = _broken.pieceAtHeight(top); index < _broken.pieces(); ++index) {
    if (_broken.top(index) >= bottom) break;
    const double firstTop = _broken.firstLineTop(index);
    const double advance = _broken.lineAdvance(index);
    const double skipped = advance > 0 ? (top - firstTop) / advance : 0;
    const std::size_t count = _broken.linesOf(index).size();
    for (auto line = skipped > 0 ? static_cast<std::size_t>(skipped) : 0; line < count; ++line) {
      const PlacedLine next = placed(index, line, firstTop);
      if (next.frame.origin.y >= bottom) break;
      found.push_back(next);
    }
  }
  return found;
}

// Behind the last unit of a broken line a caret would stand in the next line.
std::size_t TextLayout::indexIn(const PlacedLine& line, double x, bool isLast) const {
  const std::u16string_view units = unitsOf(line);
  std::size_t index = textEngine().indexAt(line.face, units, x - line.frame.origin.x);
  if (!isLast && index == line.length && index > 0) --index;
  return line.start + outsidePair(units, index);
}

std::size_t TextLayout::indexAt(CGPoint point) const {
  if (_broken.pieces() == 0) return 0;
  const std::size_t index = _broken.pieceAtHeight(point.y);
  const double firstTop = _broken.firstLineTop(index);
  const double advance = _broken.lineAdvance(index);
  const std::size_t last = _broken.linesOf(index).size() - 1;
  const double lines = advance > 0 ? (point.y - firstTop) / advance : 0;
  const auto line = static_cast<std::size_t>(std::clamp(lines, 0.0, static_cast<double>(last)));
  return indexIn(placed(index, line, firstTop), point.x, line == last);
}

CGRect TextLayout::caretAt(std::size_t index) const {
  if (_broken.pieces() == 0) return {};
  const std::size_t piece = _broken.pieceOfUnit(index);
  const TextPiece& around = _broken.piece(piece);
  const std::size_t inPiece = std::min<std::size_t>(index - around.start, around.length);
  const std::vector<TextLine>& lines = _broken.linesOf(piece);
  const auto next = std::ranges::upper_bound(lines, inPiece, {}, &TextLine::start);
  const auto line = static_cast<std::size_t>(std::max(next - lines.begin() - 1, std::ptrdiff_t{0}));
  const PlacedLine place = placed(piece, line, _broken.firstLineTop(piece));
  const double x = textEngine().positionOf(place.face, unitsOf(place), inPiece - lines[line].start);
  return {{place.frame.origin.x + x, place.frame.origin.y}, {0, place.frame.size.height}};
}

std::vector<CGRect> TextLayout::selection(NSRange range, double top, double bottom) const {
  std::vector<CGRect> rects;
  const std::size_t end = range.location + range.length;
  for (const PlacedLine& line : lines(top, bottom)) {
    const std::size_t from = std::max<std::size_t>(range.location, line.start);
    const std::size_t to = std::min(end, line.end());
    const bool goesOn = end > line.end() && line.end() < text().text.size();
    if (from > to || (from == to && !goesOn) || range.length == 0) continue;
    const std::u16string_view units = unitsOf(line);
    const double first = textEngine().positionOf(line.face, units, from - line.start);
    const double second = textEngine().positionOf(line.face, units, to - line.start);
    const double left = line.frame.origin.x + std::min(first, second);
    const double right = goesOn ? width() : line.frame.origin.x + std::max(first, second);
    rects.push_back({{left, line.frame.origin.y}, {std::max(right - left, 0.0), line.advance}});
  }
  return rects;
}

// A line's stretches of one color are painted one by one.
void TextLayout::draw(Canvas& canvas, CGPoint origin, Color color, double top,
                      double bottom) const {
  for (const PlacedLine& line : lines(top, bottom)) {
    const std::u16string_view units = unitsOf(line);
    if (canvas.isClippedAway(offset(line.frame, origin))) continue;
    const double baseline = line.frame.origin.y + measuresOf(line.face).ascender;
    for (std::size_t at = 0; at < units.size();) {
      const TextRun* const run = &text().runAt(line.start + at);
      const bool isLast = run == &text().runs.back();
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
