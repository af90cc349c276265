// SPDX-License-Identifier: MIT
//
// Breaking and measuring. A text is broken by pieces when they are looked at; the heights of the
// others are estimated and refined as they come into sight, so that a long text is there at once.
// Finding places, and painting, is in text_layout_places.cpp.
#include "desktop/uikit/text/text_layout.h"

#include <algorithm>
#include <cmath>

#include "desktop/uikit/text/text_direction.h"

namespace desktop::uikit {
namespace {

constexpr std::size_t eagerUnits = std::size_t{64} << 10;
constexpr double unlimitedWidth = 1e7;
constexpr std::size_t keptPieces = 1024;  // whose lines are remembered

double indentOf(const TextPiece& piece, const ParagraphStyle& style, bool isFirst, double width) {
  const bool isParagraphsFirst = isFirst && piece.beginsParagraph;
  return std::clamp(isParagraphsFirst ? style.firstLineHeadIndent : style.headIndent, 0.0, width);
}

}  // namespace

TextLayout::TextLayout(SharedText text, double width) : _text(std::move(text)) {
  if (!(width > 0)) return;
  _width = std::min(width, unlimitedWidth);
  _pieces = piecesOf(_text->text);
  _measured.resize(_pieces.size());
  std::vector<double> heights(_pieces.size());
  std::size_t budget = eagerUnits;
  for (std::size_t piece = 0; piece < _pieces.size(); ++piece) {
    _measured[piece] = measured(piece, budget);
    _lineCount += _measured[piece].lines;
    heights[piece] = heightOf(piece);
  }
  _heights = HeightIndex(std::move(heights));
}

std::u16string_view TextLayout::textOf(const TextPiece& piece) const {
  return std::u16string_view(_text->text).substr(piece.start, piece.length);
}

std::vector<TextLine> TextLayout::broken(std::size_t index) const {
  const TextPiece& piece = _pieces[index];
  const TextRun& run = runOf(piece);
  const ParagraphRoom room{.width = _width,
                           .firstLineIndent = indentOf(piece, run.style, true, _width),
                           .headIndent = indentOf(piece, run.style, false, _width)};
  return textEngine().breakLines(run.face, textOf(piece), room);
}

const std::vector<TextLine>& TextLayout::linesOf(std::size_t piece) const {
  if (const auto known = _lines.find(piece); known != _lines.end()) return known->second;
  if (_lines.size() >= keptPieces) _lines.clear();
  return _lines.emplace(piece, broken(piece)).first->second;
}

// Exactly where that is quick or there is budget left, else about.
TextLayout::Measured TextLayout::measured(std::size_t index, std::size_t& budget) {
  const TextPiece& piece = _pieces[index];
  const TextRun& run = runOf(piece);
  const bool isQuick = textEngine().breaksQuickly(run.face, textOf(piece));
  if (!isQuick && piece.length > budget) {
    ++_estimated;
    return {estimatedLines(piece, run), false};
  }
  if (!isQuick) budget -= piece.length;
  const std::vector<TextLine> lines = broken(index);
  count(lines, piece);
  return {static_cast<std::uint32_t>(lines.size()), true};
}

std::uint32_t TextLayout::estimatedLines(const TextPiece& piece, const TextRun& run) {
  constexpr std::u16string_view sample = u"The quick brown fox jumps over the lazy dog 0123456789.";
  if (!(run.face == _sampledFace)) {
    _sampledFace = run.face;
    _sampledAdvance = textEngine().width(run.face, sample) / static_cast<double>(sample.size());
  }
  const double room = std::max(_width - indentOf(piece, run.style, false, _width), _sampledAdvance);
  const double lines = std::ceil(piece.length * _sampledAdvance / room);
  return std::isfinite(lines)
             ? static_cast<std::uint32_t>(std::clamp(lines, 1.0, 1.0 * longestPiece))
             : 1;
}

void TextLayout::count(const std::vector<TextLine>& lines, const TextPiece& piece) {
  const ParagraphStyle& style = runOf(piece).style;
  for (const TextLine& line : lines)
    _longest =
        std::max(_longest, line.width + indentOf(piece, style, &line == lines.data(), _width));
}

double TextLayout::lineAdvance(std::size_t piece) const {
  const TextRun& run = runOf(_pieces[piece]);
  return measuresOf(run.face).lineHeight() + std::max(run.style.lineSpacing, 0.0);
}

double TextLayout::spacingBefore(std::size_t index) const {
  const TextPiece& piece = _pieces[index];
  return index > 0 && piece.beginsParagraph ? std::max(runOf(piece).style.spacingBefore, 0.0) : 0;
}

double TextLayout::heightOf(std::size_t index) const {
  const TextPiece& piece = _pieces[index];
  const ParagraphStyle& style = runOf(piece).style;
  const double lines = spacingBefore(index) + _measured[index].lines * lineAdvance(index);
  if (index + 1 == _pieces.size()) return lines - std::max(style.lineSpacing, 0.0);
  return piece.endsParagraph ? lines + std::max(style.spacing, 0.0) : lines;
}

CGSize TextLayout::size() const {
  return {isExact() ? _longest : _width, _heights.total()};
}

double TextLayout::refine(double top, double bottom) {
  double shift = 0;
  if (isExact()) return shift;
  const double margin = std::max(bottom - top, 0.0);
  for (std::size_t index = _heights.at(top - margin); index < _pieces.size(); ++index) {
    const double pieceTop = _heights.before(index);
    if (pieceTop > bottom + margin + shift) break;
    if (_measured[index].isExact) continue;
    const double before = heightOf(index);
    const std::vector<TextLine>& lines = linesOf(index);
    count(lines, _pieces[index]);
    _lineCount += lines.size() - _measured[index].lines;
    _measured[index] = {static_cast<std::uint32_t>(lines.size()), true};
    --_estimated;
    const double growth = heightOf(index) - before;
    _heights.grow(index, growth);
    if (pieceTop < top + shift) shift += growth;
  }
  return shift;
}

double TextLayout::x(const TextPiece& piece, const TextLine& line, bool isFirst) const {
  const ParagraphStyle& style = runOf(piece).style;
  const double indent = indentOf(piece, style, isFirst, _width);
  switch (style.alignment) {
    case TextAlignment::center:
      return indent + (_width - indent - line.width) / 2;
    case TextAlignment::right:
      return _width - line.width;
    case TextAlignment::natural:
      return isRightToLeft(textOf(piece)) ? _width - indent - line.width : indent;
    default:
      return indent;
  }
}

}  // namespace desktop::uikit
